#pragma once

#include <span>

#include "modules/comparacion/familias.h"

namespace cuencalia {

/// A point of the diagram of L-moment ratios: tau3 = L3/L2 is the skewness, tau4 = L4/L2 the kurtosis.
struct PuntoL {
    double tau3, tau4;
};

/// tau4 of the family with that tau3, for the families with a shape, |tau3| <= 0.9 (Gamma3 and LogNormal3: 0.95 of
/// either sign): exact for Logistica and Pareto; ValorExtremo exact, by its shape; Gamma3 and LogNormal3 by polynomials
/// with an error below 5e-4. Weibull has the mirrored curve of ValorExtremo. NaN for a family without a curve.
/// Source: Hosking and Wallis (1997), appendix A.12.
double Tau4(Familia familia, double tau3);

/// That of a series in ascending order; NaN for fewer than four values, or equal ones.
PuntoL PuntoDeSerie(std::span<const double> ordenada);

/// The one point of a family of two parameters: Normal, Gumbel, Exponencial.
PuntoL PuntoDeFamilia(Familia familia);

}  // namespace cuencalia
