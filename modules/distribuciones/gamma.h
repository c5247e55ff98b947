#pragma once

#include "frame/base/numeros.h"

namespace cuencalia {

/// The gamma function of x in g, for x > 0: Stirling's series at x + 10, then ten steps of the recurrence
/// g(x) = g(x + 1) / x. The third coefficient used is 1/1286 where the series has 1/1260: the relative error is
/// (1/1286 - 1/1260) / (x + 10)^5, at most 1.61e-10 in size (so that g(1) is not quite 1) and 5e-14 at x = 40.
/// For x between -10 and 0 the precision decreases step by step. x is changed during the calculation and has its old
/// value again on return, except for the last bits. Errors: 6 above x = 161.624, as g(x + 10) is beyond a Double; 11 at
/// the poles; 5 from -10 down.
/// Source: Abramowitz, M. and Stegun, I. A. (1964), Handbook of Mathematical Functions, National Bureau of Standards,
/// formulas 6.1.40 and 6.1.15.
void gammacompleta(Double& x, Double& g);

/// The regularised incomplete gamma function P(a, x) in r, for a > 0 and x > 0, with g the gamma function of a. The
/// series stops at a term below 1e-7 of the sum: r is too small by less than 3e-7 of itself, for any a. Beyond an
/// x of 112 for a small a, 135 for a = 50, 205 for a = 150, all far in the upper tail, the factorial product passes the
/// range of a Double: error 6. So does a first term that is 0, as 0 / 0: x = 0, or an x too small for a Double's power.
/// A negative x without a real power is error 5.
/// Source: Abramowitz and Stegun (1964), formula 6.5.29.
void gammaacumulada(Double a, Double x, Double& r, Double g);

/// The x with P(a, x) = p, for a > 0 and 0 < p < 1, by successive corrections from x = a on until P is within 5e-5 of
/// p. r is the value of P before the last correction of x. n is the number of rounds: 1201 when 1200 rounds did not
/// suffice, and then the x of the last round is returned, which may be far off. That happens below p = 0.8 where x
/// times the density at x exceeds 6p, so for p = 0.5 above a shape of 57, for p = 0.2 above 21; from 0.8 to 0.9 where
/// it exceeds 20(1 - p), above a shape of 196 to 120. From p = 0.9 on the search creeps up to x from below: with 5e-5
/// of 1 - p left, x is at most 0.25 percent too small at p = 0.99, 1.4 at 0.995 to 0.999 and 6.6 at 0.9999 (shapes from
/// 0.1 to 150). a is changed and restored as x is in gammacompleta. Errors of both functions above; 5 or 11 where r
/// reaches 1 and p is from 0.8 on.
void Gammainversa(Double& a, Double p, Double& r, Double& x, int& n);

/// P(a, x), with the gamma function of a worked out first; errors as in gammaacumulada.
Double ProbabilidadGamma(Double a, Double x);

/// The x that Gammainversa finds; n counts its rounds.
Double CuantilGamma(Double a, Double p, int& n);

/// P(a, y) of y(1) to y(n) in G(1) to G(n); errors as in gammaacumulada.
void ProbabilidadesGamma(Double a, const ArregloBase<Double>& y, ArregloBase<Double>& G, int n);

}  // namespace cuencalia
