#include "modules/distribuciones/leyes.h"

#include <boost/math/special_functions/digamma.hpp>
#include <boost/math/special_functions/erf.hpp>
#include <boost/math/special_functions/gamma.hpp>
#include <boost/math/special_functions/trigamma.hpp>
#include <cmath>
#include <numbers>

namespace cuencalia {

namespace {

// Nothing is thrown, and the digits of a double suffice: long doubles would take several times as long.
namespace politicas = boost::math::policies;
constexpr politicas::policy<politicas::domain_error<politicas::ignore_error>,
                            politicas::pole_error<politicas::ignore_error>,
                            politicas::overflow_error<politicas::ignore_error>,
                            politicas::evaluation_error<politicas::ignore_error>, politicas::promote_double<false>>
    kPolitica;

}  // namespace

double ProbabilidadNormal(double z) { return std::erfc(-z / std::numbers::sqrt2) / 2; }

double CuantilNormal(double p) { return -boost::math::erfc_inv(2 * p, kPolitica) * std::numbers::sqrt2; }

double LogGamma(double x) { return boost::math::lgamma(x, kPolitica); }

double Digamma(double x) { return boost::math::digamma(x, kPolitica); }

double Trigamma(double x) { return boost::math::trigamma(x, kPolitica); }

double ColaGamma(double forma, double x, bool superior) {
    if (!(x > 0)) {
        return superior ? 1 : 0;
    }
    return superior ? boost::math::gamma_q(forma, x, kPolitica) : boost::math::gamma_p(forma, x, kPolitica);
}

double InversaGamma(double forma, double cola, bool superior) {
    return superior ? boost::math::gamma_q_inv(forma, cola, kPolitica)
                    : boost::math::gamma_p_inv(forma, cola, kPolitica);
}

double LogDensidadGamma(double forma, double x) { return (forma - 1) * std::log(x) - x - LogGamma(forma); }

}  // namespace cuencalia
