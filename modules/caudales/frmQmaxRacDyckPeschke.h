#pragma once

#include "modules/caudales/moduloqmax.h"

namespace cuencalia {

/// Peak discharge by the rational formula, with the intensity of daily maxima after Grobe.
class frmQmaxRacDyckPeschke : public ModuloQmax {
  public:
    explicit frmQmaxRacDyckPeschke(Aplicacion& app)
        : ModuloQmax(app, "frmQmaxRacDyckPeschke",
                     "Cálculo del caudal máximo utilizando el método racional con Dyck y Peschke", FormulaRacional(),
                     FuenteGrobe()) {}
};

}  // namespace cuencalia
