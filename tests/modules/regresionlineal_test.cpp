#include "modules/regresion/regresionlineal.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/datos_publicados.h"
#include "tests/numero_de_error.h"

namespace cuencalia {
namespace {

using Valores = std::vector<double>;

struct Ajuste {
    RectaRegresion recta;
    double R;
};

Ajuste Ajustar(const Valores& x, const Valores& y) {
    const RectaRegresion recta = AjustarRecta(EnSerie(x), EnSerie(y), static_cast<int>(x.size()));
    return {recta, CoeficienteCorrelacion(recta).valor()};
}

// How far rounding may take the results of n pairs (Higham, Accuracy and Stability of Numerical Algorithms, chapter 4):
// a sum of n products is off by at most n units of 2^-53 of the sum of their absolute values, and so is n times a
// product of two means, with a few units more. What is left after the subtraction bears the error of both.
struct Cotas {
    Cotas(const Valores& x, const Valores& y) {
        const auto n = static_cast<double>(x.size());
        double sx = 0, sy = 0, sxx = 0, syy = 0, sxy = 0;
        for (std::size_t i = 0; i < x.size(); ++i) {
            sx += std::abs(x[i]);
            sy += std::abs(y[i]);
            sxx += x[i] * x[i];
            syy += y[i] * y[i];
            sxy += std::abs(x[i] * y[i]);
        }
        const double unidades = (2 * n + 4) * 0x1p-53;
        Sxx = unidades * (sxx + sx * sx / n);
        Syy = unidades * (syy + sy * sy / n);
        Sxy = unidades * (sxy + sx * sy / n);
        media = unidades * (sx + sy) / n;
        xm = sx / n;
    }
    double b(const RectaRegresion& r) const {
        return (Sxy + std::abs(r.b.valor()) * Sxx) / r.Sxx.valor() + std::abs(r.b.valor()) * 0x1p-52;
    }
    double a(const RectaRegresion& r) const { return media * (1 + std::abs(r.b.valor())) + xm * b(r); }
    double R2(const RectaRegresion& r) const {
        return 2 * Sxy / std::abs(r.Sxy.valor()) + Sxx / r.Sxx.valor() + Syy / r.Syy.valor();
    }
    double Sxx, Syy, Sxy, media, xm;
};

// Calibration of ozone monitors: 36 pairs, certified by NIST to 15 digits.
TEST(RegresionLinealTest, NorrisCertificada) {
    Valores x, y;
    for (const auto& fila : LeerNist("Norris")) {
        y.push_back(fila.at(0));
        x.push_back(fila.at(1));
    }
    ASSERT_EQ(x.size(), 36U);
    const auto [recta, R] = Ajustar(x, y);
    const Cotas cotas(x, y);
    const double digito15 = 1e-14;
    EXPECT_NEAR(recta.b.valor(), CertificadoNist("Norris", "B1"), cotas.b(recta) + digito15);
    EXPECT_NEAR(recta.a.valor(), CertificadoNist("Norris", "B0"), cotas.a(recta) + digito15);
    EXPECT_NEAR(R * R, CertificadoNist("Norris", "R2"), cotas.R2(recta) + digito15);
    EXPECT_GT(R, 0);
    EXPECT_LT(cotas.a(recta), 2e-10)
        << "the bounds leave nine digits of the intercept to compare, and more of the others";
    EXPECT_LT(cotas.b(recta), 2e-13);
    EXPECT_LT(cotas.R2(recta), 2e-13);
}

TEST(RegresionLinealTest, DosPuntosDanLaRectaQuePasaPorEllos) {
    const auto [sube, rSube] = Ajustar({1, 3}, {2, 8});
    EXPECT_EQ(sube.b, 3);
    EXPECT_EQ(sube.a, -1);
    EXPECT_EQ(rSube, 1);
    const auto [baja, rBaja] = Ajustar({-2, 2}, {5, -3});
    EXPECT_EQ(baja.b, -2);
    EXPECT_EQ(baja.a, 1);
    EXPECT_EQ(rBaja, -1);
    // In tenths, which binary has not: 0.1, 0.4 and 0.2, 0.8.
    const auto [decimos, rDecimos] = Ajustar({0.1, 0.4}, {0.2, 0.8});
    const Cotas cotas({0.1, 0.4}, {0.2, 0.8});
    EXPECT_NEAR(decimos.b.valor(), 2, cotas.b(decimos));
    EXPECT_NEAR(decimos.a.valor(), 0, cotas.a(decimos));
    EXPECT_NEAR(rDecimos, 1, cotas.R2(decimos));
}

// x = 1, 2, 3 and y = 2.5, 3.5, 5.5: means 2 and 23/6; Sxx = 2, Sxy = 3, Syy = 48.75 - 529/12 = 14/3.
TEST(RegresionLinealTest, TresPuntos) {
    const auto [recta, R] = Ajustar({1, 2, 3}, {2.5, 3.5, 5.5});
    EXPECT_EQ(recta.Sxx, 2);
    EXPECT_DOUBLE_EQ(recta.Sxy.valor(), 3);
    EXPECT_NEAR(recta.Syy.valor(), 14.0 / 3, 1e-13) << "of 48.75 less 44.08";
    EXPECT_DOUBLE_EQ(recta.b.valor(), 1.5);
    EXPECT_NEAR(recta.a.valor(), 5.0 / 6, 1e-14);
    EXPECT_NEAR(R, 3 / std::sqrt(28.0 / 3), 1e-13);
    // The order of the pairs does not matter, their sign does.
    const auto [reves, rReves] = Ajustar({3, 1, 2}, {-5.5, -2.5, -3.5});
    EXPECT_DOUBLE_EQ(reves.b.valor(), -1.5);
    EXPECT_NEAR(reves.a.valor(), -5.0 / 6, 1e-14);
    EXPECT_LT(rReves, 0);
}

TEST(RegresionLinealTest, SoloLosPrimerosN) {
    const RectaRegresion recta = AjustarRecta(EnSerie({0, 2, 77}), EnSerie({1, 5, -99}), 2);
    EXPECT_EQ(recta.b, 2);
    EXPECT_EQ(recta.a, 1);
}

TEST(RegresionLinealTest, SinCorrelacion) {
    const auto [plana, R] = Ajustar({-1, 0, 1}, {1, 0, 1});
    EXPECT_EQ(plana.b, 0);
    EXPECT_EQ(R, 0);
    const RectaRegresion iguales = AjustarRecta(EnSerie({1, 2, 3}), EnSerie({4, 4, 4}), 3);
    EXPECT_EQ(iguales.b, 0) << "equal y have a line, but no correlation";
    EXPECT_EQ(iguales.a, 4);
    EXPECT_EQ(NumeroDeError([&] { return CoeficienteCorrelacion(iguales); }), 6);
    // Three times the square of 0.1, summed, is a shade less than the square of the mean says: -6.9E-18 (recomputed
    // with Python).
    const RectaRegresion decimos = AjustarRecta(EnSerie({1, 2, 3}), EnSerie({0.1, 0.1, 0.1}), 3);
    EXPECT_LT(decimos.Syy.valor(), 0);
    EXPECT_EQ(NumeroDeError([&] { return CoeficienteCorrelacion(decimos); }), 5);
}

TEST(RegresionLinealTest, SinRecta) {
    const auto error = [](const Valores& x, const Valores& y) { return NumeroDeError([&] { return Ajustar(x, y); }); };
    EXPECT_EQ(error({2, 2, 2, 2}, {1, 5, 3, 7}), 6) << "0 / 0";
    EXPECT_EQ(error({}, {}), 6);
    EXPECT_EQ(error({1e200, 2}, {1, 2}), 6) << "the squares are beyond a Double";
    EXPECT_EQ(NumeroDeError([] { return AjustarRecta(Arreglo<Double, 1, 2>(), Serie(), 3); }), 9);
}

}  // namespace
}  // namespace cuencalia
