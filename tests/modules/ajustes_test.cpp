#include <gtest/gtest.h>

#include <boost/math/distributions/normal.hpp>
#include <boost/math/special_functions/beta.hpp>
#include <boost/math/special_functions/digamma.hpp>
#include <boost/math/special_functions/gamma.hpp>

#include "modules/distribuciones/gamma2.h"
#include "modules/distribuciones/gumbel.h"
#include "modules/distribuciones/lognormal3.h"
#include "modules/distribuciones/normal.h"
#include "modules/distribuciones/pearson3.h"
#include "modules/distribuciones/smirnovkolmogorov.h"
#include "modules/estadistica/momentos.h"
#include "modules/estadistica/orden.h"
#include "tests/datos_publicados.h"
#include "tests/numero_de_error.h"

namespace cuencalia {
namespace {

constexpr double kRedondeo = std::numeric_limits<double>::epsilon() / 2;  // of one operation, relative

void EsperarRelativo(Double obtenido, double esperado, double tolerancia) {
    EXPECT_NEAR(obtenido.valor(), esperado, tolerancia * std::fabs(esperado));
}

MomentosLineales LinealesDe(const std::string& muestra) {
    const std::vector<double> valores = LeerColumna(muestra + ".csv");
    Serie x = EnSerie(valores);
    const int n = static_cast<int>(valores.size());
    OrdenarSerie(x, n);
    return CalcularMomentosLineales(x, n);
}

// Ratios of L-moments of the gamma distribution of shape a (Hosking 1990, table 1): L2/L1 = Γ(a + 1/2)/(√π·Γ(a + 1)),
// and L3/L2 = 6·I(a, 2a) - 3 with the incomplete beta function at 1/3.
double RazonL2(double a) { return boost::math::tgamma_delta_ratio(a + 0.5, 0.5) / std::sqrt(std::numbers::pi); }
double RazonL3(double a) { return 6 * boost::math::ibeta(a, 2 * a, 1.0 / 3) - 3; }

// A figure of esperados.csv; the tolerance is half a unit of its last digit.
struct Publicados {
    std::string muestra, metodo;

    void Esperar(const char* magnitud, Double obtenido, double tolerancia) const {
        EXPECT_NEAR(obtenido.valor(), Publicado(muestra, metodo, magnitud), tolerancia) << muestra << ", " << metodo;
    }
};

TEST(PosicionEscala, ParametrosPublicados) {
    const MomentosLineales viento = LinealesDe("r_airquality_wind");
    const PosicionEscala normal = kNormal.porMomentosLineales(viento.L1, viento.L2);
    const Publicados de_viento{"r_airquality_wind", "Normal momentos lineales"};
    de_viento.Esperar("mu", normal.posicion, 0.5e-6);
    de_viento.Esperar("sigma", normal.escala, 0.5e-6);

    const MomentosLineales once = LinealesDe("lmoments3_muestra11");
    const PosicionEscala gumbel11 = kGumbel.porMomentosLineales(once.L1, once.L2);
    const Publicados de_once{"lmoments3_muestra11", "Gumbel"};
    de_once.Esperar("xi", gumbel11.posicion, 0.5e-6);
    de_once.Esperar("alfa", gumbel11.escala, 0.5e-6);

    const MomentosLineales lmom = LinealesDe("numerics_lmom_31");
    const PosicionEscala gumbel31 = kGumbel.porMomentosLineales(lmom.L1, lmom.L2);
    const Publicados de_lmom{"numerics_lmom_31", "Gumbel momentos lineales"};
    de_lmom.Esperar("xi", gumbel31.posicion, 0.5e-2);
    de_lmom.Esperar("alfa", gumbel31.escala, 0.5e-4);
}

TEST(PosicionEscala, MomentosOrdinarios) {
    const std::vector<double> rio = LeerColumna("rao_hamed_tippecanoe.csv");
    const ParametrosEstadisticos m = ParametrosMuestrales(EnSerie(rio), static_cast<int>(rio.size()));
    const PosicionEscala de_rio = kNormal.porMomentos(m.media, m.desviacion);
    const Publicados normal_de_rio{"rao_hamed_tippecanoe", "Normal momentos"};
    normal_de_rio.Esperar("media", de_rio.posicion, 0.5);
    normal_de_rio.Esperar("desviacion (n-1)", de_rio.escala, 0.5);
    // Rao and Hamed took Q100 from the same approximation of the normal variable, and print no decimals.
    const PosicionEscala normal = kNormal.porMomentos(12665, 4710);
    Publicados{"rao_hamed_tippecanoe", "Normal(12665; 4710)"}.Esperar("Q100", kNormal.Cuantil(normal, 0.99), 0.5);

    // The Gumbel variable of scale 6 has the deviation π·6/√6 = π·√6 and the mean 6·0.5772156649 above its mode.
    const PosicionEscala gumbel = kGumbel.porMomentos(10, std::numbers::pi * std::sqrt(6.0));
    EsperarRelativo(gumbel.escala, 6, 8 * kRedondeo);
    EsperarRelativo(gumbel.posicion, 6.5367060106, 16 * kRedondeo);  // 10 - 3.4632939894
}

// Both samples have |t3| below 1/3, where lmom and lmoments3 use the same rational function.
TEST(Pearson3, ParametrosPublicados) {
    const MomentosLineales lmom = LinealesDe("numerics_lmom_31");
    const Pearson3 d = Pearson3PorMomentosLineales(lmom.L1, lmom.L2, lmom.L3 / lmom.L2).value();
    const Publicados de_lmom{"numerics_lmom_31", "Pearson III momentos lineales"};
    de_lmom.Esperar("forma", d.gamma, 0.5e-5);
    de_lmom.Esperar("escala", d.beta, 0.5e-5);
    de_lmom.Esperar("xi", d.x0, 0.5e-4);

    // Published as mean x0 + beta·gamma, deviation beta·√gamma and skew 2/√gamma.
    const MomentosLineales once = LinealesDe("lmoments3_muestra11");
    const Pearson3 e = Pearson3PorMomentosLineales(once.L1, once.L2, once.L3 / once.L2).value();
    const Publicados de_once{"lmoments3_muestra11", "Pearson III"};
    de_once.Esperar("media", e.x0 + e.beta * e.gamma, 0.5e-6);
    de_once.Esperar("desviacion", e.beta * Sqr(e.gamma), 0.5e-6);
    de_once.Esperar("asimetria", 2 / Sqr(e.gamma), 0.5e-6);
}

// From the L-moments of a distribution back to it. Hosking gives 5e-5 for the shape by t3; the scale is exact for the
// shape found, but for the gamma function's 1.7e-10 in each of two places.
TEST(Pearson3, RecuperaLaDistribucion) {
    for (double a = 0.01; a < 150; a *= 1.1) {
        SCOPED_TRACE(a);
        const double beta = 3, x0 = -20;
        const double l1 = x0 + beta * a, l2 = beta * a * RazonL2(a), tau = RazonL3(a);
        const Pearson3 d = Pearson3PorMomentosLineales(l1, l2, tau).value();
        EsperarRelativo(d.gamma, a, 5e-5);
        EsperarRelativo(d.beta, l2 / (d.gamma.valor() * RazonL2(d.gamma.valor())), 4e-10);
        EXPECT_NEAR((d.x0 + d.beta * d.gamma).valor(), l1, 1e-12 * (std::fabs(l1) + beta * a));
        const Pearson3 negativa = Pearson3PorMomentosLineales(l1, l2, -tau).value();
        EXPECT_EQ(negativa.gamma, d.gamma);
        EXPECT_EQ(negativa.beta, d.beta);
        EXPECT_EQ(negativa.x0, d.x0);
    }
    // At 1/3 the range of great skew begins: z = 2/3, numerator 2/3·(0.36067 - 2/3·(0.59567 - 2/3·0.25361)) =
    // 0.0508481481, denominator 1 - 2/3·(2.78861 - 2/3·(2.56096 - 2/3·0.77045)) = 0.0508496296.
    EXPECT_NEAR(Pearson3PorMomentosLineales(5, 1, 1.0 / 3)->gamma.valor(), 0.0508481481 / 0.0508496296, 5e-9);
}

TEST(Pearson3, LimitesYMomentosOrdinarios) {
    for (const auto& [l2, tau] : {std::pair{1.0, 1.0}, {1.0, -1.0}, {1.0, 1.5}, {0.0, 0.2}, {-1.0, 0.2}}) {
        EXPECT_FALSE(Pearson3PorMomentosLineales(5, l2, tau)) << l2 << ", " << tau;
    }
    EXPECT_TRUE(Pearson3PorMomentosLineales(5, 1, -0.999));
    const auto error = [](double tau) { return NumeroDeError([&] { return Pearson3PorMomentosLineales(5, 1, tau); }); };
    EXPECT_EQ(error(0), kDivisionPorCero);
    // The shape is 1/(3π·tau²) and some more: 169.8 at 0.025, above the 161.1 of the gamma function, and 157 at 0.026.
    EXPECT_EQ(error(0.025), kDesbordamiento);
    EXPECT_EQ(error(0.026), 0);

    // s = 2, Cs = ±1/2: gamma = 4/0.25, beta = ±0.5·2/2, x0 = 10 ∓ 2·2/0.5. All exact.
    const Pearson3 d = Pearson3PorMomentos(10, 2, 0.5);
    EXPECT_EQ(d.gamma, 16);
    EXPECT_EQ(d.beta, 0.5);
    EXPECT_EQ(d.x0, 2);
    const Pearson3 negativa = Pearson3PorMomentos(10, 2, -0.5);
    EXPECT_EQ(negativa.gamma, 16);
    EXPECT_EQ(negativa.beta, -0.5);
    EXPECT_EQ(negativa.x0, 18);
    EXPECT_EQ(NumeroDeError([] { return Pearson3PorMomentos(10, 2, 0); }), kDivisionPorCero);
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
    EXPECT_EQ(NumeroDeError([] { return Gamma2PorVerosimilitud(1, 0); }), kDivisionPorCero);
}

TEST(Gamma2, MomentosLinealesDesdeUnMedio) {
    for (double a = 0.01; a < 1; a *= 1.05) {
        SCOPED_TRACE(a);
        const Gamma2 d = Gamma2PorMomentosLineales(50, 50 * RazonL2(a));
        EsperarRelativo(d.gamma, a, 7e-5);
        EXPECT_NEAR((d.gamma * d.beta).valor(), 50, 1e-13);
    }
    // 1/2 is the exponential distribution's, of shape 1: z = 1/2, both numerator and denominator 0.211975. The other
    // range would give 0.38.
    EsperarRelativo(Gamma2PorMomentosLineales(8, 4).gamma, 1, 20 * kRedondeo);
    for (const auto& [l1, l2] : {std::pair{1.0, 1.0}, {1.0, 2.0}, {1.0, 0.0}, {1.0, -0.5}, {-2.0, -1.0}}) {
        const Gamma2 d = Gamma2PorMomentosLineales(l1, l2);
        EXPECT_EQ(d.gamma, 0) << l1 << ", " << l2;
        EXPECT_EQ(d.beta, 0) << l1 << ", " << l2;
    }
}

// Below 1/2 the range takes z = 6·t². Hosking's is z = π·t², so the shape of t is the distribution's whose ratio is
// t·√(6/π), to the 1e-5 of his approximation as long as that ratio is in its range.
TEST(Gamma2, MomentosLinealesBajoUnMedio) {
    for (double a = 1.01; a < 500; a *= 1.1) {
        const double t = RazonL2(a) * std::sqrt(std::numbers::pi / 6);
        EsperarRelativo(Gamma2PorMomentosLineales(50, 50 * t).gamma, a, 1e-5);
    }
    // t = 1/4: z = 0.375; (1 - 0.1155) / (0.375·(1 + 0.375·(-0.05812 + 0.00661875))) = 0.8845/0.36775763671875.
    EsperarRelativo(Gamma2PorMomentosLineales(8, 2).gamma, 0.8845 / 0.36775763671875, 20 * kRedondeo);
    EsperarRelativo(Gamma2PorMomentosLineales(8, 2).beta, 8 * 0.36775763671875 / 0.8845, 20 * kRedondeo);
    // t = 0.4999: z = 1.49940006; 0.53818478 / (1.49940006·(1 - 0.04746439)) = 0.376819.
    EXPECT_NEAR(Gamma2PorMomentosLineales(1, 0.4999).gamma.valor(), 0.376819, 1e-6);

    // So the shapes of the published samples, both in this range, come out at 0.51 and 0.46 of the published ones, and
    // the scales as much greater: t = 0.19907, z = 0.23777, 0.92677/(0.23777·0.98718) = 3.9484; t = 0.35281,
    // z = 0.74685, 0.76997/(0.74685·0.96644) = 1.0668.
    const auto comparar = [](const std::string& muestra, const char* metodo, double forma) {
        SCOPED_TRACE(muestra);
        const MomentosLineales l = LinealesDe(muestra);
        const Gamma2 d = Gamma2PorMomentosLineales(l.L1, l.L2);
        EXPECT_NEAR(d.gamma.valor(), forma, 2e-4);
        EXPECT_LT(d.gamma.valor(), 0.52 * Publicado(muestra, metodo, "forma"));
        EsperarRelativo(d.gamma * d.beta, Publicado(muestra, metodo, "forma") * Publicado(muestra, metodo, "escala"),
                        1e-6);
    };
    comparar("r_airquality_wind", "Gamma 2 momentos lineales", 3.9484);
    comparar("lmoments3_muestra11", "Gamma 2", 1.0668);
}

// The extremes 1 and 5 and the median 2 give x0 = (1·5 - 2²)/(1 + 5 - 2·2) = 1/2, from where they lie at 0.5, 1.5 and
// 4.5: three times each other.
TEST(LogNormal3, PorCuantilesDeLaMuestra) {
    const LogNormal3 impar = AjustarLogNormal3(EnSerie({1, 2, 5}), 3);
    EXPECT_EQ(impar.x0, 0.5);
    EsperarRelativo(impar.uy, std::log(1.5), 8 * kRedondeo);
    EsperarRelativo(impar.sy, std::log(3) * std::sqrt(2.0 / 3), 8 * kRedondeo);  // divisor n

    // Even n, the median half-way between the two in the middle: logarithms of 0.5, 1, 2, 4.5, sum log 4.5.
    const LogNormal3 par = AjustarLogNormal3(EnSerie({1, 1.5, 2.5, 5, 900}), 4);
    EXPECT_EQ(par.x0, 0.5);
    EsperarRelativo(par.uy, std::log(4.5) / 4, 8 * kRedondeo);
    const double suma2 = 2 * std::pow(std::log(2), 2) + std::pow(std::log(4.5), 2);
    EsperarRelativo(par.sy, std::sqrt(suma2 / 4 - std::pow(std::log(4.5) / 4, 2)), 16 * kRedondeo);

    // The exact value of T = 100, off by 4.5e-4 at most in the normal variable.
    const double z = quantile(boost::math::normal(), 0.99);
    const double pendiente = std::log(3) * std::sqrt(2.0 / 3);
    const double exceso = 1.5 * std::exp(pendiente * z);
    EXPECT_NEAR(impar.Cuantil(0.99).valor(), 0.5 + exceso, 4.5e-4 * pendiente * exceso * 1.001);
    EXPECT_NEAR(impar.Probabilidad(0.5 + exceso).valor(), 0.99, 7.5e-8);
}

// The mirror image: x0 = (5 - 4)/(-6 + 4) = -1/2 lies above the sample.
TEST(LogNormal3, AsimetriaNegativaYNula) {
    const LogNormal3 d = AjustarLogNormal3(EnSerie({-5, -2, -1}), 3);
    EXPECT_EQ(d.x0, -0.5);
    EsperarRelativo(d.uy, std::log(1.5), 8 * kRedondeo);
    EsperarRelativo(d.sy, std::log(3) * std::sqrt(2.0 / 3), 8 * kRedondeo);
    EXPECT_EQ(NumeroDeError([&] { return d.Probabilidad(-2); }), kArgumentoNoValido);
    EXPECT_EQ(NumeroDeError([] { return AjustarLogNormal3(EnSerie({1, 2, 3}), 3); }), kDivisionPorCero);
    EXPECT_EQ(NumeroDeError([] { return AjustarLogNormal3(EnSerie({2, 2, 2}), 3); }), kDesbordamiento);
}

TEST(SmirnovKolmogorov, DeltaTeoricoYTabular) {
    const Serie delta = EnSerie({0.1, 0.3, 0.05, 0.3, 0.9});
    EXPECT_EQ(MayorDelta(delta, 1), 0.1);
    EXPECT_EQ(MayorDelta(delta, 4), 0.3);
    EXPECT_EQ(MayorDelta(delta, 5), 0.9);
    EXPECT_EQ(PosicionWeibull(1, 4), 0.2);
    EXPECT_EQ(PosicionWeibull(3, 3), 0.75);
    EXPECT_EQ(DeltaTabular(kNivel5, 16), 0.34);
    // The limiting distribution has P(D·√n > c) = 2·exp(-2c²) to 1e-6 (Smirnov 1948); c is rounded to two decimals.
    for (const auto& [nivel, alfa] : {std::pair{kNivel20, 0.2}, {kNivel10, 0.1}, {kNivel5, 0.05}, {kNivel1, 0.01}}) {
        EXPECT_NEAR(DeltaTabular(nivel, 1).valor(), std::sqrt(-std::log(alfa / 2) / 2), 0.005) << alfa;
        EXPECT_EQ(std::stod(nivel.texto), 100 * alfa);
    }
}

}  // namespace
}  // namespace cuencalia
