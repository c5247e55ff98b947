#pragma once

#include <optional>

#include "frame/modulo/marcomodulo.h"
#include "frame/reportes/grafico.h"
#include "modules/comparacion/comparacion.h"

namespace cuencalia {

/// The page of the probability paper: the data at their plotting positions, the curves of one or two fits, and the
/// limits of the first.
class FichaPapel {
  public:
    FichaPapel(MarcoModulo& modulo, const Comparacion& comparacion);
    FichaPapel(const FichaPapel&) = delete;
    FichaPapel& operator=(const FichaPapel&) = delete;

    Label lblPapel, lblPosicion, lblCurva, lblCurva2;
    ComboBox cmbPapel, cmbPosicion, cmbCurva, cmbCurva2;
    Label lblEjeY, lblEjeX;
    GraficoModulo Graph1;

    const PosicionGrafica& Posicion() const;
    /// Offers the fits of the calculation. A fit that was chosen stays; else the first one is drawn alone.
    void OfrecerAjustes();
    void Dibujar();
    Disposicion Zona();

  private:
    /// Index of the fit that a list names; nothing for the empty name.
    std::optional<std::size_t> Elegido(const ComboBox& lista) const;

    const Comparacion& comparacion_;
};

}  // namespace cuencalia
