#include "modules/precipitacion/tormenta.h"

namespace cuencalia {

Tormenta AnalizarTormenta(const ArregloBase<Double>& Tpar, const ArregloBase<Double>& Ppar, int n) {
    Tormenta t;
    Double tiempo, lluvia;
    // Compared before it is rounded to a Single, which may be less than the intensity itself: an equal one further on
    // would then seem greater.
    Double mayor;
    for (int i = 1; i <= n; ++i) {
        t.I(i) = Ppar(i) * 60 / Tpar(i);
        tiempo += Tpar(i);
        t.Tacum(i) = tiempo;
        lluvia += Ppar(i);
        t.Pacum(i) = lluvia;
        if (t.I(i) > mayor) {
            mayor = t.I(i);
            t.Imax = CSng(mayor);
            t.Dmax = CSng(Tpar(i));
        }
    }
    return t;
}

}  // namespace cuencalia
