#include "frame/modulo/modulocalculo.h"
#include "frame/reportes/grafico.h"
#include "tests/archivos_en_disco.h"
#include "tests/forma_en_uso.h"

namespace cuencalia::pruebas {
namespace {

/// The windows with limits and files of their own.
class Series : public FormaEnUso<ModuloCalculo> {
  protected:
    Series() : FormaEnUso("frmAforoCorren") {}
    std::string Texto(const std::string& caja) { return dynamic_cast<TextBox&>(*F().Controls(caja)).Text(); }
    /// Rows of the value 2, which grows by a step from row to row.
    void Llenar(int filas, int paso = 0) {
        F().datos.EmpezarCarga(filas);
        for (int i = 1; i <= filas; ++i) {
            for (int c = 1; c <= F().datos.UltimaColumna(); ++c) {
                F().datos.grdt.PonerTextMatrix(i, c, std::to_string(2 + paso * (i - 1)));
            }
        }
    }
};

// Three tables end before the arrays do; an isohyet stands behind those of the rows; months are whole years.
TEST_F(Series, HastaDondeCaben) {
    for (const auto& [forma, limite, demasiados, que] :
         {std::tuple("frmCurvaDuracion", 499, 500, "datos"), std::tuple("frmAforoCorren", 49, 50, "datos"),
          std::tuple("frmAnalisisTor", 198, 199, "datos"), std::tuple("frmVariacionEsta", 1500, 1512, "datos"),
          std::tuple("frmIsoyeta", 1499, 1500, "áreas entre isoyetas")}) {
        SCOPED_TRACE(forma);
        Abrir(forma);
        for (const int filas : {demasiados, limite}) {
            app.Despachar([&] {
                if (auto* isoyeta = dynamic_cast<TextBox*>(F().Controls("txtUltimaIsoyeta"))) {
                    isoyeta->Text = "2";
                }
                Llenar(filas);
            });
            app.Pulsar(F().bCalcular);
            EXPECT_EQ(sistema.errores.size() + sistema.mensajes.size(), filas == limite ? 0U : 1U);
            if (filas > limite) {
                EXPECT_EQ(F().StatusBar1.Panel(kPanelAvisos),
                          "El módulo admite hasta " + std::to_string(limite) + " " + que);
            }
            sistema.errores.clear();
            sistema.mensajes.clear();
        }
    }
}

TEST_F(Series, CadaEjeDelGraficoTieneSuRotulo) {
    for (const auto& [forma, x, y] :
         {std::tuple("frmCurvaDuracion", "% de días en que Q es mayor o igual al límite inferior", "Q (m3/s)"),
          std::tuple("frmAnalisisTor", "Tiempo acumulado (min)", "Intensidad (mm/hr)"),
          std::tuple("frmAforoCorren", "Distancia desde el margen (m)", "Profundidad (m)"),
          std::tuple("frmVariacionEsta", "Mes", "X")}) {
        Abrir(forma);
        app.Despachar([this] { Llenar(24, 1); });
        app.Pulsar(F().bCalcular);
        app.Pulsar(*F().Controls("bGraficar"));
        const auto& grafico = dynamic_cast<GraficoModulo&>(*F().Controls("Graph1"));
        EXPECT_EQ(grafico.RotuloX(), x);
        EXPECT_EQ(grafico.RotuloY(), y);
    }
}

// What is no row stands behind the rows of the file: the margin with no length, the last isohyet, the first year.
TEST_F(Series, LoQueNoEsFilaVaAlFinalDelArchivo) {
    using Cajas = std::vector<std::pair<const char*, const char*>>;
    using Caso = std::tuple<const char*, int, std::vector<float>, Cajas, const char*>;
    const CarpetaTemporal carpeta;
    for (const auto& [forma, porRegistro, valores, cajas, segunda] :
         {Caso{"frmAforoCorren",
               3,
               {2, 0.75, 0, 4, 1, 0.5, 0, 1.25, 0.75},
               {{"txtho", "1.25"}, {"txtvo", "0.75"}},
               "4.0"},
          Caso{"frmIsoyeta", 2, {10, 0.5, 30, 12.5, 7, 0}, {{"txtUltimaIsoyeta", "7.0"}}, "30.0"},
          Caso{"frmQmaxNash", 1, {100, 250.5, 1998}, {{"txtanno", "1998"}}, "250.5"}}) {
        SCOPED_TRACE(forma);
        Abrir(forma);
        const std::string bytes(reinterpret_cast<const char*>(valores.data()), 4 * valores.size());
        sistema.archivo = Guardar(carpeta / "a", bytes);
        app.Pulsar(F().archivos.bAccesar);
        for (const auto& [caja, texto] : cajas) {
            EXPECT_EQ(Texto(caja), texto);
        }
        EXPECT_EQ(F().datos.Filas(), static_cast<int>(valores.size()) / porRegistro - 1);
        EXPECT_EQ(F().datos.grdt.TextMatrix(2, 1), segunda);
        sistema.archivo = carpeta / "b";
        app.Pulsar(F().archivos.bCrear);
        EXPECT_EQ(BytesDe(carpeta / "b"), bytes);
    }
}

// The first row of the sheet of a stream gauging is the margin: no length, depth, velocity.
TEST_F(Series, ElMargenEsLaPrimeraFilaDeLaHoja) {
    const CarpetaTemporal carpeta;
    Hoja hoja;
    for (const auto& [fila, columna, valor] : {std::tuple(1, 1, 9.0), {1, 2, 1.5}, {1, 3, 0.25}, {2, 1, 2.0}}) {
        hoja.Poner(fila, columna, Double(valor));
    }
    sistema.Hojas().EscribirLibro(carpeta / "aforo.xlsx", hoja);
    sistema.archivo = carpeta / "aforo.xlsx";
    app.Pulsar(F().archivos.bCargarExcel);
    EXPECT_EQ(Texto("txtho"), "1.5");
    EXPECT_EQ(Texto("txtvo"), "0.25");
    EXPECT_EQ(F().datos.grdt.TextMatrix(1, 1), "2.0");
    app.Pulsar(F().bCalcular);
    app.Pulsar(*F().Controls("bGraficar"));
    EXPECT_TRUE(dynamic_cast<GraficoModulo&>(*F().Controls("Graph1")).Cauce) << "the profile is a bed with water";
}

}  // namespace
}  // namespace cuencalia::pruebas
