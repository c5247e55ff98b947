#pragma once

#include "modules/distribuciones/ajusteposicionescala.h"

namespace cuencalia {

/// Fit of a series to the normal distribution.
class frmDisNormal : public AjustePosicionEscala {
  public:
    explicit frmDisNormal(Aplicacion& app);

    CampoParametro txtux{*this, "txtux", "De localización (Xm):"};
    CampoParametro txtsx{*this, "txtsx", "De escala (S):"};
    CampoParametro txtmedial{*this, "txtmedial", "Media  lineal (Xl):"};
    CampoParametro txtsl{*this, "txtsl", "Des. Estandar (S l):"};

    Double &xm = ordinarios.posicion, &sx = ordinarios.escala;
    Double &xml = lineales.posicion, &sxl = lineales.escala;

    void GenerarReporte(Reporte& reporte) override { ReporteDistriNormal(reporte); }
    void ReporteDistriNormal(Reporte& reporte);
};

}  // namespace cuencalia
