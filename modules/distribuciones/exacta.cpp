#include "modules/distribuciones/exacta.h"

#include <boost/math/special_functions/erf.hpp>
#include <boost/math/special_functions/gamma.hpp>

namespace cuencalia {

namespace {

// Results that do not exist are told by Double and not by exceptions of the library.
using Politica =
    boost::math::policies::policy<boost::math::policies::domain_error<boost::math::policies::ignore_error>,
                                  boost::math::policies::pole_error<boost::math::policies::ignore_error>,
                                  boost::math::policies::overflow_error<boost::math::policies::ignore_error>,
                                  boost::math::policies::evaluation_error<boost::math::policies::ignore_error>>;
constexpr Politica kPolitica;

double ColaReducida(DistribucionExacta::Reducida reducida, double forma, double y, bool superior) {
    switch (reducida) {
        case DistribucionExacta::Reducida::Normal:
            return boost::math::erfc((superior ? y : -y) / std::numbers::sqrt2, kPolitica) / 2;
        case DistribucionExacta::Reducida::Gumbel:
            return superior ? -std::expm1(-std::exp(-y)) : std::exp(-std::exp(-y));
        case DistribucionExacta::Reducida::Gamma:
            break;
    }
    if (y <= 0) {
        return superior ? 1 : 0;
    }
    return superior ? boost::math::gamma_q(forma, y, kPolitica) : boost::math::gamma_p(forma, y, kPolitica);
}

/// The y that has the probability `cola` in that tail.
double InversaReducida(DistribucionExacta::Reducida reducida, double forma, double cola, bool superior) {
    switch (reducida) {
        case DistribucionExacta::Reducida::Normal: {
            const double z = boost::math::erfc_inv(2 * cola, kPolitica) * std::numbers::sqrt2;
            return superior ? z : -z;
        }
        case DistribucionExacta::Reducida::Gumbel:
            return -std::log(superior ? -std::log1p(-cola) : -std::log(cola));
        case DistribucionExacta::Reducida::Gamma:
            break;
    }
    return superior ? boost::math::gamma_q_inv(forma, cola, kPolitica)
                    : boost::math::gamma_p_inv(forma, cola, kPolitica);
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
