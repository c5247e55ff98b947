#pragma once

#include <string>

#include "frame/modulo/modulocalculo.h"
#include "modules/estadistica/listaordenada.h"

namespace cuencalia {

/// A module with one series X, which it can show in ascending order.
class ModuloSerie : public ModuloCalculo {
  public:
    ModuloSerie(Aplicacion& app, std::string nombre, std::string titulo);

    ListaOrdenada orden{*this};

    Serie x;
    Serie xo;  ///< x in ascending order.

    /// Lists the sorted values of the grid as they are now; no calculation is needed before.
    void bOrdenar_Click();

  protected:
    /// Sorts a copy of the series that CargarMatrices read last.
    void OrdenarCopia();
};

}  // namespace cuencalia
