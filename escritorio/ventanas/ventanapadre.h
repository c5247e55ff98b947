#pragma once

#include "escritorio/ventanas/ventana.h"
#include "frame/reportes/frmPadre.h"

class QMdiArea;
class QMdiSubWindow;

namespace cuencalia {

class BarraFormato;

/// The window of a form that contains other forms, each in a tab. It opens at the position and size given by the form,
/// and reports to the form when the user moves or resizes it. As long as the user has chosen no size it is as wide as
/// the rules of a report.
class VentanaPadre : public Ventana {
    Q_OBJECT

  public:
    VentanaPadre(Anfitrion& anfitrion, frmPadre& forma);

    /// Adds the window of a form contained in this one, and brings it to the front.
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
    /// In twips.
    QSizeF LargoAlAbrir() const;

    Anfitrion& anfitrion_;
    QMdiArea* area_;
    BarraFormato* barra_;
};

/// Position and size for a window, in pixels without its frame: those asked for, changed as needed to fit the screen
/// that would show most of the window.
QRect LugarVisible(double izquierda, double arriba, double ancho, double alto, const QSize& minimo);

}  // namespace cuencalia
