#pragma once

#include "modules/caudales/marcomaximas.h"

namespace cuencalia {

/// Design discharge by Gumbel's formulas with the reduced mean and deviation of the number of years.
class frmQmaxGumbel : public MarcoMaximas {
  public:
    explicit frmQmaxGumbel(Aplicacion& app);

  protected:
    Estimacion Estimar(Double T) override;
};

}  // namespace cuencalia
