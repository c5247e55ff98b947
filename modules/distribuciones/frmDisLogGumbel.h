#pragma once

#include "modules/distribuciones/ajustegumbel.h"

namespace cuencalia {

/// Fit of a series of values above 0 to the log-Gumbel (Fréchet) distribution.
class frmDisLogGumbel : public AjusteGumbel {
  public:
    explicit frmDisLogGumbel(Aplicacion& app);
};

}  // namespace cuencalia
