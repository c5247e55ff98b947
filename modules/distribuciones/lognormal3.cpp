#include "modules/distribuciones/lognormal3.h"

#include "modules/distribuciones/normal.h"
#include "modules/estadistica/momentos.h"

namespace cuencalia {

namespace {

Double Mediana(const ArregloBase<Double>& ordenada, int n) {
    return n % 2 == 0 ? (ordenada(n / 2) + ordenada(n / 2 + 1)) / 2 : ordenada((n + 1) / 2);
}

}  // namespace

Double LogNormal3::Probabilidad(Double x) const { return FuncionNormal(Reducida(x)); }

Double LogNormal3::Cuantil(Double p) const { return Exp(uy + sy * InversaNormal(p)) + x0; }

LogNormal3 AjustarLogNormal3(const ArregloBase<Double>& ordenada, int n) {
    const Double xmin = ordenada(1);
    const Double xmax = ordenada(n);
    const Double xmed = Mediana(ordenada, n);
    const Double den = xmin + xmax - 2 * xmed;
    const Double num = xmin * xmax - xmed * xmed;
    LogNormal3 d;
    d.x0 = num / den;
    ArregloBase<Double> w(1, n);
    for (int i = 1; i <= n; ++i) {
        w(i) = den > 0 ? Log(ordenada(i) - d.x0) : Log(d.x0 - ordenada(i));
    }
    d.uy = Media(w, n);
    d.sy = Sqr(SumaDeCuadrados(w, n, d.uy) / n);
    return d;
}

}  // namespace cuencalia
