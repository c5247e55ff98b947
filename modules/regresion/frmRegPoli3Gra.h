#pragma once

#include "modules/regresion/marcoregpolinomial.h"

namespace cuencalia {

/// Regression by a polynomial of the third degree.
class frmRegPoli3Gra : public MarcoRegPolinomial {
  public:
    explicit frmRegPoli3Gra(Aplicacion& app);
};

}  // namespace cuencalia
