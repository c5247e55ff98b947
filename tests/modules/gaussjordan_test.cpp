#include "modules/regresion/gaussjordan.h"

#include "frame/base/textos.h"
#include "tests/numero_de_error.h"

namespace cuencalia {
namespace {

/// The solution of the system whose rows stand one after the other; "-" without a pivot, else the number of the error.
std::string Resolver(int ecuaciones, const std::vector<double>& celdas, BusquedaPivote busqueda) {
    MatrizAmpliada a(ecuaciones);
    int lugar = 0;
    for (const double celda : celdas) {
        a(lugar / a.Columnas() + 1, lugar % a.Columnas() + 1) = celda;
        ++lugar;
    }
    std::string solucion;
    const int error = NumeroDeError([&] {
        const auto hallada = GaussJordan(a, busqueda);
        for (const Double x : hallada.value_or(std::vector<Double>{})) {
            solucion += Str(x);
        }
        solucion += hallada ? "" : "-";
        return 0;
    });
    return error == 0 ? solucion : std::to_string(error);
}

// By hand. The last four tell the two searches apart: a row exchanged by what stands along row 1 has 0 for a pivot
// itself, and a row of 0 is found at once along it, but a column of 0 only down it.
TEST(GaussJordan, SolucionesYBusquedaDelPivote) {
    using Caso = std::tuple<int, std::vector<double>, const char*, const char*>;
    for (const auto& [ecuaciones, celdas, enFila, enColumna] :
         {Caso{3, {4, 2, 2, 14, 2, 2, 0, 6, 2, 0, 4, 14}, " 1 2 3", " 1 2 3"},
          Caso{3, {0, 1, 2, 8, 1, 0, 3, 10, 2, 3, 0, 8}, " 1 2 3", " 1 2 3"},  // symmetric, 0 in front
          Caso{3, {0, 0, 1, 7, 1, 0, 0, 5, 0, 1, 0, 6}, "11", " 5 6 7"},
          Caso{3, {0, 1, 0, 6, 0, 0, 1, 7, 1, 0, 0, 5}, "11", " 5 6 7"}, Caso{2, {0, 1, 1, 0, 2, 2}, "11", "-"},
          Caso{2, {0, 0, 1, 1, 1, 2}, "-", "-"}}) {
        EXPECT_EQ(Resolver(ecuaciones, celdas, BusquedaPivote::EnFila), enFila) << testing::PrintToString(celdas);
        EXPECT_EQ(Resolver(ecuaciones, celdas, BusquedaPivote::EnColumna), enColumna) << testing::PrintToString(celdas);
    }
}

}  // namespace
}  // namespace cuencalia
