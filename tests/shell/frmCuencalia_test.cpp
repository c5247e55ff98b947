#include "shell/frmCuencalia.h"

#include "frame/modulo/modulocalculo.h"
#include "frame/reportes/frmPadre.h"
#include "tests/archivos_en_disco.h"
#include "tests/forma_en_uso.h"

namespace cuencalia {
namespace {

class CuencaliaTest : public pruebas::FormaEnUso<frmCuencalia> {
  protected:
    CuencaliaTest() : FormaEnUso("frmCuencalia") {}

    void Elegir(const std::string& nombre) {
        app.Despachar([&] { dynamic_cast<Menu&>(*F().Controls(nombre)).Elegir(); });
    }
};

// The forms in the order of the menu; an entry whose form the program does not have is greyed.
TEST_F(CuencaliaTest, CadaEntradaAbreSuFormaOEsGris) {
    pruebas::Textos abiertas;
    for (const Menu* menu : F().Barra()) {
        for (const Menu* entrada : menu->Entradas()) {
            if (!entrada->EsSeparador() && entrada->Enabled() && entrada->Caption() != "&Salir") {
                sistema.alFrente = &F();
                Elegir(entrada->Nombre());
                abiertas.push_back(entrada->Caption() + ": " + sistema.alFrente->Nombre());
            }
        }
    }
    // clang-format off
    EXPECT_EQ(abiertas, (pruebas::Textos{
        "Datos no agrupados: frmParamEsta", "Datos agrupados: frmParEstAgru", "Distribución de frecuencia: frmDistriFre",
        "Regresión &lineal: frmRegreLineal", "Regresión &simple: frmEjRegSimple",
        "Regresión múltiple &2 var. independientes: frmRegMul2Var", "Regresión múltiple &3 var. independientes: frmRegMul3Var",
        "Regresión &polinomial 2° grado: frmRegPoli2Gra", "Regresión polinomial 3° &grado: frmRegPoli3Gra",
        "Modelo autorregresivo AR(1) o Markoviano de orden 1: frmAutoregresivo",
        "Modelo autorregresivo AR(1) con transformación: frmAutoregTrans", "&Normal: frmDisNormal",
        "LogNormal 2 parámetros: frmDisLogNormal2", "LogNormal 3 parámetros: frmDisLogNormal3",
        "Gamma 2 parámetros: frmDisGamma2par", "Gamma 3 parámetros: frmDisGamma3par",
        "LogPearson tipo III: frmDisLogPearson3", "Gumbel: frmDisGumbel", "LogGumbel: frmDisLogGumbel",
        "Curva de variación estacional: frmVariacionEsta", "Curva de duración: frmCurvaDuracion",
        "Análisis tormenta: frmAnalisisTor", "Cálculo intensidad máxima: frmIntensidadMax",
        "Cálculo de intensidad máxima con el criterio de Grobe, conocido como de Dyck y Peschke: frmDyckPeschkeImax",
        "Cálculo de intensidad máxima con el criterio de  Frederich Bell: frmBell",
        "Promedio aritmético: frmPromArit", "Polígono de Thiessen: frmThiessen", "Isoyetas: frmIsoyeta",
        "Correntómetro: frmAforoCorren", "Racional: frmQmaxRacional",
        "Racional con Dyck y Peschke: frmQmaxRacDyckPeschke", "Mac Math: frmQmaxMacMath",
        "Mac Math con Dyck y Peschke: frmQmaxMacMathDyckPeschke", "Gumbel: frmQmaxGumbel", "Nash: frmQmaxNash",
        "Thornthwaite: frmThornthwaite", "Blaney-Criddle: frmBlaneyCriddle", "Penman: frmPenman",
        "Hargreaves: frmHargreaves", "Balance hídrico: frmBalanceHidro",
        "Ayuda: frmCuencalia", "Acerca de Cuencalia 2: frmacerc"}));
    // clang-format on
    EXPECT_FALSE(sistema.terminado);
    Elegir("mparasalir");
    EXPECT_TRUE(sistema.terminado);
    EsperarSilencio();
}

TEST_F(CuencaliaTest, SalirTerminaSinPreguntar) {
    Elegir("mparanoagru");
    app.PulsarTecla('5', '5');
    app.Pulsar(F().bsalir);
    EXPECT_TRUE(sistema.terminado);
    EsperarSilencio();
    EXPECT_NE(app.Cargada("frmParamEsta"), nullptr) << "nothing was unloaded";
}

TEST_F(CuencaliaTest, CerrarPreguntaPorLoQueNoSeGuardo) {
    const auto preguntas = [this] {
        sistema.mensajes.clear();
        app.CerrarVentana(F());
        Abrir("frmCuencalia");
        return sistema.mensajes.size();
    };
    EXPECT_EQ(app.Foco(), nullptr) << "a stray ENTER presses nothing";
    EXPECT_EQ(preguntas(), 0U);
    Elegir("mparanoagru");
    auto& modulo = dynamic_cast<ModuloCalculo&>(*app.Cargada("frmParamEsta"));
    app.PulsarTecla('5', '5');
    EXPECT_EQ(preguntas(), 1U) << "typed, though not confirmed";
    Abrir("frmParamEsta");
    app.PulsarTecla(kTeclaEnter, kTeclaEnter);
    const pruebas::CarpetaTemporal carpeta;
    sistema.archivo = carpeta / "serie.X";
    app.Pulsar(modulo.archivos.bCrear);
    EXPECT_EQ(preguntas(), 0U) << "stored";
    app.Pulsar(modulo.bReporte);
    EXPECT_EQ(preguntas(), 1U) << "a report";
    sistema.archivo = carpeta / "reporte.rtf";
    app.Elegir(dynamic_cast<frmPadre&>(*app.Cargada("frmPadre")).mnuFileSave);
    EXPECT_EQ(preguntas(), 0U);
    app.Pulsar(modulo.bMenu);
    EXPECT_EQ(app.Foco(), nullptr);
}

TEST_F(CuencaliaTest, Ayuda) {
    Elegir("mayuayu");
    ASSERT_EQ(sistema.abiertos.size(), 1U);
    EXPECT_TRUE(sistema.abiertos[0].starts_with(sistema.CarpetaInstalacion() + "/ayuda/")) << sistema.abiertos[0];
    sistema.shellFalla = true;
    Elegir("mayuayu");
    ASSERT_EQ(sistema.mensajes.size(), 1U);
    EXPECT_EQ(sistema.mensajes[0].texto, "Para obtener la ayuda presionar la tecla F1 ");
    EXPECT_EQ(sistema.mensajes[0].icono, kIconoInformacion);
    EXPECT_TRUE(sistema.errores.empty());
}

}  // namespace
}  // namespace cuencalia
