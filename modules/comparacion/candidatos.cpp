#include "modules/comparacion/candidatos.h"

#include <algorithm>
#include <boost/math/tools/roots.hpp>
#include <cmath>
#include <numbers>

#include "modules/comparacion/verosimilitud.h"
#include "modules/distribuciones/gamma2.h"
#include "modules/distribuciones/leyes.h"
#include "modules/distribuciones/pearson3.h"
#include "modules/estadistica/momentos.h"

namespace cuencalia {

namespace {

constexpr std::size_t kDatosMinimos = 4;  // the fourth linear moment
constexpr double kTau3LogNormal = 0.94;   // Hosking and Wallis give the rational function up to here
constexpr double kRaizPi = 1.7724538509055160;

constexpr const char* kSinParametros = "Los parámetros no existen para estos datos";
constexpr const char* kSinMaximo =
    "La verosimilitud no tiene máximo: la serie es casi simétrica o demasiado asimétrica";
constexpr const char* kSinMomentosLineales = "Ninguna distribución de la familia tiene estos momentos lineales";
constexpr const char* kNoPositivos = "Hay valores que no son mayores que 0";

Ajuste Hecho(Candidato c, double posicion, double escala, double forma = 0) {
    if (!(std::isfinite(posicion) && std::isfinite(escala) && std::isfinite(forma) && escala > 0)) {
        return {c, {}, kSinParametros};
    }
    return {c, Distribucion(c.familia, posicion, escala, forma), {}};
}
Ajuste Imposible(Candidato c, const char* motivo) { return {c, {}, motivo}; }

Ajuste PorMomentos(Candidato c, std::span<const double> v) {
    const Parametros<double> m = ParametrosMuestrales(v);
    switch (c.familia) {
        case Familia::LogNormal3: {
            // The deviation of the logarithms whose skew this is, in closed form (Kite 1977).
            const double g = std::fabs(m.Cs);
            const double w = (std::sqrt(g * g + 4) - g) / 2;
            const double z = (1 - std::cbrt(w * w)) / std::cbrt(w);  // sqrt(exp(k²) - 1)
            const double k = -std::copysign(std::sqrt(std::log1p(z * z)), m.Cs);
            if (std::fabs(k) < 1e-6) {
                return Hecho(c, m.media, m.desviacion, 0);
            }
            const double alfa = m.desviacion / z * std::fabs(k) / std::sqrt(1 + z * z);
            return Hecho(c, m.media - alfa / k * (1 - std::sqrt(1 + z * z)), alfa, k);
        }
        case Familia::Gamma2:
            return m.media > 0 ? Hecho(c, m.media, m.desviacion, 2 * m.desviacion / m.media)
                               : Imposible(c, "La media no es mayor que 0");
        case Familia::Gamma3:
        case Familia::LogPearson3:
            return Hecho(c, m.media, m.desviacion, m.Cs);
        case Familia::Gumbel:
        case Familia::LogGumbel: {
            const double alfa = m.desviacion * std::sqrt(6) / std::numbers::pi;
            return Hecho(c, m.media - alfa * std::numbers::egamma, alfa);
        }
        default:
            return Hecho(c, m.media, m.desviacion);
    }
}

struct XiAlfaK {
    double xi, alfa, k;
};

XiAlfaK ValorExtremoPorL(double L1, double L2, double tau3) {
    const double k = FormaValorExtremo(tau3);
    if (std::fabs(k) < 1e-7) {
        const double alfa = L2 / std::numbers::ln2;
        return {L1 - alfa * std::numbers::egamma, alfa, 0};
    }
    const double g = std::exp(LogGamma(1 + k));
    const double alfa = L2 * k / (g * -std::expm1(-k * std::numbers::ln2));
    return {L1 + alfa * (g - 1) / k, alfa, k};
}

/// Hosking's rational function of tau3 for the k of the generalised normal distribution.
double FormaNormalGeneralizada(double tau3) {
    const double z = tau3 * tau3;
    return -tau3 * (2.0466534 + z * (-3.6544371 + z * (1.8396733 + z * -0.20360244))) /
           (1 + z * (-2.0182173 + z * (1.2420401 + z * -0.21741801)));
}

Ajuste Pearson3PorL(Candidato c, const Lineales<double>& l) {
    const double tau = std::fabs(l.L3 / l.L2);
    if (tau < 1e-6) {
        return Hecho(c, l.L1, kRaizPi * l.L2, 0);
    }
    const double forma = FormaPearson3(tau).valor();
    // The deviation is beta·sqrt(shape), and L2 = beta·gamma(shape + 1/2)/(sqrt(pi)·gamma(shape)).
    const double desviacion = kRaizPi * l.L2 * std::sqrt(forma) * std::exp(LogGamma(forma) - LogGamma(forma + 0.5));
    return Hecho(c, l.L1, desviacion, std::copysign(2 / std::sqrt(forma), l.L3));
}

Ajuste PorMomentosLineales(Candidato c, std::span<const double> v) {
    const Lineales<double> l = CalcularMomentosLineales(v);
    const double tau3 = l.L3 / l.L2;
    if (!(l.L2 > 0 && std::fabs(tau3) < 1)) {
        return Imposible(c, kSinMomentosLineales);
    }
    switch (c.familia) {
        case Familia::Normal:
        case Familia::LogNormal2:
            return Hecho(c, l.L1, kRaizPi * l.L2);
        case Familia::LogNormal3: {
            if (std::fabs(tau3) >= kTau3LogNormal) {
                return Imposible(c, "La asimetría pasa del alcance del método (tau3 de 0.94)");
            }
            const double k = FormaNormalGeneralizada(tau3);
            if (std::fabs(k) < 1e-8) {
                return Hecho(c, l.L1, kRaizPi * l.L2, 0);
            }
            const double e = std::exp(k * k / 2);
            const double alfa = l.L2 * k / (e * std::erf(k / 2));
            return Hecho(c, l.L1 - alfa / k * -std::expm1(k * k / 2), alfa, k);
        }
        case Familia::Gamma2: {
            if (!(l.L2 < l.L1)) {
                return Imposible(c, kSinMomentosLineales);
            }
            const Gamma2 g = Gamma2PorMomentosLineales(l.L1, l.L2, kFactorDeHosking);
            const double raiz = std::sqrt(g.gamma.valor());
            return Hecho(c, l.L1, l.L1 / raiz, 2 / raiz);
        }
        case Familia::Gamma3:
        case Familia::LogPearson3:
            return Pearson3PorL(c, l);
        case Familia::Gumbel:
        case Familia::LogGumbel: {
            const double alfa = l.L2 / std::numbers::ln2;
            return Hecho(c, l.L1 - alfa * std::numbers::egamma, alfa);
        }
        case Familia::ValorExtremo: {
            const XiAlfaK d = ValorExtremoPorL(l.L1, l.L2, tau3);
            return Hecho(c, d.xi, d.alfa, d.k);
        }
        case Familia::Logistica: {
            const double k = -tau3;
            if (std::fabs(k) < 1e-8) {
                return Hecho(c, l.L1, l.L2, 0);
            }
            const double angulo = k * std::numbers::pi;
            const double alfa = l.L2 * std::sin(angulo) / angulo;
            return Hecho(c, l.L1 - alfa * (1 / k - std::numbers::pi / std::sin(angulo)), alfa, k);
        }
        case Familia::Pareto: {
            const double k = (1 - 3 * tau3) / (1 + tau3);
            return Hecho(c, l.L1 - (2 + k) * l.L2, (1 + k) * (2 + k) * l.L2, k);
        }
        case Familia::Exponencial:
            return Hecho(c, l.L1 - 2 * l.L2, 2 * l.L2);
        case Familia::Weibull: {
            // -x has an extreme value distribution with an upper end.
            const XiAlfaK d = ValorExtremoPorL(-l.L1, l.L2, -tau3);
            return d.k > 0 ? Hecho(c, -(d.xi + d.alfa / d.k), d.alfa / d.k, 1 / d.k)
                           : Imposible(c, "La asimetría es menor que la de toda distribución de Weibull");
        }
    }
    return Imposible(c, kSinMomentosLineales);
}

Ajuste PorVerosimilitud(Candidato c, std::span<const double> v) {
    const auto conMaximo = [c](const std::optional<Distribucion>& d) {
        return d ? Hecho(c, d->Posicion(), d->Escala(), d->Forma()) : Imposible(c, kSinMaximo);
    };
    switch (c.familia) {
        case Familia::LogNormal3:
            return conMaximo(LogNormal3PorVerosimilitud(v));
        case Familia::Gamma2:
            return v.front() > 0 ? conMaximo(Gamma2PorVerosimilitudExacta(v)) : Imposible(c, kNoPositivos);
        case Familia::Gamma3:
        case Familia::LogPearson3:
            return conMaximo(Pearson3PorVerosimilitud(c.familia, v));
        case Familia::Gumbel:
        case Familia::LogGumbel:
            return conMaximo(GumbelPorVerosimilitud(c.familia, v));
        default:
            return conMaximo(NormalPorVerosimilitud(c.familia, v));
    }
}

}  // namespace

double FormaValorExtremo(double tau3) {
    const double c = 2 / (3 + tau3) - std::numbers::ln2 / std::log(3.0);
    const double razon = (3 + tau3) / 2;
    const double ln3 = std::log(3.0);
    const auto f = [razon, ln3](double k) {
        if (std::fabs(k) < 1e-7) {
            return std::pair(0.0, 1.0);  // both sides are straight lines so near 0: the k that was found is right
        }
        const double numerador = -std::expm1(-k * ln3);
        const double denominador = -std::expm1(-k * std::numbers::ln2);
        const double cociente = numerador / denominador;
        return std::pair(cociente - razon,
                         (ln3 * (1 - numerador) - cociente * std::numbers::ln2 * (1 - denominador)) / denominador);
    };
    constexpr int kBits = 30;  // which the last step of the iteration doubles
    return boost::math::tools::newton_raphson_iterate(f, c * (7.8590 + 2.9554 * c), -1.0, 100.0, kBits);
}

const char* NombreMetodo(Metodo metodo) {
    switch (metodo) {
        case Metodo::Momentos:
            return "Momentos ordinarios";
        case Metodo::MomentosLineales:
            return "Momentos lineales";
        case Metodo::Verosimilitud:
            break;
    }
    return "Máxima verosimilitud";
}

const std::vector<Candidato>& Candidatos() {
    static const std::vector<Candidato> candidatos = [] {
        std::vector<Candidato> todos;
        for (int f = 0; f < kFamilias; ++f) {
            const auto familia = static_cast<Familia>(f);
            if (familia < Familia::ValorExtremo) {
                todos.push_back({familia, Metodo::Momentos});
            }
            todos.push_back({familia, Metodo::MomentosLineales});
            if (familia < Familia::ValorExtremo) {
                todos.push_back({familia, Metodo::Verosimilitud});
            }
        }
        return todos;
    }();
    return candidatos;
}

Ajuste AjustarVariable(Candidato candidato, std::span<const double> v) {
    if (v.size() < kDatosMinimos) {
        return Imposible(candidato, "Hacen falta al menos 4 datos");
    }
    if (!(v.front() < v.back())) {
        return Imposible(candidato, "Todos los datos son iguales");
    }
    try {
        switch (candidato.metodo) {
            case Metodo::Momentos:
                return PorMomentos(candidato, v);
            case Metodo::MomentosLineales:
                return PorMomentosLineales(candidato, v);
            case Metodo::Verosimilitud:
                return PorVerosimilitud(candidato, v);
        }
    } catch (const std::exception&) {  // of a formula that the windows use too, or of a search that found no root
    }
    return Imposible(candidato, kSinParametros);
}

std::vector<Ajuste> AjustarCandidatos(std::span<const double> ordenada) {
    std::vector<double> logaritmos;
    if (!ordenada.empty() && ordenada.front() > 0) {
        logaritmos.resize(ordenada.size());
        std::transform(ordenada.begin(), ordenada.end(), logaritmos.begin(), [](double x) { return std::log(x); });
    }
    std::vector<Ajuste> ajustes;
    for (const Candidato& c : Candidatos()) {
        if (DeLogaritmos(c.familia) && logaritmos.empty()) {
            ajustes.push_back(Imposible(c, ordenada.empty() ? "Hacen falta al menos 4 datos" : kNoPositivos));
        } else {
            ajustes.push_back(AjustarVariable(c, DeLogaritmos(c.familia) ? logaritmos : ordenada));
        }
    }
    return ajustes;
}

}  // namespace cuencalia
