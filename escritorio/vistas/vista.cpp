#include "escritorio/vistas/vista.h"

#include <QEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>

namespace cuencalia {

Vista::Vista(Anfitrion& anfitrion, Control& control, QWidget* widget)
    : QObject(widget), anfitrion_(anfitrion), control_(&control), widget_(widget) {
    control.PonerVista(this);
    widget->setObjectName(Q(control.Nombre()));
    widget->setMouseTracking(true);
    widget->installEventFilter(this);
}

Vista::~Vista() { Separar(); }

void Vista::Soltar() {
    Separar();
    AlSoltar();
    // A button that is pressed by its key is clicked a moment later, and a hidden table may still scroll.
    widget_->disconnect(this);
    for (const QObject* parte : widget_->findChildren<QObject*>()) {
        parte->disconnect(this);
    }
}

void Vista::Separar() {
    if (control_ != nullptr) {
        control_->PonerVista(nullptr);
        control_ = nullptr;
        anfitrion_.Olvidar(this);
    }
}

void Vista::ModeloCambio() { anfitrion_.Ensuciar(this); }

bool Vista::Oculta() const { return control_ != nullptr && !control_->Visible; }

void Vista::Actualizar() {
    if (control_ == nullptr) {
        return;
    }
    if (!widget_->isWindow()) {
        widget_->setVisible(control_->Visible);
    }
    widget_->setEnabled(control_->Enabled);
    const QString ayuda = Q(control_->ToolTipText);
    if (widget_->toolTip() != ayuda) {
        widget_->setToolTip(ayuda);
    }
    if (!control_->NombreAccesible().empty()) {
        widget_->setAccessibleName(Q(control_->NombreAccesible));
    }
    Mostrar();
}

bool Vista::Tecla(QKeyEvent&) { return false; }

void Vista::MoverRaton() {
    if (control_ != nullptr && control_->MouseMove.Atendido()) {
        anfitrion_.App().Despachar([this] { control_->MouseMove(); });
    }
}

bool Vista::eventFilter(QObject* objeto, QEvent* evento) {
    if (objeto != widget_ || control_ == nullptr) {
        return QObject::eventFilter(objeto, evento);
    }
    switch (evento->type()) {
        case QEvent::FocusIn:
            if (!anfitrion_.Pintando() && !control_->TieneFoco() && control_->PuedeRecibirFoco()) {
                anfitrion_.App().Despachar([this] { control_->SetFocus(); });
            }
            return false;
        case QEvent::KeyPress:
            return Tecla(static_cast<QKeyEvent&>(*evento));
        case QEvent::Enter:
            MoverRaton();
            return false;
        case QEvent::MouseMove:
            // The event must not reach the surrounding frame, whose handler shows the normal pictures of its buttons.
            if (static_cast<QMouseEvent*>(evento)->buttons() == Qt::NoButton) {
                MoverRaton();
                return true;
            }
            return false;
        default:
            return false;
    }
}

namespace {

/// Signs get the key codes of the numeric pad wherever they are typed, so that the calculator can be used with a
/// keyboard that has no numeric pad.
int CodigoDeSigno(int tecla) {
    switch (tecla) {
        case Qt::Key_Asterisk:
            return 106;
        case Qt::Key_Plus:
            return 107;
        case Qt::Key_Minus:
            return 109;
        case Qt::Key_Period:
        case Qt::Key_Comma:
            return 190;
        case Qt::Key_Slash:
            return 111;
        case Qt::Key_Equal:
            return kTeclaIgual;
        default:
            return 0;
    }
}

}  // namespace

int CodigoDeTecla(const QKeyEvent& evento) {
    switch (evento.key()) {
        case Qt::Key_Backspace:
            return kTeclaRetroceso;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return kTeclaEnter;
        case Qt::Key_Escape:
            return kTeclaEscape;
        case Qt::Key_PageUp:
            return kTeclaRePag;
        case Qt::Key_PageDown:
            return kTeclaAvPag;
        case Qt::Key_End:
            return kTeclaFin;
        case Qt::Key_Home:
            return kTeclaInicio;
        case Qt::Key_Left:
            return kTeclaIzquierda;
        case Qt::Key_Up:
            return kTeclaArriba;
        case Qt::Key_Right:
            return kTeclaDerecha;
        case Qt::Key_Down:
            return kTeclaAbajo;
        case Qt::Key_Delete:
            return kTeclaSuprimir;
        case Qt::Key_Tab:
            return kTeclaTab;
        case Qt::Key_F2:
            return kTeclaF2;
        default:
            break;
    }
    if (const int codigo = CodigoDeSigno(evento.key()); codigo != 0) {
        return codigo;
    }
    const bool letraODigito = (evento.key() >= Qt::Key_A && evento.key() <= Qt::Key_Z) ||
                              (evento.key() >= Qt::Key_0 && evento.key() <= Qt::Key_9) || evento.key() == Qt::Key_Space;
    return letraODigito ? evento.key() : 0;
}

int CaracterDe(const QKeyEvent& evento) {
    const int codigo = CodigoDeTecla(evento);
    if (codigo == kTeclaRetroceso || codigo == kTeclaEnter || codigo == kTeclaEscape) {
        return codigo;
    }
    // The number pad of a Spanish keyboard writes a comma, which ends a number.
    if ((evento.modifiers() & Qt::KeypadModifier) &&
        (evento.key() == Qt::Key_Comma || evento.key() == Qt::Key_Period)) {
        return '.';
    }
    const QList<uint> codigos = evento.text().toUcs4();
    const bool imprimible = codigos.size() == 1 && codigos[0] >= kTeclaEspacio && codigos[0] != 127;
    return imprimible ? static_cast<int>(codigos[0]) : 0;
}

int ModificadoresDe(const QKeyEvent& evento) {
    return (evento.modifiers() & Qt::ShiftModifier ? kMayusculas : kSinModificador) +
           (evento.modifiers() & Qt::ControlModifier ? kControl : kSinModificador);
}

bool EsOrden(const QKeyEvent& evento) {
    const Qt::KeyboardModifiers m = evento.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    return m != Qt::NoModifier && m != (Qt::ControlModifier | Qt::AltModifier);
}

}  // namespace cuencalia
