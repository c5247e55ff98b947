#pragma once

#include <QObject>

#include "escritorio/vistas/anfitrion.h"
#include "escritorio/vistas/textoqt.h"
#include "frame/controles/control.h"

class QKeyEvent;
class QWidget;

namespace cuencalia {

/// Shows one control by one widget: passes changes of the control to the widget, and the user's actions to the control.
/// The widget owns the view.
class Vista : public QObject, public VistaControl {
  public:
    Vista(Anfitrion& anfitrion, Control& control, QWidget* widget);
    ~Vista() override;

    QWidget* Widget() const { return widget_; }
    /// Whether the control is not to be seen.
    bool Oculta() const;
    /// Separates the view from the control when the window is closing: the control may be destroyed before the widget.
    void Soltar();

    void ModeloCambio() override;
    /// Updates the widget from the control.
    void Actualizar();

  protected:
    /// Updates what this kind of control shows besides visibility, enabled state and tool-tip.
    virtual void Mostrar() {}
    /// Handles a key for the control and returns true; returns false for keys that the widget is to handle.
    virtual bool Tecla(QKeyEvent& evento);
    bool eventFilter(QObject* objeto, QEvent* evento) override;
    /// What else ends with the control, which is still there.
    virtual void AlSoltar() {}
    /// Tells the control that the pointer moved over it.
    void MoverRaton();

    Anfitrion& anfitrion_;

  private:
    void Separar();

    Control* control_;
    QWidget* widget_;
};

/// The KeyDown code of the key event, and its character (0: none).
int CodigoDeTecla(const QKeyEvent& evento);
int CaracterDe(const QKeyEvent& evento);
/// The modifier keys held down with it, as Aplicacion::PulsarTecla takes them.
int ModificadoresDe(const QKeyEvent& evento);
/// True for keys pressed with Control or Alt, which are commands; AltGr types characters.
bool EsOrden(const QKeyEvent& evento);

}  // namespace cuencalia
