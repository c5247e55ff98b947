#pragma once

#include <string>
#include <vector>

#include "modules/comparacion/comparar.h"
#include "modules/comparacion/remuestreo.h"

namespace cuencalia {

/// What the pages of the comparison show: a series, its candidates in the order of the rows, and their resampling.
struct Comparacion {
    std::string origen;  ///< Title of the window that has the series.
    std::vector<double> serie, ordenada;
    std::vector<Comparado> comparados;   ///< Empty before the calculation.
    std::vector<std::size_t> orden;      ///< Of the rows: indices in comparados.
    std::vector<Remuestreo> remuestreo;  ///< Of comparados; empty before the resampling.
    std::string nivel;                   ///< Of its limits, as it is shown: "90 %".

    /// The resampling of a candidate; nothing where there is none.
    const Remuestreo* Significacion(std::size_t i) const {
        return remuestreo.empty() || remuestreo[i].validas == 0 ? nullptr : &remuestreo[i];
    }
};

/// Samples of the resampling.
inline constexpr int kMuestras = 1000;

}  // namespace cuencalia
