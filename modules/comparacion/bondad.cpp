#include "modules/comparacion/bondad.h"

#include <cmath>

#include "modules/comparacion/posiciones.h"
#include "modules/estadistica/momentos.h"

namespace cuencalia {

Bondad MedirBondad(const Distribucion& d, std::span<const double> v, std::span<const double> x,
                   std::span<const double> p) {
    const std::size_t n = v.size();
    const auto N = static_cast<double>(n);
    Bondad b{};
    double suma = 0;
    const double mediaV = Media(v);
    double mediaQ = 0;
    double Svv = 0;
    double Sqq = 0;
    double Svq = 0;
    double cuadrados = 0;
    for (std::size_t i = 0; i < n; ++i) {
        const auto orden = static_cast<double>(i + 1);
        const double F = d.Cola(v[i], false);
        b.delta = std::fmax(b.delta, std::fabs(kPosicionWeibull(static_cast<int>(i + 1), static_cast<int>(n)) - F));
        const double S = F < 0.9 ? 1 - F : d.Cola(v[i], true);  // near 1 the difference has no digits
        // A value has both tails in the sum: the lower one as the i-th from below, the upper one as the i-th from
        // above.
        suma += (2 * orden - 1) * std::log(F) + (2 * N + 1 - 2 * orden) * std::log(S);
        const double q = d.Cuantil(p[i]);
        const double diferencia = x[i] - d.Valor(q);
        cuadrados += diferencia * diferencia;
        // Sums of differences from the running mean: the values may be far from 0.
        const double dq = q - mediaQ;
        mediaQ += dq / orden;
        Sqq += dq * (q - mediaQ);
        Svv += (v[i] - mediaV) * (v[i] - mediaV);
        Svq += (v[i] - mediaV) * q;
    }
    b.andersonDarling = -N - suma / N;
    b.correlacion = Svq / std::sqrt(Svv * Sqq);
    b.error = std::sqrt(cuadrados / N);
    return b;
}

double CriterioAkaike(const Distribucion& d, std::span<const double> v) {
    double logVerosimilitud = 0;
    for (const double vi : v) {
        logVerosimilitud += d.LogDensidad(vi);
        if (DeLogaritmos(d.DeFamilia())) {
            logVerosimilitud -= vi;  // the density of x is that of ln x over x
        }
    }
    return 2 * NumeroDeParametros(d.DeFamilia()) - 2 * logVerosimilitud;
}

}  // namespace cuencalia
