#pragma once

#include "modules/regresion/aplicarecuacion.h"
#include "modules/regresion/marcoregresimple.h"

namespace cuencalia {

/// The line, the exponential and the power curve through the same pairs of numbers above 0; the last two are fitted as
/// lines through logarithms.
class frmEjRegSimple : public MarcoRegreSimple {
  public:
    explicit frmEjRegSimple(Aplicacion& app);

    AplicarEcuacion aplicar;

    Double aExp, bExp;  ///< Y = aExp·bExp^X, of the last fit; 0 when there was none.
    Double aPot, bPot;  ///< Y = aPot·X^bPot, alike.

    void Form_Load() override;
    /// The choice of an equation goes with the value typed for it: with no value it stays, until data are loaded.
    void LimpiarModulo() override;
    void LimpiarResultados() override;
    void GenerarReporte(Reporte& reporte) override;

  protected:
    void Ajustar() override;
    void LimpiarOtros() override;
    Disposicion Contenido() override;

  private:
    void RotularFilas() { grdecua.PonerColumna(0, {"Lineal", "Exponencial", "Potencial"}); }
};

}  // namespace cuencalia
