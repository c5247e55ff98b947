#include "modules/caudales/cuenca.h"

#include "frame/base/textos.h"

namespace cuencalia {

namespace {

/// The decimal number that a Single shows. The Single itself is a little off it, which a sum of several would show.
Double Decimal(Single valor) { return Val(CStr(valor)); }

}  // namespace

Double TiempoKirpich(Single L, Single H) {
    const Double l = L;
    return 0.0195 * Elevar(l * l * l / H, 0.385);
}

Ponderacion PonderarC(const ArregloBase<GrupoSuelo>& grupos, int n) {
    Double CA = 0, A = 0;
    for (int i = 1; i <= n; ++i) {
        const GrupoSuelo& grupo = grupos(i);
        CA += Decimal(grupo.C) * Decimal(grupo.area);
        A += Decimal(grupo.area);
    }
    return {CA / A, A};
}

}  // namespace cuencalia
