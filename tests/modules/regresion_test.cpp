#include "modules/regresion/ecuacionesnormales.h"
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

}  // namespace
}  // namespace cuencalia
