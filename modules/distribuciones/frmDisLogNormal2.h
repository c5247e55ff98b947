#pragma once

#include "modules/distribuciones/ajusteposicionescala.h"

namespace cuencalia {

/// Fit of a series of values above 0 to the log-normal distribution of two parameters.
class frmDisLogNormal2 : public AjustePosicionEscala {
  public:
    explicit frmDisLogNormal2(Aplicacion& app);

    CampoParametro txtux{*this, "txtux", "De escala (µy):"};
    CampoParametro txtsx{*this, "txtsx", "De forma (Sy):"};
    CampoParametro txtmedial{*this, "txtmedial", "De escala (µyl):"};
    CampoParametro txtsl{*this, "txtsl", "De forma (Syl):"};

    Double &uy = ordinarios.posicion, &sy = ordinarios.escala;
    Double &uyl = lineales.posicion, &syl = lineales.escala;

    void GenerarReporte(Reporte& reporte) override { ReporteDistriLogNormal2(reporte); }
    void ReporteDistriLogNormal2(Reporte& reporte);
};

}  // namespace cuencalia
