#pragma once

#include "modules/caudales/moduloqmax.h"

namespace cuencalia {

/// Peak discharge by the formula of Mac Math, with the intensity of a regional equation or of trios.
class frmQmaxMacMath : public ModuloQmax {
  public:
    explicit frmQmaxMacMath(Aplicacion& app)
        : ModuloQmax(app, "frmQmaxMacMath", "Cálculo del caudal máximo utilizando el método de Mac Math",
                     FormulaMacMath(), FuenteRegional()) {}
};

}  // namespace cuencalia
