#pragma once

#include "frame/modulo/marcomodulo.h"
#include "modules/comparacion/comparacion.h"

namespace cuencalia {

/// The page of the series: as it came and in order, and the tests of whether it is fit for a frequency analysis.
class FichaSerie {
  public:
    /// The window forgets `comparacion` with its results.
    FichaSerie(MarcoModulo& modulo, Comparacion& comparacion);

    Label lblSerie;
    Tabla grdSerie, grdPruebas;

    void Mostrar(const Comparacion& c);
    void Reportar(Reporte& reporte);
    Disposicion Zona();
};

}  // namespace cuencalia
