#pragma once

#include "modules/distribuciones/ajustepearson3.h"

namespace cuencalia {

/// Fit of the logarithms of a series of values above 0 to the Pearson type III distribution.
class frmDisLogPearson3 : public AjustePearson3 {
  public:
    explicit frmDisLogPearson3(Aplicacion& app);

  protected:
    void AlFallar() override;
};

}  // namespace cuencalia
