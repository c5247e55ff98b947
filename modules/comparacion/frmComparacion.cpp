#include "modules/comparacion/frmComparacion.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <numeric>

#include "frame/base/bloque.h"
#include "frame/base/textos.h"
#include "frame/modulo/cajas.h"
#include "frame/modulo/entregarlibro.h"
#include "modules/comparacion/diagramal.h"
#include "modules/comparacion/pruebasserie.h"
#include "modules/distribuciones/leyes.h"

namespace cuencalia {

namespace {

constexpr int kMuestras = 1000;
constexpr int kColumnaAkaike = 10;
constexpr int kPeriodosPorTabla = 7;  // of the report, for a page to hold its lines
constexpr std::size_t kPuntosDeCurva = 60;

/// An order of the rows, from the least key on, of the column of the candidates that shows it.
struct OrdenCandidatos {
    const char* nombre;
    int columna;
    double (*clave)(const Comparado& c, const Remuestreo& r);
};
constexpr OrdenCandidatos kOrdenes[] = {
    {"Distribución", 0, [](const Comparado&, const Remuestreo&) { return 0.0; }},
    {"Método", 1, [](const Comparado& c, const Remuestreo&) { return double(c.ajuste.candidato.metodo); }},
    {"Delta", 2, [](const Comparado& c, const Remuestreo&) { return c.bondad->delta; }},
    {"p de delta", 3, [](const Comparado&, const Remuestreo& r) { return -r.pDelta; }},
    {"Anderson-Darling", 4, [](const Comparado& c, const Remuestreo&) { return c.bondad->andersonDarling; }},
    {"p de Anderson-Darling", 5, [](const Comparado&, const Remuestreo& r) { return -r.pAndersonDarling; }},
    {"Correlación", 6, [](const Comparado& c, const Remuestreo&) { return -c.bondad->correlacion; }},
    {"p de la correlación", 7, [](const Comparado&, const Remuestreo& r) { return -r.pCorrelacion; }},
    {"Error cuadrático medio", 8, [](const Comparado& c, const Remuestreo&) { return c.bondad->error; }},
    {"p del error", 9, [](const Comparado&, const Remuestreo& r) { return -r.pError; }},
    {"Akaike (AIC)", kColumnaAkaike,
     [](const Comparado& c, const Remuestreo&) { return c.akaike.value_or(HUGE_VAL); }}};

std::string OrdenPorCaudal(double T) { return "Q de T = " + CStr(T); }

/// The orders by the columns of the candidates, then by those of the design table.
std::vector<std::string> NombresDeOrdenes() {
    std::vector<std::string> nombres;
    for (const OrdenCandidatos& o : kOrdenes) {
        nombres.emplace_back(o.nombre);
    }
    for (const double T : kPeriodosDeDiseno) {
        nombres.push_back(OrdenPorCaudal(T));
    }
    return nombres;
}
constexpr const char* kCautela =
    "Ningún ajuste es el mejor por un solo número: con pocas decenas de datos las medidas apenas separan las familias, "
    "y lo que decide Q en los grandes períodos es la cola, que los datos no alcanzan. Compare también los límites, el "
    "papel de probabilidad y lo que se sabe de la cuenca.";

std::string Numero(double valor, const char* patron) {
    return std::isnan(valor) ? "" : std::isinf(valor) ? (valor < 0 ? "-∞" : "∞") : Format(valor, patron);
}

std::string NombreDe(const Ajuste& a) {
    return std::string(NombreFamilia(a.candidato.familia)) + ", " + NombreMetodo(a.candidato.metodo);
}

std::string TextoParametros(const Distribucion& d) {
    std::string texto;
    for (const ParametroMostrado& p : d.Parametros()) {
        texto += (texto.empty() ? "" : "; ") + std::string(p.nombre) + " = " + Numero(p.valor, "0.0###");
    }
    return texto;
}

std::vector<ColumnaTabla> ColumnasDeDiseno() {
    std::vector<ColumnaTabla> columnas{{"Ajuste", 3900}};
    for (const double T : kPeriodosDeDiseno) {
        columnas.push_back({"T = " + CStr(T), 1000});
    }
    return columnas;
}

std::vector<std::string> NombresDePosiciones() {
    std::vector<std::string> nombres;
    for (const PosicionGrafica& p : kPosiciones) {
        nombres.emplace_back(p.nombre);
    }
    return nombres;
}

bool EsNumero(const std::string& texto) {
    return !texto.empty() && texto.find_first_not_of("0123456789.- ") == std::string::npos;
}

/// The columns from `desde` to before `hasta`, with their headings.
Bloque Columnas(const FlexGrid& grid, int desde, int hasta) {
    Bloque filas(static_cast<std::size_t>(grid.Rows()));
    for (std::size_t f = 0; f < filas.size(); ++f) {
        for (int c = desde; c < hasta; ++c) {
            filas[f].push_back(grid.TextMatrix(static_cast<int>(f), c));
        }
    }
    return filas;
}

/// A table of the report, its columns as wide as their widest text, those of numbers set to the right.
void ReportarFilas(Reporte& reporte, const char* titulo, const Bloque& filas) {
    std::vector<std::string> lineas(filas.size());
    int regla = -2;
    for (std::size_t c = 0; c < filas[0].size(); ++c) {
        int ancho = 0;
        bool numeros = false;
        for (const auto& fila : filas) {
            ancho = std::max(ancho, Len(fila[c]));
            numeros = numeros || EsNumero(fila[c]);
        }
        regla += ancho + 2;
        for (std::size_t f = 0; f < filas.size(); ++f) {
            const std::string relleno = Space(ancho - Len(filas[f][c]));
            lineas[f] += (c == 0 ? "" : "  ") + (numeros ? relleno + filas[f][c] : filas[f][c] + relleno);
        }
    }
    reporte.Titulo(titulo);
    reporte.LineaDeGuiones(regla);
    reporte.ReporteLinea(lineas[0]);
    reporte.LineaDeGuiones(regla);
    for (std::size_t f = 1; f < lineas.size(); ++f) {
        reporte.ReporteLinea(lineas[f]);
    }
    reporte.LineaDeGuiones(regla);
    reporte.ReporteBlanco();
}

}  // namespace

struct frmComparacion::Encargo {
    std::vector<Ajuste> ajustes;
    std::vector<double> ordenada;
    OpcionesRemuestreo opciones;
    std::atomic<bool> cancelado = false;
    std::optional<std::vector<Remuestreo>> resultado;
};

frmComparacion::frmComparacion(Aplicacion& app)
    : MarcoModulo(app, "frmComparacion", "Comparación de ajustes"),
      cmbOrden(*this, "cmbOrden", NombresDeOrdenes()),
      grdCandidatos(*this, "grdCandidatos", "Candidatos",
                    {.filas = 2,
                     .columnas = {{"Distribución", 2600},
                                  {"Método", 2000},
                                  {"Delta", 900},
                                  {"p", 700},
                                  {"A-D", 900},
                                  {"p", 700},
                                  {"Correl.", 900},
                                  {"p", 700},
                                  {"Error", 1000},
                                  {"p", 700},
                                  {"AIC", 1000},
                                  {"Observación", 5000},
                                  {"Parámetros", 3400}},
                     .columnasFijas = 1}),
      grdDiseno(*this, "grdDiseno", "Caudales de diseño",
                {.filas = 2, .columnas = ColumnasDeDiseno(), .columnasFijas = 1}),
      cmbPosicion(*this, "cmbPosicion", NombresDePosiciones()),
      cmbCurva(*this, "cmbCurva"),
      cmbCurva2(*this, "cmbCurva2") {
    for (ComboBox* lista : {&cmbOrden, &cmbNivel, &cmbPapel, &cmbPosicion, &cmbCurva, &cmbCurva2}) {
        lista->Editable = false;
    }
    cmbOrden.Text = kOrdenes[0].nombre;
    cmbNivel.Text = "90";
    cmbPapel.Text = "Gumbel";
    cmbPosicion.Text = kPosicionCunnane.nombre;
    txtSemilla.Text = "1";
    SoloNumero(txtSemilla, Cifras::Enteras);
    lblOrden.Nombra(cmbOrden);
    lblNivel.Nombra(cmbNivel);
    lblSemilla.Nombra(txtSemilla);
    lblPapel.Nombra(cmbPapel);
    lblPosicion.Nombra(cmbPosicion);
    lblCurva.Nombra(cmbCurva);
    lblCurva2.Nombra(cmbCurva2);
    SSTab1.NombreAccesible = "Partes de la comparación";
    Graph1.RotularEjes(lblEjeX, lblEjeY);
    Graph2.RotularEjes(lblTau3, lblTau4);
    DeclararTablas({&grdSerie, &grdPruebas, &grdCandidatos, &grdDiseno});
    DeclararBotones({}, {{&bCrearExcel, "crear_excel"}});
    bCancelar.Enabled = false;
    cmbOrden.Change.Conectar([this] { Ordenar(); });
    grdCandidatos.PulsarEncabezado.Conectar([this](int columna) {
        for (const OrdenCandidatos& o : kOrdenes) {
            if (o.columna == columna) {
                cmbOrden.Text = o.nombre;
            }
        }
    });
    grdDiseno.PulsarEncabezado.Conectar([this](int columna) {
        cmbOrden.Text = columna == 0 ? kOrdenes[0].nombre
                                     : OrdenPorCaudal(kPeriodosDeDiseno[static_cast<std::size_t>(columna - 1)]);
    });
    cmbPosicion.Change.Conectar([this] {
        if (calculado) {
            Calcular();
        }
    });
    for (ComboBox* lista : {&cmbPapel, &cmbCurva, &cmbCurva2}) {
        lista->Change.Conectar([this] { DibujarPapel(); });
    }
    bRemuestrear.Click.Conectar([this] { bRemuestrear_Click(); });
    bCancelar.Click.Conectar([this] { bCancelar_Click(); });
    bCrearExcel.Click.Conectar([this] { bCrearExcel_Click(); });
    bCopiar.Click.Conectar([this] { bCopiar_Click(); });
}

frmComparacion::~frmComparacion() { bCancelar_Click(); }

const PosicionGrafica& frmComparacion::Posicion() const { return kPosiciones[std::max(cmbPosicion.ListIndex(), 0)]; }

void frmComparacion::RecibirSerie(const std::string& origen, std::vector<double> serie) {
    LimpiarResultados();
    origen_ = origen;
    serie_ = std::move(serie);
    Calcular();
}

void frmComparacion::LimpiarOtros() {
    bCancelar_Click();
    calculado = false;
    serie_.clear();
    ordenada_.clear();
    comparados_.clear();
    orden_.clear();
    remuestreo_.clear();
    lblSerie.Caption = "Serie:";
    lblCautela.Caption = "";
    lblAvance.Caption = "";
    cmbCurva.List = std::vector<std::string>{};
    cmbCurva2.List = std::vector<std::string>{};
    cmbCurva.Text = "";
    cmbCurva2.Text = "";
    Graph1.LimpiarGrafico();
    Graph2.LimpiarGrafico();
}

void frmComparacion::Calcular() {
    if (serie_.empty()) {
        App().MsgBox("No hay serie: abrir la comparación desde la ventana de un ajuste con datos", kIconoInformacion,
                     "Comparación de ajustes");
        return;
    }
    bCancelar_Click();
    remuestreo_.clear();
    lblAvance.Caption = "";
    ordenada_ = serie_;
    std::sort(ordenada_.begin(), ordenada_.end());
    comparados_ = Comparar(ordenada_, Posicion());
    MostrarSerie();
    std::vector<std::string> nombres{""};
    for (const Comparado& c : comparados_) {
        if (c.ajuste.distribucion) {
            nombres.push_back(NombreDe(c.ajuste));
        }
    }
    calculado = true;
    Ordenar();
    const auto elegir = [&nombres](ComboBox& lista, std::size_t omision) {
        const std::string antes = lista.Text;
        lista.List = nombres;
        const bool queda = !antes.empty() && std::find(nombres.begin(), nombres.end(), antes) != nombres.end();
        lista.Text = queda ? antes : nombres[std::min(omision, nombres.size() - 1)];
    };
    elegir(cmbCurva, 1);
    elegir(cmbCurva2, 0);
    DibujarMomentos();
    lblCautela.Caption = kCautela;
}

void frmComparacion::MostrarSerie() {
    lblSerie.Caption = "Serie de " + std::to_string(serie_.size()) + " datos de la ventana «" + origen_ + "»";
    grdSerie.Iniciar(static_cast<int>(serie_.size()) + 1);
    for (std::size_t i = 0; i < serie_.size(); ++i) {
        grdSerie.PonerFila(static_cast<int>(i) + 1,
                           {Str(static_cast<int>(i) + 1), Numero(serie_[i], "0.0###"), Numero(ordenada_[i], "0.0###")});
    }
    int fila = 0;
    for (const PruebaSerie& p : ProbarSerie(serie_)) {
        grdPruebas.PonerFila(++fila, {p.nombre, Numero(p.estadistico, "0.0000"), Numero(p.p, "0.0000"), p.sentencia});
    }
}

void frmComparacion::Ordenar() {
    if (!calculado) {
        return;
    }
    orden_.resize(comparados_.size());
    std::iota(orden_.begin(), orden_.end(), 0);
    const auto elegido = static_cast<std::size_t>(std::max(cmbOrden.ListIndex(), 0));
    std::vector<double> claves;
    for (std::size_t i = 0; i < comparados_.size(); ++i) {
        const Comparado& c = comparados_[i];
        double clave = HUGE_VAL;  // what has no figure comes last
        if (c.bondad && elegido >= std::size(kOrdenes)) {
            clave = c.ajuste.distribucion->Caudal(kPeriodosDeDiseno[elegido - std::size(kOrdenes)]);
        } else if (c.bondad) {
            const bool remuestreado = !remuestreo_.empty() && remuestreo_[i].validas > 0;
            clave = kOrdenes[elegido].clave(c, remuestreado ? remuestreo_[i] : Remuestreo{});
        }
        claves.push_back(std::isnan(clave) ? HUGE_VAL : clave);
    }
    std::stable_sort(orden_.begin(), orden_.end(),
                     [&claves](std::size_t a, std::size_t b) { return claves[a] < claves[b]; });
    MostrarCandidatos();
    MostrarDiseno();
}

void frmComparacion::MostrarCandidatos() {
    grdCandidatos.Iniciar(static_cast<int>(comparados_.size()) + 1);
    int fila = 0;
    for (const std::size_t i : orden_) {
        const Comparado& c = comparados_[i];
        const Candidato& candidato = c.ajuste.candidato;
        std::vector<std::string> textos{NombreFamilia(candidato.familia), NombreMetodo(candidato.metodo)};
        if (!c.bondad) {
            textos.resize(kColumnaAkaike + 1);
            textos.push_back(c.ajuste.motivo);
        } else {
            const bool remuestreado = !remuestreo_.empty() && remuestreo_[i].validas > 0;
            const Remuestreo r = remuestreado ? remuestreo_[i] : Remuestreo{};
            const auto p = [remuestreado](double valor) { return remuestreado ? Numero(valor, "0.000") : ""; };
            textos.insert(textos.end(),
                          {Numero(c.bondad->delta, "0.0000"), p(r.pDelta), Numero(c.bondad->andersonDarling, "0.000"),
                           p(r.pAndersonDarling), Numero(c.bondad->correlacion, "0.0000"), p(r.pCorrelacion),
                           Numero(c.bondad->error, "0.0##"), p(r.pError), c.akaike ? Numero(*c.akaike, "0.00") : ""});
            std::string observacion;
            if (std::isinf(c.bondad->andersonDarling)) {
                observacion = "Hay datos más allá del extremo de la distribución";
            }
            if (remuestreado && r.validas < kMuestras) {
                observacion += (observacion.empty() ? "Muestras" : "; muestras") +
                               (" sin ajuste posible: " + std::to_string(kMuestras - r.validas));
            }
            textos.push_back(observacion);
            textos.push_back(TextoParametros(*c.ajuste.distribucion));
        }
        grdCandidatos.PonerFila(++fila, textos);
    }
}

void frmComparacion::MostrarDiseno() {
    const auto ajustados = std::count_if(comparados_.begin(), comparados_.end(),
                                         [](const Comparado& c) { return c.ajuste.distribucion.has_value(); });
    const int filasDeUno = remuestreo_.empty() ? 1 : 3;
    grdDiseno.Iniciar(static_cast<int>(ajustados) * filasDeUno + 1);
    int fila = 0;
    for (const std::size_t i : orden_) {
        const auto& d = comparados_[i].ajuste.distribucion;
        if (!d) {
            continue;
        }
        std::vector<std::string> caudales{NombreDe(comparados_[i].ajuste)};
        std::vector<std::string> inferiores{"   límite inferior " + nivelMostrado_};
        std::vector<std::string> superiores{"   límite superior " + nivelMostrado_};
        for (std::size_t t = 0; t < std::size(kPeriodosDeDiseno); ++t) {
            caudales.push_back(Numero(d->Caudal(kPeriodosDeDiseno[t]), "0.00"));
            if (!remuestreo_.empty()) {
                inferiores.push_back(Numero(remuestreo_[i].limites[t].inferior, "0.00"));
                superiores.push_back(Numero(remuestreo_[i].limites[t].superior, "0.00"));
            }
        }
        grdDiseno.PonerFila(++fila, caudales);
        if (!remuestreo_.empty()) {
            grdDiseno.PonerFila(++fila, inferiores);
            grdDiseno.PonerFila(++fila, superiores);
        }
    }
}

void frmComparacion::bRemuestrear_Click() {
    if (!ExigirCalculo({"Efectuar cálculos antes de remuestrear", kIconoError, "Mensaje de Error"})) {
        return;
    }
    bCancelar_Click();
    auto encargo = std::make_shared<Encargo>();
    for (const Comparado& c : comparados_) {
        encargo->ajustes.push_back(c.ajuste);
    }
    encargo->ordenada = ordenada_;
    encargo->opciones.muestras = kMuestras;
    encargo->opciones.semilla = static_cast<std::uint64_t>(std::clamp(Val(txtSemilla.Text()).valor(), 0.0, 1e15));
    encargo->opciones.nivel = Val(cmbNivel.Text()).valor() / 100;
    encargo->opciones.posicion = Posicion().a;
    encargo_ = encargo;
    bCancelar.Enabled = true;
    bRemuestrear.Enabled = false;
    lblAvance.Caption = "Remuestreando…";
    // When the window is gone or has another task, this one is cancelled, and nothing of it comes back.
    App().Sistema().EnSegundoPlano(
        {.trabajo =
             [encargo](const std::function<bool(double)>& avanzar) {
                 encargo->opciones.progreso = [&](double parte) { return !encargo->cancelado && avanzar(parte); };
                 encargo->resultado =
                     Remuestrear(encargo->ajustes, encargo->ordenada, kPeriodosDeDiseno, encargo->opciones);
             },
         .alAvanzar =
             [this, encargo](double parte) {
                 if (!encargo->cancelado) {
                     lblAvance.Caption = "Remuestreando: " + Format(100 * parte, "0") + " %";
                 }
             },
         .alTerminar =
             [this, encargo] {
                 if (!encargo->cancelado) {
                     Entregar(*encargo);
                 }
             }});
}

void frmComparacion::Entregar(const Encargo& encargo) {
    bCancelar.Enabled = false;
    bRemuestrear.Enabled = true;
    if (!encargo.resultado) {
        lblAvance.Caption = "Remuestreo sin terminar";
        return;
    }
    remuestreo_ = *encargo.resultado;
    for (Remuestreo& r : remuestreo_) {
        r.limites.resize(std::size(kPeriodosDeDiseno), {std::nan(""), std::nan("")});
    }
    nivelMostrado_ = Format(100 * encargo.opciones.nivel, "0") + " %";
    lblAvance.Caption = "Límites del " + nivelMostrado_ + " y significaciones por " + std::to_string(kMuestras) +
                        " muestras, semilla " + std::to_string(encargo.opciones.semilla);
    Ordenar();
    DibujarPapel();
}

void frmComparacion::bCancelar_Click() {
    if (encargo_ == nullptr) {
        return;
    }
    encargo_->cancelado = true;
    encargo_.reset();
    if (!bRemuestrear.Enabled) {
        lblAvance.Caption = "Remuestreo cancelado";
    }
    bCancelar.Enabled = false;
    bRemuestrear.Enabled = true;
}

std::optional<std::size_t> frmComparacion::Elegido(const ComboBox& lista) const {
    for (std::size_t i = 0; i < comparados_.size(); ++i) {
        if (comparados_[i].ajuste.distribucion && NombreDe(comparados_[i].ajuste) == lista.Text()) {
            return i;
        }
    }
    return std::nullopt;
}

void frmComparacion::DibujarPapel() {
    if (!calculado) {
        return;
    }
    const bool gumbel = cmbPapel.ListIndex() == 0;
    const bool logaritmos = cmbPapel.ListIndex() == 2;
    const auto reducida = [gumbel](double p) { return gumbel ? -std::log(-std::log(p)) : CuantilNormal(p); };
    const auto agregar = [&](SerieGrafico& s, double p, double Q) {
        if (std::isfinite(Q) && (!logaritmos || Q > 0)) {
            s.x.emplace_back(reducida(p));
            s.y.emplace_back(logaritmos ? std::log10(Q) : Q);
        }
    };
    std::vector<SerieGrafico> series{{.leyenda = "Datos", .sueltos = true}};
    const int n = static_cast<int>(ordenada_.size());
    for (int i = 1; i <= n; ++i) {
        agregar(series[0], Posicion()(i, n), ordenada_[static_cast<std::size_t>(i - 1)]);
    }
    for (const ComboBox* lista : {&cmbCurva, &cmbCurva2}) {
        const auto i = Elegido(*lista);
        if (!i) {
            continue;
        }
        const auto& d = *comparados_[*i].ajuste.distribucion;
        SerieGrafico curva{.leyenda = NombreDe(comparados_[*i].ajuste)};
        // Evenly spaced on the paper, from T = 1.01 to 1000.
        const double desde = reducida(0.01);
        const double hasta = reducida(0.999);
        for (std::size_t k = 0; k <= kPuntosDeCurva; ++k) {
            const double y = desde + (hasta - desde) * static_cast<double>(k) / kPuntosDeCurva;
            const double p = gumbel ? std::exp(-std::exp(-y)) : ProbabilidadNormal(y);
            agregar(curva, p, d.Valor(d.Cuantil(p)));
        }
        series.push_back(std::move(curva));
        if (lista == &cmbCurva && !remuestreo_.empty()) {
            SerieGrafico banda[2]{{.leyenda = "Límite inferior " + nivelMostrado_},
                                  {.leyenda = "Límite superior " + nivelMostrado_}};
            for (std::size_t t = 0; t + 1 < std::size(kPeriodosDeDiseno); ++t) {
                const double p = 1 - 1 / kPeriodosDeDiseno[t];
                agregar(banda[0], p, remuestreo_[*i].limites[t].inferior);
                agregar(banda[1], p, remuestreo_[*i].limites[t].superior);
            }
            for (SerieGrafico& limite : banda) {
                if (!limite.y.empty()) {
                    series.push_back(std::move(limite));
                }
            }
        }
    }
    lblEjeX.Caption = gumbel ? "Variable reducida de Gumbel, -ln(-ln P)" : "Variable normal estándar z";
    lblEjeY.Caption = logaritmos ? "Logaritmo decimal de Q (m3/s)" : "Q (m3/s)";
    std::size_t puntos = 1;
    for (const SerieGrafico& s : series) {
        puntos = std::max(puntos, s.y.size());
    }
    GraficoDibujar(Graph1, {.puntos = static_cast<int>(puntos)}, series);
}

void frmComparacion::DibujarMomentos() {
    const PuntoL suyo = PuntoDeSerie(ordenada_);
    std::vector<SerieGrafico> series;
    if (std::isfinite(suyo.tau3) && std::isfinite(suyo.tau4)) {
        series.push_back({.leyenda = "Serie", .x = {suyo.tau3}, .y = {suyo.tau4}, .sueltos = true});
    }
    for (const Familia familia : {Familia::ValorExtremo, Familia::Logistica, Familia::Pareto, Familia::LogNormal3,
                                  Familia::Gamma3, Familia::Weibull}) {
        SerieGrafico curva{.leyenda = NombreFamilia(familia)};
        for (int k = -8; k <= 14; ++k) {
            curva.x.emplace_back(0.05 * k);
            curva.y.emplace_back(Tau4(familia, 0.05 * k));
        }
        series.push_back(std::move(curva));
    }
    for (const Familia familia : {Familia::Normal, Familia::Gumbel, Familia::Exponencial}) {
        const PuntoL p = PuntoDeFamilia(familia);
        series.push_back({.leyenda = NombreFamilia(familia), .x = {p.tau3}, .y = {p.tau4}, .sueltos = true});
    }
    GraficoDibujar(Graph2, {.puntos = 23}, series);
}

void frmComparacion::bCrearExcel_Click() {
    if (!ExigirCalculo({"Efectuar cálculos antes de crear la hoja", kIconoError, "Mensaje de Error"})) {
        return;
    }
    // Numbers go out as numbers, for the spreadsheet to calculate with.
    const auto celda = [](const std::string& texto) -> ValorCelda {
        return EsNumero(texto) ? ValorCelda(Val(texto)) : ValorCelda(texto);
    };
    Hoja hoja;
    int fila = 0;
    for (const FlexGrid* tabla : {static_cast<FlexGrid*>(&grdSerie), static_cast<FlexGrid*>(&grdPruebas),
                                  static_cast<FlexGrid*>(&grdCandidatos), static_cast<FlexGrid*>(&grdDiseno)}) {
        for (int f = 0; f < tabla->Rows(); ++f) {
            ++fila;
            for (int c = 0; c < tabla->Cols(); ++c) {
                if (const std::string& texto = tabla->TextMatrix(f, c); !texto.empty()) {
                    hoja.Poner(fila, c + 1, celda(texto));
                }
            }
        }
        ++fila;
    }
    EntregarLibro(App(), hoja, "Las tablas se guardaron en");
}

void frmComparacion::bCopiar_Click() {
    std::string texto;
    for (const FlexGrid* tabla : {static_cast<FlexGrid*>(&grdSerie), static_cast<FlexGrid*>(&grdPruebas),
                                  static_cast<FlexGrid*>(&grdCandidatos), static_cast<FlexGrid*>(&grdDiseno)}) {
        texto += tabla->TextoCompleto(true) + "\n";
    }
    App().Sistema().PonerEnPortapapeles(texto);
    StatusBar1.PonerPanel(kPanelAvisos, "Las tablas están en el portapapeles");
}

void frmComparacion::GenerarReporte(Reporte& reporte) {
    reporte.ReporteLinea(lblSerie.Caption());
    reporte.ReporteBlanco();
    ReportarFilas(reporte, "Pruebas de la serie:", Columnas(grdPruebas, 0, grdPruebas.Cols()));
    ReportarFilas(reporte, "Candidatos:", Columnas(grdCandidatos, 0, kColumnaAkaike + 1));
    Bloque parametros = Columnas(grdCandidatos, 0, 2);
    for (std::size_t f = 0; f < parametros.size(); ++f) {
        const std::string& observacion = grdCandidatos.TextMatrix(static_cast<int>(f), kColumnaAkaike + 1);
        const std::string& valores = grdCandidatos.TextMatrix(static_cast<int>(f), kColumnaAkaike + 2);
        parametros[f].push_back(valores + (valores.empty() || observacion.empty() ? "" : ". ") + observacion);
    }
    parametros[0].back() = "Parámetros y observación";
    ReportarFilas(reporte, "Parámetros de los candidatos:", parametros);
    reporte.ReporteLinea(lblCautela.Caption());
    reporte.ReporteBlanco();
    for (int desde = 1; desde < grdDiseno.Cols(); desde += kPeriodosPorTabla) {
        Bloque caudales = Columnas(grdDiseno, 0, 1);
        const Bloque otros = Columnas(grdDiseno, desde, std::min(desde + kPeriodosPorTabla, grdDiseno.Cols()));
        for (std::size_t f = 0; f < caudales.size(); ++f) {
            caudales[f].insert(caudales[f].end(), otros[f].begin(), otros[f].end());
        }
        ReportarFilas(reporte,
                      desde == 1 ? "Caudales de diseño (m3/s):" : "Caudales de diseño (m3/s), continuación:", caudales);
    }
    reporte.ReporteLinea(lblAvance.Caption());
}

Disposicion frmComparacion::Cuerpo() {
    Disposicion remuestreo =
        Grupo(fraRemuestreo,
              {Fila({lblNivel, cmbNivel, lblSemilla, txtSemilla, bRemuestrear, bCancelar, Espacio()}), lblAvance});
    return Fichas(
        SSTab1,
        {Columna({lblSerie,
                  Fila({Columna({Disposicion(grdSerie).Estira(1)}), Disposicion(grdPruebas).Estira(1)}).Estira(1)}),
         Columna({Fila({lblOrden, cmbOrden, Espacio(), bCopiar, bCrearExcel}), Disposicion(grdCandidatos).Estira(1),
                  lblCautela}),
         Columna({std::move(remuestreo), Disposicion(grdDiseno).Estira(1)}),
         Columna({Fila({lblPapel, cmbPapel, lblPosicion, cmbPosicion, Espacio()}),
                  Fila({lblCurva, cmbCurva, lblCurva2, cmbCurva2, Espacio()}), Fila({lblEjeY, Espacio()}),
                  Disposicion(Graph1).Estira(1), Fila({Espacio(), lblEjeX})}),
         Columna({Fila({lblTau4, Espacio()}), Disposicion(Graph2).Estira(1), Fila({Espacio(), lblTau3})})});
}

}  // namespace cuencalia
