#pragma once

#include "modules/distribuciones/ajustepearson3.h"

namespace cuencalia {

/// Fit of a series to the gamma distribution of three parameters; the values may be negative.
class frmDisGamma3par : public AjustePearson3 {
  public:
    explicit frmDisGamma3par(Aplicacion& app);
};

}  // namespace cuencalia
