#include "modules/precipitacion/tormenta.h"

namespace cuencalia {

Tormenta AnalizarTormenta(const ArregloBase<Double>& Tpar, const ArregloBase<Double>& Ppar, int n) {
    constexpr int kMinutosDeLaHora = 60;
    Tormenta t;
    Double tiempo, lluvia;
    for (int i = 1; i <= n; ++i) {
        t.I(i) = Ppar(i) * kMinutosDeLaHora / Tpar(i);
        tiempo += Tpar(i);
        t.Tacum(i) = tiempo;
        lluvia += Ppar(i);
        t.Pacum(i) = lluvia;
        // Compared as Singles: 4.1 mm in 5 minutes and 12.3 in 15 are equal, though not in the last bit of a Double.
        if (const Single intensidad = CSng(t.I(i)); intensidad > t.Imax) {
            t.Imax = intensidad;
            t.Dmax = CSng(Tpar(i));
        }
    }
    return t;
}

}  // namespace cuencalia
