#pragma once

#include "modules/precipitacion/marcolluviamedia.h"

namespace cuencalia {

/// Mean rain of a basin as the mean of its stations.
class frmPromArit : public MarcoLluviaMedia {
  public:
    explicit frmPromArit(Aplicacion& app);

    Serie P;  ///< mm

  protected:
    Double Promediar() override;
};

}  // namespace cuencalia
