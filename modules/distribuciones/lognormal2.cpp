#include "modules/distribuciones/lognormal2.h"

#include "modules/distribuciones/normal.h"

namespace cuencalia {

const DistribucionPosicionEscala kLogNormal2 = DeLogaritmos(kNormal);

}  // namespace cuencalia
