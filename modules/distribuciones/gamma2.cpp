#include "modules/distribuciones/gamma2.h"

#include "modules/distribuciones/gamma.h"

namespace cuencalia {

Double Gamma2::Probabilidad(Double x) const { return ProbabilidadGamma(gamma, Reducida(x)); }

Double Gamma2::Cuantil(Double p, int& n) const { return beta * CuantilGamma(gamma, p, n); }

Gamma2 Gamma2PorVerosimilitud(Double m, Double ml) {
    const Double y = Log(m) - ml;
    const Double gamma = y <= 0.5772
                             ? (0.5000876 + 0.1648852 * y - 0.0544274 * y * y) / y
                             : (8.898919 + 9.05995 * y + 0.9775373 * y * y) / (y * (17.79728 + 11.968477 * y + y * y));
    return {gamma, m / gamma};
}

Gamma2 Gamma2PorMomentosLineales(Double L1, Double L2, Double factor) {
    if (L1 <= L2 || L2 <= 0) {
        return {0, 0};
    }
    const Double t = L2 / L1;
    Double gamma;
    if (t >= 0.5) {
        const Double z = 1 - t;
        gamma = z * (0.7213 + z * -0.5947) / (1 + z * (-2.1817 + z * 1.2113));
    } else {
        const Double z = factor * t * t;
        gamma = (1 + -0.308 * z) / (z * (1 + z * (-0.05812 + z * 0.01765)));
    }
    return {gamma, L1 / gamma};
}

}  // namespace cuencalia
