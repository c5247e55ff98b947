#include "modules/distribuciones/exacta.h"

#include "modules/distribuciones/leyes.h"

namespace cuencalia {

namespace {

double ColaReducida(DistribucionExacta::Reducida reducida, double forma, double y, bool superior) {
    switch (reducida) {
        case DistribucionExacta::Reducida::Normal:
            return ProbabilidadNormal(superior ? -y : y);
        case DistribucionExacta::Reducida::Gumbel:
            return superior ? -std::expm1(-std::exp(-y)) : std::exp(-std::exp(-y));
        case DistribucionExacta::Reducida::Gamma:
            break;
    }
    return ColaGamma(forma, y, superior);
}

/// The y that has the probability `cola` in that tail.
double InversaReducida(DistribucionExacta::Reducida reducida, double forma, double cola, bool superior) {
    switch (reducida) {
        case DistribucionExacta::Reducida::Normal:
            return superior ? -CuantilNormal(cola) : CuantilNormal(cola);
        case DistribucionExacta::Reducida::Gumbel:
            return -std::log(superior ? -std::log1p(-cola) : -std::log(cola));
        case DistribucionExacta::Reducida::Gamma:
            break;
    }
    return InversaGamma(forma, cola, superior);
}

}  // namespace

Double DistribucionExacta::Cola(Double x, bool superior) const {
    Double v = x;
    if (deLogaritmos) {
        if (x <= umbral) {
            return superior == (escala > 0) ? 1 : 0;
        }
        v = Log(x - umbral);
    }
    const Double y = (v - posicion) / escala;
    return Double(0) + ColaReducida(reducida, forma.valor(), y.valor(), superior);
}

Double DistribucionExacta::Cuantil(Double p) const {
    if (p <= 0 || p >= 1) {
        throw ErrorEjecucion(kArgumentoNoValido);
    }
    // The smaller tail is inverted, as it alone is known to all its digits.
    const Double cola = p <= 0.5 ? p : 1 - p;
    const bool superior = (p > 0.5) == (escala > 0);
    const Double y = Double(0) + InversaReducida(reducida, forma.valor(), cola.valor(), superior);
    const Double v = posicion + escala * y;
    return deLogaritmos ? umbral + Exp(v) : v;
}

}  // namespace cuencalia
