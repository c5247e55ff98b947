#include <algorithm>
#include <numeric>
#include <random>

#include "modules/estadistica/clases.h"
#include "tests/datos_publicados.h"
#include "tests/numero_de_error.h"

namespace cuencalia {
namespace {

using Valores = std::vector<double>;

int Cuantos(const Valores& valores) { return static_cast<int>(valores.size()); }

Serie Ordenada(const Valores& valores) {
    Serie x = EnSerie(valores);
    OrdenarSerie(x, Cuantos(valores));
    return x;
}

// The certified figures of NIST have 15 digits, a relative error of 5e-15 at most.
constexpr double kCertificado = 5e-15;

// The tolerances follow from the data. Let u be the rounding of one operation, A the mean of |x|, M the greatest |x|
// and sigma the population deviation; to the first order:
//  - Storing the decimal data moves each value by at most u·M. The mean moves by u·A, and the deviation by u·M/sigma of
//    itself (Cauchy's inequality on the sum of the squares): no algorithm recovers what the storing has lost.
//  - Adding n values one after the other errs by at most n·u·A in the mean. An error e of the mean adds exactly n·e² to
//    the sum of squares, hence (n·u·A/sigma)²/2 to the relative error of the deviation.
//  - Adding the n squares, each the product of two rounded differences, errs by (n + 4)·u at most; the root halves it,
//    and the division and the root add 2u.
// In NumAcc4 (mean 1e7, deviation 0.1) M/sigma is 1e8, so the deviation keeps about 8 of 16 digits, and the second term
// adds (1001·1.1e-16·1e8)²/2 = 6e-11. The one-pass formula errs by u·(A/sigma)² = 1 there: no digit is left.
TEST(Momentos, CertificadosPorNist) {
    for (const std::string conjunto :
         {"Lew", "Lottery", "Mavro", "Michelso", "NumAcc1", "NumAcc2", "NumAcc3", "NumAcc4"}) {
        SCOPED_TRACE(conjunto);
        Valores valores = LeerColumna("nist/" + conjunto + ".dat");
        const Serie x = EnSerie(valores);
        const int n = Cuantos(valores);
        std::transform(valores.begin(), valores.end(), valores.begin(), [](double v) { return std::fabs(v); });
        const double A = std::accumulate(valores.begin(), valores.end(), 0.0) / n;
        const double M = *std::max_element(valores.begin(), valores.end());
        const double N = n, media = CertificadoNist(conjunto, "media"), s = CertificadoNist(conjunto, "desv_n-1");
        const double sigma = s * std::sqrt((N - 1) / N), error_media = (N + 1) * kRedondeo * A;
        const double tolerancia_s =
            kRedondeo * M / sigma + std::pow(error_media / sigma, 2) / 2 + (N / 2 + 4) * kRedondeo + kCertificado;

        const ParametrosEstadisticos p = ParametrosPoblacionales(x, n);
        EsperarRelativo(p.media, media, error_media / std::fabs(media) + kCertificado);
        EsperarRelativo(p.desviacion, sigma, tolerancia_s + 2 * kRedondeo);
        if (n > 3) {  // the sample kurtosis needs four values
            EsperarRelativo(ParametrosMuestrales(x, n).desviacion, s, tolerancia_s);
        }
    }
}

void Esperar(const std::vector<Double>& obtenidos, const Valores& esperados, double tolerancia) {
    for (std::size_t i = 0; i < esperados.size(); ++i) {
        EsperarRelativo(obtenidos.at(i), esperados[i], tolerancia);
    }
}

// Cs = n²·m3 / ((n-1)(n-2)·s³), Ck = n³·m4 / ((n-1)(n-2)(n-3)·s⁴) of a sample; by hand:
//  - 1, 2, 3, 4, 10: mean 4, sums of the powers of the deviations 50, 180, 1394; Cs = 25·36/(12·12.5^1.5), Ck =
//    125·278.8/(24·12.5²). Differences of pairs add up to 40; over the triples x3 - 2·x2 + x1 adds up to
//    0+1+7-1+5+3+0+6+4+5 = 30, L3 = 30/10/3; over the quadruples x4 - 3·x3 + 3·x2 - x1 to 20, L4 = 20/5/4.
//  - 1, 1, 1, 2, 2, 5: mean 2, sums 12, 24, 84; Cs = 36·4/(20·2.4^1.5), Ck = 216·14/(60·2.4²). Pairs 6+12+6 = 24 of
//    15, triples 6+12-3+12+3 = 30 of 20, quadruples 2+4-6+6+12 = 18 of 15.
TEST(Momentos, CalculadosAMano) {
    const Serie x = EnSerie({10, 3, 1, 4, 2}), y = EnSerie({5, 1, 2, 1, 1, 2});
    using Caso = std::tuple<ParametrosEstadisticos, double, double, double, double>;
    for (const auto& [p, media, varianza, Cs, Ck] :
         {Caso{ParametrosMuestrales(x, 5), 4, 12.5, 6 / std::sqrt(12.5), 697.0 / 75},
          {ParametrosPoblacionales(x, 5), 4, 10, 3.6 / std::sqrt(10), 2.788},
          {ParametrosMuestrales(y, 6), 2, 2.4, 3 / std::sqrt(2.4), 8.75},
          {ParametrosPoblacionales(y, 6), 2, 2, std::sqrt(2), 3.5},
          {ParametrosAgrupados(EnSerie({1, 2, 5}), EnSerie({3, 2, 1}), 3, 6), 2, 2.4, 3 / std::sqrt(2.4), 8.75}}) {
        const double s = std::sqrt(varianza);  // fewer than twenty rounded operations
        Esperar({p.media, p.varianza, p.desviacion, p.Cv, p.Cs, p.Ck}, {media, varianza, s, s / media, Cs, Ck},
                20 * kRedondeo);
    }
    const auto lineales = [](const Valores& valores) {
        const auto [L1, L2, L3, L4] = CalcularMomentosLineales(Ordenada(valores), Cuantos(valores));
        return std::vector<Double>{L1, L2, L3, L4};
    };
    Esperar(lineales({10, 3, 1, 4, 2}), {4, 2, 1, 1}, 4 * kRedondeo);
    Esperar(lineales({5, 1, 2, 1, 1, 2}), {2, 0.8, 0.5, 0.3}, 4 * kRedondeo);
}

// The values 1 to n are evenly spaced: L2 = (n + 1)/6 (half the mean difference), L3 = L4 = 0. The weights reach 4.5e9,
// beyond 32 bits. The terms of L3 and L4 add up to about n before they cancel, and err by n roundings of that.
TEST(MomentosLineales, PublicadosYDeTresMilValores) {
    for (const std::string muestra : {"lmoments3_muestra11", "numerics_lmom_31"}) {
        const auto [L1, L2, L3, L4] = LinealesDe(muestra);
        for (const auto& [figura, l] : {std::pair{"l1", L1}, {"l2", L2}, {"t3", L3 / L2}, {"t4", L4 / L2}}) {
            EsperarPublicado(muestra + ",momentos lineales," + figura, l);
        }
    }
    constexpr int n = 3000;
    Arreglo<Double, 1, n> x;
    for (int i = 1; i <= n; ++i) {
        x(i) = i;
    }
    const MomentosLineales l = CalcularMomentosLineales(x, n);
    EsperarRelativo(l.L2, (n + 1) / 6.0, n * kRedondeo);
    EXPECT_NEAR(l.L3.valor(), 0, double{n} * n * kRedondeo);
    EXPECT_NEAR(l.L4.valor(), 0, double{n} * n * kRedondeo);
}

// Of the sample, the population and the L-moments. 0 / 0 is error 6, another number divided by 0 error 11.
TEST(Momentos, ErroresDeEjecucion) {
    const auto errores = [](const Valores& valores) {
        const Serie x = Ordenada(valores);
        const int n = Cuantos(valores);
        return std::vector{NumeroDeError([&] { return ParametrosMuestrales(x, n); }),
                           NumeroDeError([&] { return ParametrosPoblacionales(x, n); }),
                           NumeroDeError([&] { return CalcularMomentosLineales(x, n); })};
    };
    using Errores = std::vector<int>;
    EXPECT_EQ(errores({5}), (Errores{6, 6, 6})) << "the sample's variance, the population's Cs, L2";
    EXPECT_EQ(errores({1, 2}), (Errores{6, 0, 6})) << "the sample's Cs, L3";
    EXPECT_EQ(errores({1, 2, 4}), (Errores{11, 0, 6})) << "m4 / 0 in Ck, 0 / 0 in L4";
    EXPECT_EQ(errores({1, 2, 4, 9}), (Errores{0, 0, 0}));
    EXPECT_EQ(errores({5, 5, 5, 5, 5}), (Errores{6, 6, 0})) << "Cs; no spread is no fault of L-moments";
    EXPECT_EQ(errores({-3, -1, 0, 1, 3}), (Errores{11, 11, 0})) << "s / 0 in Cv";
    EXPECT_EQ(errores({1e200, 2e200, 4e200, 9e200}), (Errores{6, 6, 0})) << "the squares are beyond a Double";
}

TEST(Orden, OrdenaLosPrimerosValoresYDejaElResto) {
    for (const auto ordenar : {OrdenarSerie, OrdenarPorSeleccion}) {
        for (const int n : {0, 1, 2, 3, 10, 1500}) {
            Valores valores(1500);
            std::generate(valores.begin(), valores.end(), [azar = std::mt19937(7)]() mutable { return azar() % 1000; });
            Serie x = EnSerie(valores);
            ordenar(x, n);
            std::sort(valores.begin(), valores.begin() + n);
            EXPECT_TRUE(std::equal(valores.begin(), valores.end(), &x(1))) << n;
            EXPECT_EQ(NumeroDeError([&] { return ordenar(x, 1501), 0; }), kSubindiceFuera);
        }
    }
}

// K = 1 + 1.33·ln n: 6.203 for 50 and 4.984 for 20 values; 4.411 and 4.510 on both sides of a half; 1.922 for two;
// 10.727 for the greatest series.
TEST(Clases, NumeroDeClases) {
    for (const auto& [n, clases] : {std::pair{2, 2}, {3, 2}, {4, 3}, {13, 4}, {14, 5}, {20, 5}, {50, 6}, {1500, 11}}) {
        Valores valores(static_cast<std::size_t>(n));
        std::iota(valores.begin(), valores.end(), 100);
        EXPECT_EQ(FormarClases(EnSerie(valores), n).NC, clases) << n;
    }
    EXPECT_EQ(NumeroDeError([] { return FormarClases(Serie(), 0); }), 5) << "logarithm of 0";
    EXPECT_EQ(NumeroDeError([] { return FormarClases(EnSerie({7}), 1); }), 6) << "no spread, divided by 0 intervals";
}

void EsperarClases(const Valores& valores, double desde, double ancho, const Valores& frecuencias) {
    const Clases c = FormarClases(Ordenada(valores), Cuantos(valores));
    ASSERT_EQ(c.NC, Cuantos(frecuencias));
    EXPECT_EQ(c.ancho, ancho);
    for (int i = 1; i <= Cuantos(frecuencias); ++i) {
        Esperar({c.LCI(i), c.MCL(i), c.LCS(i)}, {desde + (i - 1) * ancho, desde + (i - 0.5) * ancho, desde + i * ancho},
                8 * kRedondeo);
        EXPECT_EQ(c.FA(i), frecuencias[static_cast<std::size_t>(i - 1)]) << i << " from " << desde;
    }
}

TEST(Clases, LimitesYFrecuencias) {
    EsperarClases({9, 5, 7, 6}, 4, 2, {2, 1, 1});          // centred on 5 and 9, dx = (9 - 5)/2; 6 stands on a limit
    EsperarClases({-3, -1, 0, 2}, -4.25, 2.5, {1, 2, 1});  // data below 0 stay: dx = (2 + 3)/2
    EsperarClases({0, 1, 2, 3}, 0, 1.25, {2, 1, 1});       // would begin at -0.75; from 0 on dx = (0 + 3 + 1.5/2)/3
    EsperarClases({1, 9, 3, 4}, 0, 10.0 / 3, {2, 1, 1});   // would begin at -1; the least is not 0, dx = (1 + 9)/3
    EsperarClases({0, 0, 0, 0}, 0, 0, {4, 0, 0});          // begins at 0, which is not below it
    // The least value is lost in the sum of the extremes. A sixth of 1E9 in binary is a shade too small: five times it
    // and once it are 999999999.9999999 (recomputed with Python), so the greatest value is in no class.
    Valores valores(50, 1e8);
    valores[0] = 1e-8, valores[49] = 1e9;
    EsperarClases(valores, 0, 1e9 / 6, {49, 0, 0, 0, 0, 0});
}

}  // namespace
}  // namespace cuencalia
