#include <boost/math/distributions/extreme_value.hpp>
#include <boost/math/distributions/normal.hpp>
#include <boost/math/special_functions/beta.hpp>
#include <boost/math/special_functions/digamma.hpp>
#include <boost/math/special_functions/gamma.hpp>
#include <functional>

#include "modules/distribuciones/exacta.h"
#include "modules/distribuciones/gamma.h"
#include "modules/distribuciones/gamma2.h"
#include "modules/distribuciones/gamma3.h"
#include "modules/distribuciones/gumbel.h"
#include "modules/distribuciones/loggumbel.h"
#include "modules/distribuciones/lognormal2.h"
#include "modules/distribuciones/lognormal3.h"
#include "modules/distribuciones/logpearson3.h"
#include "modules/distribuciones/normal.h"
#include "modules/distribuciones/smirnovkolmogorov.h"
#include "tests/datos_publicados.h"
#include "tests/numero_de_error.h"

// The exact functions are Boost's.

namespace cuencalia {
namespace {

using boost::math::gamma_p;
using boost::math::gamma_p_derivative;
using boost::math::gamma_p_inv;

using Tres = std::array<Double, 3>;

const boost::math::normal kNormalExacta;

double Completa(double x) {
    Double X = x, g;
    gammacompleta(X, g);
    EXPECT_NEAR(X.valor(), x, 20 * kRedondeo * (x + 10)) << "x comes back";
    return g.valor();
}

// Stirling's series at y = x + 10 with 1/1286 for 1/1260 in the term of y^-5 is off by this in the logarithm, and so
// is the function relatively.
double Desvio(double x) { return std::expm1((1 / 1286.0 - 1 / 1260.0) / std::pow(x + 10, 5)); }

// What is left of the relative error: the series alternates, so it errs by less than its next term, 1/(1188·y^9); the
// logarithm has terms up to y·log y, each rounded; the recurrence rounds twenty times; and x comes out of x + 10 - 10
// with the rounding of 16, which matters where x itself is small.
double Cota(double x) {
    const double y = x + 10;
    return 1 / (1188 * std::pow(y, 9)) + kRedondeo * (8 * y * std::log(y) + 20 + 16 / x);
}

TEST(Gamma, FuncionCompleta) {
    for (double x = 0.01; x < 161.6; x += 0.01) {
        ASSERT_NEAR(Completa(x) / boost::math::tgamma(x), 1 + Desvio(x), Cota(x)) << x;
    }
    // At x = 1: 1/1286 - 1/1260 = -26/1620360 = -1.604581e-5, over 11^5 = 161051.
    EXPECT_NEAR(Completa(1) - 1, -9.9632e-11, 1e-12);
    // The greatest Double is the gamma function of 171.624377, and the series is worked out at x + 10.
    EXPECT_EQ(NumeroDeError([] { return Completa(161.6243); }), 0);
    EXPECT_EQ(NumeroDeError([] { return Completa(161.6244); }), kDesbordamiento);
}

// The rest of the series of P(a, x) after k terms is P(a + k, x), and its k-th term is the derivative of P(a + k, x).
// So the number of terms that the stop rule takes, and what is missing from the sum, follow from exact functions.
// Besides g's error: the powers of x have exponents up to (a + k) / 3, whose rounding is multiplied by log x and
// cubed, that is (a + k)·log x units, below 300·log 220. The product a(a+1)…(a+k-1) may be beyond a Double.
TEST(Gamma, AcumuladaHastaSuReglaDeParada) {
    for (const double a : {0.05, 0.5, 1.0, 2.5, 10.0, 50.0, 100.0, 160.0}) {
        for (double x = 0.05 * a; x < 220; x *= 1.25) {
            int k = 1;
            while (gamma_p_derivative(a + k, x) >= 1e-7 * (gamma_p(a, x) - gamma_p(a + k, x))) {
                ++k;
            }
            if (std::lgamma(a + k) - std::lgamma(a) > std::log(std::numeric_limits<double>::max())) {
                EXPECT_EQ(NumeroDeError([&] { return ProbabilidadGamma(a, x); }), kDesbordamiento) << a << ", " << x;
                continue;
            }
            const double esperado = (gamma_p(a, x) - gamma_p(a + k, x)) / (1 + Desvio(a));
            ASSERT_NEAR(ProbabilidadGamma(a, x).valor(), esperado, (3e-13 + Cota(a)) * esperado) << a << ", " << x;
        }
    }
    Serie G = EnSerie({-1, -1, -1});
    ProbabilidadesGamma(2, EnSerie({0.5, 3, 7}), G, 2);
    EXPECT_EQ((Tres{G(1), G(2), G(3)}), (Tres{ProbabilidadGamma(2, 0.5), ProbabilidadGamma(2, 3), -1})) << "n is 2";
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
    EXPECT_NEAR(grande.Excedencia(10400).valor() / 3.8880170573988205e-5, 1, 1e-11);
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

TEST(Normal, FuncionYColas) {
    // Abramowitz and Stegun print |error| < 7.5e-8; the greatest one is 7.45e-8, near |z| = 0.7.
    for (int i = -40000; i <= 40000; ++i) {
        const double z = i / 1000.0;
        ASSERT_NEAR(FuncionNormal(z).valor(), cdf(kNormalExacta, z), 7.5e-8) << z;
    }
    // At 0, t = 1: the coefficients add up to 1.253314136, so q = 1.253314136/√(2π), and the branch is 1 - q.
    EXPECT_NEAR(FuncionNormal(0).valor(), 1 - 1.253314136 * 0.39894228040143268, 8 * kRedondeo);
    // A return period is 1/(1 - F): the relative error of the tail is its own. It grows outwards, and is held here to
    // 0.1 % up to z = 4.2, T = 75 000 years; an absolute error of 7.5e-8 would allow 0.6 % there.
    for (double z = 0.5; z <= 4.2; z += 0.01) {
        const double cola = cdf(kNormalExacta, -z);
        EXPECT_NEAR(FuncionNormal(-z).valor(), cola, 1e-3 * cola) << z;
        EXPECT_NEAR(1 - FuncionNormal(z).valor(), cola, 1e-3 * cola) << z;
    }
}

// The approximation of the half is not 0, so the value leaps there; 0.5 itself goes with the first branch.
TEST(Normal, Inversa) {
    for (double decada = -150; decada <= std::log10(0.5); decada += 0.003) {
        const double p = std::pow(10, decada), q = 1 - p;
        ASSERT_NEAR(InversaNormal(p).valor(), quantile(kNormalExacta, p), 4.5e-4) << p;
        if (q < 1) {
            ASSERT_NEAR(InversaNormal(q).valor(), quantile(kNormalExacta, q), 4.5e-4) << q;
        }
    }
    EXPECT_EQ(InversaNormal(1 - 0x1p-30), -InversaNormal(0x1p-30));  // 1 - p is exact
    const double mitad = InversaNormal(0.5).valor();
    EXPECT_NEAR(mitad, 0, 1e-6);
    EXPECT_NEAR(mitad, InversaNormal(std::nextafter(0.5, 0)).valor(), 1e-14);
    EXPECT_GT(std::fabs(mitad - InversaNormal(std::nextafter(0.5, 1)).valor()), 1e-8);
}

// The error of exp(-y), a unit or two of e^-y, is the relative error of the outer exponential; in the inverse an error
// of one unit of log p is one of y, and rounding adds units of y itself.
TEST(Gumbel, FuncionEInversa) {
    const boost::math::extreme_value exacta;
    for (double y = -6; y <= 30; y += 0.01) {
        const double G = cdf(exacta, y);
        EXPECT_NEAR(FuncionGumbel(y).valor(), G, 4 * kRedondeo * (1 + std::exp(-y)) * G) << y;
    }
    for (const double p : {1e-300, 1e-9, 0.01, 0.2, 0.5, 0.9, 0.99, 0.999, 0.9999, 1 - 1e-12}) {
        const double y = quantile(exacta, p);
        EXPECT_NEAR(InversaGumbel(p).valor(), y, 4 * kRedondeo * (1 + std::fabs(y))) << p;
    }
}

TEST(PosicionEscala, AjustesPublicados) {
    using Caso = std::tuple<const DistribucionPosicionEscala&, std::string, std::string, const char*, const char*>;
    for (const auto& [distribucion, muestra, metodo, posicion, escala] :
         {Caso{kNormal, "r_airquality_wind", ",Normal momentos lineales,", "mu", "sigma"},
          {kGumbel, "lmoments3_muestra11", ",Gumbel,", "xi", "alfa"},
          {kGumbel, "numerics_lmom_31", ",Gumbel momentos lineales,", "xi", "alfa"}}) {
        const MomentosLineales l = LinealesDe(muestra);
        const PosicionEscala d = distribucion.porMomentosLineales(l.L1, l.L2);
        EsperarPublicado(muestra + metodo + posicion, d.posicion);
        EsperarPublicado(muestra + metodo + escala, d.escala);
    }
    const ParametrosEstadisticos rio = ParametrosMuestrales(EnSerie(LeerColumna("rao_hamed_tippecanoe.csv")), 48);
    const PosicionEscala normal = kNormal.porMomentos(rio.media, rio.desviacion);
    EsperarPublicado("rao_hamed_tippecanoe,Normal momentos,media", normal.posicion);
    EsperarPublicado("rao_hamed_tippecanoe,Normal momentos,desviacion (n-1)", normal.escala);
    // Rao and Hamed took Q100 from the same approximation of the normal variable, and print no decimals.
    EsperarPublicado("rao_hamed_tippecanoe,Normal(12665; 4710),Q100", kNormal.Cuantil({12665, 4710}, 0.99));
    // The Gumbel variable of scale 6 has the deviation π·6/√6 = π·√6 and the mean 6·0.5772156649 above its mode.
    const PosicionEscala gumbel = kGumbel.porMomentos(10, std::numbers::pi * std::sqrt(6.0));
    EsperarRelativo(gumbel.escala, 6, 8 * kRedondeo);
    EsperarRelativo(gumbel.posicion, 6.5367060106, 16 * kRedondeo);  // 10 - 3.4632939894
}

// Ratios of L-moments of the gamma distribution of shape a (Hosking 1990, table 1): L2/L1 = Γ(a + 1/2)/(√π·Γ(a + 1)),
// and L3/L2 = 6·I(a, 2a) - 3 with the incomplete beta function at 1/3.
double RazonL2(double a) { return boost::math::tgamma_delta_ratio(a + 0.5, 0.5) / std::sqrt(std::numbers::pi); }
double RazonL3(double a) { return 6 * boost::math::ibeta(a, 2 * a, 1.0 / 3) - 3; }

Tres Parametros(const Pearson3& d) { return {d.gamma, d.beta, d.x0}; }

// Both samples have |t3| below 1/3, where lmom and lmoments3 use the same rational function.
TEST(Pearson3, AjustesPublicados) {
    const auto ajuste = [](const std::string& muestra) {
        const MomentosLineales l = LinealesDe(muestra);
        return Pearson3PorMomentosLineales(l.L1, l.L2, l.L3 / l.L2).value();
    };
    const Pearson3 d = ajuste("numerics_lmom_31"), e = ajuste("lmoments3_muestra11");
    EsperarPublicado("numerics_lmom_31,Pearson III momentos lineales,forma", d.gamma);
    EsperarPublicado("numerics_lmom_31,Pearson III momentos lineales,escala", d.beta);
    EsperarPublicado("numerics_lmom_31,Pearson III momentos lineales,xi", d.x0);
    EsperarPublicado("lmoments3_muestra11,Pearson III,media", e.x0 + e.beta * e.gamma);
    EsperarPublicado("lmoments3_muestra11,Pearson III,desviacion", e.beta * Sqr(e.gamma));
    EsperarPublicado("lmoments3_muestra11,Pearson III,asimetria", 2 / Sqr(e.gamma));
}

// From the L-moments of a distribution back to it. Hosking gives 5e-5 for the shape by t3; the scale is exact for the
// shape found, but for the gamma function's 1.7e-10 in each of two places.
TEST(Pearson3, PorMomentosDeAmbasClases) {
    for (double a = 0.01; a < 150; a *= 1.1) {
        SCOPED_TRACE(a);
        const double beta = 3, x0 = -20, l1 = x0 + beta * a, l2 = beta * a * RazonL2(a), tau = RazonL3(a);
        const Pearson3 d = Pearson3PorMomentosLineales(l1, l2, tau).value();
        EsperarRelativo(d.gamma, a, 5e-5);
        EsperarRelativo(d.beta, l2 / (d.gamma.valor() * RazonL2(d.gamma.valor())), 4e-10);
        EXPECT_NEAR((d.x0 + d.beta * d.gamma).valor(), l1, 1e-12 * (std::fabs(l1) + beta * a));
        EXPECT_EQ(Parametros(Pearson3PorMomentosLineales(l1, l2, -tau).value()), Parametros(d));
    }
    // At 1/3 the range of great skew begins: z = 2/3, numerator 2/3·(0.36067 - 2/3·(0.59567 - 2/3·0.25361)) =
    // 0.0508481481, denominator 1 - 2/3·(2.78861 - 2/3·(2.56096 - 2/3·0.77045)) = 0.0508496296.
    EXPECT_NEAR(Pearson3PorMomentosLineales(5, 1, 1.0 / 3)->gamma.valor(), 0.0508481481 / 0.0508496296, 5e-9);
    for (const auto& [l2, tau] : {std::pair{1.0, 1.0}, {1.0, -1.0}, {1.0, 1.5}, {0.0, 0.2}, {-1.0, 0.2}}) {
        EXPECT_FALSE(Pearson3PorMomentosLineales(5, l2, tau)) << l2 << ", " << tau;
    }
    EXPECT_TRUE(Pearson3PorMomentosLineales(5, 1, -0.999));
    // By s = 2 and Cs = ±1/2: gamma = 4/0.25, beta = ±0.5·2/2, x0 = 10 ∓ 2·2/0.5. All exact.
    EXPECT_EQ(Parametros(Pearson3PorMomentos(10, 2, 0.5)), (Tres{16, 0.5, 2}));
    EXPECT_EQ(Parametros(Pearson3PorMomentos(10, 2, -0.5)), (Tres{16, -0.5, 18}));
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
    // t = 1/4: z = 0.375; (1 - 0.1155) / (0.375·(1 + 0.375·(-0.05812 + 0.00661875))) = 0.8845/0.36775763671875.
    EsperarRelativo(Gamma2PorMomentosLineales(8, 2).gamma, 0.8845 / 0.36775763671875, 20 * kRedondeo);
    EsperarRelativo(Gamma2PorMomentosLineales(8, 2).beta, 8 * 0.36775763671875 / 0.8845, 20 * kRedondeo);
    for (const auto& [l1, l2] : {std::pair{1.0, 1.0}, {1.0, 2.0}, {1.0, 0.0}, {1.0, -0.5}, {-2.0, -1.0}}) {
        const Gamma2 d = Gamma2PorMomentosLineales(l1, l2);
        EXPECT_TRUE(d.gamma == 0 && d.beta == 0) << l1 << ", " << l2;
    }
}

// The extremes 1 and 5 and the median 2 give x0 = (1·5 - 2²)/(1 + 5 - 2·2) = 1/2, from where they lie at 0.5, 1.5 and
// 4.5: three times each other. The mirror image has x0 = (5 - 4)/(-6 + 4) = -1/2, above the sample. With an even n the
// median is half-way between the two in the middle: 0.5, 1, 2, 4.5, sum of the logarithms log 4.5.
TEST(LogNormal3, PorCuantilesDeLaMuestra) {
    const auto esperar = [](const std::vector<double>& valores, int n, double x0, double uy, double varianza) {
        const LogNormal3 d = AjustarLogNormal3(EnSerie(valores), n);
        EXPECT_EQ(d.x0, x0);
        EsperarRelativo(d.uy, uy, 8 * kRedondeo);
        EsperarRelativo(d.sy, std::sqrt(varianza), 16 * kRedondeo);
        return d;
    };
    const double u = std::log(1.5), v = std::pow(std::log(3), 2) * 2 / 3;  // divisor n
    const LogNormal3 d = esperar({1, 2, 5}, 3, 0.5, u, v);
    esperar({-5, -2, -1}, 3, -0.5, u, v);
    const double l2 = std::log(2), l4 = std::log(4.5);
    esperar({1, 1.5, 2.5, 5, 900}, 4, 0.5, l4 / 4, (2 * l2 * l2 + l4 * l4) / 4 - l4 * l4 / 16);
    // The exact value of T = 100, off by 4.5e-4 at most in the normal variable.
    const double exceso = 1.5 * std::exp(std::sqrt(v) * quantile(kNormalExacta, 0.99));
    EXPECT_NEAR(d.Cuantil(0.99).valor(), 0.5 + exceso, 4.5e-4 * std::sqrt(v) * exceso * 1.001);
    EXPECT_NEAR(d.Probabilidad(0.5 + exceso).valor(), 0.99, 7.5e-8);
}

TEST(SmirnovKolmogorov, DeltaTeoricoYTabular) {
    const Serie delta = EnSerie({0.1, 0.3, 0.05, 0.3, 0.9});
    EXPECT_EQ((Tres{MayorDelta(delta, 4), MayorDelta(delta, 5), PosicionWeibull(1, 4)}), (Tres{0.3, 0.9, 0.2}));
    EXPECT_EQ(DeltaTabular(kNivel5, 16), 0.34);
    // The limiting distribution has P(D·√n > c) = 2·exp(-2c²) to 1e-6 (Smirnov 1948); c is rounded to two decimals.
    for (const auto& [nivel, alfa] : {std::pair{kNivel20, 0.2}, {kNivel10, 0.1}, {kNivel5, 0.05}, {kNivel1, 0.01}}) {
        EXPECT_NEAR(DeltaTabular(nivel, 1).valor(), std::sqrt(-std::log(alfa / 2) / 2), 0.005) << alfa;
        EXPECT_EQ(std::stod(nivel.texto), 100 * alfa);
    }
}

TEST(Distribuciones, ErroresDeEjecucion) {
    int n = 0;
    const auto p3 = [](double tau) { return Pearson3PorMomentosLineales(5, 1, tau); };
    const auto ln3 = [](double a, double b, double c) { return AjustarLogNormal3(EnSerie({a, b, c}), 3); };
    const PosicionEscala d{2, 1};
    // The logarithm of -10 comes before what else fails, and that of -800 before e^800. P(2, 0) begins with 0 / 0, and
    // x is 0 in the second round for p = 0; 1/p² is 1e310 and e^710 2.2e308. x0 = -1/2 is above -2. The shape is
    // 1/(3π·tau²) and some more: 169.8 at 0.025, above the 161.1 of the gamma function, and 157 at 0.026.
    const std::pair<int, std::vector<std::function<void()>>> casos[] = {
        {0, {[&] { p3(0.026); }}},
        {kArgumentoNoValido,
         {[] { Completa(-10); }, [] { ProbabilidadGamma(0.5, -800); }, [&] { CuantilGamma(2, 1, n); },
          [] { InversaGumbel(1); }, [&] { kLogGumbel.Probabilidad(d, 0); }, [&] { ln3(-5, -2, -1).Probabilidad(-2); }}},
        {kDivisionPorCero,
         {[] { Completa(0); }, [] { InversaNormal(0); }, [&] { ln3(1, 2, 3); }, [] { Pearson3PorMomentos(10, 2, 0); },
          [&] { p3(0); }, [] { Gamma2PorVerosimilitud(1, 0); }}},
        {kDesbordamiento,
         {[] { ProbabilidadGamma(2, 0); }, [&] { CuantilGamma(2, 0, n); }, [] { InversaNormal(1e-155); },
          [] { FuncionGumbel(-710); }, [&] { ln3(2, 2, 2); }, [&] { p3(0.025); }}}};
    for (const auto& [numero, acciones] : casos) {
        for (const auto& accion : acciones) {
            EXPECT_EQ(NumeroDeError(accion), numero) << &accion - acciones.data();
        }
    }
}

}  // namespace
}  // namespace cuencalia
