#pragma once

#include "modules/regresion/moduloar1.h"

namespace cuencalia {

/// Synthetic annual series by the AR(1) model of the decimal logarithms of the series. The boxes and the grid show the
/// series and the generated values themselves; c0, c1, ro1 and Se are those of the logarithms.
class frmAutoregTrans : public ModuloAR1 {
  public:
    explicit frmAutoregTrans(Aplicacion& app)
        : ModuloAR1(app, "frmAutoregTrans",
                    "Generación estocástica de series anuales con modelo Autoregresivo de Primer Orden AR(1), con "
                    "transformación logaritmica",
                    kLogaritmica) {}
};

}  // namespace cuencalia
