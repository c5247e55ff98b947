#pragma once

#include "modules/distribuciones/ajusteposicionescala.h"

namespace cuencalia {

/// Fit of a series of values above 0 to the log-normal distribution of two parameters.
class frmDisLogNormal2 : public AjustePosicionEscala {
  public:
    explicit frmDisLogNormal2(Aplicacion& app);

    Double &uy = ordinarios.posicion, &sy = ordinarios.escala;
    Double &uyl = lineales.posicion, &syl = lineales.escala;
    CampoParametro txtux{*this, "txtux", "De escala (µy):", "Parámetro de escala (µy)= ", uy};
    CampoParametro txtsx{*this, "txtsx", "De forma (Sy):", "Parámetro de forma (Sy)= ", sy};
    CampoParametro txtmedial{*this, "txtmedial", "De escala (µyl):", "Parámetro de escala (µyl)= ", uyl};
    CampoParametro txtsl{*this, "txtsl", "De forma (Syl):", "Parámetro de forma (Syl)= ", syl};

    void GenerarReporte(Reporte& reporte) override { ReporteDistriLogNormal2(reporte); }
    void ReporteDistriLogNormal2(Reporte& reporte) { ReportarAjuste(reporte); }
};

}  // namespace cuencalia
