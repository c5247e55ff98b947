#pragma once

#include "modules/distribuciones/posicionescala.h"

namespace cuencalia {

/// P(Y < y) of the standard Gumbel variable (extreme value type I of maxima), exp(-exp(-y)). Error 6 below y = -709.78,
/// where exp(-y) is beyond a Double.
Double FuncionGumbel(Double y);

/// The y with P(Y < y) = p, for 0 < p < 1; error 5 outside.
Double InversaGumbel(Double p);

/// Gumbel distribution of the values. The position is the mode: the mean (L1) less Euler's constant times the scale, by
/// both kinds of moments; the scale is sqrt(6)·s/pi by ordinary moments, L2/ln 2 by L-moments.
/// Sources: Gumbel, E. J. (1958), Statistics of Extremes, Columbia University Press. Hosking (1990), J. R. Stat. Soc. B
/// 52(1), 105-124, table 2.
extern const DistribucionPosicionEscala kGumbel;

}  // namespace cuencalia
