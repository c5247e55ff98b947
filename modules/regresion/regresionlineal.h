#pragma once

#include "frame/base/numeros.h"

namespace cuencalia {

/// The straight line Y = a + b·X.
struct RectaRegresion {
    Double a;              ///< Ordinate at the origin, in the unit of y.
    Double b;              ///< Slope, unit of y by unit of x.
    Double Sxx, Syy, Sxy;  ///< Sums of squares and products about the means.
};

/// Least-squares line through the pairs (x(i), y(i)), i = 1 to n:
///   Sxx = Σx² - n·xm², Syy and Sxy alike;  b = Sxy / Sxx;  a = ym - b·xm
/// For n >= 2. Error 11 or 6 when all x are equal. The sums of raw products lose digits where the spread is small
/// compared with the mean: of the 16 digits of a Double, about twice the number of digits that the mean has in front of
/// the first digit that varies.
/// Source: Draper, N. R. and Smith, H. (1966), Applied Regression Analysis, Wiley, New York, chapter 1.
RectaRegresion AjustarRecta(const ArregloBase<Double>& x, const ArregloBase<Double>& y, int n);

/// R = Sxy / √(Sxx·Syy), with the sign of the slope. Error 6 when all y are equal (0 / 0), 5 when rounding makes
/// Sxx·Syy negative.
Double CoeficienteCorrelacion(const RectaRegresion& recta);

}  // namespace cuencalia
