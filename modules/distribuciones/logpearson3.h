#pragma once

#include "modules/distribuciones/pearson3.h"

namespace cuencalia {

/// Log-Pearson type III distribution: the logarithms of the values, all above 0, have a Pearson type III distribution.
/// Source: Benson, M. A. (1968), Uniform flood-frequency estimating methods for federal agencies, Water Resources
/// Research 4(5), 891-908.
inline constexpr DistribucionPearson3 kLogPearson3{.deLogaritmos = true};

}  // namespace cuencalia
