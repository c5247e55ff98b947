#include "shell/frmCuencalia.h"

#include <string_view>

namespace cuencalia {

namespace {

constexpr std::string_view kMenu{};
constexpr std::string_view kTerminar = "*terminar";
constexpr std::string_view kAyuda = "*ayuda";

struct Entrada {
    const char* control;
    const char* caption;
    std::string_view abre;  ///< Name of the form that the entry opens, or one of the constants above.
};

/// The menu tree in order. An entry that opens nothing and is not a separator starts a new menu of the menu bar.
constexpr Entrada kArbol[] = {
    {"mpara", "Parámetros", kMenu},
    {"mparanoagru", "Datos no agrupados", "frmParamEsta"},
    {"mparaagru", "Datos agrupados", "frmParEstAgru"},
    {"mpararaya1", "-", kMenu},
    {"mparadistri", "Distribución de frecuencia", "frmDistriFre"},
    {"mpararaya2", "-", kMenu},
    {"mparasalir", "&Salir", kTerminar},
    {"mregre", "&Regresión", kMenu},
    {"mnuregreLineal", "Regresión &lineal", "frmRegreLineal"},
    {"mregresimple", "Regresión &simple", "frmEjRegSimple"},
    {"mraya1regre", "-", kMenu},
    {"mregremulti2", "Regresión múltiple &2 var. independientes", "frmRegMul2Var"},
    {"mregremul3", "Regresión múltiple &3 var. independientes", "frmRegMul3Var"},
    {"mraya2regre", "-", kMenu},
    {"mregrepoli2", "Regresión &polinomial 2° grado", "frmRegPoli2Gra"},
    {"mregrepoli3", "Regresión polinomial 3° &grado", "frmRegPoli3Gra"},
    {"mraya3regre", "-", kMenu},
    {"mnuregrear", "Modelo autorregresivo AR(1) o Markoviano de orden 1", "frmAutoregresivo"},
    {"mnuregreautotrans", "Modelo autorregresivo AR(1) con transformación", "frmAutoregTrans"},
    {"mdistri", "&Distribuciones", kMenu},
    {"mdistrinormal", "&Normal", "frmDisNormal"},
    {"mdistriraya1", "-", kMenu},
    {"mdistrinlog2para", "LogNormal 2 parámetros", "frmDisLogNormal2"},
    {"mdistrilog3", "LogNormal 3 parámetros", "frmDisLogNormal3"},
    {"mdistriraya2", "-", kMenu},
    {"mdistrgam2", "Gamma 2 parámetros", "frmDisGamma2par"},
    {"mdistrigam3", "Gamma 3 parámetros", "frmDisGamma3par"},
    {"mdistriraya3", "-", kMenu},
    {"mdistrilogPearson", "LogPearson tipo III", "frmDisLogPearson3"},
    {"mdistriraya4", "-", kMenu},
    {"mdistriGumbel", "Gumbel", "frmDisGumbel"},
    {"mdistrilogGumbel", "LogGumbel", "frmDisLogGumbel"},
    {"mcurvaca", "Curvas características", kMenu},
    {"mcurvacavaresta", "Curva de variación estacional", "frmVariacionEsta"},
    {"mcurvacadura", "Curva de duración", "frmCurvaDuracion"},
    {"mpreci", "Precipitación", kMenu},
    {"mprecitormen", "Análisis tormenta", "frmAnalisisTor"},
    {"mpreciraya1", "-", kMenu},
    {"mnupreciintmax", "Cálculo intensidad máxima", "frmIntensidadMax"},
    {"mnupreintdyck", "Cálculo de intensidad máxima con el criterio de Grobe, conocido como de Dyck y Peschke",
     "frmDyckPeschkeImax"},
    {"mnuprecibell", "Cálculo de intensidad máxima con el criterio de  Frederich Bell", "frmBell"},
    {"mpreciraya2", "-", kMenu},
    {"mpreciprom", "Promedio aritmético", "frmPromArit"},
    {"mprepoligono", "Polígono de Thiessen", "frmThiessen"},
    {"mpreisoyeta", "Isoyetas", "frmIsoyeta"},
    {"maforo", "Aforo", kMenu},
    {"maforocorren", "Correntómetro", "frmAforoCorren"},
    {"mmaxi", "Caudales máximos", kMenu},
    {"mmaxeraci", "Racional", "frmQmaxRacional"},
    {"mmaxiradyck", "Racional con Dyck y Peschke", "frmQmaxRacDyckPeschke"},
    {"mmaxempraya2", "-", kMenu},
    {"mmaxemmacmath", "Mac Math", "frmQmaxMacMath"},
    {"mmaximathdyck", "Mac Math con Dyck y Peschke", "frmQmaxMacMathDyckPeschke"},
    {"mmaxempraya1", "-", kMenu},
    {"mmaxestgumbel", "Gumbel", "frmQmaxGumbel"},
    {"maxestnash", "Nash", "frmQmaxNash"},
    {"mevapo", "Evapotranspiración", kMenu},
    {"mevthorn", "Thornthwaite", "frmThornthwaite"},
    {"mevablaney", "Blaney-Criddle", "frmBlaneyCriddle"},
    {"mevapenman", "Penman", "frmPenman"},
    {"mevaHargreaves", "Hargreaves", "frmHargreaves"},
    {"mEvaraya1", "-", kMenu},
    {"mevabalance", "Balance hídrico", "frmBalanceHidro"},
    {"mayuda", "Ayuda", kMenu},
    {"mayuayu", "Ayuda", kAyuda},
    {"mayuraya1", "-", kMenu},
    {"mayuacerca", "Acerca de Cuencalia 2", "frmacerc"},
};

constexpr bool EsRaya(const Entrada& e) { return std::string_view(e.caption) == "-"; }

}  // namespace

frmCuencalia::frmCuencalia(Aplicacion& app)
    : Formulario(app, "frmCuencalia",
                 "Cuencalia, software para cálculos hidrológicos y estadísticos aplicados a la hidrología") {
    bsalir.Picture = "salir";
    bsalir.Click.Conectar([this] { bsalir_Click(); });
    CrearMenus();
}

void frmCuencalia::CrearMenus() {
    Menu* menu = nullptr;
    for (const Entrada& e : kArbol) {
        if (e.abre == kMenu && !EsRaya(e)) {
            menu = menus_.emplace_back(std::make_unique<Menu>(*this, e.control, e.caption)).get();
            continue;
        }
        Menu& entrada = *menus_.emplace_back(std::make_unique<Menu>(*menu, e.control, e.caption));
        if (e.abre == kTerminar) {
            entrada.Click.Conectar([this] { App().Terminar(); });
        } else if (e.abre == kAyuda) {
            entrada.Click.Conectar([this] { mayuayu_Click(); });
        } else if (!EsRaya(e)) {
            const std::string forma(e.abre);
            entrada.Enabled = App().Existe(forma);
            entrada.Click.Conectar([this, forma] { App().ModuloAbrir(forma); });
        }
    }
}

void frmCuencalia::Form_Load() {
    bsalir.ConColor = true;
    bsalir.BackColor = Color{75, 115, 166};
}

bool frmCuencalia::PuedeCerrar() {
    return !App().HayTrabajo() ||
           App().Sistema().Preguntar("Hay datos o reportes que no se han guardado.\n\n¿Salir del programa y perderlos?",
                                     "Salir", false);
}

void frmCuencalia::mayuayu_Click() {
    try {
        App().AbrirAyuda();
    } catch (const ErrorEjecucion&) {
        App().MsgBox("Para obtener la ayuda presionar la tecla F1 ", kIconoInformacion, "Mensaje de error");
    }
}

Disposicion frmCuencalia::Disponer() {
    return Columna({lblNombre, lblLema, Espacio(), Fila({Espacio(), bsalir}), imgFondo});
}

}  // namespace cuencalia
