#pragma once

namespace cuencalia {

/// The normal and the gamma distribution by Boost.Math: exact to 1e-14 or so, and fast enough for the tens of millions
/// of values of a resampling. Plain numbers: what does not exist is a NaN or an infinity, and the caller looks for it.

/// Non-exceedance probability of the standard normal variable; that of -z is the other tail.
double ProbabilidadNormal(double z);
/// The z of a probability; infinite for 0 and 1.
double CuantilNormal(double p);

/// Logarithm of the gamma function, its derivative and the second one, for x > 0.
double LogGamma(double x);
double Digamma(double x);
double Trigamma(double x);

/// The gamma distribution of scale 1 and a shape above 0: the probability of a value above x (superior) or below it,
/// the x that has the probability `cola` on that side, and the logarithm of the density at x > 0.
double ColaGamma(double forma, double x, bool superior);
double InversaGamma(double forma, double cola, bool superior);
double LogDensidadGamma(double forma, double x);

}  // namespace cuencalia
