#include "modules/evapotranspiracion/thornthwaite.h"

#include "frame/modulo/meses.h"

namespace cuencalia {

Double IndiceMensual(Single T) { return Elevar(Double(T) / 5, 1.514); }

Double ExponenteThornthwaite(Double I) {
    return Elevar(10, -6) * 0.6751 * Elevar(I, 3) - Elevar(10, -4) * 0.771 * Elevar(I, 2) + 0.01792 * I + 0.49239;
}

Single EToThornthwaite(Single T, Double I, Double a) {
    const Single x = T * 10;
    return CSng(16 * Elevar(x / I, a));
}

Thornthwaite CalcularThornthwaite(const DoceSingle& T, const DoceSingle& f) {
    Thornthwaite anual;
    for (int m = 1; m <= 12; ++m) {
        anual.iMes(m) = IndiceMensual(T(m));
        anual.I += anual.iMes(m);
    }
    anual.a = ExponenteThornthwaite(anual.I);
    for (int m = 1; m <= 12; ++m) {
        anual.ETo(m) = EToThornthwaite(T(m), anual.I, anual.a);
        anual.ETrMes(m) = f(m) * anual.ETo(m);
        anual.ETrDia(m) = anual.ETrMes(m) / DiasDelMes(m);
    }
    return anual;
}

}  // namespace cuencalia
