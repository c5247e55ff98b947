#pragma once

#include "modules/distribuciones/pearson3.h"

namespace cuencalia {

/// Gamma distribution of three parameters: the Pearson type III distribution of the values, which may be negative.
inline constexpr DistribucionPearson3 kGamma3{.deLogaritmos = false};

}  // namespace cuencalia
