#include "modules/comparacion/familias.h"

#include <algorithm>
#include <limits>

#include "modules/distribuciones/leyes.h"

namespace cuencalia {

namespace {

constexpr double kNada = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinito = std::numeric_limits<double>::infinity();
constexpr double kLogRaizDosPi = 0.91893853320467274178;

// Below, the distribution with a shape is worked out as the one without: the difference is of the order of the rounding
// of the other.
constexpr double kAsimetriaNula = 1e-6;
constexpr double kFormaNula = 1e-9;

struct DatosFamilia {
    const char* nombre;
    bool deLogaritmos;
    int parametros;
};
constexpr DatosFamilia kDatos[kFamilias] = {{"Normal", false, 2},
                                            {"Log-normal de 2 parámetros", true, 2},
                                            {"Log-normal de 3 parámetros", false, 3},
                                            {"Gamma de 2 parámetros", false, 2},
                                            {"Gamma de 3 parámetros", false, 3},
                                            {"Log-Pearson tipo 3", true, 3},
                                            {"Gumbel", false, 2},
                                            {"Log-Gumbel", true, 2},
                                            {"General de valores extremos", false, 3},
                                            {"Logística generalizada", false, 3},
                                            {"Pareto generalizada", false, 3},
                                            {"Exponencial", false, 2},
                                            {"Weibull", false, 3}};

const DatosFamilia& Datos(Familia familia) { return kDatos[static_cast<int>(familia)]; }

bool EsPearson3(Familia familia) {
    return familia == Familia::Gamma2 || familia == Familia::Gamma3 || familia == Familia::LogPearson3;
}

}  // namespace

const char* NombreFamilia(Familia familia) { return Datos(familia).nombre; }
bool DeLogaritmos(Familia familia) { return Datos(familia).deLogaritmos; }
int NumeroDeParametros(Familia familia) { return Datos(familia).parametros; }

Distribucion::Distribucion(Familia familia, double posicion, double escala, double forma)
    : familia_(familia), posicion_(posicion), escala_(escala), forma_(forma) {
    if (EsPearson3(familia) && std::fabs(forma) > kAsimetriaNula) {
        gamma_ = 4 / (forma * forma);
        beta_ = escala * forma / 2;
        inicio_ = posicion - 2 * escala / forma;
    }
}

double Distribucion::Variable(double x) const { return !DeLogaritmos(familia_) ? x : x > 0 ? std::log(x) : kNada; }

double Distribucion::Valor(double v) const { return DeLogaritmos(familia_) ? std::exp(v) : v; }

double Distribucion::Reducida(double v) const {
    const double w = (v - posicion_) / escala_;
    if (std::fabs(forma_) < kFormaNula) {
        return w;
    }
    const double resto = -forma_ * w;
    return resto > -1 ? -std::log1p(resto) / forma_ : forma_ > 0 ? kInfinito : -kInfinito;
}

double Distribucion::DeReducida(double y) const {
    const double w = std::fabs(forma_) < kFormaNula ? y : -std::expm1(-forma_ * y) / forma_;
    return posicion_ + escala_ * w;
}

double Distribucion::Cola(double v, bool superior) const {
    switch (familia_) {
        case Familia::Normal:
        case Familia::LogNormal2: {
            const double z = (v - posicion_) / escala_;
            return ProbabilidadNormal(superior ? -z : z);
        }
        case Familia::LogNormal3: {
            const double z = Reducida(v);
            return ProbabilidadNormal(superior ? -z : z);
        }
        case Familia::Gamma2:
        case Familia::Gamma3:
        case Familia::LogPearson3: {
            if (SinAsimetria()) {
                const double z = (v - posicion_) / escala_;
                return ProbabilidadNormal(superior ? -z : z);
            }
            return ColaGamma(gamma_, (v - inicio_) / beta_, superior == (beta_ > 0));
        }
        case Familia::Gumbel:
        case Familia::LogGumbel:
        case Familia::ValorExtremo: {
            const double e = std::exp(-Reducida(v));
            return superior ? -std::expm1(-e) : std::exp(-e);
        }
        case Familia::Logistica: {
            const double y = Reducida(v);
            return 1 / (1 + std::exp(superior ? y : -y));
        }
        case Familia::Pareto:
        case Familia::Exponencial: {
            const double y = Reducida(v);
            return y <= 0 ? (superior ? 1 : 0) : superior ? std::exp(-y) : -std::expm1(-y);
        }
        case Familia::Weibull: {
            const double w = (v - posicion_) / escala_;
            const double y = w > 0 ? std::pow(w, forma_) : 0;
            return superior ? std::exp(-y) : -std::expm1(-y);
        }
    }
    return kNada;
}

double Distribucion::LogDensidad(double v) const {
    const auto normal = [this](double z) { return -z * z / 2 - kLogRaizDosPi - std::log(escala_); };
    // |dy/dv| = exp(k·y)/alpha, and the density of y itself.
    const auto deReducida = [this](double y, double logDensidad) {
        return std::isfinite(y) ? logDensidad + forma_ * y - std::log(escala_) : -kInfinito;
    };
    switch (familia_) {
        case Familia::Normal:
        case Familia::LogNormal2:
            return normal((v - posicion_) / escala_);
        case Familia::LogNormal3: {
            const double y = Reducida(v);
            return deReducida(y, -y * y / 2 - kLogRaizDosPi);
        }
        case Familia::Gamma2:
        case Familia::Gamma3:
        case Familia::LogPearson3: {
            if (SinAsimetria()) {
                return normal((v - posicion_) / escala_);
            }
            const double y = (v - inicio_) / beta_;
            return y > 0 ? LogDensidadGamma(gamma_, y) - std::log(std::fabs(beta_)) : -kInfinito;
        }
        case Familia::Gumbel:
        case Familia::LogGumbel:
        case Familia::ValorExtremo: {
            const double y = Reducida(v);
            return deReducida(y, -y - std::exp(-y));
        }
        case Familia::Logistica: {
            const double y = Reducida(v);
            return deReducida(y, -std::fabs(y) - 2 * std::log1p(std::exp(-std::fabs(y))));
        }
        case Familia::Pareto:
        case Familia::Exponencial: {
            const double y = Reducida(v);
            return y < 0 ? -kInfinito : deReducida(y, -y);
        }
        case Familia::Weibull: {
            const double w = (v - posicion_) / escala_;
            return w > 0 ? std::log(forma_ / escala_) + (forma_ - 1) * std::log(w) - std::pow(w, forma_) : -kInfinito;
        }
    }
    return kNada;
}

double Distribucion::Cuantil(double p) const {
    switch (familia_) {
        case Familia::Normal:
        case Familia::LogNormal2:
            return posicion_ + escala_ * CuantilNormal(p);
        case Familia::LogNormal3:
            return DeReducida(CuantilNormal(p));
        case Familia::Gamma2:
        case Familia::Gamma3:
        case Familia::LogPearson3:
            // The smaller tail is inverted: it alone has all its digits.
            return SinAsimetria()
                       ? posicion_ + escala_ * CuantilNormal(p)
                       : inicio_ + beta_ * InversaGamma(gamma_, std::min(p, 1 - p), (p > 0.5) == (beta_ > 0));
        case Familia::Gumbel:
        case Familia::LogGumbel:
        case Familia::ValorExtremo:
            return DeReducida(-std::log(-std::log(p)));
        case Familia::Logistica:
            return DeReducida(std::log(p / (1 - p)));
        case Familia::Pareto:
        case Familia::Exponencial:
            return DeReducida(-std::log1p(-p));
        case Familia::Weibull:
            return posicion_ + escala_ * std::pow(-std::log1p(-p), 1 / forma_);
    }
    return kNada;
}

std::vector<ParametroMostrado> Distribucion::Parametros() const {
    switch (familia_) {
        case Familia::Normal:
            return {{"Xm", posicion_}, {"S", escala_}};
        case Familia::LogNormal2:
            return {{"µy", posicion_}, {"Sy", escala_}};
        case Familia::LogNormal3:
            if (std::fabs(forma_) < kFormaNula) {
                break;
            }
            return {{"x0", posicion_ + escala_ / forma_},
                    {"µy", std::log(escala_ / std::fabs(forma_))},
                    {"Sy", std::fabs(forma_)}};
        case Familia::Gamma2:
            return {{"gamma", gamma_}, {"beta", beta_}};
        case Familia::Gamma3:
        case Familia::LogPearson3:
            if (SinAsimetria()) {
                break;
            }
            return {{"x0", inicio_}, {"gamma", gamma_}, {"beta", beta_}};
        case Familia::Gumbel:
        case Familia::LogGumbel:
            return {{"µ", posicion_}, {"alfa", escala_}};
        case Familia::Exponencial:
            return {{"xi", posicion_}, {"alfa", escala_}};
        case Familia::ValorExtremo:
        case Familia::Logistica:
        case Familia::Pareto:
            return {{"xi", posicion_}, {"alfa", escala_}, {"k", forma_}};
        case Familia::Weibull:
            return {{"x0", posicion_}, {"beta", escala_}, {"delta", forma_}};
    }
    return {{"Xm", posicion_}, {"S", escala_}};  // no skew: the normal distribution
}

}  // namespace cuencalia
