#pragma once

#include "frame/modulo/marcomodulo.h"
#include "modules/comparacion/comparacion.h"

namespace cuencalia {

/// The page of the series: as it came and in order, and the tests of whether it is fit for a frequency analysis.
class FichaSerie {
  public:
    explicit FichaSerie(MarcoModulo& modulo);

    Label lblSerie;
    Tabla grdSerie, grdPruebas;

    void Mostrar(const Comparacion& c);
    void Limpiar();
    void Reportar(Reporte& reporte);
    Disposicion Zona();
};

}  // namespace cuencalia
