#include "modules/caudales/qmaxgumbel.h"

namespace cuencalia {

namespace {

/// SN = factor·n^exponente for samples of up to `hasta` years.
struct TramoSN {
    int hasta;
    Double factor, exponente;
};

constexpr TramoSN kTramosSN[] = {
    {29, 0.67103805, 0.15259465}, {90, 0.89525917, 0.06563269}, {149, 1.079054, 0.0245535},
    {399, 1.1035064, 0.0209186},  {1500, 1.1566111, 0.0134812},
};
constexpr Double kSNMuestraInfinita = 1.28255;

}  // namespace

Double MediaReducida(int n) {
    Double H = 0;
    for (int i = 1; i <= n; ++i) {
        H += Double(1) / i;
    }
    return (H - Log(n)) - 0.79980388 * Elevar(n, -0.77617387);
}

Double DesviacionReducida(int n) {
    for (const TramoSN& tramo : kTramosSN) {
        if (n <= tramo.hasta) {
            return tramo.factor * Elevar(n, tramo.exponente);
        }
    }
    return kSNMuestraInfinita;
}

CaudalGumbel EstimarGumbel(const ArregloBase<Double>& Q, int n, Double T) {
    CaudalGumbel g;
    Double suma = 0, cuadrados = 0;
    for (int i = 1; i <= n; ++i) {
        suma += Q(i);
    }
    g.Qm = suma / n;
    for (int i = 1; i <= n; ++i) {
        cuadrados += (Q(i) - g.Qm) * (Q(i) - g.Qm);
    }
    g.SQ = Sqr(cuadrados / (n - 1));
    g.Cv = g.SQ / g.Qm;
    g.YN = MediaReducida(n);
    g.SN = DesviacionReducida(n);
    g.Qmax = g.Qm - g.SQ / g.SN * (g.YN - Log(T));
    g.DeltaQ = 1.14 * g.SQ / g.SN;
    return g;
}

}  // namespace cuencalia
