#pragma once

#include <QObject>
#include <QString>
#include <string>

#include "frame/controles/control.h"

class QKeyEvent;
class QWidget;

namespace cuencalia {

class Escritorio;

inline QString Q(const std::string& texto) { return QString::fromStdString(texto); }
inline std::string Std(const QString& texto) { return texto.toStdString(); }

/// The program counts characters, the toolkit units of UTF-16: a place in a text from one to the other.
int EnUtf16(const QString& texto, int caracteres);
int EnCaracteres(const QString& texto, int posicion);

/// Shows one control by one widget: tells the widget what changed in the model, and the model what the user did. The
/// widget owns the view.
class Vista : public QObject, public VistaControl {
  public:
    Vista(Escritorio& escritorio, Control& control, QWidget* widget);
    ~Vista() override;

    QWidget* Widget() const { return widget_; }
    /// The window is closing: the control may go before the widget does.
    void Soltar();

    void ModeloCambio() override;
    /// Brings the widget up to date with the control.
    void Actualizar();

  protected:
    /// What this kind of control shows besides visibility, state and tool-tip.
    virtual void Mostrar() {}
    /// A key that the control is to have rather than the widget; false leaves it to the widget.
    virtual bool Tecla(QKeyEvent& evento);
    bool eventFilter(QObject* objeto, QEvent* evento) override;

    Escritorio& escritorio_;

  private:
    void MoverRaton();

    Control* control_;
    QWidget* widget_;
};

/// The key of an event as the controls name it, and its character (0: none).
int CodigoDeTecla(const QKeyEvent& evento);
int CaracterDe(const QKeyEvent& evento);
/// AltGr writes characters; Control and Alt alone give orders.
bool EsOrden(const QKeyEvent& evento);

}  // namespace cuencalia
