#include "shell/frmCuencalia.h"

#include <gtest/gtest.h>

#include <string_view>

#include "shell/formas.h"
#include "shell/frmacerc.h"
#include "guion/plataformaguion.h"

namespace cuencalia {
namespace {

struct Entrada {
    std::string_view control, caption;
    std::string_view abre;  ///< A form, "menu", "ends the program", "help file", or nothing for a separator.
};

/// The whole menu as the users' manual has it, from left to right and from top to bottom.
constexpr Entrada kArbol[] = {
    {"mpara", "Parámetros", "menu"},
    {"mparanoagru", "Datos no agrupados", "frmParamEsta"},
    {"mparaagru", "Datos agrupados", "frmParEstAgru"},
    {"mpararaya1", "-", ""},
    {"mparadistri", "Distribución de frecuencia", "frmDistriFre"},
    {"mpararaya2", "-", ""},
    {"mparasalir", "&Salir", "ends the program"},
    {"mregre", "&Regresión", "menu"},
    {"mnuregreLineal", "Regresión &lineal", "frmRegreLineal"},
    {"mregresimple", "Regresión &simple", "frmEjRegSimple"},
    {"mraya1regre", "-", ""},
    {"mregremulti2", "Regresión múltiple &2 var. independientes", "frmRegMul2Var"},
    {"mregremul3", "Regresión múltiple &3 var. independientes", "frmRegMul3Var"},
    {"mraya2regre", "-", ""},
    {"mregrepoli2", "Regresión &polinomial 2° grado", "frmRegPoli2Gra"},
    {"mregrepoli3", "Regresión polinomial 3° &grado", "frmRegPoli3Gra"},
    {"mraya3regre", "-", ""},
    {"mnuregrear", "Modelo autorregresivo AR(1) o Markoviano de orden 1", "frmAutoregresivo"},
    {"mnuregreautotrans", "Modelo autorregresivo AR(1) con transformación", "frmAutoregTrans"},
    {"mdistri", "&Distribuciones", "menu"},
    {"mdistrinormal", "&Normal", "frmDisNormal"},
    {"mdistriraya1", "-", ""},
    {"mdistrinlog2para", "LogNormal 2 parámetros", "frmDisLogNormal2"},
    {"mdistrilog3", "LogNormal 3 parámetros", "frmDisLogNormal3"},
    {"mdistriraya2", "-", ""},
    {"mdistrgam2", "Gamma 2 parámetros", "frmDisGamma2par"},
    {"mdistrigam3", "Gamma 3 parámetros", "frmDisGamma3par"},
    {"mdistriraya3", "-", ""},
    {"mdistrilogPearson", "LogPearson tipo III", "frmDisLogPearson3"},
    {"mdistriraya4", "-", ""},
    {"mdistriGumbel", "Gumbel", "frmDisGumbel"},
    {"mdistrilogGumbel", "LogGumbel", "frmDisLogGumbel"},
    {"mcurvaca", "Curvas características", "menu"},
    {"mcurvacavaresta", "Curva de variación estacional", "frmVariacionEsta"},
    {"mcurvacadura", "Curva de duración", "frmCurvaDuracion"},
    {"mpreci", "Precipitación", "menu"},
    {"mprecitormen", "Análisis tormenta", "frmAnalisisTor"},
    {"mpreciraya1", "-", ""},
    {"mnupreciintmax", "Cálculo intensidad máxima", "frmIntensidadMax"},
    {"mnupreintdyck", "Cálculo de intensidad máxima con el criterio de Grobe, conocido como de Dyck y Peschke",
     "frmDyckPeschkeImax"},
    {"mnuprecibell", "Cálculo de intensidad máxima con el criterio de  Frederich Bell", "frmBell"},
    {"mpreciraya2", "-", ""},
    {"mpreciprom", "Promedio aritmético", "frmPromArit"},
    {"mprepoligono", "Polígono de Thiessen", "frmThiessen"},
    {"mpreisoyeta", "Isoyetas", "frmIsoyeta"},
    {"maforo", "Aforo", "menu"},
    {"maforocorren", "Correntómetro", "frmAforoCorren"},
    {"mmaxi", "Caudales máximos", "menu"},
    {"mmaxeraci", "Racional", "frmQmaxRacional"},
    {"mmaxiradyck", "Racional con Dyck y Peschke", "frmQmaxRacDyckPeschke"},
    {"mmaxempraya2", "-", ""},
    {"mmaxemmacmath", "Mac Math", "frmQmaxMacMath"},
    {"mmaximathdyck", "Mac Math con Dyck y Peschke", "frmQmaxMacMathDyckPeschke"},
    {"mmaxempraya1", "-", ""},
    {"mmaxestgumbel", "Gumbel", "frmQmaxGumbel"},
    {"maxestnash", "Nash", "frmQmaxNash"},
    {"mevapo", "Evapotranspiración", "menu"},
    {"mevthorn", "Thornthwaite", "frmThornthwaite"},
    {"mevablaney", "Blaney-Criddle", "frmBlaneyCriddle"},
    {"mevapenman", "Penman", "frmPenman"},
    {"mevaHargreaves", "Hargreaves", "frmHargreaves"},
    {"mEvaraya1", "-", ""},
    {"mevabalance", "Balance hídrico", "frmBalanceHidro"},
    {"mayuda", "Ayuda", "menu"},
    {"mayuayu", "Ayuda", "help file"},
    {"mayuraya1", "-", ""},
    {"mayuacerca", "Acerca de Cuencalia 2", "frmacerc"},
};

bool EsForma(const Entrada& e) { return e.abre.starts_with("frm"); }

/// One form for each name that the menu knows, all empty.
TablaFormas TodasLasFormas() {
    TablaFormas formas = FormasDelPrograma();
    for (const Entrada& e : kArbol) {
        if (EsForma(e) && !formas.contains(std::string(e.abre))) {
            formas[std::string(e.abre)] = [nombre = std::string(e.abre)](Aplicacion& a) {
                return std::make_unique<Formulario>(a, nombre, nombre);
            };
        }
    }
    return formas;
}

class CuencaliaTest : public testing::Test {
  protected:
    explicit CuencaliaTest(TablaFormas formas = FormasDelPrograma()) : app(sistema, std::move(formas)) {
        app.Despachar([&] { app.ModuloAbrir("frmCuencalia"); });
    }

    frmCuencalia& F() { return dynamic_cast<frmCuencalia&>(*app.Cargada("frmCuencalia")); }
    Menu& EntradaDe(std::string_view nombre) { return dynamic_cast<Menu&>(*F().Controls(std::string(nombre))); }
    void Elegir(std::string_view nombre) {
        app.Despachar([&] { EntradaDe(nombre).Elegir(); });
    }

    PlataformaGuion sistema;
    Aplicacion app;
};

class CuencaliaCompleta : public CuencaliaTest {
  protected:
    CuencaliaCompleta() : CuencaliaTest(TodasLasFormas()) {}
};

TEST_F(CuencaliaTest, ArbolDelMenu) {
    std::vector<std::pair<std::string, std::string>> esperado, hallado;
    for (const Entrada& e : kArbol) {
        const std::string sangria = e.abre == "menu" ? "" : "    ";
        esperado.emplace_back(sangria + std::string(e.control), e.caption);
    }
    for (const Menu* menu : F().Barra()) {
        hallado.emplace_back(menu->Nombre(), menu->Caption());
        for (const Menu* entrada : menu->Entradas()) {
            hallado.emplace_back("    " + entrada->Nombre(), entrada->Caption());
        }
    }
    EXPECT_EQ(hallado, esperado);
}

TEST_F(CuencaliaTest, GrisLoQueElProgramaNoTiene) {
    const TablaFormas formas = FormasDelPrograma();
    ASSERT_TRUE(formas.contains("frmParamEsta"));
    for (const Entrada& e : kArbol) {
        const bool activa = !EsForma(e) || formas.contains(std::string(e.abre));
        EXPECT_EQ(EntradaDe(e.control).Enabled(), activa) << e.control;
    }
}

TEST_F(CuencaliaCompleta, CadaEntradaAbreSuForma) {
    for (const Entrada& e : kArbol) {
        if (!EsForma(e)) {
            continue;
        }
        sistema.alFrente = nullptr;
        Elegir(e.control);
        ASSERT_NE(sistema.alFrente, nullptr) << e.control;
        EXPECT_EQ(sistema.alFrente->Nombre(), e.abre) << e.control;
    }
    EXPECT_TRUE(F().EsVisible() && F().EsHabilitado()) << "the menu stays as it is";
    EXPECT_TRUE(sistema.mensajes.empty());
    EXPECT_TRUE(sistema.errores.empty());
}

TEST_F(CuencaliaTest, AlAbrir) {
    EXPECT_EQ(F().Caption(), "Cuencalia, software para cálculos hidrológicos y estadísticos aplicados a la hidrología");
    EXPECT_EQ(F().bsalir.Caption(), "&Salir");
    EXPECT_TRUE(F().bsalir.ConColor);
    EXPECT_EQ(F().bsalir.BackColor(), (Color{75, 115, 166}));
    EXPECT_TRUE(sistema.abiertos.empty());
    EXPECT_TRUE(sistema.mensajes.empty());
}

TEST_F(CuencaliaTest, SalirTerminaSinPreguntar) {
    Elegir("mparanoagru");
    app.PulsarTecla('5', '5');
    app.Pulsar(F().bsalir);
    EXPECT_TRUE(sistema.terminado);
    EXPECT_TRUE(sistema.mensajes.empty());
    EXPECT_NE(app.Cargada("frmParamEsta"), nullptr) << "nothing was unloaded";
}

TEST_F(CuencaliaTest, SalirDelMenu) {
    Elegir("mparasalir");
    EXPECT_TRUE(sistema.terminado);
    EXPECT_TRUE(sistema.mensajes.empty());
}

TEST_F(CuencaliaTest, Ayuda) {
    Elegir("mayuayu");
    ASSERT_EQ(sistema.abiertos.size(), 1U);
    EXPECT_TRUE(sistema.abiertos[0].starts_with(sistema.CarpetaInstalacion() + "/ayuda/")) << sistema.abiertos[0];
    EXPECT_TRUE(sistema.mensajes.empty()) << "a missing file is not told";

    sistema.shellFalla = true;
    Elegir("mayuayu");
    ASSERT_EQ(sistema.mensajes.size(), 1U);
    EXPECT_EQ(sistema.mensajes[0].texto, "Para obtener la ayuda presionar la tecla F1 ");
    EXPECT_EQ(sistema.mensajes[0].icono, 64);
    EXPECT_EQ(sistema.mensajes[0].titulo, "Mensaje de error");
    EXPECT_TRUE(sistema.errores.empty());
}

TEST_F(CuencaliaTest, AcercaDe) {
    Elegir("mayuacerca");
    auto* acerca = dynamic_cast<frmacerc*>(app.Cargada("frmacerc"));
    ASSERT_NE(acerca, nullptr);
    EXPECT_EQ(sistema.alFrente, acerca);
    EXPECT_EQ(acerca->Caption(), "Acerca de Cuencalia para Windows");
    EXPECT_EQ(acerca->bsalir.Caption(), "&Cerrar");
    EXPECT_EQ(acerca->lblTrabajos.Caption(), "Para otros trabajos consultar:");
    EXPECT_EQ(acerca->lblConsultas.Caption(), "Consultas y sugerencias :");
    const std::string sistemas = acerca->lblSistemas.Caption();
    for (const char* parte : {"Windows XP", "Vista", "7", "8", "32", "64"}) {
        EXPECT_NE(sistemas.find(parte), std::string::npos) << parte;
    }
    app.Pulsar(acerca->bsalir);
    EXPECT_EQ(app.Cargada("frmacerc"), nullptr);
    EXPECT_EQ(sistema.alFrente, &F());
    EXPECT_FALSE(sistema.terminado);
}

}  // namespace
}  // namespace cuencalia
