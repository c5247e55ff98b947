#pragma once

#include "modules/distribuciones/exacta.h"

namespace cuencalia {

/// Gamma distribution of two parameters: the probability of x is the incomplete gamma function of x / beta with the
/// shape gamma. beta has the unit of x, gamma none.
struct Gamma2 {
    Double gamma, beta;

    /// y = x / beta. Errors: 11 or 6 for beta = 0.
    Double Reducida(Double x) const { return x / beta; }
    /// Non-exceedance probability of an x above 0; errors as in gammaacumulada.
    Double Probabilidad(Double x) const;
    /// The x of a non-exceedance probability, 0 < p < 1, by CuantilGamma; n is its number of rounds.
    Double Cuantil(Double p, int& n) const;
    DistribucionExacta Exacta() const {
        return {.reducida = DistribucionExacta::Reducida::Gamma, .posicion = 0, .escala = beta, .forma = gamma};
    }
};

/// Parameters by the mean m of the values and the mean ml of their natural logarithms: an approximation of maximum
/// likelihood in two ranges of y = ln m - ml, with relative errors of the shape below 1.8e-4 for y <= 0.5772 and below
/// 9.3e-5 above, to y = 17. Error 11 for y = 0, which equal values have.
/// Source: Greenwood, J. A. and Durand, D. (1960), Aids for fitting the gamma distribution by maximum likelihood,
/// Technometrics 2(1), 55-65.
Gamma2 Gamma2PorVerosimilitud(Double m, Double ml);

/// The factor of t² in Hosking's formula, and the one by which the window of this distribution fits: its shapes, and so
/// its discharges, are others, and stay so for its results to be comparable with former ones.
inline constexpr Double kFactorDeHosking = kPi;
inline constexpr Double kFactorDeLaVentana = 6;

/// Parameters by the first two L-moments; both 0 when no gamma distribution has these (L2 <= 0 or L2 >= L1).
/// There is a formula for t = L2/L1 below 0.5 and another one from 0.5 on. The first one uses factor·t²: with the pi of
/// the source its error is less than 1e-5, with the window's 6 the shapes are 0.52 (t = 0.1) to 0.38 (t = 0.5) times
/// those of the source. The error of the other formula is less than 7e-5.
/// Source: Hosking, J. R. M. (1990), J. R. Stat. Soc. B 52(1), 105-124, table 2.
Gamma2 Gamma2PorMomentosLineales(Double L1, Double L2, Double factor = kFactorDeLaVentana);

}  // namespace cuencalia
