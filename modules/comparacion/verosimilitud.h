#pragma once

#include <optional>
#include <span>

#include "modules/comparacion/familias.h"

namespace cuencalia {

/// Fits of greatest likelihood to the values v, in ascending order, of a family's variable: at least three of them, not
/// all equal. Parameters to 1e-7 of themselves or better, and nothing where the likelihood has no maximum.

/// Mean, and deviation with divisor n.
Distribucion NormalPorVerosimilitud(Familia familia, std::span<const double> v);
/// Scale by Newton's iteration. Source: Kite (1977), chapter on the type I extremal
/// distribution.
Distribucion GumbelPorVerosimilitud(Familia familia, std::span<const double> v);
/// ln(shape) - psi(shape) is the logarithm of the mean less the mean of the logarithms; all v must be above 0. Source:
/// Thom, H. C. S. (1958), A note on the gamma distribution, Monthly Weather Review 86(4), 117-122.
Distribucion Gamma2PorVerosimilitudExacta(std::span<const double> v);

/// The likelihood has a pole where the end of the distribution touches the least value (the greatest, for a negative
/// skew), so what is sought is the maximum inside, along the end, the other two parameters being the best for it. There
/// is none for a skew near 0 (the end goes to infinity) nor for some very skewed series.
/// Sources: Cohen, A. C. and Whitten, B. J. (1980), Estimation in the three-parameter lognormal distribution, J. Am.
/// Stat. Assoc. 75, 399-404. Bobée, B. and Ashkar, F. (1991), The Gamma Family and Derived Distributions Applied in
/// Hydrology, Water Resources Publications, Littleton.
std::optional<Distribucion> LogNormal3PorVerosimilitud(std::span<const double> v);
std::optional<Distribucion> Pearson3PorVerosimilitud(Familia familia, std::span<const double> v);

}  // namespace cuencalia
