#include <gtest/gtest.h>

#include "frame/frmPadre.h"
#include "tests/forma_en_uso.h"

namespace cuencalia {
namespace {

std::string R(std::size_t guiones) { return std::string(guiones, '-'); }
/// A text with that many blanks on both sides.
std::string P(std::size_t blancos, const std::string& texto) {
    return std::string(blancos, ' ') + texto + std::string(blancos, ' ');
}
/// A text with two tabs behind it.
std::string TT(const std::string& texto) { return texto + "\t\t"; }

std::string Cabecera(const std::string& titulo) { return "Resultados\n\n" + titulo + "\n\n\n"; }

/// The table of a series between its rules of 45 dashes; the values are numbered from 1.
std::string TablaDeSerie(const std::string& titulo, const pruebas::Textos& valores) {
    std::string texto = titulo + "\n\n" + R(45) + "\n" + TT(" N°") + TT(" X") + "\n" + R(45) + "\n";
    int i = 0;
    for (const std::string& valor : valores) {
        texto += TT(" " + std::to_string(++i)) + TT(valor) + "\n";
    }
    return texto + R(45) + "\n\n";
}

/// The sorted table as it is before bOrdenar: one row without texts.
const std::string kSinOrdenar = "Serie de datos ordenados:\n\n" + R(45) + "\n" + TT(" N°") + TT(" X") + "\n" + R(45) +
                                "\n" + TT("") + TT("") + "\n" + R(45) + "\n\n";

class ReportesTest : public pruebas::FormaEnUso<ModuloCalculo> {
  protected:
    ReportesTest() : FormaEnUso("frmParamEsta") {}

    void Pulsar(const std::string& boton) { app.Pulsar(*F().Controls(boton)); }
    /// The whole text of the only report of a new document.
    std::string Reporte() {
        if (auto* padre = dynamic_cast<frmPadre*>(app.Cargada("frmPadre"))) {
            app.Despachar([&] { padre->mnuFileNew.Elegir(); });
        }
        app.Pulsar(F().bReporte);
        EsperarSilencio();
        return dynamic_cast<frmPadre&>(*app.Cargada("frmPadre")).ActiveForm()->rtfText.Leer().Text();
    }
};

// 10, 1, 2, 3, 4: the results are worked out in the test of the module. (25 - 6)/2 = 9.5 and (25 - 4)/2 = 10.5 are
// both rounded to 10, (25 - 3)/2 = 11.
TEST_F(ReportesTest, ParamEsta) {
    const std::string titulo = "Cálculo de parámetros estadísticos, comunes y con momentos lineales";
    const std::string encabezado = "Parámetros Estadísticos:\n\n" + R(145) +
                                   "\n     Parámetros       \t                   Muestrales \t Poblacionales  \t"
                                   "    Momentos Lineales  \n" +
                                   R(145) + "\n";
    TeclearDatos({"10", "1", "2", "3", "4"});
    Pulsar("bCalcular");
    const std::string antes =
        Cabecera(titulo) + TablaDeSerie("Serie de datos X:", {"10.0", "1.0", "2.0", "3.0", "4.0"}) + encabezado +
        "Media:                      \t     " + P(10, "4.0000") + "     " + P(10, "4.0000") + "     " +
        P(10, "4.0000") + "\n" +                                                                         //
        "Varianza:                   \t" + P(10, "12.5") + P(10, "10.0") + P(11, "4.0") + "\n" +         //
        "Desviación Estándar:        \t" + P(10, "3.5355") + P(10, "3.1623") + P(10, "2.0000") + "\n" +  //
        "Coeficiente Variación:      \t" + P(10, "0.8839") + P(10, "0.7906") + P(10, "0.5000") + "\n" +  //
        "Coeficiente de Sesgo:       \t" + P(10, "1.6971") + P(10, "1.1384") + P(10, "0.5000") + "\n" +  //
        "Coeficiente de Curtosis:    \t" + P(10, "9.2933") + P(10, "2.7880") + P(10, "0.5000") + "\n" +  //
        R(145) + "\n\n" +                                                                                //
        "Coeficientes Lineales:\n\nL1 = 4.0000\nL2 = 2.0000\nL3 = 1.0000\nL4 = 1.0000\n\n";
    EXPECT_EQ(Reporte(), antes + kSinOrdenar);
    Pulsar("bOrdenar");
    EXPECT_EQ(Reporte(), antes + TablaDeSerie("Serie de datos ordenados:", {"1.0", "2.0", "3.0", "4.0", "10.0"}));

    // Without data and results: six rows of empty cells, (25 - 0)/2 = 12.5 being 12.
    Pulsar("bMenu");
    Abrir("frmParamEsta");
    const std::string vacia = "\t" + P(12, "") + P(12, "") + P(12, "") + "\n";
    EXPECT_EQ(Reporte(), Cabecera(titulo) + TablaDeSerie("Serie de datos X:", {}) + encabezado + "\t     " + P(12, "") +
                             "     " + P(12, "") + "     " + P(12, "") + "\n" + vacia + vacia + vacia + vacia + vacia +
                             R(145) + "\n\nCoeficientes Lineales:\n\nL1 = \nL2 = \nL3 = \nL4 = \n\n" + kSinOrdenar);
}

// 9, 5, 7, 6: the results are worked out in the tests of the modules. Of 18 characters, three leave 7.5 and one 8.5,
// both 8; four leave 7.
TEST_F(ReportesTest, ParEstAgru) {
    Abrir("frmParEstAgru");
    TeclearDatos({"9", "5", "7", "6"});
    Pulsar("bCalcular");
    Pulsar("bOrdenar");
    const std::string esperado =
        Cabecera("Cálculo de parámetros estadísticos agrupando datos") +
        TablaDeSerie("Serie de datos X:", {"9.0", "5.0", "7.0", "6.0"}) + "Frecuencias absolutas:\n\n" + R(90) + "\n" +
        "         LCI      \t         MCL      \t         LCS      \t         Fab      \t\n" + R(90) + "\n" +  //
        " " + P(8, "4.0") + P(8, "5.0") + P(8, "6.0") + P(8, "2") + "\n" +                                     //
        " " + P(8, "6.0") + P(8, "7.0") + P(8, "8.0") + P(8, "1") + "\n" +                                     //
        " " + P(8, "8.0") + P(8, "9.0") + P(7, "10.0") + P(8, "1") + "\n" +                                    //
        R(90) + "\n\n" +                                                                                       //
        "Parámetros Estadísticos:\n\n" + R(90) + "\n     Parámetros       \t               Valores \n" + R(90) + "\n" +
        "Media:                      \t     " + P(10, "6.5000") + "\n" +  //
        "Varianza:                   \t" + P(10, "3.6667") + "\n" +       //
        "Desviación Estándar:        \t" + P(10, "1.9149") + "\n" +       //
        "Coeficiente Variación:      \t" + P(10, "0.2946") + "\n" +       //
        "Coeficiente de Sesgo:       \t" + P(10, "0.8546") + "\n" +       //
        "Coeficiente de Curtosis:    \t" + P(10, "9.7686") + "\n" +       //
        R(90) + "\n\n" + TablaDeSerie("Serie de datos ordenados:", {"5.0", "6.0", "7.0", "9.0"});
    EXPECT_EQ(Reporte(), esperado);
}

// Of 18 characters, seven leave 5.5, so 6; five 6.5, so 6; six 6.
TEST_F(ReportesTest, DistriFre) {
    Abrir("frmDistriFre");
    TeclearDatos({"9", "5", "7", "6"});
    Pulsar("bCalcular");
    const std::string esperado =
        Cabecera("Cálculo de la distribución de frecuencia de una muestra") +
        TablaDeSerie("Serie de datos X:", {"9.0", "5.0", "7.0", "6.0"}) + "Distribución de Frecuencias:\n\n" + R(153) +
        "\n        LCI  \t        MCL  \t           LCS     FreAbsoluta    FreRelativa    FunDensidad FunAcumulada \n" +
        R(153) + "\n" +  //
        " " + P(8, "4.0") + P(8, "5.0") + P(8, "6.0") + P(8, "2") + P(6, "50.0000") + P(6, "25.0000") + P(6, "50.00") +
        "\n" +  //
        " " + P(8, "6.0") + P(8, "7.0") + P(8, "8.0") + P(8, "1") + P(6, "25.0000") + P(6, "12.5000") + P(6, "75.00") +
        "\n" +  //
        " " + P(8, "8.0") + P(8, "9.0") + P(7, "10.0") + P(8, "1") + P(6, "25.0000") + P(6, "12.5000") +
        P(6, "100.00") + "\n" +  //
        R(153) + "\n\n" + kSinOrdenar;
    EXPECT_EQ(Reporte(), esperado);
}

TEST_F(ReportesTest, RegreLineal) {
    Abrir("frmRegreLineal");
    const auto esperado = [](const std::string& pares, const std::string& ajuste, const std::string& aplicacion) {
        return Cabecera("Cálculos con ecuaciones de regresión lineal simple, admite valores negativos o 0") +
               "Pares de datos X,Y:\n\n" + R(75) + "\n" + TT(" Par") + TT(" X") + TT(" Y") + "\n" + R(75) + "\n" +
               pares + R(75) + "\n\n" + "Ecuaciones de ajuste de pares de datos:\n\n" + R(109) + "\n" +
               TT(" Tipo    ") + TT(" Ecuación") + TT(" R       ") + TT(" R^2     ") + "\n" + R(109) + "\n" + ajuste +
               R(109) + "\n\n" + "Cálculo de Y para un valor de X:\n\n" + aplicacion;
    };
    EXPECT_EQ(Reporte(), esperado("", "  \t  \t  \t  \t\n", "Para X = , el valor de Y es: Y = \n"));

    TeclearDatos({"1", "2.5", "2", "3.5", "3", "5.5"});
    Pulsar("bCalcular");
    Escribir(dynamic_cast<TextBox&>(*F().Controls("txtvxx")), "4");
    Pulsar("bCalY");
    EXPECT_EQ(Reporte(), esperado(TT(" 1") + TT("1.0") + TT("2.5") + "\n" +      //
                                      TT(" 2") + TT("2.0") + TT("3.5") + "\n" +  //
                                      TT(" 3") + TT("3.0") + TT("5.5") + "\n",
                                  "Lineal  \tY = 0.83333 + 1.5 * X  \t0.98198  \t0.96429  \t\n",
                                  "Para X = 4, el valor de Y es: Y = 6.8333\n"));
}

}  // namespace
}  // namespace cuencalia
