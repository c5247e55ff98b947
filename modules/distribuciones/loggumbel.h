#pragma once

#include "modules/distribuciones/posicionescala.h"

namespace cuencalia {

/// Log-Gumbel distribution (Fréchet, extreme value type II): the logarithms of the values, all above 0, have a Gumbel
/// distribution, to whose variable ln x position and scale refer.
/// Source: Kite, G. W. (1977), Frequency and Risk Analyses in Hydrology, Water Resources Publications, Fort Collins.
extern const DistribucionPosicionEscala kLogGumbel;

}  // namespace cuencalia
