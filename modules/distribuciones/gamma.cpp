#include "modules/distribuciones/gamma.h"

#include <vector>

namespace cuencalia {

namespace {

constexpr int kRondas = 1200;
constexpr Double kParteMinima = 1e-7;    // of the sum: a lesser term ends the series
constexpr Double kTolerancia = 0.00005;  // of P in the inversion
// 1/1260 is that of Stirling's series. This one is the method's own; no figure that is shown can tell them apart.
constexpr Double kTercerCoeficiente = Double(1) / 1286;

/// The fraction of x by which one round of Gammainversa moves x in the upper tail; the steps are small because the
/// density is small there.
Double Paso(Double p) {
    if (p < 0.9) {
        return 0.1;
    }
    return p < 0.995 ? 0.01 : 0.002;
}

/// The fourth roots of a, a(a+1), a(a+1)(a+2) …: they depend on the shape a alone, so they are calculated once and used
/// for every x of a search or a series.
class RaicesFactoriales {
  public:
    explicit RaicesFactoriales(Double a) : a_(a) { raices_.reserve(128); }

    /// The fourth root of the product of k factors. Roots must be asked for in order: k may exceed the greatest k asked
    /// for before by at most 1.
    Double operator()(std::size_t k) {
        if (k > raices_.size()) {
            d_ *= a_ + (k - 1);
            raices_.push_back(Elevar(d_, 0.25));
        }
        return raices_[k - 1];
    }

  private:
    Double a_, d_ = 1;
    std::vector<Double> raices_;
};

Double SumarSerie(Double a, RaicesFactoriales& raices, Double x) {
    Double e_menos_x;
    Double s;
    Double cociente;
    std::size_t k = 0;
    do {
        ++k;
        // The term x^(a+k-1) e^-x / (a (a+1) … (a+k-1)), calculated from the third root of the power and the fourth
        // root of the product, so that neither overflows.
        const Double raiz = raices(k);
        const Double u = Elevar(x, (a + (k - 1)) / 3) / raiz;
        if (k == 1) {
            e_menos_x = Exp(-x);  // After Elevar: for a negative x it is Elevar that must raise its error first.
        }
        const Double v = e_menos_x / raiz;
        const Double termino = u * (u * (v * u));
        s += termino;
        cociente = termino / s;
    } while (cociente >= kParteMinima);
    return s;
}

}  // namespace

void gammacompleta(Double& x, Double& g) {
    const Double x0 = x;
    x += 10;
    const Double c1 = Double(1) / 12;
    const Double c2 = Double(-1) / 360;
    const Double c4 = Double(-1) / 1680;
    const Double lnx = Log(x);
    const Double L = (x - 0.5) * lnx - x + Log(2 * kPi) / 2 + c1 / x + c2 / Elevar(x, 3) +
                     kTercerCoeficiente / Elevar(x, 5) + c4 / Elevar(x, 7);
    g = Exp(L);
    for (Double k = Int(x); k >= Int(x0) + 1; k -= 1) {
        x -= 1;
        g /= x;
    }
}

void gammaacumulada(Double a, Double x, Double& r, Double g) {
    RaicesFactoriales raices(a);
    r = SumarSerie(a, raices, x) / g;
}

void Gammainversa(Double& a, Double p, Double& r, Double& x, int& n) {
    x = a;
    r = 0.5;
    Double g;
    gammacompleta(a, g);
    RaicesFactoriales raices(a);
    for (n = 1; n <= kRondas; ++n) {
        r = SumarSerie(a, raices, x) / g;
        if (p < 0.8) {
            x *= Elevar(p / r, Double(1) / 3);
        } else {
            x -= Log((1 - p) / (1 - r)) * (Paso(p) * x);
        }
        if (Abs(p - r) < kTolerancia) {
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
    RaicesFactoriales raices(a);
    for (int i = 1; i <= n; ++i) {
        G(i) = SumarSerie(a, raices, y(i)) / g;
    }
}

}  // namespace cuencalia
