#pragma once

#include "modules/precipitacion/marcolluviamedia.h"

namespace cuencalia {

/// Mean rain of a basin as the mean of its stations, each weighed by the area of its polygon.
class frmThiessen : public MarcoLluviaMedia {
  public:
    explicit frmThiessen(Aplicacion& app);

    Serie P;  ///< mm
    Serie A;  ///< Any unit of area.

  protected:
    Double Promediar() override;
};

}  // namespace cuencalia
