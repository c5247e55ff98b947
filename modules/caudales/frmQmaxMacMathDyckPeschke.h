#pragma once

#include "modules/caudales/moduloqmax.h"

namespace cuencalia {

/// Peak discharge by the formula of Mac Math, with the intensity of daily maxima after Grobe.
class frmQmaxMacMathDyckPeschke : public ModuloQmax {
  public:
    explicit frmQmaxMacMathDyckPeschke(Aplicacion& app)
        : ModuloQmax(app, "frmQmaxMacMathDyckPeschke",
                     "Cálculo del caudal máximo utilizando el método de Mac Math con Dyck y Peschke", FormulaMacMath(),
                     FuenteGrobe()) {}
};

}  // namespace cuencalia
