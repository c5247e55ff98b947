#include "modules/precipitacion/lluviamedia.h"

namespace cuencalia {

Double PromedioPorAreas(const ArregloBase<Double>& P, const ArregloBase<Double>& A, int n) {
    Double sumaA = 0, sumaPA = 0;
    for (int i = 1; i <= n; ++i) {
        sumaA += A(i);
        sumaPA += A(i) * P(i);
    }
    return sumaPA / sumaA;
}

void LluviaDeBandas(const ArregloBase<Double>& iso, int n, ArregloBase<Double>& Pm) {
    for (int i = 1; i <= n; ++i) {
        Pm(i) = (iso(i) + iso(i + 1)) / 2;
    }
}

}  // namespace cuencalia
