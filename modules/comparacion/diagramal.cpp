#include "modules/comparacion/diagramal.h"

#include <cmath>
#include <limits>

#include "modules/comparacion/candidatos.h"
#include "modules/estadistica/momentos.h"

namespace cuencalia {

namespace {

constexpr double kNada = std::numeric_limits<double>::quiet_NaN();

double ValorExtremo(double tau3) {
    const double k = FormaValorExtremo(tau3);
    if (std::fabs(k) < 1e-5) {
        return PuntoDeFamilia(Familia::Gumbel).tau4;  // and the slope there times 1e-5 is below the error of a picture
    }
    const auto potencia = [k](double base) { return -std::expm1(-k * std::log(base)); };  // 1 - base^-k
    return (5 * potencia(4) - 10 * potencia(3) + 6 * potencia(2)) / potencia(2);
}

}  // namespace

double Tau4(Familia familia, double tau3) {
    const double z = tau3 * tau3;
    switch (familia) {
        case Familia::Logistica:
            return (1 + 5 * z) / 6;
        case Familia::Pareto:
            return tau3 * (1 + 5 * tau3) / (5 + tau3);
        case Familia::ValorExtremo:
            return ValorExtremo(tau3);
        case Familia::Weibull:
            return ValorExtremo(-tau3);
        case Familia::LogNormal3:
            return 0.12282 + z * (0.77518 + z * (0.12279 + z * (-0.13638 + z * 0.11368)));
        case Familia::Gamma3:
            return 0.12240 + z * (0.30115 + z * (0.95812 + z * (-0.57488 + z * 0.19383)));
        default:
            return kNada;
    }
}

PuntoL PuntoDeSerie(std::span<const double> ordenada) {
    if (ordenada.size() < 4) {
        return {kNada, kNada};
    }
    const Lineales<double> l = CalcularMomentosLineales(ordenada);
    return {l.L3 / l.L2, l.L4 / l.L2};
}

PuntoL PuntoDeFamilia(Familia familia) {
    switch (familia) {
        case Familia::Normal:
            return {0, 30 / std::acos(-1.0) * std::atan(std::sqrt(2.0)) - 9};
        case Familia::Gumbel:
            return {std::log2(9.0 / 8), 16 - 10 * std::log2(3.0)};
        case Familia::Exponencial:
            return {1.0 / 3, 1.0 / 6};
        default:
            return {kNada, kNada};
    }
}

}  // namespace cuencalia
