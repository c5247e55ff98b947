#include "modules/caudales/qmaxgumbel.h"

#include "modules/estadistica/momentos.h"

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
    g.Qm = Media(Q, n);
    g.SQ = Sqr(SumaDeCuadrados(Q, n, g.Qm) / (n - 1));
    g.Cv = g.SQ / g.Qm;
    g.YN = MediaReducida(n);
    g.SN = DesviacionReducida(n);
    g.Qmax = g.Qm - g.SQ / g.SN * (g.YN - Log(T));
    g.DeltaQ = 1.14 * g.SQ / g.SN;
    return g;
}

}  // namespace cuencalia
