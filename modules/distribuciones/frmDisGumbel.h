#pragma once

#include "modules/distribuciones/ajusteposicionescala.h"

namespace cuencalia {

/// Fit of a series to the Gumbel distribution.
class frmDisGumbel : public AjustePosicionEscala {
  public:
    explicit frmDisGumbel(Aplicacion& app);

    CampoParametro txtmodau{*this, "txtmodau", "De posición (µ):"};
    CampoParametro txtalfa{*this, "txtalfa", "De escala (alfa):"};
    CampoParametro txtmodaul{*this, "txtmodaul", "De posición (µl):"};
    CampoParametro txtalfal{*this, "txtalfal", "De escala (alfal):"};

    Double &mu = ordinarios.posicion, &alfa = ordinarios.escala;
    Double &mul = lineales.posicion, &alfal = lineales.escala;

    void GenerarReporte(Reporte& reporte) override { ReporteDistriGumbel(reporte); }
    void ReporteDistriGumbel(Reporte& reporte);
};

}  // namespace cuencalia
