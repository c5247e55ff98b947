#pragma once

#include "frame/modulo/marcomodulo.h"
#include "modules/comparacion/comparacion.h"

namespace cuencalia {

/// The page of the candidates, with their measures and parameters, and the order of the rows, which the page of the
/// design discharges follows.
class FichaCandidatos {
  public:
    explicit FichaCandidatos(MarcoModulo& modulo);

    Label lblOrden;
    ComboBox cmbOrden;
    Label lblCautela;
    Tabla grdCandidatos;

    /// Puts the rows in the order that the user chose.
    void Ordenar(Comparacion& c) const;
    /// Chooses the order by a column of the design discharges; by the name for column 0.
    void OrdenarPorCaudal(int columna);
    void Mostrar(const Comparacion& c);
    void Reportar(Reporte& reporte);
    /// `ordenes` are buttons beside the list.
    Disposicion Zona(const std::vector<CommandButton*>& ordenes);
};

}  // namespace cuencalia
