#include "modules/caudales/intensidadregional.h"

#include "frame/base/textos.h"

namespace cuencalia {

Double EcuacionRegional::Evaluar(Double T, Double D) const {
    const Double lnD = Log(D);
    return (a - b * (logDeLog ? Log(lnD) : lnD)) * Log(T) + (c - d * lnD);
}

std::string EcuacionRegional::Texto() const {
    return "I = (" + CStr(a) + " - " + CStr(b) + (logDeLog ? "·ln(ln D)" : "·ln D") + ")·ln T + (" + CStr(c) + " - " +
           CStr(d) + "·ln D)";
}

}  // namespace cuencalia
