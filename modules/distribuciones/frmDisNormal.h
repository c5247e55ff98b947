#pragma once

#include "modules/distribuciones/ajusteposicionescala.h"

namespace cuencalia {

/// Fit of a series to the normal distribution.
class frmDisNormal : public AjustePosicionEscala {
  public:
    explicit frmDisNormal(Aplicacion& app);

    CampoParametro txtux{*this, "txtux",
                         "De localización (Xm):", "Parámetro de localización (Xm)= ", ordinarios.posicion};
    CampoParametro txtsx{*this, "txtsx", "De escala (S):", "Parámetro de escala (S)= ", ordinarios.escala};
    CampoParametro txtmedial{*this, "txtmedial", "Media  lineal (Xl):", "Media lineal (Xl)= ", lineales.posicion};
    CampoParametro txtsl{*this, "txtsl", "Des. Estandar (S l):", "Desviación estándar lineal (Sl)= ", lineales.escala};
};

}  // namespace cuencalia
