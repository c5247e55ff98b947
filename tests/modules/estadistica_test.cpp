#include <algorithm>
#include <numeric>
#include <random>

#include "modules/estadistica/clases.h"
#include "tests/datos_publicados.h"
#include "tests/numero_de_error.h"

namespace cuencalia {
namespace {

using Valores = std::vector<double>;

// NumAcc4 has the mean 1e7 and the deviation 0.1: storing its values leaves 8 digits of the deviation, and a formula of
// one pass none. Sums of ten thousand roundings are below 1e-12 of the mean.
TEST(Momentos, CertificadosPorNist) {
    for (const auto& [conjunto, tolerancia] : {std::pair{"Lew", 1e-12}, {"Michelso", 1e-11}, {"NumAcc4", 2e-8}}) {
        const Valores valores = LeerColumna("nist/" + std::string(conjunto) + ".dat");
        const ParametrosEstadisticos p = ParametrosMuestrales(EnSerie(valores), static_cast<int>(valores.size()));
        EsperarRelativo(p.media, CertificadoNist(conjunto, "media"), 1e-12);
        EsperarRelativo(p.desviacion, CertificadoNist(conjunto, "desv_n-1"), tolerancia);
    }
}

// Of plain numbers, far from 0: 1e9 more than 1, 2, 3, 4, 10, whose L2 = 2, L3 = 1 and L4 = 1, deviation √12.5 and Cs
// 25·36/(12·12.5^1.5); of equal ones there is no skew.
TEST(Momentos, DeNumerosSimples) {
    const Valores x{1e9 + 1, 1e9 + 2, 1e9 + 3, 1e9 + 4, 1e9 + 10};
    const Lineales<double> l = CalcularMomentosLineales(x);
    EXPECT_EQ((Valores{l.L1, l.L2, l.L3, l.L4}), (Valores{1e9 + 4, 2, 1, 1}));
    EXPECT_NEAR(ParametrosMuestrales(x).Cs, 6 / std::sqrt(12.5), 1e-12);
    EXPECT_TRUE(std::isnan(ParametrosMuestrales(Valores{5, 5, 5, 5}).Cs));
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

// K = 1 + 1.33·ln n: 4.411 and 4.510 on both sides of a half; 1.922 for two values.
TEST(Clases, NumeroDeClases) {
    for (const auto& [n, clases] : {std::pair{2, 2}, {13, 4}, {14, 5}, {50, 6}}) {
        Valores valores(static_cast<std::size_t>(n));
        std::iota(valores.begin(), valores.end(), 100);
        EXPECT_EQ(FormarClases(EnSerie(valores), n).NC, clases) << n;
    }
}

void EsperarClases(const Valores& valores, double desde, double ancho, const Valores& frecuencias) {
    const Clases c = FormarClases(EnSerie(valores), static_cast<int>(valores.size()));
    EXPECT_EQ(c.ancho, ancho);
    for (int i = 1; i <= c.NC.valor(); ++i) {
        EXPECT_NEAR(c.LCI(i).valor(), desde + (i - 1) * ancho, 1e-14);
        EXPECT_EQ(c.FA(i), frecuencias.at(static_cast<std::size_t>(i - 1))) << i << " from " << desde;
    }
}

TEST(Clases, LimitesYFrecuencias) {
    EsperarClases({5, 6, 7, 9}, 4, 2, {2, 1, 1});          // centred on 5 and 9, dx = (9 - 5)/2; 6 stands on a limit
    EsperarClases({-3, -1, 0, 2}, -4.25, 2.5, {1, 2, 1});  // data below 0 stay: dx = (2 + 3)/2
    EsperarClases({0, 1, 2, 3}, 0, 1.25, {2, 1, 1});       // would begin at -0.75; from 0 on dx = (0 + 3 + 1.5/2)/3
    EsperarClases({1, 3, 4, 9}, 0, 10.0 / 3, {2, 1, 1});   // would begin at -1; the least is not 0, dx = (1 + 9)/3
    EsperarClases({0, 0, 0, 0}, 0, 0, {4, 0, 0});          // begins at 0, which is not below it
}

}  // namespace
}  // namespace cuencalia
