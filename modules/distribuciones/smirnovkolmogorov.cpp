#include "modules/distribuciones/smirnovkolmogorov.h"

namespace cuencalia {

Double MayorDelta(const ArregloBase<Double>& delta, int n) {
    Double mayor = delta(1);
    for (int i = 2; i <= n; ++i) {
        mayor = delta(i) < mayor ? mayor : delta(i);
    }
    return mayor;
}

}  // namespace cuencalia
