#include <algorithm>
#include <functional>
#include <numeric>

#include "modules/regresion/ecuacionesnormales.h"
#include "modules/regresion/regresionlineal.h"
#include "tests/datos_publicados.h"
#include "tests/numero_de_error.h"

namespace cuencalia {
namespace {

using Numeros = std::vector<double>;

// The rows of the augmented matrix one after the other. Solutions by hand; the last four tell the two searches apart: a
// row exchanged by what stands along row 1 has 0 for a pivot itself, and a row of 0 is found at once along it, but a
// column of 0 only down it.
TEST(GaussJordan, SolucionesYBusquedaDelPivote) {
    struct Caso {
        int ecuaciones;
        Numeros celdas;
        std::vector<Numeros> soluciones;  // along the row, down the column; empty: no pivot
        std::vector<int> errores;
    };
    for (const Caso& caso : std::vector<Caso>{
             {2, {2, 1, 5, 1, 3, 10}, {{1, 3}, {1, 3}}, {0, 0}},
             {3, {4, 2, 2, 14, 2, 2, 0, 6, 2, 0, 4, 14}, {{1, 2, 3}, {1, 2, 3}}, {0, 0}},
             {3, {0, 1, 2, 8, 1, 0, 3, 10, 2, 3, 0, 8}, {{1, 2, 3}, {1, 2, 3}}, {0, 0}},  // symmetric, 0 in front
             {2, {1, 2, 3, 2, 4, 6}, {{}, {}}, {0, 0}},
             {3, {0, 0, 1, 7, 1, 0, 0, 5, 0, 1, 0, 6}, {{}, {5, 6, 7}}, {11, 0}},
             {3, {0, 1, 0, 6, 0, 0, 1, 7, 1, 0, 0, 5}, {{}, {5, 6, 7}}, {11, 0}},
             {2, {0, 1, 1, 0, 2, 2}, {{}, {}}, {11, 0}},
             {2, {0, 0, 1, 1, 1, 2}, {{}, {}}, {0, 0}},
         }) {
        SCOPED_TRACE(testing::PrintToString(caso.celdas));
        MatrizAmpliada a(caso.ecuaciones);
        for (std::size_t i = 0; i < caso.celdas.size(); ++i) {
            const int columnas = a.Columnas(), lugar = static_cast<int>(i);
            a(lugar / columnas + 1, lugar % columnas + 1) = caso.celdas[i];
        }
        std::size_t cual = 0;
        for (const BusquedaPivote busqueda : {BusquedaPivote::EnFila, BusquedaPivote::EnColumna}) {
            Numeros solucion;
            EXPECT_EQ(NumeroDeError([&] {
                          for (const Double x : GaussJordan(a, busqueda).value_or(std::vector<Double>{})) {
                              solucion.push_back(x.valor());
                          }
                          return 0;
                      }),
                      caso.errores[cual]);
            EXPECT_EQ(solucion, caso.soluciones[cual]) << cual;
            ++cual;
        }
    }
}

// Calibration of ozone monitors: 36 pairs. A sum of n products is off by at most n units of 2^-53 of the sum of their
// absolute values, and so is n times a product of two means, with a few units more (Higham, Accuracy and Stability of
// Numerical Algorithms, chapter 4). As all x and y are positive, Σx² + n·xm² is Sxx + 2n·xm², where n·xm² is 1.493·Sxx,
// and so for the others: each S errs by 76·2^-53·3.99 = 3.4e-14 of itself, b by two and R² by four of these. With means
// of 420, a errs by 420 times the error of b and by 76·2^-53·(420 + 420·b) besides: 4.3e-11.
TEST(RegresionLineal, CertificadaPorNist) {
    const RectaRegresion recta =
        AjustarRecta(EnSerie(LeerColumna("nist/Norris.dat", 1)), EnSerie(LeerColumna("nist/Norris.dat", 0)), 36);
    const double R = CoeficienteCorrelacion(recta).valor();
    EsperarRelativo(recta.b, CertificadoNist("Norris", "B1"), 6.8e-14 + 5e-15);
    EXPECT_NEAR(recta.a.valor(), CertificadoNist("Norris", "B0"), 4.3e-11);
    EXPECT_NEAR(R * R, CertificadoNist("Norris", "R2"), 1.4e-13 + 5e-15);
}

// All sums are exact in binary.
TEST(RegresionLineal, CalculadaAMano) {
    const auto esperar = [](const Numeros& x, const Numeros& y, int n, double a, double b, double R) {
        const RectaRegresion recta = AjustarRecta(EnSerie(x), EnSerie(y), n);
        EXPECT_EQ(std::pair(recta.a, recta.b), std::pair(Double(a), Double(b)));
        EXPECT_DOUBLE_EQ(CoeficienteCorrelacion(recta).valor(), R);
    };
    esperar({0, 2, 77}, {1, 5, -99}, 2, 1, 2, 1);                           // the third pair does not count
    esperar({1, 2, 3}, {2, 3.5, 6.5}, 3, -0.5, 2.25, 4.5 / std::sqrt(21));  // means 2, 4; Sxx 2, Sxy 4.5, Syy 10.5
    esperar({3, 1, 2}, {-6.5, -2, -3.5}, 3, 0.5, -2.25, -4.5 / std::sqrt(21));
    // Equal x have no line. Equal y have one, but no correlation: 0 / 0, or the root of a Syy that rounding has made
    // -6.9E-18 (recomputed with Python).
    const auto ajustar = [](const Numeros& x, const Numeros& y) { return AjustarRecta(EnSerie(x), EnSerie(y), 3); };
    EXPECT_EQ(NumeroDeError([&] { return ajustar({2, 2, 2}, {1, 5, 3}); }), 6);
    EXPECT_EQ(NumeroDeError([&] { return CoeficienteCorrelacion(ajustar({1, 2, 3}, {4, 4, 4})); }), 6);
    EXPECT_EQ(NumeroDeError([&] { return CoeficienteCorrelacion(ajustar({1, 2, 3}, {0.1, 0.1, 0.1})); }), 5);
}

using Columnas = std::vector<Numeros>;

Independientes Punteros(const std::vector<Serie>& u) {
    Independientes punteros;
    for (const Serie& uj : u) {
        punteros.push_back(&uj);
    }
    return punteros;
}

Columnas Potencias(const Numeros& x, int grado) {
    Columnas potencias(static_cast<std::size_t>(grado), x);
    for (std::size_t j = 1; j < potencias.size(); ++j) {
        std::transform(x.begin(), x.end(), potencias[j - 1].begin(), potencias[j].begin(), std::multiplies<>());
    }
    return potencias;
}

Columnas PrimerasDeLongley(std::size_t k) {
    Columnas columnas;
    for (std::size_t j = 1; j <= k; ++j) {
        columnas.push_back(LeerColumna("nist/Longley.dat", j));
    }
    return columnas;
}

double Norma(const Numeros& u) { return std::sqrt(std::inner_product(u.begin(), u.end(), u.begin(), 0.0)); }

// An element of the normal equations, divided by the lengths of its two columns, errs by n roundings at most; the
// coefficients, times the length of their columns, by the condition kappa of the divided matrix times that (Higham,
// chapters 4 and 20). R² and the sum of squared residuals are differences of sums of n products, no greater than Σv².
// Pontius (load cells) is certified by NIST. The first columns of Longley were solved by Householder's orthogonal
// factorization with 60 digits (mpmath 1.3, qr_solve), and so was kappa of all, from the singular values.
TEST(RegresionMultiple, PublicadaYExacta) {
    struct Caso {
        Columnas u;
        Numeros v;
        double kappa;
        Numeros coef;
        double R2, residuos;
    };
    const auto pontius = [](const char* figura) { return CertificadoNist("Pontius", figura); };
    const Numeros empleo = LeerColumna("nist/Longley.dat");
    for (const Caso& caso : std::vector<Caso>{
             {Potencias(LeerColumna("nist/Pontius.dat", 1), 2),
              LeerColumna("nist/Pontius.dat"),
              340.3,
              {pontius("B0"), pontius("B1"), pontius("B2")},
              pontius("R2"),
              37 * std::pow(pontius("desv_residual"), 2)},
             {PrimerasDeLongley(2),
              empleo,
              25809,
              {56945.038157997751, -85.106530058619947, 0.043914802214092746},
              0.96851936579272987,
              5824195.1764224869},
             {PrimerasDeLongley(3),
              empleo,
              35460,
              {53927.174436103604, -25.942427463534483, 0.040575753271369524, -0.53344986664241789},
              0.98075646365863599,
              3560224.0666040915},
             {{{1, 2, 3, 4, 5}, {2, 1, 5, 3, 7}}, {-3, 2, -8, 0, -10}, 64.3, {1, 2, -3}, 1, 0},  // 1 + 2·x1 - 3·x2
             {Potencias({1, 2, 3, 4, 5, 6}, 3), {4, 9, 26, 61, 120, 209}, 23659, {5, -2, 0, 1}, 1, 0},  // x³ - 2·x + 5
         }) {
        SCOPED_TRACE(caso.coef[0]);
        std::vector<Serie> u;
        Numeros normas{std::sqrt(caso.v.size())};
        std::transform(caso.u.begin(), caso.u.end(), std::back_inserter(u), EnSerie);
        std::transform(caso.u.begin(), caso.u.end(), std::back_inserter(normas), Norma);
        double mayor = 0;
        for (std::size_t j = 0; j < normas.size(); ++j) {
            mayor = std::max(mayor, std::fabs(caso.coef[j]) * normas[j]);
        }
        const double n = normas[0] * normas[0], media = std::accumulate(caso.v.begin(), caso.v.end(), 0.0) / n;
        const double Sv2 = std::pow(Norma(caso.v), 2), error = 4 * n * kRedondeo * Sv2;
        for (const BusquedaPivote busqueda : {BusquedaPivote::EnFila, BusquedaPivote::EnColumna}) {
            const auto r = AjustarRegresion(Punteros(u), EnSerie(caso.v), static_cast<int>(caso.v.size()), busqueda);
            ASSERT_TRUE(r);
            for (std::size_t j = 0; j < normas.size(); ++j) {
                EXPECT_NEAR(r->coef.at(j).valor(), caso.coef[j], n * kRedondeo * caso.kappa * mayor / normas[j]) << j;
            }
            EXPECT_NEAR(r->R2().valor(), caso.R2, error / (Sv2 - n * media * media));
            EXPECT_NEAR(r->SumaResiduos().valor(), caso.residuos, error);
        }
    }
}

TEST(RegresionMultiple, PotencialErrorEstandarYErrores) {
    // y = 2·x1³/√x2: a0 comes out as a logarithm. By hand: residuals 0, 1, 0, -1 over 4 - 1 - 1.
    const std::vector<Serie> x{EnSerie({1, 2, 3, 1}), EnSerie({1, 4, 4, 9})};
    const auto r = AjustarPotencial(Punteros(x), EnSerie({2, 8, 27, 2.0 / 3}), 4, BusquedaPivote::EnFila);
    ASSERT_TRUE(r);
    for (const auto& [j, esperado] : std::vector<std::pair<std::size_t, double>>{{0, std::log(2)}, {1, 3}, {2, -0.5}}) {
        EXPECT_NEAR(r->coef[j].valor(), esperado, 1e-13);  // kappa is 16
    }
    EXPECT_EQ(EvaluarPotencial({2, 3, 0.5}, {2, 9}), 48);
    EXPECT_EQ(EvaluarLineal({2, 3, 0.5}, {2, 9}), 12.5);
    EXPECT_EQ(ErrorEstandar(EvaluarLineal, {1, 2}, Punteros({EnSerie({1, 2, 3, 4})}), EnSerie({3, 6, 7, 8}), 4), 1);
    const auto error = [](const Numeros& x, const Numeros& y) {
        return NumeroDeError([&] {
            const std::vector<Serie> u{EnSerie(x)};
            return AjustarPotencial(Punteros(u), EnSerie(y), 3, BusquedaPivote::EnFila)->R2();
        });
    };
    EXPECT_EQ(error({1, 2, 0}, {1, 2, 3}), 5);
    EXPECT_EQ(error({1, 2, 3}, {1, 2, -3}), 5);
    EXPECT_EQ(error({1, 2, 3}, {1, 1, 1}), 6) << "0 / 0 in R²";
}

}  // namespace
}  // namespace cuencalia
