#pragma once

#include "modules/distribuciones/ajusteposicionescala.h"

namespace cuencalia {

/// Fit of a series of values above 0 to the log-Gumbel (Fréchet) distribution.
class frmDisLogGumbel : public AjustePosicionEscala {
  public:
    explicit frmDisLogGumbel(Aplicacion& app);

    CampoParametro txtmodau{*this, "txtmodau", "De posición (µ):"};
    CampoParametro txtalfa{*this, "txtalfa", "De escala (alfa):"};
    CampoParametro txtmodaul{*this, "txtmodaul", "De posición (µl):"};
    CampoParametro txtalfal{*this, "txtalfal", "De escala (alfal):"};

    Double &mu = ordinarios.posicion, &alfa = ordinarios.escala;
    Double &mul = lineales.posicion, &alfal = lineales.escala;

    void GenerarReporte(Reporte& reporte) override { ReporteDistrilogGumbel(reporte); }
    void ReporteDistrilogGumbel(Reporte& reporte);
};

}  // namespace cuencalia
