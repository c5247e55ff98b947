#include "modules/estadistica/momentos.h"

#include <cmath>
#include <type_traits>
#include <utility>

namespace cuencalia {

namespace {

/// Values by their number, from 1 on, less one of them.
struct Numerados {
    std::span<const double> v;
    double centro = 0;

    double operator()(int i) const { return v[static_cast<std::size_t>(i - 1)] - centro; }
};

double Raiz(double x) { return std::sqrt(x); }
Double Raiz(Double x) { return Sqr(x); }

double Dividir(double suma, int n) { return suma / n; }
Double Dividir(Double suma, int n) { return suma / n; }
Single Dividir(Single suma, int n) { return CSng(Double(suma) / n); }

template <typename X>
using Valor = std::remove_cvref_t<decltype(std::declval<X>()(1))>;
/// The precision of all but sums and differences.
template <typename X>
using Preciso = std::conditional_t<std::is_same_v<Valor<X>, double>, double, Double>;

template <typename X>
Valor<X> MediaDe(const X& x, int n) {
    Valor<X> S{};
    for (int i = 1; i <= n; ++i) {
        S += x(i);
    }
    return Dividir(S, n);
}

template <typename R>
struct MomentosCentrales {
    R media{};
    R S2{};        // sum of the squared deviations
    R M3{}, M4{};  // third and fourth central moments, divisor n
};

/// Two passes, the mean first: sums of raw powers in a single pass would lose all digits of a series with little
/// spread.
template <typename X>
MomentosCentrales<Preciso<X>> CalcularMomentosCentrales(const X& x, int n) {
    using R = Preciso<X>;
    const Valor<X> media = MediaDe(x, n);
    MomentosCentrales<R> m;
    m.media = media;
    R S3{}, S4{};
    for (int i = 1; i <= n; ++i) {
        const R desvio = x(i) - media;
        const R cuadrado = desvio * desvio;
        m.S2 += cuadrado;
        S3 += cuadrado * desvio;
        S4 += cuadrado * cuadrado;
    }
    m.M3 = S3 / n;
    m.M4 = S4 / n;
    return m;
}

template <typename R>
Parametros<R> Muestrales(const MomentosCentrales<R>& m, R N) {
    Parametros<R> p;
    p.media = m.media;
    p.varianza = m.S2 / (N - 1);
    p.desviacion = Raiz(p.varianza);
    const R s = p.desviacion;
    p.Cv = s / m.media;
    p.Cs = N * N * m.M3 / ((N - 1) * (N - 2) * (s * s * s));
    p.Ck = N * N * N * m.M4 / ((N - 1) * (N - 2) * (N - 3) * (s * s * s * s));
    return p;
}

template <typename X>
Parametros<Preciso<X>> MuestralesDe(const X& x, int n) {
    return Muestrales<Preciso<X>>(CalcularMomentosCentrales(x, n), n);
}

template <typename X>
Lineales<Valor<X>> LinealesDe(const X& ordenada, int n) {
    using R = Valor<X>;
    const R N = n;
    R T1{}, T2{}, T3{}, T4{};
    for (int i = 1; i <= n; ++i) {
        // Number of ways to choose one, two and three of the values below x(i) (a, b, c) and above it (d, e, f).
        const R a = i - 1;
        const R b = a * (i - 2) / 2;
        const R c = b * (i - 3) / 3;
        const R d = n - i;
        const R e = d * (d - 1) / 2;
        const R f = e * (d - 2) / 3;
        const R x = ordenada(i);
        T1 += x;
        T2 += x * (a - d);
        T3 += x * (b - 2 * a * d + e);
        T4 += x * (c - 3 * b * d + 3 * a * e - f);
    }
    // Number of ways to choose two, three and four of all n values.
    const R C2 = N * (N - 1) / 2;
    const R C3 = C2 * (N - 2) / 3;
    const R C4 = C3 * (N - 3) / 4;
    return {.L1 = T1 / N, .L2 = T2 / C2 / 2, .L3 = T3 / C3 / 3, .L4 = T4 / C4 / 4};
}

}  // namespace

Double Media(const ArregloBase<Double>& x, int n) { return MediaDe(x, n); }
Single Media(const ArregloBase<Single>& x, int n) { return MediaDe(x, n); }
double Media(std::span<const double> x) { return MediaDe(Numerados{x}, static_cast<int>(x.size())); }

Double SumaDeCuadrados(const ArregloBase<Double>& x, int n, Double media) {
    Double suma;
    for (int i = 1; i <= n; ++i) {
        const Double desvio = x(i) - media;
        suma += desvio * desvio;
    }
    return suma;
}

ArregloBase<Double> Logaritmos(const ArregloBase<Double>& x, int n) {
    ArregloBase<Double> logaritmos(1, n);
    for (int i = 1; i <= n; ++i) {
        logaritmos(i) = Log(x(i));
    }
    return logaritmos;
}

ParametrosEstadisticos ParametrosMuestrales(const ArregloBase<Double>& x, int n) { return MuestralesDe(x, n); }
ParametrosEstadisticos ParametrosMuestrales(const ArregloBase<Single>& x, int n) { return MuestralesDe(x, n); }
Parametros<double> ParametrosMuestrales(std::span<const double> x) {
    return MuestralesDe(Numerados{x}, static_cast<int>(x.size()));
}

ParametrosEstadisticos ParametrosAgrupados(const ArregloBase<Double>& marcas, const ArregloBase<Double>& frecuencias,
                                           int clases, int n) {
    Double S;
    for (int i = 1; i <= clases; ++i) {
        S += frecuencias(i) * marcas(i);
    }
    MomentosCentrales<Double> m;
    m.media = S / n;
    Double S3, S4;
    for (int i = 1; i <= clases; ++i) {
        const Double desvio = marcas(i) - m.media;
        const Double cuadrado = desvio * desvio;
        m.S2 += frecuencias(i) * cuadrado;
        S3 += frecuencias(i) * (cuadrado * desvio);
        S4 += frecuencias(i) * (cuadrado * cuadrado);
    }
    m.M3 = S3 / n;
    m.M4 = S4 / n;
    return Muestrales<Double>(m, n);
}

ParametrosEstadisticos ParametrosPoblacionales(const ArregloBase<Double>& x, int n) {
    const MomentosCentrales<Double> m = CalcularMomentosCentrales(x, n);
    ParametrosEstadisticos p;
    p.media = m.media;
    p.varianza = m.S2 / n;
    p.desviacion = Sqr(p.varianza);
    const Double s = p.desviacion;
    p.Cv = s / m.media;
    p.Cs = m.M3 / (s * s * s);
    p.Ck = m.M4 / (s * s * s * s);
    return p;
}

MomentosLineales CalcularMomentosLineales(const ArregloBase<Double>& ordenada, int n) {
    return LinealesDe(ordenada, n);
}

Lineales<double> CalcularMomentosLineales(std::span<const double> ordenada) {
    const double centro = ordenada[ordenada.size() / 2];
    Lineales<double> l = LinealesDe(Numerados{ordenada, centro}, static_cast<int>(ordenada.size()));
    l.L1 += centro;
    return l;
}

}  // namespace cuencalia
