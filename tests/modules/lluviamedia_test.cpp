#include "modules/precipitacion/frmIsoyeta.h"
#include "tests/archivos_en_disco.h"
#include "tests/forma_en_uso.h"
#include "tests/numero_de_error.h"

namespace cuencalia {
namespace {

using namespace std::string_literals;

class IsoyetaTest : public pruebas::FormaEnUso<frmIsoyeta> {
  protected:
    IsoyetaTest() : FormaEnUso("frmIsoyeta") {}
};

// The last isohyet takes the place behind those of the rows.
TEST_F(IsoyetaTest, HastaMilCuatrocientasNoventaYNueveBandas) {
    for (const int filas : {1499, 1500}) {
        app.Despachar([&] {
            F().txtUltimaIsoyeta.Text = "1500";
            F().datos.EmpezarCarga(filas);
            F().datos.grdt.PonerTextMatrix(1499, 2, "1");
        });
        app.Pulsar(F().bCalcular);
        EXPECT_EQ(F().txtPprom.Text(), "750.0") << "the band from 0 to the last isohyet alone has an area";
    }
    EXPECT_EQ(NumerosDe(sistema.errores), std::vector{9});
    EXPECT_NE(F().StatusBar1.Panel(kPanelAvisos).find("1499"), std::string::npos);
}

// 10 = 41200000, 0.5 = 3F000000, 30 = 41F00000, 12.5 = 41480000, 7 = 40E00000, least byte first.
TEST_F(IsoyetaTest, LaUltimaIsoyetaEsElUltimoRegistro) {
    const pruebas::CarpetaTemporal carpeta;
    const std::string bytes = "\0\0\x20\x41\0\0\0\x3F\0\0\xF0\x41\0\0\x48\x41\0\0\xE0\x40\0\0\0\0"s;
    sistema.archivo = pruebas::Guardar(carpeta / "a.IA", bytes);
    app.Pulsar(F().archivos.bAccesar);
    EXPECT_EQ(F().datos.grdt.TextMatrix(2, 2) + " " + F().txtUltimaIsoyeta.Text(), "12.5 7.0");
    sistema.archivo = carpeta / "b.IA";
    app.Pulsar(F().archivos.bCrear);
    EXPECT_EQ(pruebas::BytesDe(carpeta / "b.IA"), bytes);
}

}  // namespace
}  // namespace cuencalia
