#include <boost/math/distributions/normal.hpp>
#include <boost/math/special_functions/beta.hpp>
#include <boost/math/special_functions/digamma.hpp>
#include <boost/math/special_functions/gamma.hpp>

#include "modules/distribuciones/comprobacion.h"
#include "modules/distribuciones/exacta.h"
#include "modules/distribuciones/gamma.h"
#include "modules/distribuciones/gamma2.h"
#include "modules/distribuciones/lognormal3.h"
#include "modules/distribuciones/normal.h"
#include "modules/distribuciones/pearson3.h"
#include "modules/distribuciones/smirnovkolmogorov.h"
#include "tests/datos_publicados.h"
#include "tests/numero_de_error.h"

// The exact functions are Boost's.

namespace cuencalia {
namespace {

using boost::math::gamma_p_derivative;
using boost::math::gamma_p_inv;

double Completa(double x) {
    Double X = x, g;
    gammacompleta(X, g);
    return g.valor();
}

// Stirling's series at 11 with 1/1286 for 1/1260 in the term of y^-5: (1/1286 - 1/1260)/11^5 = -26/1620360/161051.
// The greatest Double is the gamma function of 171.624377, and the series is worked out at x + 10.
TEST(Gamma, FuncionCompleta) {
    EXPECT_NEAR(Completa(1) - 1, -9.9632e-11, 1e-12);
    for (const double x : {0.01, 0.5, 3.7, 40.0, 161.0}) {
        EXPECT_NEAR(Completa(x) / boost::math::tgamma(x), 1, 2e-10) << x;
    }
    EXPECT_EQ(NumeroDeError([] { return Completa(161.6243); }), 0);
    EXPECT_EQ(NumeroDeError([] { return Completa(161.6244); }), kDesbordamiento);
    EXPECT_EQ(NumeroDeError([] { return Completa(-10); }), kArgumentoNoValido);
}

// P(1, 1) = (1/1! + 1/2! + …)/e. The term 1/10! is above 1e-7 of the sum, so the last one that is added is 1/11!: what
// is missing is (1/12! + 1/13! + …)/e = 8.3161e-10. P(2, 0) begins with 0 / 0.
TEST(Gamma, AcumuladaHastaSuReglaDeParada) {
    const double P = ProbabilidadGamma(1, 1).valor();
    EXPECT_NEAR(P * Completa(1), 1 - 1 / std::numbers::e - 8.3161e-10, 1e-13);
    EXPECT_NEAR(ProbabilidadGamma(50, 60).valor(), boost::math::gamma_p(50, 60), 3e-7);
    EXPECT_EQ(NumeroDeError([] { return ProbabilidadGamma(2, 0); }), kDesbordamiento);
    EXPECT_EQ(NumeroDeError([] { return ProbabilidadGamma(0.5, -800); }), kArgumentoNoValido);
}

/// P, x and the number of rounds.
std::tuple<double, double, int> Invertir(double a, double p) {
    Double forma = a, r, x;
    int rondas = 0;
    Gammainversa(forma, p, r, x, rondas);
    return {r.valor(), x.valor(), rondas};
}

// The inversion stops at the first P(a, x) within 5e-5 of p and corrects x once more. The correction goes towards p and
// not beyond the other bound, so x lies between the exact quantiles of p - 5e-5 and p + 5e-5, widened by the 3e-7 of P.
// The x before it has P = r but for 3e-7, and that over the density is the tolerance of the last correction: it tells
// the steps 0.1, 0.01 and 0.002 apart, and at 0.8, 0.9 and 0.995 which range they belong to.
TEST(GammaInversa, DentroDeLaToleranciaYUltimaCorreccion) {
    for (const double a : {0.5, 1.0, 4.0, 18.0}) {
        for (const double p : {0.25, 0.5, 0.7999, 0.8, 0.85, 0.8999, 0.9, 0.95, 0.9949, 0.995, 0.999, 0.9999}) {
            SCOPED_TRACE(testing::Message() << "a = " << a << ", p = " << p);
            const auto [r, x, rondas] = Invertir(a, p);
            EXPECT_LT(std::fabs(r - p), 5e-5);
            EXPECT_TRUE(x >= gamma_p_inv(a, p - 5.03e-5) && x <= gamma_p_inv(a, p + 5.03e-5)) << x;
            const double antes = gamma_p_inv(a, r), densidad = gamma_p_derivative(a, antes);
            const double paso = p < 0.9 ? 0.1 : p < 0.995 ? 0.01 : 0.002;
            const double factor = p < 0.8 ? std::cbrt(p / r) : 1 - paso * std::log((1 - p) / (1 - r));
            EXPECT_NEAR(x, antes * factor, 3e-7 / densidad);
            if (p >= 0.9) {
                // The small steps come from below, so it is the first P within the bound that ends the search: a step
                // takes off the fraction h·x·f/(1 - p) of the distance at most.
                EXPECT_GT(p - r, 5e-5 * (1 - 1.1 * paso * antes * densidad / (1 - p)));
            }
        }
    }
}

// The first x is a, and P(1, 1) = 1 - 1/e = 0.632121 meets p = 0.63212 at once. Near the solution a round below p = 0.8
// multiplies the distance by 1 - x·f(x)/(3·P(x)): it comes nearer only while x·f/P < 6, at the median up to a shape of
// 57. Then the last x comes back without an error.
TEST(GammaInversa, CuentaDeRondas) {
    const auto rondas = [](double a, double p) { return std::get<int>(Invertir(a, p)); };
    EXPECT_EQ(rondas(1, 0.63212), 1);
    EXPECT_GT(rondas(1, 0.63), 1);
    EXPECT_LE(rondas(54, 0.5), 1200);
    EXPECT_EQ(rondas(60, 0.5), 1201);
    EXPECT_GT(std::fabs(std::get<0>(Invertir(60, 0.5)) - 0.5), 5e-5);
}

// By mpmath 1.3 with 30 digits. The first is Pearson III with mean 100, deviation 30 and skew -0.9: shape 4/0.81, scale
// -13.5, end 100 + 60/0.9.
TEST(Exacta, CuantilesYColas) {
    using Reducida = DistribucionExacta::Reducida;
    const DistribucionExacta invertida{
        .reducida = Reducida::Gamma, .posicion = 100 + 60 / 0.9, .escala = -13.5, .forma = 4 / 0.81};
    const DistribucionExacta grande{.reducida = Reducida::Gamma, .posicion = 0, .escala = 1, .forma = 10000};
    const DistribucionExacta chica{.reducida = Reducida::Gamma, .posicion = 0, .escala = 1, .forma = 0.3};
    const DistribucionExacta normal{.reducida = Reducida::Normal, .posicion = 3, .escala = 2};
    struct Caso {
        const DistribucionExacta& d;
        double p, x;
    };
    for (const Caso& c : {Caso{invertida, 0.01, 11.279617488659889}, Caso{invertida, 0.5, 104.44196421572225},
                          Caso{invertida, 0.99, 149.80025898860369}, Caso{grande, 0.001, 9693.8243858237259},
                          Caso{grande, 0.999, 10311.875224539538}, Caso{chica, 0.1, 3.2372462182343277e-4},
                          Caso{chica, 0.999, 4.6189360427913343}, Caso{normal, 0.99, 3 + 2 * 2.3263478740408411}}) {
        EXPECT_NEAR(c.d.Cuantil(c.p).valor() / c.x, 1, 2e-14) << c.x;
        EXPECT_NEAR(c.d.NoExcedencia(c.x).valor(), c.p, 2e-13) << c.x;
        EXPECT_NEAR(c.d.Excedencia(c.x).valor() / (1 - c.p), 1, 1e-10) << c.x;
    }
    // ln(x - 10) is Gumbel with position 1 and scale 2: exp(-exp(0.5)) at x = 11, and 1 - exp(-e^-20) far out.
    const DistribucionExacta logaritmos{
        .reducida = Reducida::Gumbel, .deLogaritmos = true, .posicion = 1, .escala = 2, .umbral = 10};
    EXPECT_NEAR(logaritmos.NoExcedencia(11).valor(), std::exp(-std::exp(0.5)), 1e-16);
    EXPECT_NEAR(logaritmos.Excedencia(10 + std::exp(41)).valor() / std::exp(-20), 1, 2e-9);
    EXPECT_NEAR(logaritmos.Cuantil(std::exp(-std::exp(0.5))).valor(), 11, 1e-13);
    // Beyond an end, and where there is none.
    EXPECT_EQ(logaritmos.NoExcedencia(10), 0);
    EXPECT_EQ(invertida.NoExcedencia(167), 1);
    EXPECT_EQ(NumeroDeError([&] { return normal.Cuantil(1); }), kArgumentoNoValido);
}

TEST(Exacta, SeDiceLaDiferencia) {
    const auto texto = [](double valor, double T) {
        return Comprobar({.valor = valor, .mostrado = "?", .patron = "0", .T = T, .exacto = [] { return Double(100); }})
            .texto;
    };
    EXPECT_EQ(texto(101, 100), "Comprobado: valor exacto 100, diferencia 1.00 %");
    EXPECT_EQ(texto(98, 20000), "Atención: valor exacto 100, diferencia −2.00 % (error de la aproximación)");
    EXPECT_TRUE(texto(98, 20001).ends_with("(T mayor que 20000 está fuera del alcance de la aproximación)"));
}

TEST(Normal, FuncionEInversa) {
    const boost::math::normal exacta;
    // Abramowitz and Stegun print |error| < 7.5e-8; the greatest one is 7.45e-8, near |z| = 0.7. A return period is
    // 1/(1 - F), and 0.1 % of the tail is that of its own: an absolute error of 7.5e-8 would allow 0.6 % at 4.2.
    for (double z = -6; z <= 6; z += 0.01) {
        ASSERT_NEAR(FuncionNormal(z).valor(), cdf(exacta, z), 7.5e-8) << z;
        ASSERT_NEAR(
            (1 - FuncionNormal(std::fmin(std::fabs(z), 4.2))).valor() / cdf(exacta, -std::fmin(std::fabs(z), 4.2)), 1,
            1e-3);
    }
    for (double p = 1e-150; p < 0.5; p *= 1.1) {
        ASSERT_NEAR(InversaNormal(p).valor(), quantile(exacta, p), 4.5e-4) << p;
        ASSERT_NEAR(InversaNormal(1 - std::fmax(p, 1e-12)).valor(), -quantile(exacta, std::fmax(p, 1e-12)), 5e-4);
    }
    // The approximation of the half is not 0; 0.5 itself goes with the first branch.
    EXPECT_LT(std::fabs((InversaNormal(0.5) - InversaNormal(std::nextafter(0.5, 0))).valor()), 1e-14);
}

// Ratios of L-moments of the gamma distribution of shape a (Hosking 1990, table 1): L2/L1 = Γ(a + 1/2)/(√π·Γ(a + 1)),
// and L3/L2 = 6·I(a, 2a) - 3 with the incomplete beta function at 1/3.
double RazonL2(double a) { return boost::math::tgamma_delta_ratio(a + 0.5, 0.5) / std::sqrt(std::numbers::pi); }
double RazonL3(double a) { return 6 * boost::math::ibeta(a, 2 * a, 1.0 / 3) - 3; }

// From the L-moments of a distribution back to it. Hosking gives 5e-5 for the shape by t3; the scale is exact for the
// shape found, but for the gamma function's 1.7e-10 in each of two places.
TEST(Pearson3, PorMomentosLineales) {
    for (double a = 0.01; a < 150; a *= 1.1) {
        SCOPED_TRACE(a);
        const double beta = 3, x0 = -20, l1 = x0 + beta * a, l2 = beta * a * RazonL2(a), tau = RazonL3(a);
        const Pearson3 d = Pearson3PorMomentosLineales(l1, l2, tau).value();
        EsperarRelativo(d.gamma, a, 5e-5);
        EsperarRelativo(d.beta, l2 / (d.gamma.valor() * RazonL2(d.gamma.valor())), 4e-10);
        EXPECT_NEAR((d.x0 + d.beta * d.gamma).valor(), l1, 1e-12 * (std::fabs(l1) + beta * a));
        EXPECT_EQ(Pearson3PorMomentosLineales(l1, l2, -tau)->beta, d.beta);
    }
    // At 1/3 the range of great skew begins: z = 2/3, numerator 2/3·(0.36067 - 2/3·(0.59567 - 2/3·0.25361)) =
    // 0.0508481481, denominator 1 - 2/3·(2.78861 - 2/3·(2.56096 - 2/3·0.77045)) = 0.0508496296.
    EXPECT_NEAR(Pearson3PorMomentosLineales(5, 1, 1.0 / 3)->gamma.valor(), 0.0508481481 / 0.0508496296, 5e-9);
    for (const auto& [l2, tau] : {std::pair{1.0, 1.0}, {1.0, -1.0}, {1.0, 1.5}, {0.0, 0.2}, {-1.0, 0.2}}) {
        EXPECT_FALSE(Pearson3PorMomentosLineales(5, l2, tau)) << l2 << ", " << tau;
    }
    // The shape is 1/(3π·tau²) and some more: 169.8 at 0.025, above the 161.1 of the gamma function, and 157 at 0.026.
    EXPECT_EQ(NumeroDeError([] { return Pearson3PorMomentosLineales(5, 1, 0.025); }), kDesbordamiento);
    EXPECT_EQ(NumeroDeError([] { return Pearson3PorMomentosLineales(5, 1, 0.026); }), 0);
}

// The likelihood equation is log(gamma) - digamma(gamma) = y. Greenwood and Durand print the greatest errors 0.0088 %
// and 0.0054 % in their two ranges, rounded; they are those of y·gamma, which goes from 0.5 to 1 as the shape falls.
TEST(Gamma2, MaximaVerosimilitud) {
    for (double a = 0.06; a < 500; a *= 1.05) {
        SCOPED_TRACE(a);
        const double y = std::log(a) - boost::math::digamma(a);
        const Gamma2 d = Gamma2PorVerosimilitud(50, std::log(50) - y);
        EXPECT_NEAR(y * d.gamma.valor(), y * a, y <= 0.5772 ? 8.85e-5 : 5.45e-5);
        EXPECT_NEAR((d.gamma * d.beta).valor(), 50, 1e-13);
    }
    // The first range ends with 0.5772: (0.5000876 + 0.0951717374 - 0.0181330239)/0.5772. The second one would give
    // 1.0001.
    EXPECT_NEAR(Gamma2PorVerosimilitud(1, -0.5772).gamma.valor(), 0.5771263135 / 0.5772, 1e-9);
}

// From a ratio of 1/2 on the range is Hosking's. Below it takes z = 6·t² where his is z = π·t², so the shape of t is
// the distribution's whose ratio is t·√(6/π), to the 1e-5 of his approximation as long as that ratio is in its range.
TEST(Gamma2, PorMomentosLineales) {
    for (double a = 0.01; a < 1; a *= 1.05) {
        const Gamma2 d = Gamma2PorMomentosLineales(50, 50 * RazonL2(a));
        EsperarRelativo(d.gamma, a, 7e-5);
        EXPECT_NEAR((d.gamma * d.beta).valor(), 50, 1e-13);
    }
    for (double a = 1.01; a < 500; a *= 1.1) {
        const double t = RazonL2(a) * std::sqrt(std::numbers::pi / 6);
        EsperarRelativo(Gamma2PorMomentosLineales(50, 50 * t).gamma, a, 1e-5);
    }
    // 1/2 is the exponential distribution's, of shape 1: z = 1/2, both numerator and denominator 0.211975. The other
    // range would give 0.38: t = 0.4999, z = 1.49940006; 0.53818478 / (1.49940006·(1 - 0.04746439)) = 0.376819.
    EsperarRelativo(Gamma2PorMomentosLineales(8, 4).gamma, 1, 20 * kRedondeo);
    EXPECT_NEAR(Gamma2PorMomentosLineales(1, 0.4999).gamma.valor(), 0.376819, 1e-6);
    for (const auto& [l1, l2] : {std::pair{1.0, 1.0}, {1.0, 2.0}, {1.0, 0.0}, {1.0, -0.5}, {-2.0, -1.0}}) {
        const Gamma2 d = Gamma2PorMomentosLineales(l1, l2);
        EXPECT_TRUE(d.gamma == 0 && d.beta == 0) << l1 << ", " << l2;
    }
}

// Extremes 1 and 5 and the median 2, the mean of the two in the middle: x0 = (1·5 - 2²)/(1 + 5 - 2·2) = 1/2, and the
// logarithms of 0.5, 1, 2, 4.5 add up to log 4.5. The mirror image of 1, 2, 5 has x0 = -1/2, above the sample.
TEST(LogNormal3, PorCuantilesDeLaMuestra) {
    const LogNormal3 d = AjustarLogNormal3(EnSerie({1, 1.5, 2.5, 5, 900}), 4);
    const double l2 = std::log(2), l4 = std::log(4.5);
    EXPECT_EQ(d.x0, 0.5);
    EsperarRelativo(d.uy, l4 / 4, 8 * kRedondeo);
    EsperarRelativo(d.sy, std::sqrt((2 * l2 * l2 + l4 * l4) / 4 - l4 * l4 / 16), 16 * kRedondeo);
    const LogNormal3 invertida = AjustarLogNormal3(EnSerie({-5, -2, -1}), 3);
    EXPECT_EQ(invertida.x0, -0.5);
    EsperarRelativo(invertida.uy, std::log(1.5), 8 * kRedondeo);
}

// The limiting distribution has P(D·√n > c) = 2·exp(-2c²) to 1e-6 (Smirnov 1948); c is rounded to two decimals. The
// simulated ones between 20 and 30 values: at 24 the reciprocal root has gone 0.474809 of its way, so that c is
// 0.7239 + 0.474809·0.0389 = 0.742370 for the normal by ordinary moments.
TEST(SmirnovKolmogorov, Deltas) {
    EXPECT_EQ(MayorDelta(EnSerie({0.1, 0.3, 0.05, 0.2, 0.9}), 4), 0.3);
    for (const auto& [nivel, alfa] : {std::pair{kNivel20, 0.2}, {kNivel10, 0.1}, {kNivel5, 0.05}, {kNivel1, 0.01}}) {
        EXPECT_NEAR(DeltaTabular(nivel, 1).valor(), std::sqrt(-std::log(alfa / 2) / 2), 0.005) << alfa;
        EXPECT_EQ(std::stod(nivel.texto), 100 * alfa);
    }
    using Reducida = DistribucionExacta::Reducida;
    EXPECT_NEAR(DeltaConParametrosAjustados(Reducida::Normal, false, 24).valor() * std::sqrt(24), 0.742370, 1e-6);
    EXPECT_NEAR(DeltaConParametrosAjustados(Reducida::Gumbel, true, 30).valor() * std::sqrt(30), 0.7787, 1e-12);
    EXPECT_NEAR(DeltaConParametrosAjustados(Reducida::Normal, true, 2000).valor() * std::sqrt(2000), 0.8649, 1e-12);
}

}  // namespace
}  // namespace cuencalia
