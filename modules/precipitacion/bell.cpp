#include "modules/precipitacion/bell.h"

namespace cuencalia {

Double LluviaDeUnaHora(Double P24) { return P24 * Elevar(Double(1) / 24, 0.25); }

Double LluviaBell(Double d, Double T, Double P) { return (Elevar(d, 0.25) * 0.54 - 0.5) * (Log(T) * 0.21 + 0.52) * P; }

IntensidadesBell CalcularBell(Double P6010, const std::vector<int>& duraciones, const std::vector<int>& periodos) {
    const int n = static_cast<int>(periodos.size());
    const ColumnasDuracion vacias(duraciones.size(), ArregloBase<Double>(1, n));
    IntensidadesBell bell{vacias, vacias, PuntosIDT(n * static_cast<int>(duraciones.size()))};
    for (std::size_t c = 0; c < duraciones.size(); ++c) {
        const int d = duraciones[c];
        for (int i = 1; i <= n; ++i) {
            const int T = periodos[static_cast<std::size_t>(i - 1)];
            bell.P[c](i) = LluviaBell(d, T, P6010);
            bell.I[c](i) = IntensidadMedia(bell.P[c](i), d);
            bell.puntos.Agregar(T, d, bell.I[c](i));
        }
    }
    return bell;
}

}  // namespace cuencalia
