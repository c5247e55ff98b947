#pragma once

#include "frame/base/numeros.h"

namespace cuencalia {

/// The first-order autoregressive model of a stationary series, y(i) = media + ro1·(y(i-1) - media) + Se·z(i), where z
/// are independent standard normal deviates. All but ro1 have the unit of y or its square.
struct ModeloAR1 {
    Double media;
    Double c0, c1;  ///< Autocovariances of lags 0 and 1, divisor n.
    Single ro1;     ///< Autocorrelation of lag 1.
    Single varE;    ///< Variance of the residual Se·z.
    Double Se;      ///< Standard deviation of the residual.
};

/// The model of x(1) to x(n) by the method of moments. With s² the sample variance, divisor n - 1:
///   ck = Σ (x(i) - media)·(x(i+k) - media) / n;   ro1 = c1 / c0;   varE = s²·(1 - ro1²);   Se = √varE
/// The mean and the differences from it are Singles. For n >= 2; error 6 when all values are equal.
/// Source: Salas, J. D., Delleur, J. W., Yevjevich, V. and Lane, W. L. (1980), Applied Modeling of Hydrologic Time
/// Series, Water Resources Publications, Littleton, Colorado, chapter 4.
ModeloAR1 AjustarAR1(const ArregloBase<Single>& x, int n);

/// The model of the decimal logarithms of x(1) to x(n), by the same formulas in Double precision; media, c0, c1 and Se
/// are in units of the logarithm. Error 5 for a value that is not greater than 0.
ModeloAR1 AjustarAR1DeLogaritmos(const ArregloBase<Single>& x, int n);

/// What an AR(1) module models, the series or a function of it: how the model of a series is fitted, and how a
/// generated value becomes one of the series.
struct TransformacionAR1 {
    ModeloAR1 (*ajustar)(const ArregloBase<Single>& x, int n);
    Double (*volver)(Double y);
};

extern const TransformacionAR1 kSinTransformar;
extern const TransformacionAR1 kLogaritmica;  ///< Error 6 where 10^y is beyond a Double.

/// Fills Z(1) to Z(N) with standard normal deviates, two from each pair of numbers of Rnd, one from the last pair when
/// N is odd:  z1 = √(-2·ln u1)·cos(2π·u2),  z2 = √(-2·ln u1)·sin(2π·u2). u1, u2, π and 2π·u2 are Singles; the deviates
/// are at most some 8.6 standard deviations from 0. Error 9 when Z has no element N. Source: Box, G. E. P. and Muller,
/// M. E. (1958), A note on the generation of random normal deviates, The Annals of Mathematical Statistics 29(2),
/// 610-611.
void GenerarNormalEstandar(ArregloBase<Double>& Z, int N);

/// Values generated before those that are kept, so that the start at the mean no longer shows.
inline constexpr Integer kCalentamiento = 50;

/// Fills Y(1) to Y(N) by the model from the deviates Z, the first value from the mean alone. The absolute value of each
/// is taken, which keeps the series positive, and it is this folded value from which the next one is computed.
void GenerarAR1(const ModeloAR1& modelo, const ArregloBase<Double>& Z, int N, ArregloBase<Double>& Y);

}  // namespace cuencalia
