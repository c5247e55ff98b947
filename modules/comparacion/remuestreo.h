#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <thread>
#include <vector>

#include "modules/comparacion/bondad.h"

namespace cuencalia {

/// Return periods of the design table, years.
inline constexpr double kPeriodosDeDiseno[] = {1.01, 1.25, 2, 5, 10, 20, 25, 50, 100, 200, 500, 1000, 10000};

struct OpcionesRemuestreo {
    int muestras = 1000;
    std::uint64_t semilla = 1;
    double nivel = 0.90;  ///< Confidence of the limits.
    int hilos = std::max(1, static_cast<int>(std::thread::hardware_concurrency()));
    double posicion = 0.4;  ///< The a of the plotting positions by which correlation and error are measured.
    /// Called on the calling thread now and then with the part that is done, 0 to 1; false ends the resampling.
    std::function<bool(double)> progreso{};
};

/// What the samples that a fit itself can bring forth say about it.
struct Remuestreo {
    int validas = 0;  ///< Samples that the method could fit.
    /// Part of the samples that fit no better than the series does, so the probability of so bad a fit when the
    /// distribution is true; the parameters of each sample are fitted anew.
    double pDelta, pAndersonDarling, pCorrelacion, pError;
    struct Limites {
        double inferior, superior;
    };
    std::vector<Limites> limites;  ///< Of the discharges of the periods; NaN when too few samples could be fitted.
};

/// What the samples of a fit gave; NaN for one that could not be fitted.
struct Muestras {
    std::vector<Bondad> bondad;
    std::vector<std::vector<double>> caudales;  ///< Of each period.
};
/// The samples counted: `serie` are the measures of the series itself, `nivel` the confidence of the limits.
Remuestreo Resumir(const Muestras& muestras, const Bondad& serie, double nivel);

/// Parametric resampling: from each fit samples of the length of the series are drawn, fitted by the same method and
/// measured. A limit is the quantile of the sampled discharges (percentile method); it counts the sampling error alone,
/// not the choice of the family, and of short series it is somewhat narrow (docs/numerics.md has its coverage). The
/// result depends on series, seed and number of samples, not on the number of threads; fits draw the same
/// probabilities. Nothing when `progreso` ended it. Fits without a distribution have an empty result. Source: Efron, B.
/// and Tibshirani, R. J. (1993), An Introduction to the Bootstrap, Chapman and Hall, 6.5 and 13.3.
std::optional<std::vector<Remuestreo>> Remuestrear(const std::vector<Ajuste>& ajustes, std::span<const double> ordenada,
                                                   std::span<const double> periodos,
                                                   const OpcionesRemuestreo& opciones);

}  // namespace cuencalia
