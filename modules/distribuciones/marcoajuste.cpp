#include "modules/distribuciones/marcoajuste.h"

#include "frame/base/textos.h"
#include "frame/modulo/recibeserie.h"
#include "modules/distribuciones/comprobacion.h"
#include "modules/distribuciones/reporteajuste.h"
#include "modules/estadistica/orden.h"

namespace cuencalia {

namespace {

constexpr int kFilasTabla = 500;
constexpr int kRondasGamma = 1200;  // Gammainversa counts one more when it ends without having settled
constexpr const char* kPatronParametro = "#####0.0###";
constexpr const char* kPatronProbabilidad = "#####0.0##0";
constexpr const char* kTituloAviso = "Mensaje de Error";
constexpr const char* kPatronCaudal = "#####0.#0";

constexpr int kVecesLaSerie = 4;  // a return period so many times the series is told to be far beyond it

}  // namespace

CampoParametro::CampoParametro(Formulario& forma, const char* nombre, const char* rotulo, const char* enElReporte,
                               const Double& suValor)
    : etiqueta(forma, std::string("lbl") + nombre, rotulo),
      caja(forma, nombre),
      enReporte(enElReporte),
      valor(suValor) {
    etiqueta.Nombra(caja);
}

TipoDeAjuste::TipoDeAjuste(Formulario& forma, const DescripcionAjuste& descripcion)
    : marco(forma, "fraTipo", "Tipo de ajuste:"),
      optOrdinario(forma, "optOrdinario", "Parámetros ordinarios", true),
      optMomentoLi(forma, "optMomentoLi", "Momentos lineales"),
      lblOrdinarios(forma, "lblOrdinarios", descripcion.encabezadoOrdinarios, Papel::Encabezado),
      lblLineales(forma, "lblLineales", descripcion.encabezadoLineales, Papel::Encabezado) {}

MarcoAjuste::MarcoAjuste(Aplicacion& app, std::string nombre, DescripcionAjuste descripcion)
    : ModuloCalculo(app, std::move(nombre),
                    {.titulo = descripcion.titulo,
                     .datos = {.encabezados = {"N°", "X"}},
                     .archivo = &kArchivoX,
                     .filasMax = kFilasTabla - 1}),
      fraParametros(*this, "fraParametros", descripcion.marcoParametros),
      grddis(*this, "grddis", "Prueba de Smirnov-Kolmogorov",
             {.filas = kFilasTabla,
              .columnas = {{"m", 700},
                           {"X", 1000},
                           {"P(X)", 1000},
                           {descripcion.encabezadosTeoricos[0], 1200},
                           {descripcion.encabezadosTeoricos[1], 1300},
                           {"Delta", 1000}}}),
      ajuste_(std::move(descripcion)) {
    if (ajuste_.porAmbosMomentos) {
        tipo.emplace(*this, ajuste_);
    }
    LeerEn({&x});
    AvisarFallos(kDatosInadecuados);
    DeclararTablas({&grddis});
    DeclararBotones({{&bGraficar, "graficar"}},
                    {{&bQ, "evaluar"}, {&bT, "evaluar"}, {&bPmayor, "evaluar"}, {&bPmenor, "evaluar"}});
    DeclararEntradas({&txtxt, &txtxq});
    DeclararResultados({&txtxp});
    DeclararGraficos({&Graph1});
    DeclararInicio({&lblmensaje, &lblDelta5, &lblAjuste});
    DeclararInicio(advertencia_);
    lblT.Nombra(txtxt);
    lblQ.Nombra(txtxq);
    lblP.Nombra(txtxp);
    Graph1.RotularEjes(lblEjeX, lblEjeY);
    bGraficar.Click.Conectar([this] { bGraficar_Click(); });
    bComparar.Click.Conectar([this] { bComparar_Click(); });
    bQ.Click.Conectar([this] { bQ_Click(); });
    bT.Click.Conectar([this] { bT_Click(); });
    bPmayor.Click.Conectar([this] { bPmayor_Click(); });
    bPmenor.Click.Conectar([this] { bPmenor_Click(); });
}

void MarcoAjuste::DeclararParametros(ParametrosDeAjuste ordinarios, ParametrosDeAjuste lineales) {
    ordinarios_ = std::move(ordinarios);
    lineales_ = std::move(lineales);
    for (const auto* parametros : {&ordinarios_, &lineales_}) {
        for (CampoParametro* p : *parametros) {
            DeclararResultados({&p->caja});
        }
    }
}

bool MarcoAjuste::Calcular() {
    CargarMatrices();
    if (!AdmiteDatos()) {
        return false;
    }
    for (int i = 1; i <= n; ++i) {
        xo(i) = x(i);
    }
    OrdenarPorSeleccion(xo, n);
    if (!AdmiteSerie()) {
        return false;
    }
    for (int i = 1; i <= n; ++i) {
        PX(i) = PosicionWeibull(i, n);
    }
    Ajustar();
    if (!ajuste_.parametrosTrasTabla) {
        MostrarParametros();
    }
    if (!AdmiteParametros()) {
        return false;
    }
    lblAjuste.Caption = Ordinario() ? "Ajuste con momentos ordinarios:" : "Ajuste con momentos lineales:";
    const Probabilidades& teorica = Ordinario() ? Gord : Glin;
    for (int i = 1; i <= n; ++i) {
        Delta(i) = Abs(PX(i) - teorica(i));
    }
    const Double deltaTeorico = MayorDelta(Delta, n);
    LlenarTabla();
    if (ajuste_.parametrosTrasTabla) {
        MostrarParametros();
    }
    EscribirVeredicto(deltaTeorico, DeltaTabular(Nivel(), n), Nivel().texto);
    MostrarDelta5();
    datosAjustados_ = n;
    advertencia_.clear();
    if (StatusBar1.Panel(kPanelAvisos) == avisoPuntos_) {
        StatusBar1.PonerPanel(kPanelAvisos, "");
    }
    return true;
}

void MarcoAjuste::MostrarParametros() {
    for (const auto* parametros : {&ordinarios_, &lineales_}) {
        for (CampoParametro* p : *parametros) {
            p->caja.Text = Format(p->valor, kPatronParametro);
        }
    }
}

void MarcoAjuste::LlenarTabla() {
    const auto [tercera, cuarta] = Teoricas();
    for (int i = 1; i <= n; ++i) {
        grddis.PonerFila(i, {CStr(i), Format(xo(i), kPatronParametro), Format(PX(i), kPatronProbabilidad),
                             Format(tercera(i), kPatronProbabilidad), Format(cuarta(i), kPatronProbabilidad),
                             Format(Delta(i), kPatronProbabilidad)});
    }
    // The table may contain the fit of a longer series: rows beyond the n values of this series are emptied.
    grddis.VaciarDesde(n + 1);
}

const NivelSignificacion& MarcoAjuste::Nivel() const {
    if (opt020.Value) {
        return kNivel20;
    }
    if (opt010.Value) {
        return kNivel10;
    }
    return opt001.Value ? kNivel1 : kNivel5;
}

void MarcoAjuste::EscribirVeredicto(Double deltaTeorico, Double deltaTabular, const char* nivel) {
    const bool seAjusta = deltaTeorico < deltaTabular;
    const std::string teorico = Format(deltaTeorico, ajuste_.patronDeltaTeorico);
    const std::string tabular = Format(deltaTabular, ajuste_.patronDeltaTabular);
    lblmensaje.Caption = "Como el delta teórico " + teorico + ", es " + (seAjusta ? "menor" : "mayor") +
                         " que el delta tabular " + tabular + ". Los datos " + (seAjusta ? "" : "no ") +
                         "se ajustan a la distribución " + ajuste_.nombre + ", con un nivel de significación del" +
                         nivel;
}

bool MarcoAjuste::Preparado(const std::string& magnitud, const TextBox& entrada, const char* falta) {
    if (!ExigirCalculo({"Efectuar cálculos antes de evaluar " + magnitud, kIconoError, kTituloAviso})) {
        return false;
    }
    if (entrada.Text().empty()) {
        App().MsgBox(std::string("Ingresar un valor ") + falta + ", antes de evaluar", kIconoError, kTituloAviso);
        return false;
    }
    return true;
}

void MarcoAjuste::bQ_Click() {
    if (!Preparado("caudal de diseño", txtxt, "de T") || !PuedeEvaluar()) {
        return;
    }
    const Double T = Val(txtxt.Text());
    if (T <= 1) {
        // Some of the approximations answer all the same, others end here with an error.
        Decir(txtxt, "El período de retorno debe ser mayor que 1 año");
    }
    const Double Q = Cuantil(1 - 1 / T);
    txtxq.Text = Format(Q, kPatronCaudal);
    if (T > 1) {
        Comprobado(
            txtxt, txtxq, Q, [&] { return Exacta().Cuantil(1 - 1 / T); }, kPatronCaudal, T);
    }
}

void MarcoAjuste::bT_Click() {
    if (!Preparado("el período de retorno", txtxq, "para Q") || !PuedeEvaluar()) {
        return;
    }
    if (const auto G = Probabilidad(Val(txtxq.Text()), Evaluacion::PeriodoRetorno)) {
        const Double T = 1 / (1 - *G);
        txtxt.Text = Format(T, ajuste_.patronT);
        Comprobado(
            txtxq, txtxt, T, [&] { return 1 / Exacta().Excedencia(Val(txtxq.Text())); }, ajuste_.patronT, T);
    }
}

void MarcoAjuste::Decir(const TextBox& entrada, const std::string& texto) {
    const std::string lectura = AvisoDeLectura(entrada.Text);
    StatusBar1.PonerPanel(kPanelAvisos, lectura.empty() ? texto : lectura + " · " + texto);
}

void MarcoAjuste::Comprobado(const TextBox& entrada, const TextBox& caja, Double valor,
                             const std::function<Double()>& exacto, const char* patron, Double T) {
    Comprobacion c = Comprobar({.valor = valor,
                                .mostrado = caja.Text,
                                .patron = patron,
                                .T = T,
                                .sinAsentar = n > kRondasGamma && n > datosAjustados_,
                                .causa = CausaDeDiferencia(),
                                .exacto = exacto});
    if (c.existe) {
        if (&caja != &txtxp) {
            advertencia_ = c.advierte ? c.texto : "";
            advertidaT_ = txtxt.Text;
            advertidaQ_ = txtxq.Text;
        }
        if (T > kVecesLaSerie * datosAjustados_) {
            c.texto += "; T es más de " + std::to_string(kVecesLaSerie) + " veces la longitud de la serie";
        }
    }
    Decir(entrada, c.texto);
}

void MarcoAjuste::MostrarDelta5() {
    const auto delta = Delta5();
    lblDelta5.Caption = delta ? "Los parámetros salen de la misma serie: de una distribución verdadera, el 5 % de las "
                                "series pasa de un delta de " +
                                    Format(*delta, "0.000")
                              : "";
}

void MarcoAjuste::bPmayor_Click() { EvaluarProbabilidad(Evaluacion::Excedencia, ajuste_.avisoPmayor); }

void MarcoAjuste::bPmenor_Click() { EvaluarProbabilidad(Evaluacion::NoExcedencia, "la probabilidad de no excedencia"); }

void MarcoAjuste::EvaluarProbabilidad(Evaluacion evaluacion, const char* magnitud) {
    if (!Preparado(magnitud, txtxq, "para Q") || !PuedeEvaluar()) {
        return;
    }
    if (const auto G = Probabilidad(Val(txtxq.Text()), evaluacion)) {
        const Double P = evaluacion == Evaluacion::Excedencia ? 1 - *G : *G;
        txtxp.Text = Format(P * 100, ajuste_.patronP);
        Comprobado(
            txtxq, txtxp, P * 100,
            [&] {
                const Double Q = Val(txtxq.Text());
                return 100 * (evaluacion == Evaluacion::Excedencia ? Exacta().Excedencia(Q) : Exacta().NoExcedencia(Q));
            },
            ajuste_.patronP, 0);
    }
}

void MarcoAjuste::bGraficar_Click() {
    if (!ExigirCalculo()) {
        return;
    }
    if (n <= 1) {
        App().MsgBox(kGraficarSinPuntos);
        return;
    }
    if (n != datosAjustados_) {
        avisoPuntos_ = "El gráfico tiene " + std::to_string(n) + " puntos y no los " + std::to_string(datosAjustados_) +
                       " del ajuste: Calcular los devuelve";
        StatusBar1.PonerPanel(kPanelAvisos, avisoPuntos_);
    }
    PX(0) = Gord(0) = Glin(0) = 0;
    const std::vector<const Probabilidades*> curvas{&PX, &Gord, &Glin};
    std::vector<SerieGrafico> series;
    for (std::size_t s = 0; s < ajuste_.leyendas.size(); ++s) {
        SerieGrafico& serie = series.emplace_back(SerieGrafico{.leyenda = ajuste_.leyendas[s], .x = {}, .y = {}});
        for (int k = 0; k <= n; ++k) {
            serie.x.push_back(k == 0 ? Double(0) : xo(k));
            serie.y.push_back((*curvas[s])(k));
        }
    }
    GraficoDibujar(Graph1, {}, series);
}

void MarcoAjuste::bComparar_Click() {
    std::vector<double> serie;
    for (int i = 1; i <= datos.Filas(); ++i) {
        serie.push_back(Val(datos.grdt.TextMatrix(i, 1)).valor());
    }
    if (serie.empty()) {
        App().MsgBox("Antes de comparar, ingresar datos", kIconoInformacion, kTituloAviso);
        return;
    }
    dynamic_cast<RecibeSerie&>(App().ModuloAbrir("frmComparacion")).RecibirSerie(Caption(), std::move(serie));
}

void MarcoAjuste::GenerarReporte(Reporte& reporte) {
    constexpr int kReglaSerie = 40;
    reporte.EscribirTabla(TablaDeSerie("Serie de datos X:", {" N°", " X"}, kReglaSerie), datos.grdt, datos.Filas());
    reporte.ReporteBlanco();
    reporte.ReporteBlanco();
    ReportarPrueba(reporte, grddis, ajuste_);
    ReportarVeredicto(reporte, lblAjuste.Caption, lblmensaje.Caption);
    ReportarParametros(reporte, ajuste_, ordinarios_, lineales_);
    const bool advertida = txtxt.Text() == advertidaT_ && txtxq.Text() == advertidaQ_;
    ReportarDiseno(reporte, txtxt.Text, txtxq.Text, advertida ? advertencia_ : "");
}

Disposicion MarcoAjuste::ZonaParametros() {
    const auto tabla = [](const ParametrosDeAjuste& campos) {
        std::vector<Disposicion> celdas;
        for (CampoParametro* campo : campos) {
            celdas.emplace_back(campo->etiqueta);
            celdas.emplace_back(campo->caja);
        }
        return Pares(2, std::move(celdas));
    };
    if (!tipo) {
        return Grupo(fraParametros, {tabla(ordinarios_)});
    }
    return Grupo(
        fraParametros,
        {Fila({Columna({tipo->lblOrdinarios, tabla(ordinarios_)}), Columna({tipo->lblLineales, tabla(lineales_)})})});
}

Disposicion MarcoAjuste::ZonaDiseno() {
    return Grupo(fraDiseno, {Pares(3, {lblT, txtxt, lblUnidadT, lblQ, txtxq, lblUnidadQ, lblP, txtxp, lblUnidadP}),
                             Fila({bQ, bT, bPmayor, bPmenor, Espacio()})});
}

/// The options and the parameters stand side by side above the table and the chart, so that the table has the width of
/// all its columns on a small screen.
Disposicion MarcoAjuste::Contenido() {
    std::vector<Disposicion> arriba;
    if (tipo) {
        arriba.push_back(Grupo(tipo->marco, {tipo->optOrdinario, tipo->optMomentoLi}));
    }
    arriba.push_back(Grupo(fraNivel, {Pares(2, {opt020, opt010, opt005, opt001})}));
    arriba.push_back(ZonaParametros().Estira(1));
    Disposicion prueba =
        Columna({Disposicion(grddis).Estira(1), lblAjuste, lblmensaje, lblDelta5, Fila({bComparar, Espacio()})});
    Disposicion evaluacion = Columna({ZonaDiseno(), Fila({lblEjeY, Espacio()}), Disposicion(Graph1).Estira(1),
                                      Fila({Espacio(), lblEjeX}), Espacio(0)});
    return Columna({Fila(std::move(arriba)), Fila({std::move(prueba), std::move(evaluacion).Estira(1)}).Estira(1)});
}

}  // namespace cuencalia
