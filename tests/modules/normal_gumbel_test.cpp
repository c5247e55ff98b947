#include <gtest/gtest.h>

#include <boost/math/distributions/extreme_value.hpp>
#include <boost/math/distributions/normal.hpp>

#include "modules/distribuciones/gumbel.h"
#include "modules/distribuciones/loggumbel.h"
#include "modules/distribuciones/lognormal2.h"
#include "modules/distribuciones/normal.h"
#include "tests/numero_de_error.h"

namespace cuencalia {
namespace {

constexpr double kRedondeo = std::numeric_limits<double>::epsilon() / 2;  // of one operation, relative

const boost::math::normal kExacta;

// Abramowitz and Stegun print |error| < 7.5e-8; the greatest one is 7.45e-8, near |z| = 0.7.
TEST(FuncionNormal, ErrorAbsolutoPublicado) {
    for (int i = -40000; i <= 40000; ++i) {
        const double z = i / 1000.0;
        ASSERT_NEAR(FuncionNormal(z).valor(), cdf(kExacta, z), 7.5e-8) << z;
    }
    // At 0, t = 1: the coefficients add up to 1.253314136, so q = 1.253314136/√(2π), and the branch is 1 - q.
    EXPECT_NEAR(FuncionNormal(0).valor(), 1 - 1.253314136 * 0.39894228040143268, 8 * kRedondeo);
}

// A return period is 1/(1 - F): the relative error of the tail is its own. It grows outwards, and is held here to 0.1 %
// up to z = 4.2, T = 75 000 years; an absolute error of 7.5e-8 would allow 0.6 % there.
TEST(FuncionNormal, ColasRelativas) {
    for (double z = 0.5; z <= 4.2; z += 0.01) {
        const double cola = cdf(kExacta, -z);
        EXPECT_NEAR(FuncionNormal(-z).valor(), cola, 1e-3 * cola) << z;
        EXPECT_NEAR(1 - FuncionNormal(z).valor(), cola, 1e-3 * cola) << z;
    }
}

TEST(InversaNormal, ErrorPublicadoEnLasDosRamas) {
    for (double decada = -150; decada <= std::log10(0.5); decada += 0.003) {
        const double p = std::pow(10, decada);
        ASSERT_NEAR(InversaNormal(p).valor(), quantile(kExacta, p), 4.5e-4) << p;
        const double q = 1 - p;
        if (q < 1) {
            ASSERT_NEAR(InversaNormal(q).valor(), quantile(kExacta, q), 4.5e-4) << q;
        }
    }
    for (const double p : {0.25, 0.125, 0x1p-30}) {  // 1 - p is exact
        EXPECT_EQ(InversaNormal(1 - p), -InversaNormal(p)) << p;
    }
}

// The approximation of the half is not 0, so the value leaps there; 0.5 itself goes with the first branch.
TEST(InversaNormal, EnLaMitad) {
    const double mitad = InversaNormal(0.5).valor();
    EXPECT_NEAR(mitad, 0, 1e-6);
    EXPECT_NEAR(mitad, InversaNormal(std::nextafter(0.5, 0)).valor(), 1e-14);
    EXPECT_GT(std::fabs(mitad - InversaNormal(std::nextafter(0.5, 1)).valor()), 1e-8);
}

TEST(InversaNormal, ErroresDeEjecucion) {
    EXPECT_EQ(NumeroDeError([] { return InversaNormal(0); }), kDivisionPorCero);
    EXPECT_EQ(NumeroDeError([] { return InversaNormal(1); }), kDivisionPorCero);
    EXPECT_EQ(NumeroDeError([] { return InversaNormal(1e-155); }), kDesbordamiento) << "1/p² = 1e310";
}

// The error of exp(-y), a unit or two of e^-y, is the relative error of the outer exponential; in the inverse an error
// of one unit of log p is one of y, and rounding adds units of y itself.
TEST(Gumbel, CoincideConValoresExtremos) {
    const boost::math::extreme_value exacta;
    for (double y = -6; y <= 30; y += 0.01) {
        const double G = cdf(exacta, y);
        EXPECT_NEAR(FuncionGumbel(y).valor(), G, 4 * kRedondeo * (1 + std::exp(-y)) * G) << y;
    }
    for (const double p : {1e-300, 1e-9, 0.01, 0.2, 0.5, 0.9, 0.99, 0.999, 0.9999, 1 - 1e-12}) {
        const double y = quantile(exacta, p);
        EXPECT_NEAR(InversaGumbel(p).valor(), y, 4 * kRedondeo * (1 + std::fabs(y))) << p;
        // Back again: dG/dy = p·(-log p) carries the rounding of y into G.
        const double condicion = 2 + std::fabs(std::log(p)) * (2 + std::fabs(y));
        EXPECT_NEAR(FuncionGumbel(InversaGumbel(p)).valor(), p, 4 * kRedondeo * condicion * p) << p;
    }
    EXPECT_NEAR(InversaGumbel(0.5).valor(), 0.36651292, 0.5e-8);  // -log(log 2), the reduced variable of T = 2
}

TEST(Gumbel, ErroresDeEjecucion) {
    EXPECT_EQ(FuncionGumbel(-709), 0);
    EXPECT_EQ(NumeroDeError([] { return FuncionGumbel(-710); }), kDesbordamiento) << "e^710 = 2.2e308";
    for (const double p : {0.0, 1.0, -0.5, 1.5}) {
        EXPECT_EQ(NumeroDeError([&] { return InversaGumbel(p); }), kArgumentoNoValido) << p;
    }
}

// Position 2, scale 0.5. Gumbel's reduced variable is 0 at p = 1/e, the normal one about 0 at p = 1/2.
TEST(PosicionEscala, ValoresYLogaritmos) {
    const PosicionEscala d{2, 0.5};
    const double e_2 = 7.3890560989306502;
    const double p = 0.36787944117144233;
    EXPECT_NEAR(kGumbel.Cuantil(d, p).valor(), 2, 1e-15);
    EXPECT_NEAR(kLogGumbel.Cuantil(d, p).valor(), e_2, 1e-14);
    EXPECT_NEAR(kGumbel.Probabilidad(d, 2).valor(), p, 1e-15);
    EXPECT_NEAR(kLogGumbel.Probabilidad(d, e_2).valor(), p, 1e-15);
    EXPECT_NEAR(kLogNormal2.Cuantil(d, 0.5).valor(), e_2, 1e-6);
    EXPECT_NEAR(kLogNormal2.Probabilidad(d, e_2).valor(), 0.5, 1e-8);
    // One scale above: z = 1 and P = 0.84134475 (Abramowitz and Stegun, table 26.1).
    EXPECT_NEAR(kNormal.Probabilidad(d, 2.5).valor(), 0.84134475, 7.5e-8);
    EXPECT_NEAR(kLogNormal2.Probabilidad(d, std::exp(2.5)).valor(), 0.84134475, 7.5e-8);

    EXPECT_EQ(NumeroDeError([&] { return kLogGumbel.Probabilidad(d, 0); }), kArgumentoNoValido);
    EXPECT_EQ(NumeroDeError([&] { return kLogNormal2.Probabilidad(d, -1); }), kArgumentoNoValido);
    EXPECT_EQ(NumeroDeError([] { return kGumbel.Probabilidad({2, 0}, 3); }), kDivisionPorCero);
    EXPECT_EQ(NumeroDeError([] { return kNormal.Probabilidad({2, 0}, 2); }), kDesbordamiento) << "0 / 0";
}

}  // namespace
}  // namespace cuencalia
