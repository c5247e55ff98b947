#pragma once

#include "modules/caudales/moduloqmax.h"

namespace cuencalia {

/// Peak discharge by the rational formula, with the intensity of a regional equation or of trios.
class frmQmaxRacional : public ModuloQmax {
  public:
    explicit frmQmaxRacional(Aplicacion& app)
        : ModuloQmax(app, "frmQmaxRacional", "Cálculo del caudal máximo utilizando el método Racional",
                     FormulaRacional(), FuenteRegional()) {}
};

}  // namespace cuencalia
