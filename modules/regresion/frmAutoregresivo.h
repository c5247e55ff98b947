#pragma once

#include "modules/regresion/moduloar1.h"

namespace cuencalia {

/// Synthetic annual series by the AR(1) model of the series itself.
class frmAutoregresivo : public ModuloAR1 {
  public:
    explicit frmAutoregresivo(Aplicacion& app)
        : ModuloAR1(app, "frmAutoregresivo",
                    "Generación estocástica de series anuales con modelo Autoregresivo de Primer Orden AR(1)",
                    kSinTransformar) {}
};

}  // namespace cuencalia
