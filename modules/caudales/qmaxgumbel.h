#pragma once

#include "frame/base/numeros.h"

namespace cuencalia {

/// Mean YN of Gumbel's reduced variable in a sample of n years:
///   YN = Σ 1/i (i = 1 to n) - ln n - 0.79980388·n^-0.77617387
/// which tends to Euler's constant, and stands in for Gumbel's table. docs/numerics.md tells how near it comes.
/// For n >= 1; error 5 for n = 0.
Double MediaReducida(int n);

/// Standard deviation SN of the same variable: a power of n for each range of n, and 1.28255 = π/√6 beyond the last.
/// For n >= 1.
Double DesviacionReducida(int n);

/// Design discharge by Gumbel's formulas. Discharges in m3/s.
struct CaudalGumbel {
    Double Qm, SQ;        ///< Mean of the annual maxima and their deviation of divisor n - 1.
    Double Cv;            ///< Coefficient of variation, SQ/Qm, which a river without discharge does not have.
    Double YN, SN;        ///< Without unit.
    Double Qmax, DeltaQ;  ///< The discharge of T, and half the width of its interval.
};

/// Qmax = Qm - SQ/SN·(YN - ln T), DeltaQ = 1.14·SQ/SN, from annual maxima Q(1) to Q(n) and a return period T in years.
/// For n >= 2 and T > 0; the half-width holds for T > 10. Error 6 for n < 2 or no
/// discharge at all (0 / 0), 5 for T <= 0.
/// Source: Gumbel, E. J. (1958), Statistics of Extremes, Columbia University Press, New York.
CaudalGumbel EstimarGumbel(const ArregloBase<Double>& Q, int n, Double T);

}  // namespace cuencalia
