#pragma once

#include "modules/distribuciones/ajustegumbel.h"

namespace cuencalia {

/// Fit of a series to the Gumbel distribution.
class frmDisGumbel : public AjusteGumbel {
  public:
    explicit frmDisGumbel(Aplicacion& app);
};

}  // namespace cuencalia
