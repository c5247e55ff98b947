#include "modules/estadistica/frmDistriFre.h"

#include "tests/forma_en_uso.h"

namespace cuencalia {
namespace {

using pruebas::Filas;
using pruebas::Tabla;
using pruebas::Textos;
using Valores = std::vector<std::optional<Double>>;

const Textos kEncabezados{"LCI", "MCL", "LCS", "FreAbsoluta", "FreRelativa", "FunDensidad", "FunAcumulada"};
const Tabla kVacia{kEncabezados, Textos(7)};
// 5, 6, 7, 9: dx = 2, classes 4-6-8-10 with 2, 1 and 1 of the four values; a percent of each width of 2 is 0.5.
const Tabla kTresClases{kEncabezados,
                        {"4.0", "5.0", "6.0", "2", "50.0000", "25.0000", "50.00"},
                        {"6.0", "7.0", "8.0", "1", "25.0000", "12.5000", "75.00"},
                        {"8.0", "9.0", "10.0", "1", "25.0000", "12.5000", "100.00"}};

class DistriFreTest : public pruebas::FormaEnUso<frmDistriFre> {
  protected:
    DistriFreTest() : FormaEnUso("frmDistriFre") {}

    void CalcularCuatro() {
        TeclearDatos({"9", "5", "7", "6"});
        app.Pulsar(F().bCalcular);
    }
    void EsperarRotulos(bool visibles) {
        EXPECT_EQ(F().lblMarcaClase.EsVisible(), visibles);
        EXPECT_EQ(F().lblPorcentaje.EsVisible(), visibles);
        EXPECT_EQ(F().lblFuncion.EsVisible(), visibles);
    }
    void EsperarCurva(const Valores& y, const std::string& funcion) {
        const GraficoModulo& g = F().Graph1;
        EXPECT_TRUE(g.EsVisible());
        EXPECT_EQ(g.GraphType(), 6);
        EXPECT_EQ(g.GraphStyle(), 0);
        EXPECT_EQ(g.Background(), 11);
        EXPECT_EQ(g.BorderStyle(), 1);
        EXPECT_EQ(g.PatternData(), 2);
        EXPECT_EQ(g.AutoInc(), 1);
        EXPECT_EQ(g.DrawMode(), 2);
        EXPECT_EQ(g.NumPoints(), 4);
        ASSERT_EQ(g.NumSets(), 1);
        EXPECT_EQ(g.Conjuntos()[0].x, (Valores{0, 5, 7, 9}));
        EXPECT_EQ(g.Conjuntos()[0].y, y);
        EXPECT_EQ(F().lblFuncion.Caption(), funcion);
    }
};

TEST_F(DistriFreTest, AlAbrir) {
    EXPECT_EQ(F().Caption(), "Cálculo de la distribución de frecuencia de una muestra");
    EXPECT_EQ(Filas(F().grdt), (Tabla{{"N°", "X"}, {"[?]", ""}}));
    EXPECT_EQ(Filas(F().grddis), kVacia);
    EXPECT_EQ(F().fraTipoGrafico.Caption(), "Tipo de gráfico:");
    EXPECT_EQ(F().optDensidad.Caption(), "F. Densidad");
    EXPECT_EQ(F().optAcumulada.Caption(), "F. Acumulada");
    EXPECT_EQ(F().lblPorcentaje.Caption(), "(%)");
    EXPECT_EQ(F().lblMarcaClase.Caption(), "Marca de clase");
    EXPECT_EQ(F().bGraficar.Caption(), "&Graficar");
    EXPECT_EQ(F().bGraficar.ToolTipText(), "Mostrar gráfico");
    EXPECT_FALSE(F().fraTipoGrafico.EsVisible());
    EXPECT_FALSE(F().Graph1.EsVisible());
    EXPECT_FALSE(F().orden.grdorden.EsVisible());
    EsperarRotulos(false);
}

TEST_F(DistriFreTest, Tabla) {
    CalcularCuatro();
    EXPECT_EQ(Filas(F().grddis), kTresClases);
    EXPECT_EQ(Filas(F().grdt)[1], (Textos{" 1", "9.0"})) << "the data stay as they were typed";
    EXPECT_FALSE(F().orden.grdorden.EsVisible());
    app.Pulsar(F().bCalcular);
    EXPECT_EQ(Filas(F().grddis), kTresClases) << "the same again";
    EsperarSilencio();
}

// Limits with two decimals, the rest with four and two: 0, 1, 2, 3 make three classes 1.25 wide from 0 on. A percent of
// each is 0.8.
TEST_F(DistriFreTest, FormatosYLimiteCero) {
    TeclearDatos({"3", "0", "2", "1"});
    app.Pulsar(F().bCalcular);
    EXPECT_EQ(Filas(F().grddis), (pruebas::Tabla{kEncabezados,
                                                 {"0.0", "0.63", "1.25", "2", "50.0000", "40.0000", "50.00"},
                                                 {"1.25", "1.88", "2.5", "1", "25.0000", "20.0000", "75.00"},
                                                 {"2.5", "3.13", "3.75", "1", "25.0000", "20.0000", "100.00"}}));
}

// Seven equal parts of a hundred: 1, 2, 3, 4, 5, 6, 7 make four classes of width 2 from 0 on, with 2, 2, 2, 1 values:
// 28.571 %, density 14.286, cumulative 57.14, 85.71. Then an eighth value shifts them: 8 values, dx = 7/3 from -1/6,
// so dx = (1 + 8)/4 from 0 on.
TEST_F(DistriFreTest, FraccionesRedondeadas) {
    TeclearDatos({"1", "2", "3", "4", "5", "6", "7"});
    app.Pulsar(F().bCalcular);
    EXPECT_EQ(Filas(F().grddis), (pruebas::Tabla{kEncabezados,
                                                 {"0.0", "1.0", "2.0", "2", "28.5714", "14.2857", "28.57"},
                                                 {"2.0", "3.0", "4.0", "2", "28.5714", "14.2857", "57.14"},
                                                 {"4.0", "5.0", "6.0", "2", "28.5714", "14.2857", "85.71"},
                                                 {"6.0", "7.0", "8.0", "1", "14.2857", "7.1429", "100.00"}}));
    TeclearDatos({"8"});
    app.Pulsar(F().bCalcular);
    EXPECT_EQ(Filas(F().grddis)[1], (Textos{"0.0", "1.13", "2.25", "2", "25.0000", "11.1111", "25.00"}));
    EXPECT_EQ(Filas(F().grddis)[4], (Textos{"6.75", "7.88", "9.0", "2", "25.0000", "11.1111", "100.00"}));
}

// The greatest value is lost beyond the last limit (see the test of the classes): 49 of 50 are 98 percent.
TEST_F(DistriFreTest, UnValorSinClaseFaltaEnElTotal) {
    Textos valores(48, "100000000");
    valores.push_back("0.00000001");
    valores.push_back("1000000000");
    TeclearDatos(valores);
    app.Pulsar(F().bCalcular);
    const pruebas::Tabla tabla = Filas(F().grddis);
    ASSERT_EQ(tabla.size(), 7U);
    EXPECT_EQ(tabla[1][3], "49");
    EXPECT_EQ(tabla[6][3], "0");
    EXPECT_EQ(tabla[6][6], "98.00");
}

TEST_F(DistriFreTest, SeriesQueDetienenElCalculo) {
    EsperarError(F().bCalcular, 5);
    TeclearDatos({"7"});
    EsperarError(F().bCalcular, 6);
    TeclearDatos({"7", "7", "7"});
    EsperarError(F().bCalcular, 11);
    EXPECT_EQ(Filas(F().grddis), kVacia);
    TeclearDatos({"8"});
    app.Pulsar(F().bCalcular);
    EXPECT_EQ(F().grddis.Rows(), 4) << "the program goes on";
}

TEST_F(DistriFreTest, GraficarMuestraLaAcumulada) {
    CalcularCuatro();
    app.Pulsar(F().bGraficar);
    EsperarCurva({0, 50, 75, 100}, "Fx");
    EsperarRotulos(true);
    EXPECT_TRUE(F().fraTipoGrafico.EsVisible());
    EXPECT_TRUE(F().optAcumulada.Value);
    EXPECT_FALSE(F().optDensidad.Value);

    app.Pulsar(F().optDensidad);
    EsperarCurva({0, 25, 12.5, 12.5}, "fx");
    EXPECT_FALSE(F().optAcumulada.Value);
    app.Pulsar(F().optAcumulada);
    EsperarCurva({0, 50, 75, 100}, "Fx");
    app.Pulsar(F().optDensidad);
    app.Pulsar(F().bGraficar);
    EsperarCurva({0, 50, 75, 100}, "Fx");
    EXPECT_TRUE(F().optAcumulada.Value) << "whichever option was on";
    EsperarSilencio();
}

TEST_F(DistriFreTest, GraficarSinResultados) {
    EsperarMensaje(F().bGraficar, "Para graficar se requiere por lo menos dos puntos", 16, "Error");
    EXPECT_FALSE(F().Graph1.EsVisible());
    EsperarMensaje(F().optDensidad, "Para graficar se requiere por lo menos dos puntos", 16, "Error");
    EXPECT_EQ(F().lblFuncion.Caption(), "fx");
    EXPECT_FALSE(F().Graph1.EsVisible());

    CalcularCuatro();
    app.Pulsar(F().bLimpiar);
    // The number of classes is still known.
    EsperarMensaje(F().bGraficar, "Ejecutar cálculos antes de graficar");
    EXPECT_FALSE(F().Graph1.EsVisible());
    // A stopped calculation is none.
    EsperarError(F().bCalcular, 5);
    EsperarMensaje(F().bGraficar, "Ejecutar cálculos antes de graficar");
}

TEST_F(DistriFreTest, EditarDejaLosResultados) {
    CalcularCuatro();
    TeclearDatos({"500"});
    app.Pulsar(F().bGraficar);
    EsperarCurva({0, 50, 75, 100}, "Fx");
    EXPECT_EQ(Filas(F().grddis), kTresClases);
    EsperarSilencio();
}

TEST_F(DistriFreTest, Limpiar) {
    CalcularCuatro();
    app.Pulsar(F().orden.bOrdenar);
    EXPECT_EQ(Filas(F().orden.grdorden),
              (pruebas::Tabla{{"N°", "X"}, {" 1", "5.0"}, {" 2", "6.0"}, {" 3", "7.0"}, {" 4", "9.0"}}));
    app.Pulsar(F().bGraficar);
    app.Pulsar(F().bLimpiar);
    EXPECT_EQ(Filas(F().grdt), (pruebas::Tabla{{"N°", "X"}, {"[?]", ""}}));
    EXPECT_EQ(Filas(F().grddis), kVacia);
    EXPECT_FALSE(F().orden.grdorden.EsVisible());
    EXPECT_FALSE(F().orden.lblOrdenado.EsVisible());
    EXPECT_FALSE(F().Graph1.EsVisible());
    EXPECT_EQ(F().Graph1.DrawMode(), 1);
    EsperarRotulos(false);
}

}  // namespace
}  // namespace cuencalia
