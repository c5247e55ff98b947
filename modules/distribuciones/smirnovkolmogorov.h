#pragma once

#include "modules/distribuciones/exacta.h"

namespace cuencalia {

/// A significance level of the Smirnov-Kolmogorov test.
struct NivelSignificacion {
    Double c;           ///< Numerator of the critical value c / sqrt(n).
    const char* texto;  ///< The level as the verdict names it, with a blank before it.
};

inline constexpr NivelSignificacion kNivel20{1.07, " 20%"};
inline constexpr NivelSignificacion kNivel10{1.22, " 10%"};
inline constexpr NivelSignificacion kNivel5{1.36, " 5%"};
inline constexpr NivelSignificacion kNivel1{1.63, " 1%"};

/// Weibull's plotting position, the non-exceedance probability i / (n + 1) of the i-th of n values in ascending order.
/// Source: Weibull, W. (1939), A statistical theory of the strength of materials, Ingeniörsvetenskapsakademiens
/// Handlingar 151, Stockholm.
inline Double PosicionWeibull(int i, int n) { return Double(i) / (n + 1); }

/// The greatest of delta(1) to delta(n), n >= 1.
Double MayorDelta(const ArregloBase<Double>& delta, int n);

/// The critical difference: one that n values do not exceed by chance at that level. The formula for large samples is
/// used for every n: below 35 values its result is some percent greater than the exact one, so the test accepts a
/// little more. When the parameters are estimated from the same values, the exact critical difference is half to two
/// thirds of this result (docs/numerics.md).
/// Source: Massey, F. J. (1951), The Kolmogorov-Smirnov test for goodness of fit, J. Am. Stat. Assoc. 46(253), 68-78.
inline Double DeltaTabular(const NivelSignificacion& nivel, int n) { return nivel.c / Sqr(n); }

/// The greatest difference that 5 % of the series of n values exceed that come from the normal or the Gumbel
/// distribution (or whose logarithms do) when mean and deviation, or the L-moments, of the series itself are its
/// parameters: simulated at 13 lengths from 4 to 499 with 200 000 series each, good to 0.3 %, and between them by
/// interpolation. Beyond, the value of the nearest length with the root of n.
Double DeltaConParametrosAjustados(DistribucionExacta::Reducida reducida, bool lineales, int n);

}  // namespace cuencalia
