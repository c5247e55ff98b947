#include "modules/regresion/ar1.h"

#include "modules/estadistica/momentos.h"

namespace cuencalia {

namespace {

template <typename R>
ModeloAR1 Ajustar(const ArregloBase<R>& x, int n) {
    const R media = Media(x, n);
    Double S2, S11;
    for (int i = 1; i <= n; ++i) {
        const Double desvio = x(i) - media;
        S2 += desvio * desvio;
        if (i < n) {
            S11 += desvio * Double(x(i + 1) - media);
        }
    }
    const Double varianza = S2 / (n - 1);
    ModeloAR1 modelo;
    modelo.media = media;
    modelo.c0 = S2 / n;
    modelo.c1 = S11 / n;
    modelo.ro1 = CSng(modelo.c1 / modelo.c0);
    modelo.varE = CSng(varianza * (1 - Double(modelo.ro1) * modelo.ro1));
    modelo.Se = Sqr(modelo.varE);
    return modelo;
}

}  // namespace

ModeloAR1 AjustarAR1(const ArregloBase<Single>& x, int n) { return Ajustar(x, n); }

ModeloAR1 AjustarAR1DeLogaritmos(const ArregloBase<Single>& x, int n) {
    const Double ln10 = Log(10);
    ArregloBase<Double> logaritmos(1, n);
    for (int i = 1; i <= n; ++i) {
        logaritmos(i) = Log(x(i)) / ln10;
    }
    return Ajustar(logaritmos, n);
}

const TransformacionAR1 kSinTransformar{AjustarAR1, [](Double y) { return y; }};
const TransformacionAR1 kLogaritmica{AjustarAR1DeLogaritmos, [](Double y) { return Elevar(10, y); }};

void GenerarNormalEstandar(ArregloBase<Double>& Z, int N) {
    const Single dosPi = 2 * CSng(kPi);
    for (int i = 1; i <= N; i += 2) {
        const Single u1 = CSng(Rnd());
        const Single u2 = CSng(Rnd());
        const Double radio = Sqr(-2 * Log(u1));
        const Single angulo = dosPi * u2;
        Z(i) = radio * Cos(angulo);
        if (i < N) {
            Z(i + 1) = radio * Sin(angulo);
        }
    }
}

void GenerarAR1(const ModeloAR1& modelo, const ArregloBase<Double>& Z, int N, ArregloBase<Double>& Y) {
    Double anterior = modelo.media;
    for (int i = 1; i <= N; ++i) {
        anterior = Abs(modelo.media + modelo.ro1 * (anterior - modelo.media) + Z(i) * modelo.Se);
        Y(i) = anterior;
    }
}

}  // namespace cuencalia
