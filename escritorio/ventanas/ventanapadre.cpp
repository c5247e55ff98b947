#include "escritorio/ventanas/ventanapadre.h"

#include <QAction>
#include <QBoxLayout>
#include <QDateTime>
#include <QEvent>
#include <QGuiApplication>
#include <QKeySequence>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScreen>
#include <QStyle>
#include <QTabBar>
#include <QTextDocument>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "escritorio/ventanas/barraformato.h"
#include "escritorio/ventanas/menus.h"
#include "escritorio/vistas/documentorico.h"
#include "escritorio/vistas/estilo.h"
#include "escritorio/vistas/vistatextorico.h"
#include "frame/controles/aplicacion.h"

namespace cuencalia {

namespace {

constexpr int kMiradaAlReloj = 5000;      // ms
const QSize kMinimo(320, 240);            // room for the menus, some lines and the status bar
constexpr double kAltoPorOmision = 9600;  // twips

/// A length in pixels, limited because a stored setting may contain any number.
int EnPixeles(double twips) {
    constexpr double kLimite = 1e5;
    return static_cast<int>(std::clamp(twips / kTwipsPorPixel, -kLimite, kLimite));
}

QScreen* PantallaDe(const QRect& lugar) {
    const auto comun = [&lugar](const QScreen* pantalla) {
        const QSize s = pantalla->availableGeometry().intersected(lugar).size();
        return s.isEmpty() ? 0 : s.width() * s.height();
    };
    QScreen* mejor = QGuiApplication::primaryScreen();
    for (QScreen* pantalla : QGuiApplication::screens()) {
        mejor = comun(pantalla) > comun(mejor) ? pantalla : mejor;
    }
    return mejor;
}

CajaTextoRico* TextoDe(const Ventana& documento) { return documento.findChild<CajaTextoRico*>(); }

}  // namespace

QRect LugarVisible(double izquierda, double arriba, double ancho, double alto, const QSize& minimo) {
    const QRect pedido(EnPixeles(izquierda), EnPixeles(arriba), EnPixeles(ancho), EnPixeles(alto));
    const QRect pantalla = PantallaDe(pedido)->availableGeometry();
    const QSize tamano = pedido.size().expandedTo(minimo).boundedTo(pantalla.size());
    const QPoint ultimo = pantalla.bottomRight() - QPoint(tamano.width() - 1, tamano.height() - 1);
    return {QPoint(std::clamp(pedido.left(), pantalla.left(), ultimo.x()),
                   std::clamp(pedido.top(), pantalla.top(), ultimo.y())),
            tamano};
}

VentanaPadre::VentanaPadre(Anfitrion& anfitrion, frmPadre& forma)
    : Ventana(anfitrion, forma), anfitrion_(anfitrion), area_(new QMdiArea(this)), barra_(new BarraFormato(this)) {
    addToolBar(barra_);
    area_->setViewMode(QMdiArea::TabbedView);
    area_->setActivationOrder(QMdiArea::ActivationHistoryOrder);
    area_->setDocumentMode(true);
    area_->setTabsClosable(true);
    area_->setBackground(palette().window());
    auto* fichas = area_->findChild<QTabBar*>();
    fichas->setExpanding(false);
    fichas->setDrawBase(false);
    // A long file path is cut at its beginning, since its end tells most.
    fichas->setElideMode(Qt::ElideLeft);
    auto* caja = static_cast<QBoxLayout*>(centralWidget()->layout());
    caja->setContentsMargins(0, 0, 0, 0);
    caja->setSpacing(0);
    caja->insertWidget(0, area_, 1);
    connect(area_, &QMdiArea::subWindowActivated, this, &VentanaPadre::Activada);
    PonerAtajos();
    auto* reloj = new QTimer(this);
    connect(reloj, &QTimer::timeout, this, &VentanaPadre::DecirHora);
    reloj->start(kMiradaAlReloj);
    DecirHora();
    setMinimumSize(kMinimo);
    AbrirEnSuLugar();
}

void VentanaPadre::PonerAtajos() {
    const frmPadre& padre = *Padre();
    const std::pair<const Menu*, QKeySequence::StandardKey> atajos[] = {{&padre.mnuFileNew, QKeySequence::New},
                                                                        {&padre.mnuFileOpen, QKeySequence::Open},
                                                                        {&padre.mnuFileSave, QKeySequence::Save},
                                                                        {&padre.mnuFileSaveAs, QKeySequence::SaveAs},
                                                                        {&padre.mnuFilePrint, QKeySequence::Print}};
    for (const auto& [entrada, tecla] : atajos) {
        AccionDe(*entrada)->setShortcuts(tecla);
    }
}

void VentanaPadre::PonerDelante(Ventana& hija) {
    auto* marco = qobject_cast<QMdiSubWindow*>(hija.Marco());
    if (marco == nullptr) {
        marco = area_->addSubWindow(&hija);
        marco->showMaximized();
        // The tab of a document marks a text that no file has.
        const QTextDocument* documento = TextoDe(hija)->document();
        connect(documento, &QTextDocument::modificationChanged, &hija, &QWidget::setWindowModified);
        hija.setWindowModified(documento->isModified());
    }
    area_->setActiveSubWindow(marco);
    barra_->Seguir(TextoDe(hija));
}

void VentanaPadre::Activada(QMdiSubWindow* marco) {
    const auto* hija = marco == nullptr ? nullptr : qobject_cast<Ventana*>(marco->widget());
    // A window in the background has no active document, but a current one.
    const QMdiSubWindow* frente = area_->currentSubWindow();
    const auto* documento = frente == nullptr ? nullptr : qobject_cast<Ventana*>(frente->widget());
    barra_->Seguir(documento == nullptr ? nullptr : TextoDe(*documento));
    if (Padre() == nullptr || hija == nullptr || hija->Forma() == nullptr) {
        return;
    }
    Aplicacion& app = anfitrion_.App();
    if (app.HijaActiva(*Padre()) != hija->Forma()) {
        app.Despachar([&] { app.Activar(*hija->Forma()); });
    }
}

QSizeF VentanaPadre::LargoAlAbrir() const {
    const frmPadre& padre = *Padre();
    if (padre.Width != frmPadre::kLargoPorOmision || padre.Height != frmPadre::kLargoPorOmision) {
        return {padre.Width, padre.Height};
    }
    const int barra = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    return {2 * kMargenDocumento + (AnchoDeReglas() + barra) * kTwipsPorPixel, kAltoPorOmision};
}

void VentanaPadre::AbrirEnSuLugar() {
    const frmPadre& padre = *Padre();
    const QSizeF largo = LargoAlAbrir();
    const QRect lugar = LugarVisible(padre.Left, padre.Top, largo.width(), largo.height(), minimumSize());
    resize(lugar.size());
    move(lugar.topLeft());
}

void VentanaPadre::DecirLugar() {
    if (Padre() == nullptr || !isVisible() || isMinimized() || isMaximized() || isFullScreen()) {
        return;
    }
    frmPadre& padre = *Padre();
    const std::pair<Propiedad<double>*, int> lugar[] = {
        {&padre.Left, x()}, {&padre.Top, y()}, {&padre.Width, width()}, {&padre.Height, height()}};
    anfitrion_.App().Despachar([&] {
        for (const auto& [propiedad, pixeles] : lugar) {
            // A length that did not change on the screen is not rounded to whole pixels.
            if (EnPixeles(*propiedad) != pixeles) {
                *propiedad = pixeles * kTwipsPorPixel;
            }
        }
    });
}

void VentanaPadre::DecirHora() {
    if (Padre() == nullptr) {
        return;
    }
    StatusBar& barra = Padre()->sbStatusBar;
    const QDateTime ahora = QDateTime::currentDateTime();
    const std::string fecha = Std(ahora.toString(QStringLiteral("dd/MM/yyyy")));
    const std::string hora = Std(ahora.toString(QStringLiteral("HH:mm")));
    if (barra.Panel(2) != fecha || barra.Panel(3) != hora) {
        anfitrion_.App().Despachar([&] {
            barra.PonerPanel(2, fecha);
            barra.PonerPanel(3, hora);
        });
    }
}

void VentanaPadre::moveEvent(QMoveEvent* evento) {
    Ventana::moveEvent(evento);
    DecirLugar();
}

void VentanaPadre::resizeEvent(QResizeEvent* evento) {
    Ventana::resizeEvent(evento);
    DecirLugar();
}

void VentanaPadre::changeEvent(QEvent* evento) {
    Ventana::changeEvent(evento);
    if (evento->type() == QEvent::WindowStateChange && Padre() != nullptr) {
        anfitrion_.App().Despachar([this] { Padre()->Minimizada = isMinimized(); });
    }
}

}  // namespace cuencalia
