#pragma once

#include "modules/distribuciones/ajusteposicionescala.h"

namespace cuencalia {

/// Fit to the Gumbel distribution, of the values or of their logarithms.
class AjusteGumbel : public AjustePosicionEscala {
  public:
    CampoParametro txtmodau{*this, "txtmodau", "De posición (µ):", "Parámetro de posición (µ)= ", ordinarios.posicion};
    CampoParametro txtalfa{*this, "txtalfa", "De escala (alfa):", "Parámetro de escala (alfa)= ", ordinarios.escala};
    CampoParametro txtmodaul{*this, "txtmodaul",
                             "De posición (µl):", "Parámetro de posición (µl)= ", lineales.posicion};
    CampoParametro txtalfal{*this, "txtalfal", "De escala (alfal):", "Parámetro de escala (alfal)= ", lineales.escala};

  protected:
    AjusteGumbel(Aplicacion& app, std::string nombre, DescripcionAjuste descripcion,
                 const DistribucionPosicionEscala& distribucion)
        : AjustePosicionEscala(app, std::move(nombre), std::move(descripcion), distribucion) {
        DeclararParametros({&txtmodau, &txtalfa}, {&txtmodaul, &txtalfal});
    }
};

}  // namespace cuencalia
