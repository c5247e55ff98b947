#include "modules/precipitacion/ecuacionintensidad.h"
#include "tests/numero_de_error.h"

namespace cuencalia {
namespace {

/// Points of I = 312.5·T^0.21·D^-0.58.
PuntosIDT Puntos(const std::vector<double>& periodos, const std::vector<double>& duraciones) {
    PuntosIDT puntos(static_cast<int>(periodos.size() * duraciones.size()));
    for (const double T : periodos) {
        for (const double D : duraciones) {
            puntos.Agregar(T, D, 312.5 * std::pow(T, 0.21) * std::pow(D, -0.58));
        }
    }
    return puntos;
}

// The sums of 7.5 and of 3.3 leave a matrix that rounding makes regular.
TEST(EcuacionIntensidad, SoloLaDeterminanPeriodosYDuracionesDistintos) {
    for (const double igual : {1.0, 3.3, 7.5, 12.5}) {
        EXPECT_FALSE(AjustarIntensidad(Puntos({igual}, {10, 20, 30, 60, 90, 120}), BusquedaPivote::EnFila)) << igual;
        EXPECT_FALSE(AjustarIntensidad(Puntos({2, 5, 10, 25, 50}, {igual}), BusquedaPivote::EnColumna)) << igual;
    }
    PuntosIDT sinLogaritmo = Puntos({7}, {10, 20, 30});
    sinLogaritmo.I(2) = 0;
    EXPECT_EQ(NumeroDeError([&] { return AjustarIntensidad(sinLogaritmo, BusquedaPivote::EnFila); }), 5);
}

}  // namespace
}  // namespace cuencalia
