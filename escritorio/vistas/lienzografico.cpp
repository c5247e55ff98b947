#include "escritorio/vistas/lienzografico.h"

#include <QFontInfo>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <numeric>

#include "escritorio/vistas/estilo.h"
#include "escritorio/vistas/textoqt.h"

namespace cuencalia {

namespace {

constexpr QSize kTamanoMinimo(300, 180), kTamanoNatural(480, 320);
constexpr double kAire = 0.04;  ///< Share of the range left free on either side of the data.
constexpr double kMayorAcercamiento = 1e-6, kMayorAlejamiento = 1e3;  ///< Zoom limits, shares of the range of all data.
constexpr double kMayorValor = 1e200;   ///< Beyond it the axes cannot show a point: it is left out.
constexpr double kAlcancePuntero = 24;  ///< Greatest distance in pixels from the pointer to a point that it marks.
constexpr int kSimbolosTodos = 40;      ///< A line with up to this many points has a symbol at each of them.
constexpr int kSimbolosPorLinea = 24;   ///< Symbols of each longer line; more would hide the dashes.
constexpr double kGrosor = 1.8, kLadoSimbolo = 7;
constexpr int kPuntosDensos = 300;  ///< Lines with more are thinner: legible, and drawn some fifty times as fast.
constexpr int kMuestra = 36, kMuestraSimbolo = 14;  ///< Width of a line and of a lone symbol in the legend.
constexpr int kAnchoNumero = 36;                    ///< Room for the number of a point without an x of its own.
constexpr int kMargenEjes = 9;                      ///< Margin left of the axis numbers and below the title.
constexpr int kMargenDerecho = 26;                  ///< Room for the right half of the last axis number.
constexpr int kAlfaRelleno = 90, kAlfaAgua = 60;

/// Colours that people with red or green colour blindness can tell apart: dark ones for paper, light ones for a dark
/// screen.
/// Source: Okabe, M. and Ito, K. (2008), "Color Universal Design", University of Tokyo; the green for dark screens is
/// lighter.
constexpr std::array<QRgb, 6> kSobreClaro{0xff0072b2, 0xffd55e00, 0xff009e73, 0xff000000, 0xffcc79a7, 0xffe69f00};
constexpr std::array<QRgb, 6> kSobreOscuro{0xff56b4e9, 0xffe69f00, 0xff2fb98f, 0xfff2f2f2, 0xffcc79a7, 0xfff0e442};

constexpr std::array kSimbolos{QCPScatterStyle::ssCircle,   QCPScatterStyle::ssSquare,
                               QCPScatterStyle::ssTriangle, QCPScatterStyle::ssDiamond,
                               QCPScatterStyle::ssCross,    QCPScatterStyle::ssTriangleInverted};

/// Lengths of dashes and gaps, in line widths; an empty list is a solid line.
const std::array<QVector<qreal>, 6> kRayas{{{}, {5, 2.5}, {7, 2.5, 1.2, 2.5}, {1.2, 2}, {10, 3}, {7, 2, 1, 2, 1, 2}}};

bool EnEjes(double valor) { return std::abs(valor) < kMayorValor; }

/// The points of a set that have both values, in the order in which they were written.
std::vector<QPointF> PuntosDe(const GraficoModulo& grafico, std::size_t conjunto) {
    const auto& y = grafico.Conjuntos()[conjunto].y;
    const auto x = grafico.Abscisas(static_cast<int>(conjunto) + 1);
    std::vector<QPointF> puntos;
    for (std::size_t i = 0; i < y.size(); ++i) {
        if (x[i] && y[i] && EnEjes(x[i]->valor()) && EnEjes(y[i]->valor())) {
            puntos.emplace_back(x[i]->valor(), y[i]->valor());
        }
    }
    return puntos;
}

/// The range from `minimo` to `maximo` with some room on either side; a single value gets a range around it.
QCPRange ConAire(double minimo, double maximo) {
    const double mayor = std::max(std::abs(minimo), std::abs(maximo));
    const bool uno = maximo - minimo <= 1e-9 * mayor;
    const double aire = !uno ? kAire * (maximo - minimo) : mayor > 0 ? 0.1 * mayor : 1;
    return {minimo - aire, maximo + aire};
}

QColor ConAlfa(QColor color, int alfa) {
    color.setAlpha(alfa);
    return color;
}

QString Numero(double valor) { return QString::number(valor, 'g', 7); }

/// Axis numbers with as many decimals as the ticks need; powers of ten are used only for numbers that would be too
/// long.
class Marcas : public QCPAxisTicker {
  public:
    /// The names of the whole numbers from 1 on; without them the numbers are shown.
    void Nombrar(const QStringList& nombres) { nombres_ = nombres; }

  protected:
    double getTickStep(const QCPRange& rango) override {
        paso_ = QCPAxisTicker::getTickStep(rango);
        mayor_ = std::max(std::abs(rango.lower), std::abs(rango.upper));
        return paso_;
    }

    QString getTickLabel(double marca, const QLocale& lugar, QChar, int) override {
        if (!nombres_.isEmpty()) {
            const double punto = std::round(marca);
            return std::abs(marca - punto) < 1e-6 * paso_ ? nombres_.value(static_cast<int>(punto) - 1) : QString();
        }
        if (std::abs(marca) < 1e-6 * paso_) {
            return QStringLiteral("0");
        }
        const int decimales = Decimales();
        if (mayor_ < 1e7 && decimales <= kMasDecimales) {
            return lugar.toString(marca, 'f', decimales);
        }
        return lugar.toString(marca, 'g', std::clamp(static_cast<int>(std::log10(mayor_ / paso_)) + 2, 3, 15));
    }

  private:
    static constexpr int kMasDecimales = 6;

    int Decimales() const {
        int decimales = 0;
        for (double paso = paso_; decimales <= kMasDecimales && std::abs(paso - std::round(paso)) > 1e-6 * paso;) {
            paso *= 10;
            ++decimales;
        }
        return decimales;
    }

    double paso_ = 1, mayor_ = 1;
    QStringList nombres_;
};

}  // namespace

Tinta Tinta::DePapel() {
    return {Qt::white, QColor(0x1a, 0x1a, 0x1a), QColor(0x50, 0x50, 0x50), QColor(0xdd, 0xdd, 0xdd), &kSobreClaro};
}

Tinta Tinta::DePantalla(const QPalette& paleta, bool gris) {
    const QColor papel = paleta.color(gris ? QPalette::Window : QPalette::Base);
    const QColor linea = estilo::Linea();
    const bool oscuro = papel.lightness() < paleta.color(QPalette::Text).lightness();
    return {papel, paleta.color(QPalette::Text), estilo::TextoTenue(), oscuro ? linea.darker(125) : linea.lighter(112),
            oscuro ? &kSobreOscuro : &kSobreClaro};
}

LienzoGrafico::LienzoGrafico(QWidget* padre) : QCustomPlot(padre) {
    setLocale(QLocale::c());
    setAntialiasedElements(QCP::aeAll);
    setAutoAddPlottableToLegend(false);
    setMinimumSize(kTamanoMinimo);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setInteractions(QCP::iRangeDrag | QCP::iRangeZoom);

    // The legend is centred in a row of its own, where it covers no point.
    auto* fila = new QCPLayoutGrid;
    plotLayout()->insertRow(0);
    plotLayout()->addElement(0, 0, fila);
    plotLayout()->setRowStretchFactor(0, 0.001);
    plotLayout()->setRowSpacing(0);
    fila->expandTo(1, 3);
    fila->addElement(0, 1, legend);
    fila->setColumnStretchFactor(1, 0.001);
    legend->setFillOrder(QCPLegend::foColumnsFirst);
    legend->setBorderPen(Qt::NoPen);
    legend->setBrush(Qt::NoBrush);

    legend->setColumnSpacing(16);
    axisRect()->setMinimumMargins(QMargins(0, kMargenDerecho / 2, kMargenDerecho, 0));

    QFont letra = font();
    letra.setPixelSize(QFontInfo(letra).pixelSize());  // points would change with the resolution of a file
    legend->setFont(letra);
    for (QCPAxis* eje : {xAxis, yAxis}) {
        eje->setTicker(QSharedPointer<Marcas>::create());
        eje->setNumberFormat(QStringLiteral("gbc"));
        eje->setSubTicks(false);
        eje->setTickLength(0, 4);
        eje->setTickLabelFont(letra);
        eje->setLabelFont(letra);
        eje->setLabelPadding(6);
        eje->setPadding(kMargenEjes);
    }
    connect(xAxis, qOverload<const QCPRange&, const QCPRange&>(&QCPAxis::rangeChanged), this,
            [this](const QCPRange& nuevo, const QCPRange& anterior) { Limitar(*xAxis, todoX_, nuevo, anterior); });
    connect(yAxis, qOverload<const QCPRange&, const QCPRange&>(&QCPAxis::rangeChanged), this,
            [this](const QCPRange& nuevo, const QCPRange& anterior) { Limitar(*yAxis, todoY_, nuevo, anterior); });

    // The marker and the text that follow the pointer are on a layer of their own, so that the chart need not be drawn
    // again when the pointer moves.
    senal_ = new QCPItemTracer(this);
    senal_->setLayer(QStringLiteral("overlay"));
    senal_->setStyle(QCPItemTracer::tsCircle);
    senal_->setSize(12);
    valores_ = new QCPItemText(this);
    valores_->setLayer(QStringLiteral("overlay"));
    valores_->setClipToAxisRect(false);
    valores_->setFont(letra);
    valores_->setPadding(QMargins(7, 4, 7, 4));
    valores_->setTextAlignment(Qt::AlignLeft);
    valores_->position->setType(QCPItemPosition::ptAbsolute);
    OcultarSenal();
}

QSize LienzoGrafico::sizeHint() const { return kTamanoNatural; }

void LienzoGrafico::Entintar(const Tinta& tinta) {
    setBackground(QBrush(tinta.papel));
    legend->setTextColor(tinta.texto);
    for (QCPAxis* eje : {xAxis, yAxis}) {
        eje->setBasePen(QPen(tinta.eje));
        eje->setTickPen(QPen(tinta.eje));
        eje->setTickLabelColor(tinta.texto);
        eje->setLabelColor(tinta.texto);
        eje->grid()->setPen(QPen(tinta.rejilla));
        eje->grid()->setZeroLinePen(QPen(tinta.rejilla));
    }
    senal_->setPen(QPen(tinta.texto, 1.6));
    valores_->setColor(tinta.texto);
    valores_->setPen(QPen(tinta.eje));
    valores_->setBrush(QBrush(tinta.papel));
}

void LienzoGrafico::Dibujar(const GraficoModulo& grafico, const Tinta& tinta) {
    trazos_.clear();
    legend->clearItems();
    clearPlottables();
    OcultarSenal();
    Entintar(tinta);
    conBorde_ = grafico.BorderStyle == 1;
    const bool dibujado = grafico.DrawMode == kDibujarGrafico;
    PonerRotulos(dibujado ? grafico.NombreX() : "", dibujado ? grafico.NombreY() : "",
                 dibujado ? grafico.BottomTitle() : "");
    bool conTextos = false;
    if (dibujado) {
        for (std::size_t c = 0; c < grafico.Conjuntos().size(); ++c) {
            const std::vector<QPointF> puntos = PuntosDe(grafico, c);
            if (!puntos.empty()) {
                AgregarTrazo(puntos, grafico, c, tinta);
                conTextos = conTextos || !grafico.Conjuntos()[c].leyenda.empty();
            }
        }
    }
    nombres_.clear();
    for (const std::string& nombre : grafico.NombresX()) {
        nombres_ << Q(nombre);
    }
    static_cast<Marcas&>(*xAxis->ticker()).Nombrar(nombres_);
    const auto& x = grafico.Conjuntos().front().x;
    const bool sinX = std::none_of(x.begin(), x.end(), [](const auto& valor) { return valor.has_value(); });
    numerados_ = dibujado && sinX ? grafico.NumPoints() : 0;
    PonerLeyenda(conTextos, grafico.GraphType == kGraficoLineas && grafico.GraphStyle == kSimbolosSueltos);
    MedirDatos(grafico.GraphType == kGraficoAreas || grafico.Cauce, grafico.Par());
    Acomodar(size());
    VerTodo();
}

void LienzoGrafico::Rotular(const GraficoModulo& grafico) {
    PonerRotulos(grafico.RotuloX(), grafico.RotuloY(), grafico.BottomTitle);
}

void LienzoGrafico::PonerRotulos(const std::string& x, const std::string& y, const std::string& titulo) {
    QStringList abajo{Q(x), Q(titulo)};
    abajo.removeAll(QString());
    xAxis->setLabel(abajo.join(QLatin1Char('\n')));
    yAxis->setLabel(Q(y));
}

void LienzoGrafico::AgregarTrazo(const std::vector<QPointF>& puntos, const GraficoModulo& grafico, std::size_t conjunto,
                                 const Tinta& tinta) {
    const std::size_t cual = conjunto % tinta.series->size();
    const QColor agua = (*tinta.series)[cual];
    const QColor color = grafico.Cauce ? tinta.texto : agua;
    const bool area = grafico.GraphType == kGraficoAreas;
    const bool sueltos = !area && (grafico.GraphStyle == kSimbolosSueltos || grafico.Conjuntos()[conjunto].sueltos);
    if (area) {
        Rellenar(puntos,
                 QBrush(ConAlfa(color, kAlfaRelleno), grafico.PatternData != 0 ? Qt::BDiagPattern : Qt::SolidPattern));
    } else if (grafico.Cauce) {
        Rellenar(puntos, ConAlfa(agua, kAlfaAgua));
        TrazarSuperficie(puntos, agua);
    }
    // QCPCurve keeps the order of the points, which closed outlines need; a QCPGraph would sort them by x.
    auto* trazo = new QCPCurve(xAxis, yAxis);
    QVector<double> x, y;
    for (const QPointF& punto : puntos) {
        x << punto.x();
        y << punto.y();
    }
    trazo->setData(x, y);
    const std::string& leyenda = grafico.Conjuntos()[conjunto].leyenda;
    trazo->setName(leyenda.empty() ? QStringLiteral("Conjunto %1").arg(conjunto + 1) : Q(leyenda));
    const int n = static_cast<int>(puntos.size());
    QPen pluma(color, n > kPuntosDensos ? 1 : kGrosor);
    pluma.setJoinStyle(Qt::RoundJoin);
    if (!kRayas[cual].isEmpty()) {
        pluma.setDashPattern(kRayas[cual]);
        pluma.setCapStyle(Qt::FlatCap);
    }
    trazo->setPen(pluma);
    trazo->setLineStyle(sueltos ? QCPCurve::lsNone : QCPCurve::lsLine);
    if (!area) {
        // Symbols at some points tell lines apart; on a lone line they would only seem to be points of their own.
        const bool simbolos = sueltos || n <= kSimbolosTodos || grafico.Conjuntos().size() > 1;
        // A symbol on a line is filled with the paper colour, so that it stands out; a lone symbol is not filled, so
        // that it does not hide a symbol of another set at the same place.
        // Lone symbols among lines are full, for a line may have the same symbol.
        const QBrush dentro = grafico.Conjuntos()[conjunto].sueltos ? QBrush(color)
                              : sueltos                             ? QBrush(Qt::NoBrush)
                                                                    : QBrush(tinta.papel);
        trazo->setScatterStyle(
            {simbolos ? kSimbolos[cual] : QCPScatterStyle::ssNone, QPen(color, 1.5), dentro, kLadoSimbolo});
        trazo->setScatterSkip(sueltos || n <= kSimbolosTodos ? 0 : n / kSimbolosPorLinea);
    }
    trazos_.push_back(trazo);
}

void LienzoGrafico::TrazarSuperficie(const std::vector<QPointF>& puntos, QColor color) {
    auto* superficie = new QCPCurve(xAxis, yAxis);
    superficie->setData({puntos.front().x(), puntos.back().x()}, {0, 0});
    superficie->setPen(QPen(color, kGrosor));
}

void LienzoGrafico::Rellenar(const std::vector<QPointF>& puntos, const QBrush& brocha) {
    auto* relleno = new QCPCurve(xAxis, yAxis);
    // From right to left: the toolkit looks for the place of each edge in a row of pixels from the left end on, which
    // makes hundreds of rectangles dear in their own order.
    QVector<double> x{puntos.back().x()}, y{0};
    for (auto punto = puntos.rbegin(); punto != puntos.rend(); ++punto) {
        x << punto->x();
        y << punto->y();
    }
    relleno->setData(x << puntos.front().x(), y << 0);
    relleno->setPen(Qt::NoPen);
    relleno->setBrush(brocha);
}

void LienzoGrafico::PonerLeyenda(bool conTextos, bool sinLineas) {
    const bool conLeyenda = trazos_.size() > 1 || conTextos;
    legend->setIconSize(sinLineas ? kMuestraSimbolo : kMuestra, QFontMetrics(legend->font()).height() + 2);
    for (QCPCurve* trazo : trazos_) {
        if (conLeyenda) {
            trazo->addToLegend();
        }
    }
    legend->setVisible(conLeyenda);
    legend->setMargins(conLeyenda ? QMargins(4, 6, 4, 2) : QMargins());
}

void LienzoGrafico::MedirDatos(bool desdeCero, const GraficoModulo* par) {
    todoX_ = todoY_ = QCPRange(0, 1);
    bool primero = true;
    double x0 = 0, x1 = 0, y0 = 0, y1 = 0;
    for (const QCPCurve* trazo : trazos_) {
        for (const QCPCurveData& punto : *trazo->data()) {
            x0 = primero ? punto.key : std::min(x0, punto.key);
            x1 = primero ? punto.key : std::max(x1, punto.key);
            y0 = primero ? punto.value : std::min(y0, punto.value);
            y1 = primero ? punto.value : std::max(y1, punto.value);
            primero = false;
        }
    }
    if (primero) {
        return;
    }
    if (par != nullptr && par->DrawMode == kDibujarGrafico) {
        for (std::size_t c = 0; c < par->Conjuntos().size(); ++c) {
            for (const QPointF& punto : PuntosDe(*par, c)) {
                y0 = std::min(y0, punto.y());
                y1 = std::max(y1, punto.y());
            }
        }
    }
    todoX_ = ConAire(x0, x1);
    todoY_ = desdeCero ? ConAire(std::min(y0, 0.0), std::max(y1, 0.0)) : ConAire(y0, y1);
    if (desdeCero && y0 >= 0) {
        todoY_.lower = 0;
    }
}

void LienzoGrafico::Acomodar(QSize tamano) {
    const int caben = tamano.width() / kAnchoNumero;
    int ejeX = numerados_ > 0 && numerados_ <= caben ? numerados_ : std::clamp(tamano.width() / 90, 3, 10);
    if (!nombres_.isEmpty() && numerados_ > caben) {
        ejeX = numerados_ / 2;  // every second name
    }
    const int ejeY = std::clamp(tamano.height() / 55, 3, 10);
    xAxis->ticker()->setTickCount(ejeX);
    yAxis->ticker()->setTickCount(ejeY);
    if (!ConLeyenda()) {
        return;
    }
    int columnas = Trazos();
    while (columnas > 1 && AnchoLeyenda(columnas) > tamano.width()) {
        --columnas;
    }
    const int filas = (Trazos() + columnas - 1) / columnas;
    legend->setWrap((Trazos() + filas - 1) / filas);  // all rows of the legend have about the same number of entries
    legend->setFillOrder(QCPLegend::foColumnsFirst, true);
}

int LienzoGrafico::AnchoLeyenda(int columnas) const {
    std::vector<int> anchos(static_cast<std::size_t>(columnas), 0);
    for (std::size_t t = 0; t < trazos_.size(); ++t) {
        const QCPLayoutElement& entrada = *legend->itemWithPlottable(trazos_[t]);
        int& ancho = anchos[t % anchos.size()];
        ancho = std::max(ancho, entrada.minimumOuterSizeHint().width());
    }
    return std::accumulate(anchos.begin(), anchos.end(), columnas * legend->columnSpacing());
}

void LienzoGrafico::VerTodo() {
    xAxis->setRange(todoX_);
    yAxis->setRange(todoY_);
}

void LienzoGrafico::VerComo(const LienzoGrafico& otro) {
    xAxis->setRange(otro.xAxis->range());
    yAxis->setRange(otro.yAxis->range());
}

void LienzoGrafico::Acercar(double factor) {
    xAxis->scaleRange(factor);
    yAxis->scaleRange(factor);
    replot();
}

/// Undoes a zoom beyond the limits: in too small a range the axis numbers would all look the same, in too large a range
/// the data would be invisible.
void LienzoGrafico::Limitar(QCPAxis& eje, const QCPRange& todo, const QCPRange& nuevo, const QCPRange& anterior) {
    OcultarSenal();
    const double menor = std::max(kMayorAcercamiento * todo.size(), 1e-9 * std::abs(nuevo.center()));
    if (nuevo.size() < menor || nuevo.size() > kMayorAlejamiento * todo.size()) {
        eje.setRange(anterior);
    }
}

QStringList LienzoGrafico::Nombres() const {
    QStringList nombres;
    for (const QCPCurve* trazo : trazos_) {
        nombres << trazo->name();
    }
    return nombres;
}

int LienzoGrafico::Puntos() const {
    int puntos = 0;
    for (const QCPCurve* trazo : trazos_) {
        puntos += trazo->dataCount();
    }
    return puntos;
}

QPointF LienzoGrafico::Pixel(const Lugar& lugar) const {
    return trazos_[static_cast<std::size_t>(lugar.trazo)]->dataPixelPosition(lugar.punto);
}

std::optional<LienzoGrafico::Lugar> LienzoGrafico::MasCercano(QPointF lugar) const {
    std::optional<Lugar> hallado;
    double menor = kAlcancePuntero;
    for (int t = 0; t < Trazos(); ++t) {
        for (int p = 0; p < trazos_[static_cast<std::size_t>(t)]->dataCount(); ++p) {
            const QPointF pixel = Pixel({t, p});
            const double distancia = std::hypot(pixel.x() - lugar.x(), pixel.y() - lugar.y());
            if (distancia < menor && axisRect()->rect().contains(pixel.toPoint())) {
                menor = distancia;
                hallado = Lugar{t, p};
            }
        }
    }
    return hallado;
}

void LienzoGrafico::Senalar(QPointF lugar) {
    if (const auto hallado = MasCercano(lugar)) {
        Senalar(*hallado);
    } else {
        DejarDeSenalar();
    }
}

void LienzoGrafico::Senalar(const Lugar& lugar) {
    senalado_ = lugar;
    const QCPCurve& trazo = *trazos_[static_cast<std::size_t>(lugar.trazo)];
    const double x = trazo.dataMainKey(lugar.punto), y = trazo.dataMainValue(lugar.punto);
    senal_->position->setCoords(x, y);
    const QString donde = QStringLiteral("x = %1, y = %2").arg(nombres_.value(lugar.punto, Numero(x)), Numero(y));
    valores_->setText(ConLeyenda() ? trazo.name() + QLatin1Char('\n') + donde : donde);

    // The text is placed on the side of the point towards the middle of the chart, where there is room.
    const QPointF pixel = Pixel(lugar);
    const bool izquierda = pixel.x() < axisRect()->center().x();
    const bool arriba = pixel.y() < axisRect()->center().y();
    valores_->setPositionAlignment((izquierda ? Qt::AlignLeft : Qt::AlignRight) |
                                   (arriba ? Qt::AlignTop : Qt::AlignBottom));
    valores_->position->setCoords(pixel + QPointF(izquierda ? 10 : -10, arriba ? 10 : -10));
    senal_->setVisible(true);
    valores_->setVisible(true);
    layer(QStringLiteral("overlay"))->replot();
}

void LienzoGrafico::Recorrer(int puntos, int conjuntos) {
    if (trazos_.empty()) {
        return;
    }
    Lugar lugar = senalado_;
    if (senal_->visible()) {
        lugar.trazo = std::clamp(lugar.trazo + conjuntos, 0, Trazos() - 1);
        lugar.punto += puntos;
    }
    const QCPCurve& trazo = *trazos_[static_cast<std::size_t>(lugar.trazo)];
    lugar.punto = std::clamp(lugar.punto, 0, trazo.dataCount() - 1);
    const double x = trazo.dataMainKey(lugar.punto), y = trazo.dataMainValue(lugar.punto);
    if (!xAxis->range().contains(x) || !yAxis->range().contains(y)) {
        xAxis->setRange(x, xAxis->range().size(), Qt::AlignCenter);
        yAxis->setRange(y, yAxis->range().size(), Qt::AlignCenter);
        replot();
    }
    Senalar(lugar);
}

void LienzoGrafico::OcultarSenal() {
    senal_->setVisible(false);
    valores_->setVisible(false);
}

void LienzoGrafico::DejarDeSenalar() {
    if (senal_->visible()) {
        OcultarSenal();
        layer(QStringLiteral("overlay"))->replot();
    }
}

void LienzoGrafico::paintEvent(QPaintEvent* evento) {
    QCustomPlot::paintEvent(evento);
    if (!conBorde_ && !hasFocus()) {
        return;
    }
    QPainter pintor(this);
    pintor.setPen(hasFocus() ? palette().color(QPalette::Highlight) : estilo::Linea());
    pintor.drawRect(rect().adjusted(0, 0, -1, -1));
}

void LienzoGrafico::resizeEvent(QResizeEvent* evento) {
    OcultarSenal();
    Acomodar(evento->size());
    QCustomPlot::resizeEvent(evento);
}

void LienzoGrafico::leaveEvent(QEvent* evento) {
    DejarDeSenalar();
    QCustomPlot::leaveEvent(evento);
}

}  // namespace cuencalia
