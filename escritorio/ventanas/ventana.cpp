#include "escritorio/ventanas/ventana.h"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QScreen>
#include <QScrollArea>
#include <QShortcut>
#include <QStyle>
#include <QTabWidget>
#include <QToolButton>
#include <algorithm>

#include "escritorio/servicios/manual.h"
#include "escritorio/ventanas/listaventanas.h"
#include "escritorio/ventanas/menus.h"
#include "escritorio/vistas/estilo.h"
#include "escritorio/vistas/vistas.h"
#include "frame/controles/flexgrid.h"
#include "frame/reportes/grafico.h"

namespace cuencalia {

namespace {

/// The contents of a window inside its frame, drawn over the form's background picture, if it has one.
class Lienzo : public QWidget {
  public:
    explicit Lienzo(QWidget* padre) : QWidget(padre) { setMouseTracking(true); }

    QString fondo;

  protected:
    void paintEvent(QPaintEvent*) override {
        if (!fondo.isEmpty()) {
            QPainter pintor(this);
            pintor.setRenderHint(QPainter::Antialiasing);
            estilo::PintarFondo(pintor, rect(), fondo);
        }
    }
};

/// The view of the form itself: the window's title, and pointer movements over places without a control.
class VistaFormulario : public Vista {
  public:
    VistaFormulario(Anfitrion& anfitrion, Formulario& forma, Lienzo* lienzo, QMainWindow* ventana)
        : Vista(anfitrion, forma, lienzo), forma_(forma), ventana_(ventana) {}

  protected:
    /// A pointer that has left the window is over none of its buttons: the form is told as if it were beside them.
    bool eventFilter(QObject* objeto, QEvent* evento) override {
        if (evento->type() == QEvent::Leave && ventana_->isVisible()) {
            MoverRaton();
        }
        return Vista::eventFilter(objeto, evento);
    }
    /// The title is set only when it changed, because the window around a document adds its own text to the title.
    void Mostrar() override {
        if (titulo_ != forma_.Caption()) {
            titulo_ = forma_.Caption();
            const QString titulo = Q(titulo_).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));
            // The last "[*]" is where a document that no file has is marked.
            ventana_->setWindowTitle(forma_.Padre() == nullptr ? titulo : titulo + QStringLiteral("[*]"));
        }
    }

  private:
    Formulario& forma_;
    QMainWindow* ventana_;
    std::string titulo_;
};

template <typename Clase>
bool Tiene(const Formulario& forma) {
    const auto controles = EnOrden(forma.Distribucion());
    return std::any_of(controles.begin(), controles.end(),
                       [](const Control* c) { return dynamic_cast<const Clase*>(c) != nullptr; });
}

}  // namespace

Ventana::Ventana(Anfitrion& anfitrion, Formulario& forma) : anfitrion_(anfitrion), forma_(&forma) {
    setAttribute(Qt::WA_DeleteOnClose, false);
    setObjectName(Q("ventana_" + forma.Nombre()));
    auto* lienzo = new Lienzo(this);
    auto* caja = new QVBoxLayout(lienzo);
    caja->setContentsMargins(estilo::kMargen, estilo::kMargen, estilo::kMargen, 0);
    caja->setSpacing(estilo::kSeparacion);
    vistas_.push_back(new VistaFormulario(anfitrion, forma, lienzo, this));
    for (Control* control : EnOrden(forma.Distribucion())) {
        const auto* imagen = dynamic_cast<PictureBox*>(control);
        if (imagen != nullptr && imagen->EsFondo()) {
            lienzo->fondo = Q(imagen->Picture);
        }
    }
    if (!lienzo->fondo.isEmpty()) {
        caja->setContentsMargins(36, 30, 28, 28);
    } else if (!Tiene<StatusBar>(forma)) {
        // A status bar takes the place of the lower margin.
        caja->setContentsMargins(estilo::kMargen, estilo::kMargen, estilo::kMargen, estilo::kMargen);
    }
    if (forma.Padre() != nullptr) {
        const int margen = estilo::Pixeles(kMargenDocumento);
        caja->setContentsMargins(margen, margen, margen, margen);
    }
    PonerHijos(forma.Distribucion(), *caja, lienzo);
    setCentralWidget(lienzo);
    HacerMenus();

    if (forma.Padre() == nullptr) {
        auto* ayuda = new QShortcut(QKeySequence(Qt::Key_F1), this);
        connect(ayuda, &QShortcut::activated, this, [this] {
            AbrirManualEn(anfitrion_.App().Sistema(), forma_ == nullptr ? std::string() : forma_->Nombre());
        });
        HacerListaDeVentanas();
    }

    for (Vista* vista : vistas_) {
        vista->Actualizar();
    }
    // The size of the window is computed before it is first shown, so every widget must already have its final font and
    // contents.
    for (QWidget* widget : lienzo->findChildren<QWidget*>()) {
        widget->ensurePolished();
        widget->updateGeometry();
    }
    for (QLayout* interior : lienzo->findChildren<QLayout*>()) {
        interior->invalidate();
    }
    const QSize pantalla = screen()->availableSize() - QSize(0, style()->pixelMetric(QStyle::PM_TitleBarHeight));
    // A window with grids gets a minimum initial size that leaves room for them.
    const QSize deModulo = Tiene<FlexGrid>(forma) ? QSize(940, 720) : QSize(0, 0);
    const QSize deFondo(std::max(1000, menuBar()->sizeHint().width()), 600);
    const QSize propio = lienzo->fondo.isEmpty() ? sizeHint().expandedTo(deModulo) : deFondo;
    Enrollar(pantalla);
    resize(propio.boundedTo(pantalla));
}

QWidget* Ventana::Marco() {
    auto* marco = qobject_cast<QMdiSubWindow*>(parentWidget());
    return marco == nullptr ? static_cast<QWidget*>(this) : marco;
}

void Ventana::Soltar() {
    if (forma_ == nullptr) {
        return;
    }
    for (Vista* vista : vistas_) {
        vista->Soltar();
    }
    vistas_.clear();
    SoltarMenus(*forma_);
    menuBar()->clear();
    forma_ = nullptr;
}

void Ventana::closeEvent(QCloseEvent* evento) {
    if (forma_ != nullptr) {
        anfitrion_.App().CerrarVentana(*forma_);
    }
    // A form that is still there was not to be closed.
    evento->setAccepted(forma_ == nullptr || anfitrion_.App().Terminada());
}

void Ventana::HacerMenus() {
    if (forma_->Barra().empty()) {
        return;
    }
    // Not every menu of the bar has an access key, so F10 opens the first one.
    auto* alMenu = new QShortcut(QKeySequence(Qt::Key_F10), this);
    connect(alMenu, &QShortcut::activated, this, [this] {
        menuBar()->setFocus(Qt::ShortcutFocusReason);
        menuBar()->setActiveAction(menuBar()->actions().first());
    });
    for (Menu* menu : forma_->Barra()) {
        QMenu* enBarra = menuBar()->addMenu(Q(menu->Caption));
        LlenarMenu(anfitrion_.App(), *enBarra, *menu);
        if (menu->Click.Atendido()) {
            connect(enBarra, &QMenu::aboutToShow, this,
                    [this, menu] { anfitrion_.App().Despachar([menu] { menu->Click(); }); });
        }
    }
}

/// The list is the last menu of the bar or, where there is none, a button at the end of the status bar; a key opens it
/// in every window.
void Ventana::HacerListaDeVentanas() {
    auto* lista = new ListaVentanas(anfitrion_, this);
    auto* tecla = new QShortcut(QKeySequence(Qt::Key_F6), this);
    connect(tecla, &QShortcut::activated, lista, &ListaVentanas::Abrir);
    if (!forma_->Barra().empty()) {
        menuBar()->addMenu(lista);
        return;
    }
    for (const Control* control : EnOrden(forma_->Distribucion())) {
        if (dynamic_cast<const StatusBar*>(control) != nullptr) {
            QWidget* barra = static_cast<Vista*>(control->Vista())->Widget();
            auto* boton = new QToolButton(barra);
            boton->setIcon(estilo::Icono(QStringLiteral("ventanas")));
            boton->setToolTip(QStringLiteral("Ventanas abiertas (F6)"));
            boton->setAccessibleName(lista->title());
            boton->setFocusPolicy(Qt::NoFocus);
            boton->setPopupMode(QToolButton::InstantPopup);
            boton->setMenu(lista);
            barra->layout()->addWidget(boton);
        }
    }
}

/// A screen smaller than the controls need shows them by parts.
void Ventana::Enrollar(QSize pantalla) {
    const QSize minimo = minimumSizeHint();
    if (minimo.width() <= pantalla.width() && minimo.height() <= pantalla.height()) {
        return;
    }
    auto* rollo = new QScrollArea(this);
    rollo->setFrameShape(QFrame::NoFrame);
    rollo->setFocusPolicy(Qt::NoFocus);
    rollo->setWidgetResizable(true);
    rollo->setWidget(takeCentralWidget());
    setCentralWidget(rollo);
}

Vista* Ventana::Hacer(Control& control, QWidget* padre) {
    Vista* vista = HacerVista(anfitrion_, control, padre);
    if (vista != nullptr) {
        vistas_.push_back(vista);
    }
    return vista;
}

void Ventana::PonerHijos(const Disposicion& d, QBoxLayout& caja, QWidget* padre) {
    for (const Disposicion& hijo : d.hijos) {
        Poner(hijo, caja, padre);
    }
}

void Ventana::Poner(const Disposicion& d, QBoxLayout& caja, QWidget* padre) {
    switch (d.clase) {
        case Disposicion::Clase::Control: {
            const auto* imagen = dynamic_cast<PictureBox*>(d.control);
            if (imagen != nullptr && imagen->EsFondo()) {
                return;
            }
            const auto* texto = dynamic_cast<TextBox*>(d.control);
            Vista* vista = Hacer(*d.control, padre);
            if (vista != nullptr && (texto == nullptr || texto->Sobre() == nullptr)) {
                if (dynamic_cast<GraficoModulo*>(d.control) != nullptr) {
                    // A hidden chart keeps its room, so that what stands around it does not grow and shrink.
                    QSizePolicy politica = vista->Widget()->sizePolicy();
                    politica.setRetainSizeWhenHidden(true);
                    vista->Widget()->setSizePolicy(politica);
                }
                if (dynamic_cast<FlexGrid*>(d.control) != nullptr) {
                    // A grid that takes no spare room is a small table, of which all rows are shown.
                    vista->Widget()->setSizePolicy(QSizePolicy::Preferred,
                                                   d.estira > 0 ? QSizePolicy::Expanding : QSizePolicy::Fixed);
                }
                caja.addWidget(vista->Widget(), d.estira);
            }
            return;
        }
        case Disposicion::Clase::Fila:
        case Disposicion::Clase::Columna: {
            const bool fila = d.clase == Disposicion::Clase::Fila;
            auto* dentro = new QBoxLayout(fila ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
            dentro->setSpacing(fila ? estilo::kSeparacion : estilo::kSeparacionMin + 2);
            caja.addLayout(dentro, d.estira);
            PonerHijos(d, *dentro, padre);
            return;
        }
        case Disposicion::Clase::Grupo:
            PonerGrupo(d, caja, padre);
            return;
        case Disposicion::Clase::Fichas:
            PonerFichas(d, caja, padre);
            return;
        case Disposicion::Clase::Pares:
            PonerPares(d, caja, padre);
            return;
        case Disposicion::Clase::Espacio:
            caja.addStretch(d.estira);
            return;
    }
}

void Ventana::PonerGrupo(const Disposicion& d, QBoxLayout& caja, QWidget* padre) {
    Vista* vista = Hacer(*d.control, padre);
    auto* dentro = new QVBoxLayout(vista->Widget());
    dentro->setSpacing(estilo::kSeparacion);
    dentro->setContentsMargins(6, 6, 6, 6);
    PonerHijos(d, *dentro, vista->Widget());
    caja.addWidget(vista->Widget(), d.estira);
}

void Ventana::PonerFichas(const Disposicion& d, QBoxLayout& caja, QWidget* padre) {
    Vista* vista = Hacer(*d.control, padre);
    auto* fichas = static_cast<QTabWidget*>(vista->Widget());
    const auto& titulos = static_cast<SSTab*>(d.control)->Titulos();
    for (std::size_t i = 0; i < d.hijos.size() && i < titulos.size(); ++i) {
        auto* pagina = new QWidget(fichas);
        auto* dentro = new QVBoxLayout(pagina);
        Poner(d.hijos[i], *dentro, pagina);
        fichas->addTab(pagina, Q(titulos[i]));
    }
    caja.addWidget(fichas, d.estira);
}

void Ventana::PonerPares(const Disposicion& d, QBoxLayout& caja, QWidget* padre) {
    auto* tabla = new QGridLayout;
    tabla->setHorizontalSpacing(estilo::kSeparacion);
    tabla->setVerticalSpacing(estilo::kSeparacion);
    int celda = 0;
    for (const Disposicion& hijo : d.hijos) {
        if (hijo.control != nullptr) {
            if (Vista* vista = Hacer(*hijo.control, padre)) {
                tabla->addWidget(vista->Widget(), celda / d.columnas, celda % d.columnas);
            }
        }
        ++celda;
    }
    caja.addLayout(tabla, d.estira);
}

}  // namespace cuencalia
