#pragma once

#include "modules/regresion/marcoregmultiple.h"

namespace cuencalia {

/// Multiple regression on three variables.
class frmRegMul3Var : public MarcoRegMultiple {
  public:
    explicit frmRegMul3Var(Aplicacion& app);
};

}  // namespace cuencalia
