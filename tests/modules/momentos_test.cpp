#include "modules/estadistica/momentos.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numbers>
#include <numeric>
#include <ostream>
#include <random>

#include "modules/estadistica/orden.h"
#include "tests/datos_publicados.h"
#include "tests/numero_de_error.h"

namespace cuencalia {
namespace {

constexpr double kRedondeo = std::numeric_limits<double>::epsilon() / 2;  // of one operation, relative

void EsperarRelativo(Double obtenido, double esperado, double tolerancia) {
    EXPECT_NEAR(obtenido.valor(), esperado, tolerancia * std::fabs(esperado));
}

MomentosLineales LinealesDe(std::vector<double> valores) {
    Serie x = EnSerie(valores);
    const int n = static_cast<int>(valores.size());
    OrdenarSerie(x, n);
    return CalcularMomentosLineales(x, n);
}

struct CasoNist {
    const char* conjunto;
    int n;
};

void PrintTo(const CasoNist& caso, std::ostream* salida) { *salida << caso.conjunto; }

class MomentosNist : public testing::TestWithParam<CasoNist> {};

// The tolerances follow from the data. Let u be the rounding of one operation, A the mean of |x|, M the greatest |x|
// and sigma the population deviation; to the first order:
//  - Storing the decimal data moves each value by at most u·M. The mean moves by u·A, and the deviation by u·M/sigma of
//    itself (Cauchy's inequality on the sum of the squares): no algorithm recovers what the storing has lost.
//  - Adding n values one after the other errs by at most n·u·A in the mean. An error e of the mean adds exactly n·e² to
//    the sum of squares, hence (n·u·A/sigma)²/2 to the relative error of the deviation.
//  - Adding the n squares, each the product of two rounded differences, errs by (n + 4)·u at most; the root halves it,
//    and the division and the root add 2u.
//  - The certified figures have 15 digits, a relative error of 5e-15 at most.
// In NumAcc4 (mean 1e7, deviation 0.1) M/sigma is 1e8, so the deviation keeps about 8 of 16 digits, and the second term
// adds (1001·1.1e-16·1e8)²/2 = 6e-11. The one-pass formula errs by u·(A/sigma)² = 1 there: no digit is left.
TEST_P(MomentosNist, MediaYDesviacionCertificadas) {
    const auto [conjunto, n] = GetParam();
    std::vector<double> valores;
    for (const auto& fila : LeerNist(conjunto)) {
        valores.push_back(fila.at(0));
    }
    ASSERT_EQ(static_cast<int>(valores.size()), n);
    const double media = CertificadoNist(conjunto, "media");
    const double s = CertificadoNist(conjunto, "desv_n-1");

    double suma_absoluta = 0, mayor = 0;
    for (const double x : valores) {
        suma_absoluta += std::fabs(x);
        mayor = std::max(mayor, std::fabs(x));
    }
    constexpr double kCertificado = 5e-15;
    const double N = n;
    const double A = suma_absoluta / N;
    const double sigma = s * std::sqrt((N - 1) / N);
    const double error_media = (N + 1) * kRedondeo * A;
    const double tolerancia_s =
        kRedondeo * mayor / sigma + std::pow(error_media / sigma, 2) / 2 + (N / 2 + 4) * kRedondeo + kCertificado;

    const Serie x = EnSerie(valores);
    const ParametrosEstadisticos p = ParametrosPoblacionales(x, n);
    EsperarRelativo(p.media, media, error_media / std::fabs(media) + kCertificado);
    EsperarRelativo(p.desviacion, sigma, tolerancia_s + 2 * kRedondeo);
    if (n > 3) {  // the sample kurtosis needs four values
        const ParametrosEstadisticos m = ParametrosMuestrales(x, n);
        EXPECT_EQ(m.media, p.media);
        EsperarRelativo(m.desviacion, s, tolerancia_s);
    }
}

INSTANTIATE_TEST_SUITE_P(StRD, MomentosNist,
                         testing::Values(CasoNist{"Lew", 200}, CasoNist{"Lottery", 218}, CasoNist{"Mavro", 50},
                                         CasoNist{"Michelso", 100}, CasoNist{"NumAcc1", 3}, CasoNist{"NumAcc2", 1001},
                                         CasoNist{"NumAcc3", 1001}, CasoNist{"NumAcc4", 1001}));

// 1, 2, 3, 4, 5: deviations -2, -1, 0, 1, 2; sums of their powers S2 = 10, S3 = 0, S4 = 34.
TEST(Momentos, CincoValoresEquidistantes) {
    const Serie x = EnSerie({1, 2, 3, 4, 5});
    const ParametrosEstadisticos m = ParametrosMuestrales(x, 5);
    EXPECT_EQ(m.media, 3);
    EXPECT_EQ(m.varianza, 2.5);
    EXPECT_EQ(m.Cs, 0);
    EsperarRelativo(m.Ck, 125 * 6.8 / (4 * 3 * 2 * 6.25), 20 * kRedondeo);  // n³·m4 / ((n-1)(n-2)(n-3)·s⁴)
    const ParametrosEstadisticos p = ParametrosPoblacionales(x, 5);
    EXPECT_EQ(p.media, 3);
    EXPECT_EQ(p.varianza, 2);
    EXPECT_EQ(p.Cs, 0);
    EsperarRelativo(p.Ck, 6.8 / 4, 20 * kRedondeo);

    // Half the mean of the ten differences: 4 of 1, 3 of 2, 2 of 3, 1 of 4, that is 20 / 10 / 2. The fourth is a
    // quarter of the mean of x4 - 3·x3 + 3·x2 - x1 over the samples 1234, 1235, 1245, 1345, 2345: 0 + 1 - 2 + 1 + 0.
    const MomentosLineales l = CalcularMomentosLineales(x, 5);
    EXPECT_EQ(l.L1, 3);
    EXPECT_EQ(l.L2, 1);
    EXPECT_EQ(l.L3, 0);
    EXPECT_EQ(l.L4, 0);
}

// 1, 2, 3, 4, 10: mean 4, deviations -3, -2, -1, 0, 6; S2 = 50, S3 = 180, S4 = 1394, so m3 = 36 and m4 = 278.8.
TEST(Momentos, CincoValoresAsimetricos) {
    const Serie x = EnSerie({10, 3, 1, 4, 2});
    constexpr double kTolerancia = 20 * kRedondeo;  // fewer than twenty rounded operations
    const ParametrosEstadisticos m = ParametrosMuestrales(x, 5);
    EXPECT_EQ(m.media, 4);
    EXPECT_EQ(m.varianza, 12.5);
    EsperarRelativo(m.desviacion, std::sqrt(12.5), kTolerancia);
    EsperarRelativo(m.Cv, std::sqrt(12.5) / 4, kTolerancia);
    EsperarRelativo(m.Cs, 1.2 * std::numbers::sqrt2, kTolerancia);  // 25·36 / (4·3·12.5·√12.5) = 6/√12.5 = 1.2·√2
    EsperarRelativo(m.Ck, 697.0 / 75, kTolerancia);                 // 125·278.8 / (4·3·2·156.25) = 34850/3750
    const ParametrosEstadisticos p = ParametrosPoblacionales(x, 5);
    EXPECT_EQ(p.varianza, 10);
    EsperarRelativo(p.Cv, std::sqrt(10.0) / 4, kTolerancia);
    EsperarRelativo(p.Cs, 3.6 / std::sqrt(10.0), kTolerancia);  // 36 / 10^1.5
    EsperarRelativo(p.Ck, 2.788, kTolerancia);                  // 278.8 / 10²

    // Pairs: the differences add up to 40, L2 = 40/10/2. Triples: x3 - 2·x2 + x1 adds up to
    // 0+1+7-1+5+3+0+6+4+5 = 30, L3 = 30/10/3. Quadruples: 0+6+3+6+5 = 20, L4 = 20/5/4.
    const MomentosLineales l = LinealesDe({10, 3, 1, 4, 2});
    EXPECT_EQ(l.L1, 4);
    EXPECT_EQ(l.L2, 2);
    EXPECT_EQ(l.L3, 1);
    EXPECT_EQ(l.L4, 1);
}

// Published to 8, 7 and 6 decimals: half a unit of the last one is the tolerance.
TEST(MomentosLineales, MuestrasPublicadas) {
    const auto comparar = [](const std::string& muestra, double tolerancia) {
        SCOPED_TRACE(muestra);
        const MomentosLineales l = LinealesDe(LeerColumna(muestra + ".csv"));
        const auto publicado = [&](const char* magnitud) { return Publicado(muestra, "momentos lineales", magnitud); };
        EXPECT_NEAR(l.L1.valor(), publicado("l1"), tolerancia);
        EXPECT_NEAR(l.L2.valor(), publicado("l2"), tolerancia);
        EXPECT_NEAR((l.L3 / l.L2).valor(), publicado("t3"), tolerancia);
        EXPECT_NEAR((l.L4 / l.L2).valor(), publicado("t4"), tolerancia);
    };
    comparar("lmoments3_muestra11", 0.5e-8);
    comparar("numerics_lmom_31", 0.5e-7);

    // Published as the normal law with the same L-moments, whose sigma is √pi·L2.
    const MomentosLineales viento = LinealesDe(LeerColumna("r_airquality_wind.csv"));
    EXPECT_NEAR(viento.L1.valor(), Publicado("r_airquality_wind", "Normal momentos lineales", "mu"), 0.5e-6);
    EXPECT_NEAR(viento.L2.valor() * std::sqrt(std::numbers::pi),
                Publicado("r_airquality_wind", "Normal momentos lineales", "sigma"), 0.5e-6);
}

// Hosking (1990) gives the same estimates from the probability-weighted moments br = Σ C(i-1, r)/C(n-1, r)·x(i) / n:
// L3 = 6·b2 - 6·b1 + b0, L4 = 20·b3 - 30·b2 + 12·b1 - b0. Three independent roundings in each term and a sum of n terms
// err by less than (n + 10) roundings of the sum of magnitudes; both algorithms together by twice that.
TEST(MomentosLineales, IgualesPorMomentosPonderados) {
    std::vector<double> valores = LeerColumna("r_airquality_wind.csv");
    const MomentosLineales l = LinealesDe(valores);
    std::sort(valores.begin(), valores.end());
    const auto n = static_cast<double>(valores.size());
    double b[4] = {};
    for (std::size_t i = 0; i < valores.size(); ++i) {
        double peso = 1 / n;
        for (int r = 0; r < 4; ++r) {
            b[r] += peso * valores[i];
            peso *= (static_cast<double>(i) - r) / (n - 1 - r);
        }
    }
    const double tolerancia = 2 * (n + 10) * kRedondeo;
    EXPECT_NEAR(l.L3.valor(), 6 * b[2] - 6 * b[1] + b[0], tolerancia * (6 * b[2] + 6 * b[1] + b[0]));
    EXPECT_NEAR(l.L4.valor(), 20 * b[3] - 30 * b[2] + 12 * b[1] - b[0],
                tolerancia * (20 * b[3] + 30 * b[2] + 12 * b[1] + b[0]));
}

// The values 1 to n are evenly spaced: L2 = (n + 1)/6 (half the mean difference), L3 = L4 = 0. The weights reach 4.5e9,
// beyond 32 bits.
TEST(MomentosLineales, TresMilValores) {
    constexpr int n = 3000;
    Arreglo<Double, 1, n> x;
    for (int i = 1; i <= n; ++i) {
        x(i) = i;
    }
    const MomentosLineales l = CalcularMomentosLineales(x, n);
    EsperarRelativo(l.L2, (n + 1) / 6.0, n * kRedondeo);
    // The terms of L3 and L4 add up to about n before they cancel, and their sum errs by n roundings of that.
    EXPECT_NEAR(l.L3.valor(), 0, double{n} * n * kRedondeo);
    EXPECT_NEAR(l.L4.valor(), 0, double{n} * n * kRedondeo);
}

TEST(Momentos, ErroresDeEjecucion) {
    const auto muestrales = [](const std::vector<double>& valores) {
        return NumeroDeError([&] { return ParametrosMuestrales(EnSerie(valores), static_cast<int>(valores.size())); });
    };
    const auto poblacionales = [](const std::vector<double>& valores) {
        return NumeroDeError(
            [&] { return ParametrosPoblacionales(EnSerie(valores), static_cast<int>(valores.size())); });
    };
    EXPECT_EQ(muestrales({}), kDesbordamiento) << "0 / 0 in the mean";
    EXPECT_EQ(muestrales({5}), kDesbordamiento) << "0 / 0 in the variance";
    EXPECT_EQ(muestrales({1, 2}), kDesbordamiento) << "0 / 0 in Cs";
    EXPECT_EQ(muestrales({1, 2, 4}), kDivisionPorCero) << "m4 / 0 in Ck";
    EXPECT_EQ(muestrales({1, 2, 4, 9}), 0);
    EXPECT_EQ(muestrales({5, 5, 5, 5, 5}), kDesbordamiento) << "0 / 0 in Cs";
    EXPECT_EQ(muestrales({-3, -1, 0, 1, 3}), kDivisionPorCero) << "s / 0 in Cv";
    EXPECT_EQ(muestrales({0, 0, 0, 0}), kDesbordamiento) << "0 / 0 in Cv";
    EXPECT_EQ(muestrales({1e200, 2e200, 3e200, 5e200}), kDesbordamiento);

    EXPECT_EQ(poblacionales({1, 2}), 0);
    EXPECT_EQ(poblacionales({5, 5, 5, 5}), kDesbordamiento);
    EXPECT_EQ(poblacionales({-3, -1, 0, 1, 3}), kDivisionPorCero);

    EXPECT_EQ(NumeroDeError([] { return LinealesDe({1, 2, 4}); }), kDesbordamiento) << "0 / 0 in L4";
    EXPECT_EQ(NumeroDeError([] { return LinealesDe({1, 2, 4, 9}); }), 0);
    EXPECT_EQ(NumeroDeError([] { return LinealesDe({5, 5, 5, 5}); }), 0) << "no spread is no fault here";

    EXPECT_EQ(NumeroDeError([] { return ParametrosMuestrales(Serie(), 1501); }), kSubindiceFuera);
    EXPECT_EQ(NumeroDeError([] { return CalcularMomentosLineales(Serie(), 1501); }), kSubindiceFuera);
}

constexpr auto kOrdenes = {OrdenarSerie, OrdenarPorSeleccion};

TEST(OrdenarSerie, OrdenaLosPrimerosValores) {
    for (const auto ordenar : kOrdenes) {
        std::mt19937 azar(7);
        for (const std::size_t n : {0U, 1U, 2U, 3U, 10U, 1500U}) {
            std::vector<double> valores(n);
            std::generate(valores.begin(), valores.end(), [&] { return static_cast<int>(azar() % 1000) - 500; });
            Serie x = EnSerie(valores);
            ordenar(x, static_cast<int>(n));
            std::sort(valores.begin(), valores.end());
            for (std::size_t i = 0; i < n; ++i) {
                ASSERT_EQ(x(static_cast<int>(i) + 1), valores[i]) << "n = " << n;
            }
        }
    }
}

TEST(OrdenarSerie, RespetaElRestoYLosLimites) {
    for (const auto ordenar : kOrdenes) {
        Serie x = EnSerie({3, 2, 1, -5});
        ordenar(x, 3);
        const Serie esperada = EnSerie({1, 2, 3, -5});
        for (int i = 1; i <= 5; ++i) {
            EXPECT_EQ(x(i), esperada(i)) << i;
        }
        EXPECT_EQ(NumeroDeError([&] { return ordenar(x, 1501), 0; }), kSubindiceFuera);
        Arreglo<Double, 2, 9> sin_primero;
        EXPECT_EQ(NumeroDeError([&] { return ordenar(sin_primero, 5), 0; }), kSubindiceFuera);
    }
}

}  // namespace
}  // namespace cuencalia
