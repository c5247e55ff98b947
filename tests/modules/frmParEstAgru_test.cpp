#include "modules/estadistica/frmParEstAgru.h"

#include "tests/forma_en_uso.h"

namespace cuencalia {
namespace {

using pruebas::Filas;
using pruebas::Tabla;
using pruebas::Textos;

const Tabla kClasesVacias{{"LCI", "MCL", "LCS", "Fab"}, Textos(4)};
const Tabla kParametrosVacios{{"Parámetros", "Resultados"}, {"", ""}, {"", ""}, {"", ""}, {"", ""}, {"", ""}, {"", ""}};

class ParEstAgruTest : public pruebas::FormaEnUso<frmParEstAgru> {
  protected:
    ParEstAgruTest() : FormaEnUso("frmParEstAgru") {}

    void Calcular(const Textos& valores) {
        TeclearDatos(valores);
        app.Pulsar(F().bCalcular);
    }
    Textos Resultados() {
        Textos textos;
        for (int i = 1; i <= 6; ++i) {
            textos.push_back(F().grdParam.TextMatrix(i, 1));
        }
        return textos;
    }
};

TEST_F(ParEstAgruTest, AlAbrir) {
    EXPECT_EQ(F().Caption(), "Cálculo de parámetros estadísticos agrupando datos");
    EXPECT_EQ(Filas(F().grdt), (Tabla{{"N°", "X"}, {"[?]", ""}}));
    EXPECT_EQ(Filas(F().grddis), kClasesVacias);
    EXPECT_EQ(Filas(F().grdParam), kParametrosVacios);
    EXPECT_EQ(F().grdParam.ColWidth(0), 2050);
    EXPECT_EQ(F().grdParam.ColWidth(1), 1750);
    EXPECT_EQ(F().grdParam.ColAlignment(0), 4);
    EXPECT_EQ(F().grdParam.ColAlignment(1), 4);
    EXPECT_EQ(F().grdParam.RowHeight(0), 340);
    EXPECT_FALSE(F().orden.grdorden.EsVisible());
}

// 5, 6, 7, 9 in the classes 4-6-8-10: twice 5, once 7, once 9. Mean 26/4 = 6.5; deviations -1.5 (twice), 0.5, 2.5:
// S2 = 11, S3 = 9, S4 = 49.25. s² = 11/3, s = 1.914854, Cv = 0.294593, Cs = 16·2.25/(3·2·s³) = 0.854563,
// Ck = 64·12.3125/(3·2·1·s⁴) = 9.768595.
TEST_F(ParEstAgruTest, CuatroValores) {
    Calcular({"9", "5", "7", "6"});
    EXPECT_EQ(Filas(F().grddis), (Tabla{{"LCI", "MCL", "LCS", "Fab"},
                                        {"4.0", "5.0", "6.0", "2"},
                                        {"6.0", "7.0", "8.0", "1"},
                                        {"8.0", "9.0", "10.0", "1"}}));
    EXPECT_EQ(Filas(F().grdParam), (Tabla{{"Parámetros", "Resultados"},
                                          {"Media:                      ", "6.5000"},
                                          {"Varianza:                   ", "3.6667"},
                                          {"Desviación Estándar:        ", "1.9149"},
                                          {"Coeficiente Variación:      ", "0.2946"},
                                          {"Coeficiente de Sesgo:       ", "0.8546"},
                                          {"Coeficiente de Curtosis:    ", "9.7686"}}));
    EXPECT_EQ(F().grdParam.ColAlignment(0), 1);
    EXPECT_EQ(F().grdParam.ColAlignment(1), 4);
    EsperarSilencio();
}

// 5, 7, 8, 9: the marks 5, 7, 9 once, twice, once. Mean 7 (of the data it is 7.25), S2 = 8, S3 = 0, S4 = 32; s² = 8/3,
// s = 1.632993, Cv = 0.233285, Ck = 64·8/(6·64/9) = 12.
TEST_F(ParEstAgruTest, LaMediaEsLaDeLasClases) {
    Calcular({"5", "7", "8", "9"});
    EXPECT_EQ(Resultados(), (Textos{"7.0000", "2.6667", "1.633", "0.2333", "0.0000", "12.0000"}));
}

// The marks of 1 to 7 are 1, 3, 5, 7 with 2, 2, 2, 1 values. Mean 25/7 = 3.571429. The squares of the marks add up to
// 119; S2 = 119 - 7·(25/7)² = 208/7, s² = 208/42 = 4.952381, s = 2.225394.
TEST_F(ParEstAgruTest, VarianzaYDesviacionConCuatroDecimales) {
    Calcular({"7", "6", "5", "4", "3", "2", "1"});
    const Textos r = Resultados();
    EXPECT_EQ(r[0], "3.5714");
    EXPECT_EQ(r[1], "4.9524");
    EXPECT_EQ(r[2], "2.2254");
    // 1, 3, 3, 3, 5 are their own marks: S2 = 8, s² = 2, s = 1.414214, Cv = s/3, Ck = 125·6.4/(24·4).
    app.Pulsar(F().bLimpiar);
    Calcular({"1", "3", "3", "3", "5"});
    EXPECT_EQ(Resultados(), (Textos{"3.0000", "2.0", "1.4142", "0.4714", "0.0000", "8.3333"}));
}

// One of 50 values is in no class (see the test of the classes); the others have the mark 1E9/12. The mean divides by
// 50 all the same: 49·1E9/12/50.
TEST_F(ParEstAgruTest, UnValorSinClaseBajaLaMedia) {
    Textos valores(48, "100000000");
    valores.push_back("0.00000001");
    valores.push_back("1000000000");
    Calcular(valores);
    EXPECT_EQ(F().grddis.TextMatrix(1, 3), "49");
    EXPECT_EQ(Resultados()[0], "81666666.6667");
}

TEST_F(ParEstAgruTest, SeriesQueDetienenElCalculo) {
    EsperarError(F().bCalcular, 5);
    struct Caso {
        const char* porque;
        Textos valores;
        int numero;
    };
    for (const Caso& caso :
         {Caso{"no spread for one value", {"7"}, 6}, Caso{"two values: n - 2 and m3 are 0", {"1", "3"}, 6},
          Caso{"three values: n - 3 is 0", {"1", "2", "4"}, 11},
          Caso{"all equal: s and m3 are 0", {"5", "5", "5", "5"}, 6},
          Caso{"the mean of the classes is 0", {"-3", "-1", "1", "3"}, 11}}) {
        SCOPED_TRACE(caso.porque);
        app.Pulsar(F().bLimpiar);
        TeclearDatos(caso.valores);
        EsperarError(F().bCalcular, caso.numero);
        EXPECT_EQ(Filas(F().grddis), kClasesVacias);
        EXPECT_EQ(Filas(F().grdParam), kParametrosVacios);
    }
}

TEST_F(ParEstAgruTest, OrdenarYLimpiar) {
    TeclearDatos({"9", "5", "7", "6"});
    app.Pulsar(F().orden.bOrdenar);
    EXPECT_TRUE(F().orden.grdorden.EsVisible());
    EXPECT_EQ(Filas(F().orden.grdorden),
              (Tabla{{"N°", "X"}, {" 1", "5.0"}, {" 2", "6.0"}, {" 3", "7.0"}, {" 4", "9.0"}}));
    EXPECT_EQ(Filas(F().grdParam), kParametrosVacios);
    app.Pulsar(F().bCalcular);
    ASSERT_EQ(Resultados()[0], "6.5000");
    app.Pulsar(F().bLimpiar);
    EXPECT_EQ(Filas(F().grdt), (Tabla{{"N°", "X"}, {"[?]", ""}}));
    EXPECT_EQ(Filas(F().grddis), kClasesVacias);
    EXPECT_EQ(Filas(F().grdParam), kParametrosVacios);
    EXPECT_EQ(F().grdParam.ColAlignment(0), 4);
    EXPECT_FALSE(F().orden.grdorden.EsVisible());
    EXPECT_FALSE(F().orden.lblOrdenado.EsVisible());
    EsperarSilencio();
}

}  // namespace
}  // namespace cuencalia
