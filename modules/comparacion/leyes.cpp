#include "modules/comparacion/leyes.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

#include "modules/distribuciones/normal.h"

namespace cuencalia {

namespace {

constexpr double kRaizDosPi = 2.5066282746310005;
constexpr double kMenor = std::numeric_limits<double>::min();
constexpr double kPrecision = 1e-16;
constexpr double kFormaUniforme = 20;  // least shape for which the expansion below is used

constexpr std::size_t kOrdenes = 7;  // powers of 1/a
constexpr std::size_t kGrado = 34;   // each order takes two degrees of the one before

using Coeficientes = std::array<std::array<double, kGrado>, kOrdenes>;

/// The coefficients of the powers of eta in C_k, R = exp(-a·eta²/2)/sqrt(2·pi·a)·sum C_k(eta)/a^k, by their recurrence:
/// C_0 = 1/mu - 1/eta, C_k = C'_(k-1)/eta + (-1)^k·g_k/mu. mu(eta) solves mu - ln(1 + mu) = eta²/2, so mu·mu' =
/// eta·(1 + mu); the g_k are those of Stirling's series. Source: Temme (1979).
Coeficientes CoeficientesUniformes() {
    constexpr std::array<double, kOrdenes> g{
        1, 1.0 / 12, 1.0 / 288, -139.0 / 51840, -571.0 / 2488320, 163879.0 / 209018880, 5246819.0 / 75246796800};
    std::array<double, kGrado + 2> m{0, 1};
    for (std::size_t k = 2; k < kGrado + 2; ++k) {
        double suma = m[k - 1];
        for (std::size_t i = 2; i < k; ++i) {
            suma -= m[i] * static_cast<double>(k + 1 - i) * m[k + 1 - i];
        }
        m[k] = suma / static_cast<double>(k + 1);
    }
    // 1/mu = (1/eta)·sum of inversa(k)·eta^k.
    std::array<double, kGrado + 1> inversa{1};
    for (std::size_t k = 1; k <= kGrado; ++k) {
        for (std::size_t i = 1; i <= k; ++i) {
            inversa[k] -= m[i + 1] * inversa[k - i];
        }
    }
    Coeficientes C{};
    for (std::size_t e = 0; e < kGrado; ++e) {
        C[0][e] = inversa[e + 1];
    }
    for (std::size_t k = 1; k < kOrdenes; ++k) {
        const double signo = k % 2 == 0 ? 1 : -1;
        for (std::size_t e = 0; e < kGrado - 2 * k; ++e) {
            C[k][e] = static_cast<double>(e + 2) * C[k - 1][e + 2] + signo * g[k] * inversa[e + 1];
        }
    }
    return C;
}

}  // namespace

double ProbabilidadNormal(double z) { return std::erfc(-z / std::numbers::sqrt2) / 2; }

double CuantilNormal(double p) {
    const double cola = std::min(p, 1 - p);
    if (!(cola > 0)) {
        return p == 0 ? -HUGE_VAL : p == 1 ? HUGE_VAL : std::nan("");
    }
    double z = InversaNormal(std::max(cola, 1e-150)).valor();
    for (int vez = 0; vez < 2; ++vez) {
        const double paso = (ProbabilidadNormal(z) - cola) * kRaizDosPi * std::exp(z * z / 2);
        z -= paso / (1 + z * paso / 2);
    }
    return p <= 0.5 ? z : -z;
}

double LogGamma(double x) {
    if (!(x > 0)) {
        return std::nan("");
    }
    double producto = 1;
    for (; x < 10; ++x) {
        producto *= x;
    }
    const double y = 1 / (x * x);
    const double serie = (1.0 / 12 - y * (1.0 / 360 - y * (1.0 / 1260 - y * (1.0 / 1680 - y * (1.0 / 1188))))) / x;
    return (x - 0.5) * std::log(x) - x + 0.91893853320467274178 + serie - std::log(producto);
}

double Digamma(double x) {
    if (!(x > 0)) {
        return std::nan("");
    }
    double suma = 0;
    for (; x < 12; ++x) {
        suma += 1 / x;
    }
    const double y = 1 / (x * x);
    return std::log(x) - 0.5 / x - suma -
           y * (1.0 / 12 - y * (1.0 / 120 - y * (1.0 / 252 - y * (1.0 / 240 - y * (1.0 / 132)))));
}

double Trigamma(double x) {
    if (!(x > 0)) {
        return std::nan("");
    }
    double suma = 0;
    for (; x < 12; ++x) {
        suma += 1 / (x * x);
    }
    const double y = 1 / (x * x);
    return suma + 1 / x + y / 2 +
           y / x * (1.0 / 6 - y * (1.0 / 30 - y * (1.0 / 42 - y * (1.0 / 30 - y * (5.0 / 66 - y * 691.0 / 2730)))));
}

LeyGamma::LeyGamma(double forma) : a_(forma), logGamma_(LogGamma(forma)) {
    if (forma < kFormaUniforme) {
        return;
    }
    static const Coeficientes C = CoeficientesUniformes();
    for (std::size_t e = 0; e < uniforme_.size(); ++e) {
        for (std::size_t k = C.size(); k-- > 0;) {
            uniforme_[e] = uniforme_[e] / a_ + C[k][e];
        }
    }
}

double LeyGamma::ColaUniforme(double mu, double eta, bool superior) const {
    const double y = a_ * (mu - std::log1p(mu));  // a·eta²/2
    double suma = 0;
    for (std::size_t e = uniforme_.size(); e-- > 0;) {
        suma = suma * eta + uniforme_[e];
    }
    const double resto = std::exp(-y) / std::sqrt(2 * std::numbers::pi * a_) * suma;
    const double normal = std::erfc((superior ? eta : -eta) * std::sqrt(a_ / 2)) / 2;
    return superior ? normal + resto : normal - resto;
}

double LeyGamma::LogDensidad(double x) const { return (a_ - 1) * std::log(x) - x - logGamma_; }

double LeyGamma::Cola(double x, bool superior) const {
    if (!(x > 0)) {
        return superior ? 1 : 0;
    }
    if (a_ >= kFormaUniforme) {
        const double mu = (x - a_) / a_;
        const double eta = std::copysign(std::sqrt(2 * std::max(mu - std::log1p(mu), 0.0)), mu);
        if (std::fabs(eta) <= 1) {
            return ColaUniforme(mu, eta, superior);
        }
    }
    const double factor = std::exp(a_ * std::log(x) - x - logGamma_);
    if (x < a_ + 1) {
        double termino = 1 / a_;
        double suma = termino;
        for (double k = a_ + 1; termino > kPrecision * suma; ++k) {
            termino *= x / k;
            suma += termino;
        }
        return superior ? 1 - factor * suma : factor * suma;
    }
    // Lentz's evaluation of the continued fraction.
    double b = x + 1 - a_;
    double c = 1 / kMenor;
    double d = 1 / b;
    double h = d;
    for (int i = 1; i < 10000; ++i) {
        const double t = -i * (i - a_);
        b += 2;
        d = t * d + b;
        c = b + t / c;
        d = 1 / (std::fabs(d) < kMenor ? kMenor : d);
        c = std::fabs(c) < kMenor ? kMenor : c;
        const double cambio = d * c;
        h *= cambio;
        if (std::fabs(cambio - 1) < kPrecision * 4) {
            break;
        }
    }
    return superior ? factor * h : 1 - factor * h;
}

double LeyGamma::Cuantil(double p) const {
    if (!(p > 0 && p < 1)) {
        return p == 0 ? 0 : p == 1 ? HUGE_VAL : std::nan("");
    }
    const bool superior = p > 0.5;
    const double cola = superior ? 1 - p : p;
    // Wilson and Hilferty's cube of a normal variable; for small shapes and low values the first term of the series.
    const double z = CuantilNormal(p);
    const double w = 1 - 1 / (9 * a_) + z / (3 * std::sqrt(a_));
    double x = a_ * w * w * w;
    if (a_ < 1 || w < 0.3) {
        const double inicial = std::exp((std::log(p) + logGamma_ + std::log(a_)) / a_);
        if (inicial < 0.5 * (a_ + 1) || w < 0.3) {
            x = inicial;
        }
    }
    // In the logarithm of x, where the steps keep within the distribution.
    for (int vez = 0; vez < 60; ++vez) {
        const double densidad = std::exp(LogDensidad(x)) * x;
        if (!(densidad > 0)) {
            break;
        }
        const double exceso = (superior ? cola - Cola(x, true) : Cola(x, false) - cola) / densidad;
        const double curva = std::clamp(1 - exceso * (a_ - x) / 2, 0.5, 2.0);
        const double paso = std::clamp(exceso / curva, -2.0, 2.0);
        x *= std::exp(-paso);
        if (std::fabs(paso) < 1e-6) {  // cubic: the next one would be below 1e-17
            break;
        }
    }
    return x;
}

}  // namespace cuencalia
