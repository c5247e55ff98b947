#include "modules/regresion/regresionlineal.h"

namespace cuencalia {

RectaRegresion AjustarRecta(const ArregloBase<Double>& x, const ArregloBase<Double>& y, int n) {
    Double sx, sy, sx2, sy2, sxy;
    for (int i = 1; i <= n; ++i) {
        sx += x(i);
        sy += y(i);
        sx2 += x(i) * x(i);
        sy2 += y(i) * y(i);
        sxy += y(i) * x(i);
    }
    const Double xm = sx / n;
    const Double ym = sy / n;
    RectaRegresion recta;
    recta.Syy = sy2 - ym * ym * n;
    recta.Sxx = sx2 - xm * xm * n;
    recta.Sxy = sxy - ym * (xm * n);
    recta.b = recta.Sxy / recta.Sxx;
    recta.a = ym - xm * recta.b;
    return recta;
}

Double CoeficienteCorrelacion(const RectaRegresion& recta) { return recta.Sxy / Sqr(recta.Sxx * recta.Syy); }

}  // namespace cuencalia
