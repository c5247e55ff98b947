#pragma once

#include "frame/numeros.h"

namespace cuencalia {

/// The gamma function of x in g, for x > -10 other than 0, -1, -2 …: Stirling's series at x + 10, then ten steps of the
/// recurrence g(x) = g(x + 1) / x. Its third coefficient is 1/1286 where the series has 1/1260, which is most of the
/// relative error: below 1.7e-10 in size for x > 0 (so that g(1) is not quite 1).
/// x moves during the calculation and comes back with its value, but for the last bits. Errors: 5 for x <= -10; 6
/// beyond x = 171; 11 at the poles. Source: Abramowitz, M. and Stegun, I. A. (1964), Handbook of Mathematical
/// Functions, National Bureau of Standards, formulas 6.1.40 and 6.1.15.
void gammacompleta(Double& x, Double& g);

/// The regularised incomplete gamma function P(a, x) in r, for a > 0 and x > 0, with g the gamma function of a. The
/// series stops at a term below 1e-7 of the sum: from x = a + 1 on the rest is of the order of 1e-7 at most, and g's
/// relative error is r's. Beyond x of about 100 the factors pass the range of a Double before the series stops:
/// error 6. x = 0 is 0 / 0, error 6; a negative x without a real power is error 5. Source: Abramowitz and Stegun
/// (1964), formula 6.5.29.
void gammaacumulada(Double a, Double x, Double& r, Double g);

/// The x with P(a, x) = p, for a > 0 and 0 < p < 1, by successive corrections from x = a on until P is within 5e-5 of
/// p; r is P at the last x but one. n counts the rounds: it is 1201 when 1200 of them did not suffice, and x is then
/// the last one. The tolerance is of the probability, so x loses sense where p or 1 - p comes near 5e-5. a as in
/// gammacompleta. Errors of both functions above; 5 or 11 where r reaches 1 and p is from 0.8 on.
void Gammainversa(Double& a, Double p, Double& r, Double& x, int& n);

/// P(a, x), with the gamma function of a worked out first; errors as in gammaacumulada.
Double ProbabilidadGamma(Double a, Double x);

/// P(a, y) of y(1) to y(n) in G(1) to G(n); errors as in gammaacumulada.
void ProbabilidadesGamma(Double a, const ArregloBase<Double>& y, ArregloBase<Double>& G, int n);

}  // namespace cuencalia
