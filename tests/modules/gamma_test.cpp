#include "modules/distribuciones/gamma.h"

#include <gtest/gtest.h>

#include <boost/math/special_functions/gamma.hpp>

#include "tests/numero_de_error.h"

namespace cuencalia {
namespace {

using boost::math::gamma_p;
using boost::math::gamma_p_derivative;
using boost::math::gamma_p_inv;

constexpr double kRedondeo = std::numeric_limits<double>::epsilon() / 2;  // of one operation, relative

double Completa(double x) {
    Double X = x, g;
    gammacompleta(X, g);
    return g.valor();
}

double Acumulada(double a, double x) {
    Double r;
    gammaacumulada(a, x, r, Completa(a));
    return r.valor();
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

TEST(GammaCompleta, ErrorDelTercerCoeficiente) {
    for (double x = 0.01; x < 161.6; x += 0.01) {
        Double X = x, g;
        gammacompleta(X, g);
        ASSERT_NEAR(g.valor() / boost::math::tgamma(x), 1 + Desvio(x), Cota(x)) << x;
        ASSERT_NEAR(X.valor(), x, 20 * kRedondeo * (x + 10));
    }
    // At x = 1: 1/1286 - 1/1260 = -26/1620360 = -1.604581e-5, over 11^5 = 161051.
    EXPECT_NEAR(Completa(1) - 1, -9.9632e-11, 1e-12);
}

// Factorials, and Abramowitz and Stegun (1964), table 6.1, to ten decimals.
TEST(GammaCompleta, ValoresDeTablas) {
    const std::pair<double, double> tabla[] = {
        {1.1, 0.9513507699}, {1.25, 0.9064024771},    {1.5, 0.8862269255}, {1.75, 0.9190625268}, {5, 24},
        {10, 362880},        {20, 121645100408832000}};
    for (const auto& [x, publicado] : tabla) {
        EXPECT_NEAR(Completa(x), publicado * (1 + Desvio(x)), 0.5e-10 + Cota(x) * publicado) << x;
    }
}

TEST(GammaCompleta, ErroresDeEjecucion) {
    const auto error = [](double x) { return NumeroDeError([&] { return Completa(x); }); };
    EXPECT_EQ(error(-10), kArgumentoNoValido) << "the logarithm fails first";
    EXPECT_EQ(error(-10.5), kArgumentoNoValido);
    EXPECT_EQ(error(-11), kArgumentoNoValido);
    EXPECT_EQ(error(0), kDivisionPorCero);
    EXPECT_EQ(error(-3), kDivisionPorCero);
    // The greatest Double is the gamma function of 171.624377, and the series is worked out at x + 10.
    EXPECT_EQ(error(161.6243), 0);
    EXPECT_EQ(error(161.6244), kDesbordamiento);
}

// The rest of the series of P(a, x) after k terms is P(a + k, x), and its k-th term is the derivative of P(a + k, x).
// So the number of terms that the stop rule takes, and what is missing from the sum, follow from exact functions.
struct SerieCortada {
    SerieCortada(double a, double x) {
        int k = 1;
        while (gamma_p_derivative(a + k, x) >= 1e-7 * (gamma_p(a, x) - gamma_p(a + k, x))) {
            ++k;
        }
        suma = gamma_p(a, x) - gamma_p(a + k, x);
        desborda = std::lgamma(a + k) - std::lgamma(a) > std::log(std::numeric_limits<double>::max());
    }

    double suma;
    bool desborda;  ///< The product a(a+1)…(a+k-1).
};

// Besides g's error: the powers of x have exponents up to (a + k) / 3, whose rounding is multiplied by log x and
// cubed, that is (a + k)·log x units, below 300·log 220.
TEST(GammaAcumulada, SerieHastaSuReglaDeParada) {
    int comparados = 0, desbordes = 0;
    for (const double a : {0.05, 0.5, 1.0, 2.5, 10.0, 50.0, 100.0, 160.0}) {
        for (double x = 0.05 * a; x < 220; x *= 1.25) {
            SCOPED_TRACE(testing::Message() << "a = " << a << ", x = " << x);
            const SerieCortada serie(a, x);
            if (serie.desborda) {
                EXPECT_EQ(NumeroDeError([&] { return Acumulada(a, x); }), kDesbordamiento);
                ++desbordes;
                continue;
            }
            const double esperado = serie.suma / (1 + Desvio(a));
            ASSERT_NEAR(Acumulada(a, x), esperado, (3e-13 + Cota(a)) * esperado);
            ASSERT_NEAR(Acumulada(a, x), gamma_p(a, x), 3e-7 * gamma_p(a, x));  // as the header promises
            ++comparados;
        }
    }
    EXPECT_GT(comparados, 150);
    EXPECT_GT(desbordes, 10);
}

TEST(GammaAcumulada, ErroresDeEjecucion) {
    EXPECT_EQ(NumeroDeError([] { return Acumulada(2, 0); }), kDesbordamiento) << "0 / 0 of the first term";
    EXPECT_EQ(NumeroDeError([] { return Acumulada(0.5, -800); }), kArgumentoNoValido) << "the power, not e^800";
    EXPECT_EQ(NumeroDeError([] { return Acumulada(160, 1e-3); }), kDesbordamiento) << "x^160 is 0 in a Double";
    for (const double a : {0.5, 1.0, 3.0}) {  // 3: the first power, (-1)^1, is real; the second is not
        EXPECT_EQ(NumeroDeError([&] { return Acumulada(a, -1); }), kArgumentoNoValido) << a;
    }
}

TEST(GammaAcumulada, DeUnValorYDeUnaSerie) {
    Serie y, G;
    y(1) = 0.5, y(2) = 3, y(3) = 7;
    G(3) = -1;
    ProbabilidadesGamma(2, y, G, 2);
    for (int i = 1; i <= 2; ++i) {  // P(2, y) = 1 - (1 + y)·e^-y
        const double exacta = 1 - (1 + y(i).valor()) * std::exp(-y(i).valor());
        EXPECT_NEAR(G(i).valor(), exacta, 3e-7) << i;
        EXPECT_EQ(ProbabilidadGamma(2, y(i)), G(i));
    }
    EXPECT_EQ(G(3), -1) << "beyond n";
}

struct Inversion {
    Inversion(double a, double p) {
        Double forma = a, r_final, x_final;
        Gammainversa(forma, p, r_final, x_final, rondas);
        r = r_final.valor();
        x = x_final.valor();
        EXPECT_NEAR(forma.valor(), a, 20 * kRedondeo * (a + 10));
    }

    double r = 0, x = 0;
    int rondas = 0;
};

double Paso(double p) { return p < 0.9 ? 0.1 : p < 0.995 ? 0.01 : 0.002; }

// One correction of x, by the range of p.
double Corregido(double x, double p, double r) {
    if (p < 0.8) {
        return x * std::cbrt(p / r);
    }
    return x * (1 - Paso(p) * std::log((1 - p) / (1 - r)));
}

// The inversion stops at the first P(a, x) within 5e-5 of p and corrects x once more. The correction goes towards p and
// not beyond the other bound, so x lies between the exact quantiles of p - 5e-5 and p + 5e-5, widened by the 3e-7 of P.
// The x before it has P = r but for 3e-7, and that over the density is the tolerance of the last correction: it tells
// the steps 0.1, 0.01 and 0.002 apart, and at 0.8, 0.9 and 0.995 which range they belong to.
TEST(GammaInversa, DentroDeLaToleranciaYUltimaCorreccion) {
    for (const double a : {0.5, 1.0, 4.0, 18.0}) {
        for (const double p : {0.25, 0.5, 0.7999, 0.8, 0.85, 0.8999, 0.9, 0.95, 0.9949, 0.995, 0.999, 0.9999}) {
            SCOPED_TRACE(testing::Message() << "a = " << a << ", p = " << p);
            const Inversion inversion(a, p);
            EXPECT_LT(std::fabs(inversion.r - p), 5e-5);
            EXPECT_GE(inversion.rondas, 1);
            EXPECT_LE(inversion.rondas, 1200);
            EXPECT_GE(inversion.x, gamma_p_inv(a, p - 5.03e-5));
            EXPECT_LE(inversion.x, gamma_p_inv(a, p + 5.03e-5));
            const double penultimo = gamma_p_inv(a, inversion.r);
            const double tolerancia = 3e-7 / gamma_p_derivative(a, penultimo);
            EXPECT_NEAR(inversion.x, Corregido(penultimo, p, inversion.r), tolerancia);
            if (p >= 0.9) {
                // The small steps come from below, so it is the first P within the bound that ends the search: a step
                // takes off the fraction h·x·f/(1 - p) of the distance at most.
                const double fraccion = Paso(p) * penultimo * gamma_p_derivative(a, penultimo) / (1 - p);
                EXPECT_GT(p - inversion.r, 5e-5 * (1 - 1.1 * fraccion));
            }
        }
    }
}

TEST(GammaInversa, CuentaDeRondas) {
    // The first x is a, and P(1, 1) = 1 - 1/e = 0.632121 meets p = 0.63212 at once.
    EXPECT_EQ(Inversion(1, 0.63212).rondas, 1);
    EXPECT_GT(Inversion(1, 0.63).rondas, 1);
    // Small steps h follow dx/dk = -h·x·log((1 - p)/(1 - r)), so a step ten times smaller takes ten times as many
    // rounds; 0.1 is coarse enough to make it some more.
    const auto razon = [](double fina, double gruesa) {
        return static_cast<double>(Inversion(4, fina).rondas) / Inversion(4, gruesa).rondas;
    };
    EXPECT_NEAR(razon(0.9, 0.89999), 10, 1.5);
    EXPECT_NEAR(razon(0.995, 0.99499), 5, 0.5);
}

// Near the solution a round below p = 0.8 multiplies the distance by 1 - x·f(x)/(3·P(x)): it comes nearer only while
// x·f/P < 6. At the median that holds up to a shape of 57. Then the last x comes back without an error.
TEST(GammaInversa, SinConvergencia) {
    const auto factor = [](double a) {
        const double x = gamma_p_inv(a, 0.5);
        return x * gamma_p_derivative(a, x) / 0.5;
    };
    ASSERT_LT(factor(54), 6);
    EXPECT_LE(Inversion(54, 0.5).rondas, 1200);
    ASSERT_GT(factor(60), 6);
    EXPECT_EQ(Inversion(60, 0.5).rondas, 1201);
    EXPECT_GT(std::fabs(Inversion(60, 0.5).r - 0.5), 5e-5);
}

TEST(GammaInversa, ErroresDeEjecucion) {
    const auto error = [](double a, double p) { return NumeroDeError([&] { return Inversion(a, p).x; }); };
    EXPECT_EQ(error(2, 0), kDesbordamiento) << "x is 0 in the second round";
    EXPECT_EQ(error(2, -0.5), kArgumentoNoValido);
    EXPECT_EQ(error(2, 1), kArgumentoNoValido) << "logarithm of 0";
    EXPECT_EQ(error(162, 0.99), kDesbordamiento) << "gamma function of the shape";
}

}  // namespace
}  // namespace cuencalia
