#pragma once

#include "modules/regresion/marcoregpolinomial.h"

namespace cuencalia {

/// Regression by a polynomial of the second degree.
class frmRegPoli2Gra : public MarcoRegPolinomial {
  public:
    explicit frmRegPoli2Gra(Aplicacion& app);
};

}  // namespace cuencalia
