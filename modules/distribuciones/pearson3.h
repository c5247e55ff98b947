#pragma once

#include <optional>

#include "modules/distribuciones/exacta.h"

namespace cuencalia {

/// Parameters of a Pearson type III distribution, a gamma distribution of three parameters: the probability of v is the
/// incomplete gamma function of (v - x0) / beta with the shape gamma. x0 and beta have the unit of v, gamma none.
struct Pearson3 {
    Double gamma, beta, x0;
};

/// Parameters by mean m, standard deviation s and coefficient of skewness Cs; error 11 for Cs = 0. A negative Cs makes
/// beta negative: the values then lie below x0, and the gamma function no longer gives the probability.
/// Source: Kite, G. W. (1977), Frequency and Risk Analyses in Hydrology, Water Resources Publications, Fort Collins.
Pearson3 Pearson3PorMomentos(Double m, Double s, Double Cs);

/// The shape of the distribution that has this |tau| = |L3/L2|, 0 < |tau| < 1. Relative error below 5e-5.
/// Source: Hosking, J. R. M. (1990), J. R. Stat. Soc. B 52(1), 105-124, table 2.
Double FormaPearson3(Double tauAbs);

/// Parameters by the first three L-moments; nothing when no distribution has these L-moments (l2 <= 0 or |tau| >= 1,
/// with tau = l3/l2). The sign of tau is not used: a negative skewness gives the same parameters as the positive one.
/// Relative error of the shape below 5e-5. Error 11 for l3 = 0; 6 for |tau| below 0.0257, whose shape is too great for
/// the gamma function.
/// Source: Hosking, J. R. M. (1990), J. R. Stat. Soc. B 52(1), 105-124, table 2 (in a reparametrised form).
std::optional<Pearson3> Pearson3PorMomentosLineales(Double l1, Double l2, Double tau);

/// The Pearson type III distribution of v = x, or of v = ln x.
struct DistribucionPearson3 {
    bool deLogaritmos;

    /// Error 5 for the logarithm of x <= 0.
    Double Variable(Double x) const { return deLogaritmos ? Log(x) : x; }
    /// y = (v - x0) / beta. Errors: 11 or 6 for beta = 0.
    Double Reducida(const Pearson3& d, Double x) const { return (Variable(x) - d.x0) / d.beta; }
    /// Also for a negative beta, whose distribution has its end above.
    DistribucionExacta Exacta(const Pearson3& d) const {
        return {.reducida = DistribucionExacta::Reducida::Gamma,
                .deLogaritmos = deLogaritmos,
                .posicion = d.x0,
                .escala = d.beta,
                .forma = d.gamma};
    }
    /// The x of a non-exceedance probability, 0 < p < 1, by CuantilGamma; n is its number of rounds.
    Double Cuantil(const Pearson3& d, Double p, int& n) const;
};

}  // namespace cuencalia
