#include "modules/precipitacion/bell.h"
#include "modules/precipitacion/frmAnalisisTor.h"
#include "modules/precipitacion/grobe.h"
#include "tests/datos_publicados.h"
#include "tests/forma_en_uso.h"
#include "tests/numero_de_error.h"

namespace cuencalia::pruebas {
namespace {

PuntosIDT Puntos(const std::vector<double>& periodos, const std::vector<double>& duraciones) {
    PuntosIDT puntos(static_cast<int>(periodos.size() * duraciones.size()));
    for (const double T : periodos) {
        for (const double D : duraciones) {
            puntos.Agregar(T, D, 312.5 * std::pow(T, 0.21) * std::pow(D, -0.58));
        }
    }
    return puntos;
}

// Points on the equation give it back by either search. Equal periods or durations do not, however their sums round.
TEST(EcuacionIntensidad, SoloLaDeterminanPeriodosYDuracionesDistintos) {
    for (const BusquedaPivote busqueda : {BusquedaPivote::EnFila, BusquedaPivote::EnColumna}) {
        const PuntosIDT puntos = Puntos({2, 5, 10, 50, 100}, {5, 15, 45, 120, 720});
        const auto ajuste = AjustarIntensidad(puntos, busqueda);
        ASSERT_TRUE(ajuste);
        EsperarRelativo(ajuste->ecuacion.K, 312.5, 1e-12);
        EsperarRelativo(ajuste->ecuacion.m, 0.21, 1e-12);
        EsperarRelativo(ajuste->ecuacion.p, -0.58, 1e-12);
        EXPECT_LT(ajuste->Se(puntos), 1e-9);
        for (double igual = 1; igual <= 25; igual += 0.5) {
            EXPECT_FALSE(AjustarIntensidad(Puntos({igual}, {10, 20, 30, 60, 90, 120}), busqueda)) << igual;
            EXPECT_FALSE(AjustarIntensidad(Puntos({2, 5, 10, 25, 50, 100}, {igual}), busqueda)) << igual;
        }
        EXPECT_FALSE(AjustarIntensidad(PuntosIDT(0), busqueda));
    }
    PuntosIDT sinLogaritmo = Puntos({7}, {10, 20, 30});
    sinLogaritmo.I(2) = 0;
    EXPECT_EQ(NumeroDeError([&] { return AjustarIntensidad(sinLogaritmo, BusquedaPivote::EnFila); }), 5);
}

// Rain of 5, 10 and 15 minutes over that of 30, and of 30 over that of an hour: U.S. Weather Bureau (1961), Technical
// Paper 40. Bell's curve runs within 0.03 of them, and within 0.01 of 1 where it is the rain that it starts from.
TEST(Bell, CercaDeLasRelacionesMedidas) {
    for (const auto& [d, relacion] : {std::pair{5, 0.37 * 0.79}, {10, 0.57 * 0.79}, {15, 0.72 * 0.79}, {30, 0.79}}) {
        EXPECT_NEAR(LluviaBell(d, 10, 1).valor(), relacion, 0.03) << d;
    }
    EXPECT_NEAR(LluviaBell(60, 10, 1).valor(), 1, 0.01);
}

class Tormentas : public FormaEnUso<frmAnalisisTor> {
  protected:
    Tormentas() : FormaEnUso("frmAnalisisTor") {}
};

// The table of the intensities ends before the arrays do.
TEST_F(Tormentas, HastaCientoNoventaYOchoIntervalos) {
    for (const int filas : {198, 199}) {
        app.Despachar([&] {
            F().datos.EmpezarCarga(filas);
            for (int i = 1; i <= filas; ++i) {
                F().datos.grdt.PonerTextMatrix(i, 1, "5");
                F().datos.grdt.PonerTextMatrix(i, 2, i == 198 ? "2" : "1");
            }
        });
        app.Pulsar(F().bCalcular);
        EXPECT_EQ(F().txtvI.Text(), "24.0");
    }
    EXPECT_EQ(NumerosDe(sistema.errores), std::vector{9});
    EXPECT_EQ(F().StatusBar1.Panel(kPanelAvisos), "El módulo admite hasta 198 datos");
}

}  // namespace
}  // namespace cuencalia::pruebas
