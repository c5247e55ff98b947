#pragma once

#include "modules/distribuciones/posicionescala.h"

namespace cuencalia {

/// P(Z < z) of the standard normal variable, for any z. Absolute error below 7.5e-8.
/// Source: Abramowitz, M. and Stegun, I. A. (1964), Handbook of Mathematical Functions, National Bureau of Standards,
/// formula 26.2.17.
Double FuncionNormal(Double z);

/// The z with P(Z < z) = p, for 0 < p < 1. Absolute error in z below 4.5e-4, in both tails alike. p is not checked: p =
/// 0 and p = 1 raise error 11, and other values outside the range give a meaningless result.
/// Source: Abramowitz and Stegun (1964), formula 26.2.23.
Double InversaNormal(Double p);

/// Normal distribution of the values: position is the mean, scale the standard deviation. By L-moments the scale is
/// sqrt(pi)·L2.
/// Source: Hosking, J. R. M. (1990), J. R. Stat. Soc. B 52(1), 105-124, table 1.
extern const DistribucionPosicionEscala kNormal;

}  // namespace cuencalia
