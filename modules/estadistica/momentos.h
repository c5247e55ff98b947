#pragma once

#include <span>

#include "frame/base/numeros.h"

namespace cuencalia {

// The functions on spans are for the plain numbers of a calculation that is made very often: what does not exist is a
// NaN or an infinity there, where the functions on arrays raise an error.

/// Conventional moments of a series. `media` and `desviacion` have the unit of the series, `varianza` its square, the
/// coefficients of variation, skewness and kurtosis none.
template <typename R>
struct Parametros {
    R media{}, varianza{}, desviacion{}, Cv{}, Cs{}, Ck{};
};
using ParametrosEstadisticos = Parametros<Double>;

/// Mean of x(1) to x(n). That of Singles is added up in Single precision and is a Single. Error 6 for n = 0.
Double Media(const ArregloBase<Double>& x, int n);
Single Media(const ArregloBase<Single>& x, int n);
double Media(std::span<const double> x);

/// Sum of the squared differences of x(1) to x(n) from their mean.
Double SumaDeCuadrados(const ArregloBase<Double>& x, int n, Double media);

/// Natural logarithms of x(1) to x(n). Error 5 when one is not above 0.
ArregloBase<Double> Logaritmos(const ArregloBase<Double>& x, int n);

/// Sample parameters of x(1) to x(n), corrected for small samples. With mk the k-th central moment of divisor n:
///   varianza s² = n·m2 / (n-1)                Cs = n²·m3 / ((n-1)(n-2)·s³)
///   Cv = s / media                            Ck = n³·m4 / ((n-1)(n-2)(n-3)·s⁴)
/// Defined for n >= 4, a spread and a mean other than 0; otherwise the division that fails raises error 11, or 6 for
/// 0 / 0 (two values give 6, since their m3 is 0). Error 9 when the array has no x(1) to x(n).
/// Source: Kite, G. W. (1977), Frequency and Risk Analyses in Hydrology, Water Resources Publications, Fort Collins.
ParametrosEstadisticos ParametrosMuestrales(const ArregloBase<Double>& x, int n);
/// Of Singles the sum, the mean and the differences from it are Singles too, all the rest is worked in Double.
ParametrosEstadisticos ParametrosMuestrales(const ArregloBase<Single>& x, int n);
Parametros<double> ParametrosMuestrales(std::span<const double> x);

/// Population parameters: varianza = m2, Cs = m3 / m2^(3/2), Ck = m4 / m2² (3 for a normal population). Defined for
/// n >= 2 with a spread and a mean other than 0; errors as above.
ParametrosEstadisticos ParametrosPoblacionales(const ArregloBase<Double>& x, int n);

/// Sample parameters of grouped data, by the same formulas: the class marks stand for the values, each as often as its
/// absolute frequency says. n is the number of values of the series, also where some of them are in no class. Both
/// arrays are read from 1 to `clases`; errors as above.
ParametrosEstadisticos ParametrosAgrupados(const ArregloBase<Double>& marcas, const ArregloBase<Double>& frecuencias,
                                           int clases, int n);

/// The first four sample L-moments, in the unit of the series. L1 is the mean; the ratios L2/L1, L3/L2 and L4/L2
/// describe variation, skewness and kurtosis.
template <typename R>
struct Lineales {
    R L1, L2, L3, L4;
};
using MomentosLineales = Lineales<Double>;

/// Unbiased sample L-moments of x(1) to x(n), which must be in ascending order, by direct estimators: Lr is the mean,
/// over all samples of r values that can be drawn from the n, of the linear combination of their order statistics that
/// defines the r-th L-moment. Defined for n >= 4; with fewer values 0 / 0 raises error 6. Error 9 when the array has no
/// x(1) to x(n). The combinatorial weights are whole numbers, exact in a Double far beyond n = 3000.
/// Sources: Hosking, J. R. M. (1990), L-moments: analysis and estimation of distributions using linear combinations of
/// order statistics, J. R. Stat. Soc. B 52(1), 105-124 (definition). Wang, Q. J. (1996), Direct sample estimators of
/// L moments, Water Resources Research 32(12), 3617-3619 (formulas).
MomentosLineales CalcularMomentosLineales(const ArregloBase<Double>& ordenada, int n);
/// By the differences from the middle value, which keeps the digits of values far from 0.
Lineales<double> CalcularMomentosLineales(std::span<const double> ordenada);

}  // namespace cuencalia
