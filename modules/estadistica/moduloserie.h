#pragma once

#include <string>

#include "frame/modulo/modulocalculo.h"
#include "modules/estadistica/listaordenada.h"

namespace cuencalia {

/// A module of one series X that can show it in ascending order.
class ModuloSerie : public ModuloCalculo {
  public:
    ModuloSerie(Aplicacion& app, std::string nombre, std::string titulo);

    ListaOrdenada orden{*this};

    Serie x;
    Serie xo;  ///< x in ascending order.

    /// Lists the series as the grid holds it now; it needs no calculation.
    void bOrdenar_Click();

  protected:
    void LimpiarOtros() override { orden.OcultarGrid(); }

    /// Sorts a copy of the series that was read last.
    void OrdenarCopia();
};

}  // namespace cuencalia
