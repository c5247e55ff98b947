#include "modules/estadistica/momentos.h"

#include <type_traits>

namespace cuencalia {

namespace {

struct MomentosCentrales {
    Double media;
    Double S2;      // sum of the squared deviations
    Double M3, M4;  // third and fourth central moments, divisor n
};

template <typename R>
R MediaDe(const ArregloBase<R>& x, int n) {
    R S;
    for (int i = 1; i <= n; ++i) {
        S += x(i);
    }
    const Double media = Double(S) / n;
    if constexpr (std::is_same_v<R, Single>) {
        return CSng(media);
    } else {
        return media;
    }
}

/// Two passes, the mean first: sums of raw powers in a single pass would lose all digits of a series with little
/// spread.
template <typename R>
MomentosCentrales CalcularMomentosCentrales(const ArregloBase<R>& x, int n) {
    const R media = MediaDe(x, n);
    MomentosCentrales m;
    m.media = media;
    Double S3, S4;
    for (int i = 1; i <= n; ++i) {
        const Double desvio = x(i) - media;
        const Double cuadrado = desvio * desvio;
        m.S2 += cuadrado;
        S3 += cuadrado * desvio;
        S4 += cuadrado * cuadrado;
    }
    m.M3 = S3 / n;
    m.M4 = S4 / n;
    return m;
}

ParametrosEstadisticos Muestrales(const MomentosCentrales& m, Double N) {
    ParametrosEstadisticos p;
    p.media = m.media;
    p.varianza = m.S2 / (N - 1);
    p.desviacion = Sqr(p.varianza);
    const Double s = p.desviacion;
    p.Cv = s / m.media;
    p.Cs = N * N * m.M3 / ((N - 1) * (N - 2) * (s * s * s));
    p.Ck = N * N * N * m.M4 / ((N - 1) * (N - 2) * (N - 3) * (s * s * s * s));
    return p;
}

}  // namespace

Double Media(const ArregloBase<Double>& x, int n) { return MediaDe(x, n); }

Single Media(const ArregloBase<Single>& x, int n) { return MediaDe(x, n); }

ParametrosEstadisticos ParametrosMuestrales(const ArregloBase<Double>& x, int n) {
    return Muestrales(CalcularMomentosCentrales(x, n), n);
}

ParametrosEstadisticos ParametrosMuestrales(const ArregloBase<Single>& x, int n) {
    return Muestrales(CalcularMomentosCentrales(x, n), n);
}

ParametrosEstadisticos ParametrosAgrupados(const ArregloBase<Double>& marcas, const ArregloBase<Double>& frecuencias,
                                           int clases, int n) {
    Double S;
    for (int i = 1; i <= clases; ++i) {
        S += frecuencias(i) * marcas(i);
    }
    MomentosCentrales m;
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
    return Muestrales(m, n);
}

ParametrosEstadisticos ParametrosPoblacionales(const ArregloBase<Double>& x, int n) {
    const MomentosCentrales m = CalcularMomentosCentrales(x, n);
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
    const Double N = n;
    Double T1, T2, T3, T4;
    for (int i = 1; i <= n; ++i) {
        // Number of ways to choose one, two and three of the values below x(i) (a, b, c) and above it (d, e, f).
        const Double a = i - 1;
        const Double b = a * (i - 2) / 2;
        const Double c = b * (i - 3) / 3;
        const Double d = n - i;
        const Double e = d * (d - 1) / 2;
        const Double f = e * (d - 2) / 3;
        const Double x = ordenada(i);
        T1 += x;
        T2 += x * (a - d);
        T3 += x * (b - 2 * a * d + e);
        T4 += x * (c - 3 * b * d + 3 * a * e - f);
    }
    // Number of ways to choose two, three and four of all n values.
    const Double C2 = N * (N - 1) / 2;
    const Double C3 = C2 * (N - 2) / 3;
    const Double C4 = C3 * (N - 3) / 4;
    return {.L1 = T1 / N, .L2 = T2 / C2 / 2, .L3 = T3 / C3 / 3, .L4 = T4 / C4 / 4};
}

}  // namespace cuencalia
