#include "modules/distribuciones/loggumbel.h"

#include "modules/distribuciones/gumbel.h"

namespace cuencalia {

const DistribucionPosicionEscala kLogGumbel = DeLogaritmos(kGumbel);

}  // namespace cuencalia
