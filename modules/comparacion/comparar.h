#pragma once

#include <optional>
#include <span>
#include <vector>

#include "modules/comparacion/bondad.h"
#include "modules/comparacion/posiciones.h"

namespace cuencalia {

/// A candidate, fitted to the series and measured.
struct Comparado {
    Ajuste ajuste;
    std::optional<Bondad> bondad;    ///< Empty without a fit.
    std::optional<double> akaike{};  ///< Of fits by maximum likelihood.
};

/// All candidates for a series in ascending order; `posicion` is the one by which correlation and error are measured.
std::vector<Comparado> Comparar(std::span<const double> ordenada, const PosicionGrafica& posicion);

}  // namespace cuencalia
