#pragma once

#include "escritorio/ventana.h"
#include "frame/reportes/frmPadre.h"

class QMdiArea;
class QMdiSubWindow;

namespace cuencalia {

/// The window of a form that holds others: each has a tab. It opens where the form says and tells the form where the
/// user puts it.
class VentanaPadre : public Ventana {
    Q_OBJECT

  public:
    VentanaPadre(Escritorio& escritorio, frmPadre& forma);

    /// Takes in the window of a form that stands in this one, and brings it to the front.
    void PonerDelante(Ventana& hija);

  protected:
    void moveEvent(QMoveEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void changeEvent(QEvent* evento) override;

  private:
    frmPadre* Padre() const { return static_cast<frmPadre*>(Forma()); }
    void AbrirEnSuLugar();
    void DecirLugar();
    void DecirHora();
    void Activada(QMdiSubWindow* marco);
    void PonerAtajos();

    Escritorio& escritorio_;
    QMdiArea* area_;
};

/// The place for a window, in pixels with its frame left out of account: what is asked for, made to fit the screen on
/// which most of it would be.
QRect LugarVisible(double izquierda, double arriba, double ancho, double alto, const QSize& minimo);

}  // namespace cuencalia
