#include "modules/distribuciones/gamma.h"

namespace cuencalia {

namespace {

constexpr int kRondas = 1200;

/// The fraction of x by which a round moves it in the upper tail: small steps, as the density is small there.
Double Paso(Double p) {
    if (p < 0.9) {
        return 0.1;
    }
    return p < 0.995 ? 0.01 : 0.002;
}

}  // namespace

void gammacompleta(Double& x, Double& g) {
    const Double x0 = x;
    x += 10;
    const Double c1 = Double(1) / 12;
    const Double c2 = Double(-1) / 360;
    const Double c3 = Double(1) / 1286;
    const Double c4 = Double(-1) / 1680;
    const Double lnx = Log(x);
    const Double L =
        (x - 0.5) * lnx - x + Log(2 * kPi) / 2 + c1 / x + c2 / Elevar(x, 3) + c3 / Elevar(x, 5) + c4 / Elevar(x, 7);
    g = Exp(L);
    for (Double k = Int(x); k >= Int(x0) + 1; k -= 1) {
        x -= 1;
        g /= x;
    }
}

void gammaacumulada(Double a, Double x, Double& r, Double g) {
    const Double e_menos_x = Exp(-x);
    Double s = 0;
    Double d = 1;
    Double cociente;
    int k = 0;
    do {
        ++k;
        // The term x^(a+k-1) e^-x / (a (a+1) … (a+k-1)) by third powers and fourth roots: neither the power nor the
        // product overflows on the way.
        d *= a + (k - 1);
        const Double raiz = Elevar(d, 0.25);
        const Double u = Elevar(x, (a + (k - 1)) / 3) / raiz;
        const Double v = e_menos_x / raiz;
        const Double termino = u * (u * (v * u));
        s += termino;
        cociente = termino / s;
    } while (cociente >= 0.0000001);
    r = s / g;
}

void Gammainversa(Double& a, Double p, Double& r, Double& x, int& n) {
    x = a;
    r = 0.5;
    Double g;
    gammacompleta(a, g);
    for (n = 1; n <= kRondas; ++n) {
        gammaacumulada(a, x, r, g);
        if (p < 0.8) {
            x *= Elevar(p / r, Double(1) / 3);
        } else {
            x -= Log((1 - p) / (1 - r)) * (Paso(p) * x);
        }
        if (Abs(p - r) < 0.00005) {
            return;
        }
    }
}

Double ProbabilidadGamma(Double a, Double x) {
    Double g, r;
    gammacompleta(a, g);
    gammaacumulada(a, x, r, g);
    return r;
}

Double CuantilGamma(Double a, Double p, int& n) {
    Double r, x;
    Gammainversa(a, p, r, x, n);
    return x;
}

void ProbabilidadesGamma(Double a, const ArregloBase<Double>& y, ArregloBase<Double>& G, int n) {
    Double g;
    gammacompleta(a, g);
    for (int i = 1; i <= n; ++i) {
        gammaacumulada(a, y(i), G(i), g);
    }
}

}  // namespace cuencalia
