#include "escritorio/vistas/estilo.h"

#include <QApplication>
#include <QFile>
#include <QGuiApplication>
#include <QHash>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QSharedPointer>
#include <QStyleFactory>
#include <QSvgRenderer>

namespace cuencalia::estilo {

namespace {

struct Colores {
    QRgb ventana, base, alterna, texto, tenue, linea, encabezado, acento, sobreAcento, boton, botonLuz, lineaEnFicha;
};

constexpr Colores kClaro{0xfff3f5f8, 0xffffffff, 0xfff7f9fb, 0xff1d2733, 0xff5b6876, 0xffc9d1da,
                         0xffe6ebf1, 0xff2f6db5, 0xffffffff, 0xfffbfcfd, 0xffe3edf8, 0xffc9d1da};
constexpr Colores kOscuro{0xff20252b, 0xff191d22, 0xff1e2328, 0xffe4e9ee, 0xffa3afbb, 0xff3d4650,
                          0xff2b323a, 0xff356fb5, 0xffffffff, 0xff2b323a, 0xff35424f, 0xff616c78};

Colores colores = kClaro;

QPalette Paleta() {
    QPalette p;
    const QColor tenue(colores.tenue);
    p.setColor(QPalette::Window, colores.ventana);
    p.setColor(QPalette::WindowText, colores.texto);
    p.setColor(QPalette::Base, colores.base);
    p.setColor(QPalette::AlternateBase, colores.alterna);
    p.setColor(QPalette::Text, colores.texto);
    p.setColor(QPalette::Button, colores.boton);
    p.setColor(QPalette::ButtonText, colores.texto);
    p.setColor(QPalette::Highlight, colores.acento);
    p.setColor(QPalette::HighlightedText, colores.sobreAcento);
    p.setColor(QPalette::ToolTipBase, colores.base);
    p.setColor(QPalette::ToolTipText, colores.texto);
    p.setColor(QPalette::PlaceholderText, tenue);
    p.setColor(QPalette::Link, colores.acento);
    for (const auto rol : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        QColor apagado = tenue;
        apagado.setAlphaF(0.6f);
        p.setColor(QPalette::Disabled, rol, apagado);
    }
    return p;
}

QString Nombre(QRgb color) { return QColor(color).name(); }

QString Hoja() {
    QString hoja = QStringLiteral(R"(
QToolButton, QPushButton {
    background: @boton; color: @texto; border: 1px solid @linea; border-radius: 5px; padding: 5px 6px;
}
QToolButton:hover, QPushButton:hover { background: @luz; border-color: @acento; }
QToolButton:pressed, QPushButton:pressed { background: @encabezado; }
QToolButton:focus, QPushButton:focus { border: 2px solid @acento; padding: 4px 5px; }
QToolButton:disabled, QPushButton:disabled { color: @tenue; background: transparent; }
QGroupBox { border: 1px solid @linea; border-radius: 6px; margin-top: 9px; padding: 6px 4px 2px 4px; }
QTabWidget QGroupBox { border-color: @pagina; }
QGroupBox::title { subcontrol-origin: margin; left: 10px; padding: 0 4px; color: @tenue; }
QLineEdit, QComboBox {
    background: @base; color: @texto; border: 1px solid @linea; border-radius: 4px; padding: 3px 6px;
    selection-background-color: @acento; selection-color: @sobre;
}
QLineEdit:focus, QComboBox:focus { border: 2px solid @acento; padding: 2px 5px; }
QComboBox { padding-right: 0; }
QComboBox::drop-down { border: none; width: 22px; }
QComboBox::down-arrow { image: url(:/imagenes/flecha.svg); width: 12px; height: 12px; }
QLineEdit[readOnly="true"] { background: @encabezado; }
QLineEdit[flotante="true"] { border: 2px solid @acento; border-radius: 0; padding: 0 2px; }
QRadioButton { spacing: 7px; padding: 1px 0; }
QRadioButton::indicator { width: 12px; height: 12px; border: 1px solid @tenue; border-radius: 7px; background: @base; }
QRadioButton::indicator:checked { background: qradialgradient(cx: 0.5, cy: 0.5, radius: 0.5, fx: 0.5, fy: 0.5,
    stop: 0 @acento, stop: 0.55 @acento, stop: 0.65 @base, stop: 1 @base); }
QRadioButton::indicator:hover { border-color: @acento; }
QRadioButton::indicator:focus { border: 2px solid @acento; width: 10px; height: 10px; }
QRadioButton:disabled { color: @tenue; }
QTableView { background: @base; border: 1px solid @linea; gridline-color: @linea;
    selection-background-color: @luz; selection-color: @texto; }
QTableView:focus { border: 1px solid @acento; }
QTableView[marco="0"] { border: 0px; }
QTableView[lectura="true"][varias="false"]:!focus { selection-background-color: @base; }
QHeaderView { background: @encabezado; }
QHeaderView::section { background: @encabezado; color: @texto; border: none; border-right: 1px solid @linea;
    border-bottom: 1px solid @linea; padding: 1px 6px; }
QTableCornerButton::section { background: @encabezado; border: none; border-right: 1px solid @linea;
    border-bottom: 1px solid @linea; }
QLabel[papel="encabezado"] { font-weight: 600; }
QLabel[papel="nota"] { color: @tenue; }
QLabel[papel="titulo"] { color: white; font-size: 30pt; font-weight: 600; }
QLabel[papel="lema"] { color: white; font-size: 13pt; }
QLabel[papel="pantalla"] { background: @base; border: 1px solid @linea; border-radius: 5px; padding: 8px 12px;
    font-family: monospace; font-size: 20pt; qproperty-alignment: 'AlignRight | AlignVCenter'; }
QLabel[papel="estado"] { color: @tenue; padding: 3px 12px; border-top: 1px solid @linea; }
QMdiArea QTabBar::tab { background: transparent; color: @tenue; border: none; border-bottom: 2px solid transparent;
    padding: 6px 12px; max-width: 260px; }
QMdiArea QTabBar::tab:selected { color: @texto; border-bottom-color: @acento; }
QMdiArea QTabBar::tab:hover { background: @luz; }
QMenuBar { background: @base; border-bottom: 1px solid @linea; padding: 2px; }
QMenuBar::item { padding: 5px 8px; border-radius: 4px; background: transparent; }
QMenuBar::item:selected { background: @luz; }
QLabel QToolButton, QToolBar QToolButton { border: 1px solid transparent; background: transparent; padding: 3px 5px; }
QLabel QToolButton { padding: 0; }
QLabel QToolButton:hover, QToolBar QToolButton:hover { background: @luz; }
QToolBar QToolButton:checked { background: @luz; border-color: @acento; }
QToolButton::menu-indicator { image: none; }
QToolBar { background: @ventana; border: none; border-bottom: 1px solid @linea; padding: 2px 6px; spacing: 1px; }
QMenu { background: @base; border: 1px solid @linea; padding: 4px; }
QMenu::item { padding: 5px 26px 5px 14px; border-radius: 4px; }
QMenu::item:selected { background: @luz; color: @texto; }
QMenu::item:disabled { color: @tenue; background: transparent; }
QMenu::separator { height: 1px; background: @linea; margin: 4px 8px; }
QToolTip { background: @base; color: @texto; border: 1px solid @linea; padding: 3px; }
)");
    const std::pair<const char*, QRgb> nombres[] = {
        {"@ventana", colores.ventana}, {"@base", colores.base},          {"@encabezado", colores.encabezado},
        {"@texto", colores.texto},     {"@tenue", colores.tenue},        {"@linea", colores.linea},
        {"@acento", colores.acento},   {"@sobre", colores.sobreAcento},  {"@boton", colores.boton},
        {"@luz", colores.botonLuz},    {"@pagina", colores.lineaEnFicha}};
    for (const auto& [nombre, color] : nombres) {
        hoja.replace(QLatin1String(nombre), Nombre(color));
    }
    return hoja;
}

/// Draws an SVG in the size and scale that the screen asks for, and caches the drawings.
class MotorSvg : public QIconEngine {
  public:
    explicit MotorSvg(const QString& archivo) : svg_(new QSvgRenderer(archivo)) {}

    void paint(QPainter* pintor, const QRect& donde, QIcon::Mode modo, QIcon::State) override {
        if (modo == QIcon::Disabled) {
            pintor->setOpacity(0.35);
        }
        svg_->render(pintor, donde);
        pintor->setOpacity(1);
    }
    QPixmap pixmap(const QSize& tamano, QIcon::Mode modo, QIcon::State estado) override {
        const quint64 clave = (quint64(tamano.width()) << 32) | (quint64(tamano.height()) << 4) | quint64(modo);
        QPixmap& dibujo = dibujos_[clave];
        if (dibujo.isNull()) {
            dibujo = QPixmap(tamano);
            dibujo.fill(Qt::transparent);
            QPainter pintor(&dibujo);
            paint(&pintor, QRect(QPoint(), tamano), modo, estado);
        }
        return dibujo;
    }
    QIconEngine* clone() const override { return new MotorSvg(*this); }

  private:
    QSharedPointer<QSvgRenderer> svg_;
    QHash<quint64, QPixmap> dibujos_;
};

QString Archivo(const QString& nombre) { return QStringLiteral(":/imagenes/%1.svg").arg(nombre); }

}  // namespace

void Aplicar(QApplication& app) {
    const QPalette sistema = QGuiApplication::palette();
    const bool oscuro = sistema.color(QPalette::Window).lightness() < sistema.color(QPalette::WindowText).lightness();
    Aplicar(app, oscuro ? Esquema::Oscuro : Esquema::Claro);
}

void Aplicar(QApplication& app, Esquema esquema) {
    colores = esquema == Esquema::Oscuro ? kOscuro : kClaro;
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(Paleta());
    app.setStyleSheet(Hoja());
}

QColor FondoAviso() { return colores.base == kOscuro.base ? QColor(0x5a, 0x44, 0x12) : QColor(0xff, 0xe9, 0xb8); }
QColor Linea() { return colores.linea; }
QColor TextoTenue() { return colores.tenue; }

int Pixeles(int twips) { return static_cast<int>(twips / kTwipsPorPixel); }

QIcon Icono(const QString& nombre) {
    static QHash<QString, QIcon> iconos;
    const auto hallado = iconos.constFind(nombre);
    if (hallado != iconos.constEnd()) {
        return *hallado;
    }
    QIcon icono = nombre.isEmpty() || !QFile::exists(Archivo(nombre)) ? QIcon() : QIcon(new MotorSvg(Archivo(nombre)));
    iconos.insert(nombre, icono);
    return icono;
}

QSize TamanoNatural(const QString& nombre) { return QSvgRenderer(Archivo(nombre)).defaultSize(); }

void PintarFondo(QPainter& pintor, const QRectF& donde, const QString& nombre) {
    QSvgRenderer svg(Archivo(nombre));
    if (!svg.isValid()) {
        return;
    }
    const QSizeF natural = svg.defaultSize();
    const qreal escala = qMax(donde.width() / natural.width(), donde.height() / natural.height());
    QRectF marco(QPointF(), natural * escala);
    marco.moveCenter(donde.center());
    svg.render(&pintor, marco);
}

}  // namespace cuencalia::estilo
