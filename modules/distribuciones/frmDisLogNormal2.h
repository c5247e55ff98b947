#pragma once

#include "modules/distribuciones/ajusteposicionescala.h"

namespace cuencalia {

/// Fit of a series of values above 0 to the log-normal distribution of two parameters.
class frmDisLogNormal2 : public AjustePosicionEscala {
  public:
    explicit frmDisLogNormal2(Aplicacion& app);

    CampoParametro txtux{*this, "txtux", "De escala (µy):", "Parámetro de escala (µy)= ", ordinarios.posicion};
    CampoParametro txtsx{*this, "txtsx", "De forma (Sy):", "Parámetro de forma (Sy)= ", ordinarios.escala};
    CampoParametro txtmedial{*this, "txtmedial", "De escala (µyl):", "Parámetro de escala (µyl)= ", lineales.posicion};
    CampoParametro txtsl{*this, "txtsl", "De forma (Syl):", "Parámetro de forma (Syl)= ", lineales.escala};
};

}  // namespace cuencalia
