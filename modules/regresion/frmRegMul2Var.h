#pragma once

#include "modules/regresion/marcoregmultiple.h"

namespace cuencalia {

/// Multiple regression on two variables.
class frmRegMul2Var : public MarcoRegMultiple {
  public:
    explicit frmRegMul2Var(Aplicacion& app);
};

}  // namespace cuencalia
