#pragma once

#include "frame/base/numeros.h"
#include "frame/controles/controles.h"
#include "frame/controles/disposicion.h"
#include "frame/modulo/tabla.h"

namespace cuencalia {

/// The list, with its label, in which a module shows the sorted series on demand; hidden until then.
class ListaOrdenada {
  public:
    explicit ListaOrdenada(Formulario& forma);

    CommandButton bOrdenar;
    Label lblOrdenado;
    Tabla grdorden;

    void MostrarGrid() { PonerVisible(true); }
    /// Fills the list with the first n values of the sorted series.
    void Llenar(const ArregloBase<Double>& ordenada, int n);

    Disposicion Zona();

  private:
    void PonerVisible(bool visible);
};

}  // namespace cuencalia
