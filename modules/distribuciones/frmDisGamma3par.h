#pragma once

#include "modules/distribuciones/ajustepearson3.h"

namespace cuencalia {

/// Fit of a series to the gamma distribution of three parameters; the values may be negative.
class frmDisGamma3par : public AjustePearson3 {
  public:
    explicit frmDisGamma3par(Aplicacion& app);

    void GenerarReporte(Reporte& reporte) override { ReporteDistriGamma3(reporte); }
    void ReporteDistriGamma3(Reporte& reporte) { ReportarAjuste(reporte); }
};

}  // namespace cuencalia
