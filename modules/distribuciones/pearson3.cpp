#include "modules/distribuciones/pearson3.h"

#include "modules/distribuciones/gamma.h"

namespace cuencalia {

Double FormaPearson3(Double tauAbs) {
    if (tauAbs >= Double(1) / 3) {
        const Double z = 1 - tauAbs;
        return z * (0.36067 + z * (-0.59567 + z * 0.25361)) / (1 + z * (-2.78861 + z * (2.56096 + z * -0.77045)));
    }
    const Double z = 3 * kPi * tauAbs * tauAbs;
    return (1 + 0.2906 * z) / (z * (1 + z * (0.1882 + z * 0.0442)));
}
Pearson3 Pearson3PorMomentos(Double m, Double s, Double Cs) { return {4 / (Cs * Cs), Cs * s / 2, m - 2 * s / Cs}; }

std::optional<Pearson3> Pearson3PorMomentosLineales(Double l1, Double l2, Double tau) {
    const Double tauAbs = Abs(tau);
    if (!(l2 > 0 && tauAbs < 1)) {
        return std::nullopt;
    }
    Pearson3 d;
    d.gamma = FormaPearson3(tauAbs);
    Double media = d.gamma + 0.5;
    Double g, g_media;
    gammacompleta(d.gamma, g);
    gammacompleta(media, g_media);
    d.beta = Sqr(kPi) * l2 * g / g_media;
    d.x0 = l1 - d.beta * d.gamma;
    return d;
}

Double DistribucionPearson3::Cuantil(const Pearson3& d, Double p, int& n) const {
    const Double v = d.beta * CuantilGamma(d.gamma, p, n) + d.x0;
    return deLogaritmos ? Exp(v) : v;
}

}  // namespace cuencalia
