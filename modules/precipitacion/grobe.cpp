#include "modules/precipitacion/grobe.h"

#include <algorithm>
#include <functional>

namespace cuencalia {

Double LluviaGrobe(Double P24, Double d) {
    constexpr int kMinutosDelDia = 1440;
    return P24 * Elevar(d / kMinutosDelDia, 0.25);
}

Double IntensidadMedia(Double P, Double d) {
    constexpr int kMinutosDeLaHora = 60;
    // The rain of an hour is its intensity to the last bit, which P·60/60 need not be.
    return d == kMinutosDeLaHora ? P : P * kMinutosDeLaHora / d;
}

Double PeriodoDeRango(int n, int rango) { return Double(n + 1) / rango; }

IntensidadesGrobe CalcularGrobe(const ArregloBase<Double>& P24, int n, const std::vector<int>& duraciones) {
    const ColumnasDuracion vacias(duraciones.size(), ArregloBase<Double>(1, n));
    IntensidadesGrobe grobe{vacias, vacias, vacias, PuntosIDT(n * static_cast<int>(duraciones.size()))};
    for (std::size_t c = 0; c < duraciones.size(); ++c) {
        const int d = duraciones[c];
        for (int i = 1; i <= n; ++i) {
            grobe.P[c](i) = LluviaGrobe(P24(i), d);
            grobe.I[c](i) = IntensidadMedia(grobe.P[c](i), d);
        }
        std::vector<Double> ordenadas;
        for (int i = 1; i <= n; ++i) {
            ordenadas.push_back(grobe.I[c](i));
        }
        std::sort(ordenadas.begin(), ordenadas.end(), std::greater<>());
        for (int r = 1; r <= n; ++r) {
            grobe.Iord[c](r) = ordenadas[static_cast<std::size_t>(r - 1)];
            grobe.puntos.Agregar(PeriodoDeRango(n, r), d, grobe.Iord[c](r));
        }
    }
    return grobe;
}

}  // namespace cuencalia
