#pragma once

#include <array>

namespace cuencalia {

/// The normal and the gamma distribution, exact enough to be compared and fast enough for the tens of millions of
/// values of a resampling. Plain numbers: what does not exist is a NaN or an infinity, and the caller looks for it.
/// Relative errors below 1e-12 of either tail, of quantiles and of logarithms, unless another one is named.

/// Non-exceedance probability of the standard normal variable; that of -z is the other tail.
double ProbabilidadNormal(double z);
/// The z of a probability, 1e-150 < p < 1: the approximation of InversaNormal, corrected twice. Absolute error below
/// 1e-14.
double CuantilNormal(double p);

/// Logarithm of the gamma function, its derivative and the second one, for x > 0 (NaN elsewhere), by their asymptotic
/// series behind a recurrence. Errors below 3e-14, relative to the greater of the value and 1 (near a zero) for the
/// first two. Source: Abramowitz and Stegun (1964), 6.1.40, 6.3.18, 6.4.12.
double LogGamma(double x);
double Digamma(double x);
double Trigamma(double x);

/// The gamma distribution of scale 1 and a shape a > 0. Probabilities by the power series below the mode and the
/// continued fraction above it; from a shape of 20 on, within a standard distance of the mode, by the uniform
/// expansion, whose cost does not grow with the shape. Beyond a shape of 1e6 the relative error grows to 1e-16·shape.
/// Sources: Abramowitz and Stegun (1964), 6.5.29 and 6.5.31; Temme, N. M. (1979), The asymptotic expansion of the
/// incomplete gamma functions, SIAM J. Math. Anal. 10(4), 757-766.
class LeyGamma {
  public:
    explicit LeyGamma(double forma);

    double Forma() const { return a_; }
    /// Probability of a value above x (superior) or below it.
    double Cola(double x, bool superior) const;
    double LogDensidad(double x) const;
    /// The x of a non-exceedance probability 0 < p < 1, by Halley's iteration.
    double Cuantil(double p) const;

  private:
    static constexpr int kTerminos = 22;

    double ColaUniforme(double mu, double eta, bool superior) const;

    double a_, logGamma_;
    std::array<double, kTerminos> uniforme_{};  ///< Of the powers of eta, for this shape.
};

}  // namespace cuencalia
