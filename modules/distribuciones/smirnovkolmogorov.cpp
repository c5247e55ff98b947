#include "modules/distribuciones/smirnovkolmogorov.h"

#include <algorithm>
#include <array>

namespace cuencalia {

namespace {

/// Simulated 5 % points times sqrt(n): normal by ordinary and by linear moments, Gumbel likewise.
struct PuntoSimulado {
    int n;
    std::array<double, 4> c;
};
constexpr std::array<PuntoSimulado, 13> kSimuladas{{
    {4, {0.4510, 0.4541, 0.4741, 0.4714}},
    {5, {0.5057, 0.5022, 0.5452, 0.5322}},
    {6, {0.5446, 0.5414, 0.5795, 0.5642}},
    {8, {0.6002, 0.5954, 0.6352, 0.6193}},
    {10, {0.6369, 0.6308, 0.6733, 0.6563}},
    {15, {0.6943, 0.6859, 0.7307, 0.7113}},
    {20, {0.7239, 0.7149, 0.7638, 0.7409}},
    {30, {0.7628, 0.7529, 0.8042, 0.7787}},
    {50, {0.7978, 0.7870, 0.8448, 0.8157}},
    {75, {0.8220, 0.8112, 0.8674, 0.8369}},
    {100, {0.8341, 0.8234, 0.8813, 0.8479}},
    {200, {0.8583, 0.8471, 0.9081, 0.8730}},
    {499, {0.8766, 0.8649, 0.9272, 0.8903}},
}};

}  // namespace

Double MayorDelta(const ArregloBase<Double>& delta, int n) {
    Double mayor = delta(1);
    for (int i = 2; i <= n; ++i) {
        mayor = delta(i) < mayor ? mayor : delta(i);
    }
    return mayor;
}

Double DeltaConParametrosAjustados(DistribucionExacta::Reducida reducida, bool lineales, int n) {
    const std::size_t columna = (reducida == DistribucionExacta::Reducida::Gumbel ? 2U : 0U) + (lineales ? 1U : 0U);
    const auto despues = std::find_if(kSimuladas.begin(), kSimuladas.end(), [n](const auto& s) { return s.n >= n; });
    Double c;
    if (despues == kSimuladas.begin() || despues == kSimuladas.end()) {
        c = (despues == kSimuladas.end() ? kSimuladas.back() : kSimuladas.front()).c[columna];
    } else {
        // The numerator is nearly a straight line over 1/sqrt(n).
        const auto antes = despues - 1;
        const Double u = 1 / Sqr(antes->n), w = 1 / Sqr(despues->n);
        const Double parte = (u - 1 / Sqr(n)) / (u - w);
        c = antes->c[columna] + parte * (despues->c[columna] - antes->c[columna]);
    }
    return c / Sqr(n);
}

}  // namespace cuencalia
