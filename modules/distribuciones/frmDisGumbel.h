#pragma once

#include "modules/distribuciones/ajustegumbel.h"

namespace cuencalia {

/// Fit of a series to the Gumbel distribution.
class frmDisGumbel : public AjusteGumbel {
  public:
    explicit frmDisGumbel(Aplicacion& app);

    void GenerarReporte(Reporte& reporte) override { ReporteDistriGumbel(reporte); }
    void ReporteDistriGumbel(Reporte& reporte) { ReportarAjuste(reporte); }
};

}  // namespace cuencalia
