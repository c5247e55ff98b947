#include "modules/estadistica/clases.h"

#include <gtest/gtest.h>

#include "modules/estadistica/orden.h"
#include "tests/datos_publicados.h"
#include "tests/numero_de_error.h"

namespace cuencalia {
namespace {

using Valores = std::vector<double>;

Clases Formar(const Valores& valores) {
    Serie x = EnSerie(valores);
    const int n = static_cast<int>(valores.size());
    OrdenarSerie(x, n);
    return FormarClases(x, n);
}

Valores Columna(const Clases& clases, const Clases::Columna& columna) {
    Valores valores;
    for (int i = 1; i <= clases.NC.valor(); ++i) {
        valores.push_back(columna(i).valor());
    }
    return valores;
}

void EsperarClases(const Clases& clases, const Valores& inferiores, const Valores& marcas, const Valores& superiores,
                   const Valores& frecuencias) {
    EXPECT_EQ(Columna(clases, clases.LCI), inferiores);
    EXPECT_EQ(Columna(clases, clases.MCL), marcas);
    EXPECT_EQ(Columna(clases, clases.LCS), superiores);
    EXPECT_EQ(Columna(clases, clases.FA), frecuencias);
}

/// first, first + 1, …
Valores Sucesion(int n, double primero = 100) {
    Valores valores;
    for (int i = 0; i < n; ++i) {
        valores.push_back(primero + i);
    }
    return valores;
}

double Contados(const Clases& clases) {
    double suma = 0;
    for (const double frecuencia : Columna(clases, clases.FA)) {
        suma += frecuencia;
    }
    return suma;
}

// K = 1 + 1.33·ln n: 6.203 for 50 and 4.984 for 20 values; 4.411 and 4.510 on both sides of a half; 1.922 for two;
// 10.727 for the greatest series.
TEST(ClasesTest, NumeroDeClases) {
    for (const auto& [n, clases] : {std::pair{2, 2}, {3, 2}, {4, 3}, {13, 4}, {14, 5}, {20, 5}, {50, 6}, {1500, 11}}) {
        EXPECT_EQ(Formar(Sucesion(n)).NC, clases) << n;
        EXPECT_EQ(Contados(Formar(Sucesion(n))), n);
    }
}

// Four values make three classes, centred on the least and the greatest: dx = (9 - 5)/2, from 5 - 1 on. 6 stands on a
// limit.
TEST(ClasesTest, ElValorDeUnLimiteVaALaClaseInferior) {
    const Clases clases = Formar({9, 5, 7, 6});
    EXPECT_EQ(clases.ancho, 2);
    EsperarClases(clases, {4, 6, 8}, {5, 7, 9}, {6, 8, 10}, {2, 1, 1});
    EsperarClases(Formar({8, 6, 9, 5}), {4, 6, 8}, {5, 7, 9}, {6, 8, 10}, {2, 1, 1});
}

// dx = 1.5 would begin at -0.75; as the least value is 0, dx = (0 + 3 + 1.5/2)/3 = 1.25, from 0 on.
TEST(ClasesTest, DesdeCeroEmpiezaExactamenteEnCero) {
    const Clases clases = Formar({0, 1, 2, 3});
    EXPECT_EQ(clases.ancho, 1.25);
    EsperarClases(clases, {0, 1.25, 2.5}, {0.625, 1.875, 3.125}, {1.25, 2.5, 3.75}, {2, 1, 1});
}

// dx = 4 would begin at -1; as the least value is not 0, dx = (1 + 9 + 0)/3 with four values.
TEST(ClasesTest, PositivosQueEmpezarianBajoCero) {
    const Clases clases = Formar({1, 9, 3, 4});
    EXPECT_EQ(clases.ancho, 10.0 / 3);
    EXPECT_EQ(clases.LCI(1), 0);
    EXPECT_DOUBLE_EQ(clases.MCL(1).valor(), 5.0 / 3);
    EXPECT_DOUBLE_EQ(clases.LCS(3).valor(), 10);
    EXPECT_EQ(Columna(clases, clases.FA), (Valores{2, 1, 1}));
}

// 1, 2, 4, 5: dx = 2 begins at exactly 0, which is not below it: the width stays.
TEST(ClasesTest, LimiteCeroSinRecalcular) {
    EsperarClases(Formar({1, 2, 4, 5}), {0, 2, 4}, {1, 3, 5}, {2, 4, 6}, {2, 1, 1});
}

// dx = (2 + 3)/2 = 2.5, from -3 - 1.25 on.
TEST(ClasesTest, ConDatosNegativosNoSeRecalcula) {
    EsperarClases(Formar({-3, -1, 0, 2}), {-4.25, -1.75, 0.75}, {-3, -0.5, 2}, {-1.75, 0.75, 3.25}, {1, 2, 1});
    EsperarClases(Formar({-9, -7, -6, -5}), {-10, -8, -6}, {-9, -7, -5}, {-8, -6, -4}, {1, 2, 1});
}

// The recalculated classes end at the sum of the extremes, which is the greatest value itself when the least one is
// lost in it: 1E-8 + 1E9. A sixth of 1E9 in binary is a shade too small: five times it and once it are
// 999999999.9999999 (recomputed with Python), so the greatest value is in no class.
TEST(ClasesTest, ValorMasAllaDelUltimoLimite) {
    Valores valores(48, 1e8);
    valores.push_back(1e-8);
    valores.push_back(1e9);
    const Clases clases = Formar(valores);
    EXPECT_EQ(clases.NC, 6);
    EXPECT_EQ(clases.LCI(1), 0);
    EXPECT_LT(clases.LCS(6).valor(), 1e9);
    EXPECT_EQ(Columna(clases, clases.FA), (Valores{49, 0, 0, 0, 0, 0}));
}

TEST(ClasesTest, SeriesSinClases) {
    EXPECT_EQ(NumeroDeError([] { return FormarClases(Serie(), 0); }), 5) << "logarithm of 0";
    EXPECT_EQ(NumeroDeError([] { return Formar({7}); }), 6) << "no spread, divided among no intervals";
    EXPECT_EQ(NumeroDeError([] { return FormarClases(Arreglo<Double, 1, 3>(), 4); }), 9);
    EXPECT_EQ(NumeroDeError([] { return Formar({-1e308, 1, 2, 1e308}); }), 6);
    const Clases iguales = Formar({7, 7, 7, 7});
    EXPECT_EQ(iguales.ancho, 0);
    EsperarClases(iguales, {7, 7, 7}, {7, 7, 7}, {7, 7, 7}, {4, 0, 0});
}

}  // namespace
}  // namespace cuencalia
