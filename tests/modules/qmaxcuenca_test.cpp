#include "modules/caudales/intensidadregional.h"
#include "modules/caudales/macmath.h"
#include "modules/caudales/moduloqmax.h"
#include "modules/caudales/racional.h"
#include "tests/datos_publicados.h"
#include "tests/forma_en_uso.h"
#include "tests/numero_de_error.h"

namespace cuencalia {
namespace {

TEST(Escorrentia, MetodoRacional) {
    for (const auto& r : Renglones("cuenca.csv", "rural")) {
        for (const auto& [pendiente, columna] : {std::pair(0.0, 2), std::pair(5.0, 2), std::pair(5.01, 3),
                                                 std::pair(10.0, 3), std::pair(10.01, 4), std::pair(-1.0, 4)}) {
            EXPECT_EQ(CoeficienteRural(r[0], r[1], pendiente), std::stod(r[static_cast<std::size_t>(columna)]))
                << r[0] << ", " << r[1] << ", " << pendiente;
        }
    }
    for (const auto& r : Renglones("cuenca.csv", "urbana")) {
        EXPECT_EQ(CoeficienteUrbano(r[0]), std::stod(r[1])) << r[0];
    }
    EXPECT_EQ(Renglones("cuenca.csv", "rural").size(), std::size(kEscorrentiaRural) + 1);
    EXPECT_EQ(Renglones("cuenca.csv", "urbana").size(), std::size(kEscorrentiaUrbana) + 1);
}

TEST(Escorrentia, MacMath) {
    EXPECT_EQ(Renglones("cuenca.csv", "macmath").size(), 20);
    for (const auto& r : Renglones("cuenca.csv", "macmath")) {
        EXPECT_NEAR(CoeficienteMacMath(r[0], r[1], std::stod(r[2])).valor(), std::stod(r[3]), 1e-15) << r[0] << r[1];
    }
}

TEST(IntensidadRegional, SeisEcuaciones) {
    const auto esperadas = Renglones("cuenca.csv", "regional");
    ASSERT_EQ(esperadas.size(), std::size(kEcuacionesRegionales));
    for (std::size_t i = 0; i < esperadas.size(); ++i) {
        const EcuacionRegional& ecuacion = kEcuacionesRegionales[i];
        EXPECT_EQ(ecuacion.lugar, esperadas[i][0]);
        EXPECT_NEAR(ecuacion.Evaluar(25, 30).valor(), std::stod(esperadas[i][1]), 5e-5) << ecuacion.lugar;
        EXPECT_EQ(NumeroDeError([&] { return ecuacion.Evaluar(25, 1); }), ecuacion.logDeLog ? 5 : 0);
    }
}

class GruposTest : public pruebas::FormaEnUso<ModuloQmax> {
  protected:
    GruposTest() : FormaEnUso("frmQmaxRacional") {}

    /// Adds a group of 0.1 hectares at a slope of 1 %.
    void Agregar() {
        app.Despachar([&] {
            F().fichaC.area.caja.Text = "0.1";
            F().fichaC.pendiente.caja.Text = "1";
        });
        app.Pulsar(F().fichaC.bAgregar);
    }
    std::string Ponderar() {
        app.Pulsar(F().fichaC.bCponderado);
        return F().fichaC.ponderado.caja.Text() + " " + F().fichaC.total.caja.Text();
    }
};

// The table has room for 49 groups, the calculation for 150 or 130.
TEST_F(GruposTest, LosQueNoCabenEnLaTablaCuentan) {
    for (const auto& [forma, C, maximo, area] :
         {std::tuple("frmQmaxRacional", "0.1 ", 150, "15"), std::tuple("frmQmaxMacMath", "0.44 ", 130, "13")}) {
        Abrir(forma);
        app.Despachar([this] { F().SSTab1.Tab = 1; });
        for (int grupo = 1; grupo <= 49; ++grupo) {
            Agregar();
        }
        EsperarSilencio();
        EXPECT_EQ(F().fichaC.grdC.TextMatrix(49, 0), "49");
        EXPECT_EQ(Ponderar(), C + std::string("4.9"));
        Agregar();
        EXPECT_EQ(F().StatusBar1.Panel(kPanelAvisos),
                  "La tabla admite 49 grupos: los demás cuentan en el C ponderado, pero no se ven");
        for (int grupo = 51; grupo <= maximo; ++grupo) {
            Agregar();
        }
        EXPECT_EQ(NumerosDe(sistema.errores), std::vector(static_cast<std::size_t>(maximo - 49), 9));
        EXPECT_EQ(Ponderar(), C + std::string(area));
        // A group without room counts all the same, so there is no mean any more.
        Agregar();
        sistema.errores.clear();
        EXPECT_EQ(Ponderar(), C + std::string(area));
        EXPECT_EQ(NumerosDe(sistema.errores), std::vector{9});
        sistema.errores.clear();
        // The report has no rows to read beyond the 49th.
        EsperarMensaje(F().bReporte, "No se puede editar el reporte: " + F().Caption(), 64, "Mensaje de error");
        app.Pulsar(F().bLimpiar);
        Agregar();
        EXPECT_EQ(Ponderar(), C + std::string("0.1"));
    }
}

}  // namespace
}  // namespace cuencalia
