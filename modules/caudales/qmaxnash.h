#pragma once

#include "frame/base/numeros.h"

namespace cuencalia {

/// Nash's variable of a return period in years, X = log log (T / (T - 1)), logarithms to base 10. For T > 1; error 11
/// for T = 1, 5 below.
Double VariableDeNash(Double T);

/// Annual maxima by rank, m = 1 the greatest, with their sums and means.
struct RangosNash {
    Serie Q;                       ///< m3/s, in descending order.
    Serie T;                       ///< Return period of rank m in years, (n + 1) / m.
    Serie X;                       ///< Nash's variable of T.
    Double SQ, SX, SQX, SQ2, SX2;  ///< ΣQ, ΣX, ΣQX, ΣQ², ΣX².
    Double Qm, Xm;                 ///< Means of Q and of X.
};

/// Ranks Q(1) to Q(n). Error 6 for n = 0 (0 / 0), 9 when Q has no place for them, or n is above 1500.
RangosNash OrdenarPorRango(const ArregloBase<Double>& Q, int n);

/// Design discharge by Nash's line Q = a + b·X. Discharges in m3/s.
struct CaudalNash {
    Double a, b;
    Double Qmax, DeltaQ;  ///< The line's discharge, and half the width of its interval.
};

/// The least-squares line through the n ranked maxima, at the variable XT of the design's return period:
///   b = (ΣQX - n·Xm·Qm) / (ΣX² - n·Xm²);  a = Qm - b·Xm
///   DeltaQ = 2·√(Sqq / (n²(n - 1)) + (XT - Xm)²·(Sqq - Sxq² / Sxx) / ((n - 2)·Sxx))
/// with Sxx = nΣX² - (ΣX)², and Sqq and Sxq alike. For n >= 3: error 11 or 6 below. Where all discharges are equal b
/// and DeltaQ are 0. Error 5 where discharges that agree in about eight digits leave a negative root by rounding.
/// Source: Nash, J. E. and Amorocho, J. (1966), The accuracy of the prediction of floods of high return period, Water
/// Resources Research 2(2), 191-198.
CaudalNash EstimarNash(const RangosNash& rangos, int n, Double XT);

}  // namespace cuencalia
