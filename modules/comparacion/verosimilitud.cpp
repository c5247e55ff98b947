#include "modules/comparacion/verosimilitud.h"

#include <algorithm>
#include <boost/math/tools/roots.hpp>
#include <boost/math/tools/toms748_solve.hpp>
#include <cmath>
#include <cstdint>
#include <functional>
#include <numbers>

#include "modules/distribuciones/leyes.h"
#include "modules/estadistica/momentos.h"

namespace cuencalia {

namespace {

// A third of the digits, which one more step of the iteration doubles.
constexpr int kBits = 20;

/// The shape whose ln(a) - psi(a) is s > 0.
double FormaGamma(double s) {
    if (!(s > 0)) {  // the spread is lost among the rounding
        return std::nan("");
    }
    // The first approximation has an error of 1.5 %; Newton's iteration in 1/a converges from there on both sides.
    const double inicial = 12 * s / (3 - s + std::sqrt((s - 3) * (s - 3) + 24 * s));
    const auto f = [s](double inversa) {
        const double a = 1 / inversa;
        return std::pair(std::log(a) - Digamma(a) - s, a * a * (Trigamma(a) - inversa));
    };
    return 1 / boost::math::tools::newton_raphson_iterate(f, inicial, inicial / 2, inicial * 2, kBits);
}

/// Distances to an end of the distribution at d below the least value, their logarithms relative to the mean distance,
/// and sums of both.
struct Distancias {
    double media = 0, mediaLog = 0, varianzaLog = 0, inversas = 0, cruzada = 0;
};

/// w are the differences from the least value.
Distancias Medir(std::span<const double> w, double mediaW, double d) {
    Distancias r;
    const double n = static_cast<double>(w.size());
    r.media = mediaW + d;
    double cuadrados = 0;
    double cruzadas = 0;
    for (const double wi : w) {
        // Relative to the mean, so that far ends do not take the digits of the logarithms.
        const double u = std::log1p((wi - mediaW) / r.media);
        const double inversa = 1 / (wi + d);
        r.mediaLog += u;
        cuadrados += u * u;
        r.inversas += inversa;
        cruzadas += u * inversa;
    }
    r.mediaLog /= n;
    r.varianzaLog = cuadrados / n - r.mediaLog * r.mediaLog;
    r.cruzada = cruzadas - r.mediaLog * r.inversas;
    return r;
}

const boost::math::tools::eps_tolerance<double> kTolerancia(32);

/// The d of the maximum where `pendiente`, a derivative by d, goes from positive to negative; sought from `inicial` on
/// in the direction of the ascent, in steps of a factor 2.
std::optional<double> Maximo(const std::function<double(double)>& pendiente, double inicial, double minimo,
                             double maximo) {
    double bajo = inicial;
    double alto = inicial;
    double fBajo = pendiente(inicial);
    double fAlto = fBajo;
    while (fBajo <= 0 && bajo > minimo) {
        alto = bajo;
        fAlto = fBajo;
        bajo /= 2;
        fBajo = pendiente(bajo);
    }
    if (fBajo <= 0) {  // below the start it ascends to the pole alone
        bajo = inicial;
        fBajo = pendiente(bajo);
        while (fBajo <= 0 && bajo < maximo) {
            bajo *= 2;
            fBajo = pendiente(bajo);
        }
        alto = bajo;
        fAlto = fBajo;
    }
    while (fAlto > 0 && alto < maximo) {
        bajo = alto;
        fBajo = fAlto;
        alto *= 2;
        fAlto = pendiente(alto);
    }
    if (!(fBajo > 0 && fAlto <= 0)) {
        return std::nullopt;
    }
    if (fAlto == 0) {
        return alto;
    }
    std::uintmax_t vueltas = 60;
    const auto [desde, hasta] =
        boost::math::tools::toms748_solve(pendiente, bajo, alto, fBajo, fAlto, kTolerancia, vueltas);
    return desde + (hasta - desde) / 2;
}

// The end is sought from a millionth of the deviation below the least value to a thousand deviations, where the skew is
// some thousandths.
constexpr double kMasCerca = 1e-6;
constexpr double kMasLejos = 1e3;

/// Calls `pendiente` with the differences from the end value of the side of the shorter tail, and their mean.
struct Lado {
    explicit Lado(std::span<const double> v) {
        const Parametros<double> m = ParametrosMuestrales(v);
        signo = m.Cs < 0 ? -1 : 1;
        desviacion = m.desviacion;
        extremo = signo > 0 ? v.front() : v.back();
        w.reserve(v.size());
        for (const double vi : v) {
            w.push_back(signo * (vi - extremo));
        }
        media = Media(w);
        // The end of the Pearson III distribution that has the same moments, where that is below the values: not nearer
        // to them than a twentieth of the deviation, nor, without a skew, at infinity.
        inicial = std::max(2 * desviacion / std::max(std::fabs(m.Cs), 0.01) - media, 0.05 * desviacion);
    }
    std::optional<double> Maximo(const std::function<double(double)>& pendiente) const {
        return cuencalia::Maximo(pendiente, inicial, kMasCerca * desviacion, kMasLejos * desviacion);
    }
    double signo, desviacion, extremo, media = 0, inicial = 0;
    std::vector<double> w;
};

}  // namespace

Distribucion NormalPorVerosimilitud(Familia familia, std::span<const double> v) {
    const Parametros<double> m = ParametrosMuestrales(v);
    const double n = static_cast<double>(v.size());
    return {familia, m.media, m.desviacion * std::sqrt((n - 1) / n)};
}

Distribucion GumbelPorVerosimilitud(Familia familia, std::span<const double> v) {
    const Parametros<double> m = ParametrosMuestrales(v);
    const double minimo = v.front();  // subtracted, so that no exponential overflows
    double suma0 = 0;
    const auto f = [&](double alfa) {
        double suma1 = 0;
        double suma2 = 0;
        suma0 = 0;
        for (const double vi : v) {
            const double w = vi - minimo;
            const double e = std::exp(-w / alfa);
            suma0 += e;
            suma1 += w * e;
            suma2 += w * w * e;
        }
        const double cociente = suma1 / suma0;
        return std::pair(m.media - minimo - cociente - alfa,
                         -1 - (suma2 / suma0 - cociente * cociente) / (alfa * alfa));
    };
    // That of the moments is a good start.
    const double alfa = boost::math::tools::newton_raphson_iterate(f, m.desviacion * std::sqrt(6) / std::numbers::pi,
                                                                   0.0, m.media - minimo, kBits);
    f(alfa);
    return {familia, minimo - alfa * std::log(suma0 / static_cast<double>(v.size())), alfa};
}

Distribucion Gamma2PorVerosimilitudExacta(std::span<const double> v) {
    const Distancias r = Medir(v, Media(v), 0);
    const double a = FormaGamma(-r.mediaLog);
    return {Familia::Gamma2, r.media, r.media / std::sqrt(a), 2 / std::sqrt(a)};
}

std::optional<Distribucion> LogNormal3PorVerosimilitud(std::span<const double> v) {
    const Lado lado(v);
    const auto d = lado.Maximo([&lado](double distancia) {
        const Distancias r = Medir(lado.w, lado.media, distancia);
        return -r.cruzada / r.varianzaLog - r.inversas;
    });
    if (!d) {
        return std::nullopt;
    }
    const Distancias r = Medir(lado.w, lado.media, *d);
    // The end is xi + alpha/k, and the median lies alpha/|k| from it.
    const double k = -lado.signo * std::sqrt(r.varianzaLog);
    const double mediana = r.media * std::exp(r.mediaLog);
    return Distribucion(Familia::LogNormal3, lado.extremo + lado.signo * (mediana - *d), mediana * std::fabs(k), k);
}

std::optional<Distribucion> Pearson3PorVerosimilitud(Familia familia, std::span<const double> v) {
    const Lado lado(v);
    const auto d = lado.Maximo([&lado](double distancia) {
        const Distancias r = Medir(lado.w, lado.media, distancia);
        const double a = FormaGamma(-r.mediaLog);
        return (a - 1) * r.inversas - static_cast<double>(lado.w.size()) * a / r.media;
    });
    if (!d) {
        return std::nullopt;
    }
    const Distancias r = Medir(lado.w, lado.media, *d);
    const double a = FormaGamma(-r.mediaLog);
    return Distribucion(familia, lado.extremo + lado.signo * (r.media - *d), r.media / std::sqrt(a),
                        lado.signo * 2 / std::sqrt(a));
}

}  // namespace cuencalia
