#include "shell/frmCuencalia.h"

#include <set>

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

TEST_F(CuencaliaTest, CadaEntradaAbreSuForma) {
    std::set<std::string> abiertas;
    for (const Menu* menu : F().Barra()) {
        for (const Menu* entrada : menu->Entradas()) {
            if (!entrada->EsSeparador() && entrada->Caption() != "&Salir") {
                EXPECT_TRUE(entrada->Enabled()) << entrada->Caption();
                sistema.alFrente = &F();
                Elegir(entrada->Nombre());
                abiertas.insert(sistema.alFrente->Nombre());
            }
        }
    }
    EXPECT_EQ(abiertas.size(), 42U) << "40 modules, the box that tells the version, and help, which opens none";
    EXPECT_FALSE(sistema.terminado);
    Elegir("mparasalir");
    EXPECT_TRUE(sistema.terminado);
    EsperarSilencio();
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
