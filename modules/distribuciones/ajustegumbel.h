#pragma once

#include "modules/distribuciones/ajusteposicionescala.h"

namespace cuencalia {

/// Fit to the Gumbel distribution, of the values or of their logarithms.
class AjusteGumbel : public AjustePosicionEscala {
  public:
    Double &mu = ordinarios.posicion, &alfa = ordinarios.escala;
    Double &mul = lineales.posicion, &alfal = lineales.escala;
    CampoParametro txtmodau{*this, "txtmodau", "De posición (µ):", "Parámetro de posición (µ)= ", mu};
    CampoParametro txtalfa{*this, "txtalfa", "De escala (alfa):", "Parámetro de escala (alfa)= ", alfa};
    CampoParametro txtmodaul{*this, "txtmodaul", "De posición (µl):", "Parámetro de posición (µl)= ", mul};
    CampoParametro txtalfal{*this, "txtalfal", "De escala (alfal):", "Parámetro de escala (alfal)= ", alfal};

  protected:
    AjusteGumbel(Aplicacion& app, std::string nombre, DescripcionAjuste descripcion,
                 const DistribucionPosicionEscala& distribucion)
        : AjustePosicionEscala(app, std::move(nombre), std::move(descripcion), distribucion) {
        DeclararParametros({&txtmodau, &txtalfa}, {&txtmodaul, &txtalfal});
    }
};

}  // namespace cuencalia
