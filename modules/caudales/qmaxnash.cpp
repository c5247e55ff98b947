#include "modules/caudales/qmaxnash.h"

#include <algorithm>

#include "modules/estadistica/orden.h"

namespace cuencalia {

namespace {

Double LogDecimal(Double v) { return Log(v) / Log(10); }

}  // namespace

Double VariableDeNash(Double T) { return LogDecimal(LogDecimal(T / (T - 1))); }

RangosNash OrdenarPorRango(const ArregloBase<Double>& Q, int n) {
    RangosNash r;
    for (int i = 1; i <= n; ++i) {
        r.Q(i) = Q(i);
    }
    OrdenarSerie(r.Q, n);
    std::reverse(&r.Q(1), &r.Q(1) + n);
    for (int m = 1; m <= n; ++m) {
        r.T(m) = Double(n + 1) / m;
        r.X(m) = VariableDeNash(r.T(m));
        r.SQ += r.Q(m);
        r.SX += r.X(m);
        r.SQX += r.Q(m) * r.X(m);
        r.SQ2 += r.Q(m) * r.Q(m);
        r.SX2 += r.X(m) * r.X(m);
    }
    r.Qm = r.SQ / n;
    r.Xm = r.SX / n;
    return r;
}

CaudalNash EstimarNash(const RangosNash& r, int n, Double XT) {
    CaudalNash c;
    // Sums of equal discharges would show a spread by rounding alone.
    const bool iguales = r.Q(1) == r.Q(n);
    const Double Sxx = n * r.SX2 - r.SX * r.SX;
    const Double Sqq = iguales ? 0 : n * r.SQ2 - r.SQ * r.SQ;
    const Double Sxq = iguales ? 0 : n * r.SQX - r.SQ * r.SX;
    c.b = (iguales ? 0 : r.SQX - n * r.Xm * r.Qm) / (r.SX2 - n * r.Xm * r.Xm);
    c.a = r.Qm - c.b * r.Xm;
    c.Qmax = c.a + c.b * XT;
    const Double distancia = XT - r.Xm;
    c.DeltaQ =
        2 * Sqr(Sqq / (Double(n) * n * (n - 1)) + distancia * distancia * (Sqq - Sxq * Sxq / Sxx) / ((n - 2) * Sxx));
    return c;
}

}  // namespace cuencalia
