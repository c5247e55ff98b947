#include "modules/precipitacion/bell.h"

#include "modules/precipitacion/grobe.h"

namespace cuencalia {

Double LluviaDeUnaHora(Double P24) { return P24 * Elevar(Double(1) / 24, 0.25); }

Double LluviaBell(Double d, Double T, Double P) { return (Elevar(d, 0.25) * 0.54 - 0.5) * (Log(T) * 0.21 + 0.52) * P; }

}  // namespace cuencalia
