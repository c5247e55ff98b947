#pragma once

#include "frame/modulo/marcomodulo.h"
#include "frame/reportes/grafico.h"
#include "modules/comparacion/comparacion.h"

namespace cuencalia {

/// The page of the diagram of L-moment ratios: the series among the curves and points of the families.
class FichaMomentos {
  public:
    explicit FichaMomentos(MarcoModulo& modulo);

    Label lblTau4, lblTau3;
    GraficoModulo Graph2;

    void Dibujar(const Comparacion& c);
    Disposicion Zona();
};

}  // namespace cuencalia
