#pragma once

#include "modules/distribuciones/posicionescala.h"

namespace cuencalia {

/// Log-normal distribution of two parameters: the logarithms of the values, all above 0, are normal. The position is
/// the mean of ln x, the scale its standard deviation.
/// Source: Kite, G. W. (1977), Frequency and Risk Analyses in Hydrology, Water Resources Publications, Fort Collins.
extern const DistribucionPosicionEscala kLogNormal2;

}  // namespace cuencalia
