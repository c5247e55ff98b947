#pragma once

#include "modules/distribuciones/ajusteposicionescala.h"

namespace cuencalia {

/// Fit of a series of values above 0 to the log-Gumbel (Fréchet) distribution.
class frmDisLogGumbel : public AjustePosicionEscala {
  public:
    explicit frmDisLogGumbel(Aplicacion& app);

    Double &mu = ordinarios.posicion, &alfa = ordinarios.escala;
    Double &mul = lineales.posicion, &alfal = lineales.escala;
    CampoParametro txtmodau{*this, "txtmodau", "De posición (µ):", "Parámetro de posición (µ)= ", mu};
    CampoParametro txtalfa{*this, "txtalfa", "De escala (alfa):", "Parámetro de escala (alfa)= ", alfa};
    CampoParametro txtmodaul{*this, "txtmodaul", "De posición (µl):", "Parámetro de posición (µl)= ", mul};
    CampoParametro txtalfal{*this, "txtalfal", "De escala (alfal):", "Parámetro de escala (alfal)= ", alfal};

    void GenerarReporte(Reporte& reporte) override { ReporteDistrilogGumbel(reporte); }
    void ReporteDistrilogGumbel(Reporte& reporte) { ReportarAjuste(reporte); }
};

}  // namespace cuencalia
