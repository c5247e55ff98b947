#pragma once

#include "modules/distribuciones/ajusteposicionescala.h"

namespace cuencalia {

/// Fit of a series to the Gumbel distribution.
class frmDisGumbel : public AjustePosicionEscala {
  public:
    explicit frmDisGumbel(Aplicacion& app);

    Double &mu = ordinarios.posicion, &alfa = ordinarios.escala;
    Double &mul = lineales.posicion, &alfal = lineales.escala;
    CampoParametro txtmodau{*this, "txtmodau", "De posición (µ):", "Parámetro de posición (µ)= ", mu};
    CampoParametro txtalfa{*this, "txtalfa", "De escala (alfa):", "Parámetro de escala (alfa)= ", alfa};
    CampoParametro txtmodaul{*this, "txtmodaul", "De posición (µl):", "Parámetro de posición (µl)= ", mul};
    CampoParametro txtalfal{*this, "txtalfal", "De escala (alfal):", "Parámetro de escala (alfal)= ", alfal};

    void GenerarReporte(Reporte& reporte) override { ReporteDistriGumbel(reporte); }
    void ReporteDistriGumbel(Reporte& reporte) { ReportarAjuste(reporte); }
};

}  // namespace cuencalia
