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

    void GenerarReporte(Reporte& reporte) override;

  protected:
    void Ajustar() override;
    Disposicion Contenido() override;
};

}  // namespace cuencalia
