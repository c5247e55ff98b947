#pragma once

#include "modules/distribuciones/ajusteposicionescala.h"

namespace cuencalia {

/// Fit of a series to the normal distribution.
class frmDisNormal : public AjustePosicionEscala {
  public:
    explicit frmDisNormal(Aplicacion& app);

    Double &xm = ordinarios.posicion, &sx = ordinarios.escala;
    Double &xml = lineales.posicion, &sxl = lineales.escala;
    CampoParametro txtux{*this, "txtux", "De localización (Xm):", "Parámetro de localización (Xm)= ", xm};
    CampoParametro txtsx{*this, "txtsx", "De escala (S):", "Parámetro de escala (S)= ", sx};
    CampoParametro txtmedial{*this, "txtmedial", "Media  lineal (Xl):", "Media lineal (Xl)= ", xml};
    CampoParametro txtsl{*this, "txtsl", "Des. Estandar (S l):", "Desviación estándar lineal (Sl)= ", sxl};

    void GenerarReporte(Reporte& reporte) override { ReporteDistriNormal(reporte); }
    void ReporteDistriNormal(Reporte& reporte) { ReportarAjuste(reporte); }
};

}  // namespace cuencalia
