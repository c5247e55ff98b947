#pragma once

#include "frame/base/numeros.h"
#include "frame/controles/controles.h"
#include "frame/controles/disposicion.h"
#include "frame/modulo/tabla.h"

namespace cuencalia {

/// The list of a series in ascending order that a module shows on demand, with its label; hidden until then.
class ListaOrdenada {
  public:
    explicit ListaOrdenada(Formulario& forma);

    CommandButton bOrdenar;
    Label lblOrdenado;
    Tabla grdorden;

    void MostrarGrid() { PonerVisible(true); }
    void OcultarGrid() { PonerVisible(false); }
    /// Fills the list with the first n values of the sorted series.
    void Llenar(const ArregloBase<Double>& ordenada, int n);

    Disposicion Zona();

  private:
    void PonerVisible(bool visible);
};

}  // namespace cuencalia
