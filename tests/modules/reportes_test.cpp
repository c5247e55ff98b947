#include <gtest/gtest.h>

#include <tuple>

#include "frame/reportes/frmPadre.h"
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

/// The report of a fit of three or four values; its series table has rules of 40 dashes.
struct ReporteAjuste {
    std::string titulo;
    pruebas::Textos serie;
    std::string encabezados;
    pruebas::Tabla filas;
    std::string ajuste, veredicto, tituloParametros, parametros, diseno;

    std::string Texto() const {
        std::string texto =
            Cabecera(titulo) + "Serie de datos X:\n\n" + R(40) + "\n" + TT(" N°") + TT(" X") + "\n" + R(40) + "\n";
        for (std::size_t i = 0; i < serie.size(); ++i) {
            texto += TT(" " + std::to_string(i + 1)) + TT(serie[i]) + "\n";
        }
        texto += R(40) + "\n\n\n\nCálculos del ajuste Smirnov Kolmogorov:\n\n" + R(130) + "\n" + encabezados + "\n" +
                 R(130) + "\n";
        for (const auto& fila : filas) {
            for (const std::string& celda : fila) {
                // (18 - length)/2, a half going to the even number: 8 for one and two characters, 8 for three, 6 for
                // six and seven.
                static constexpr std::size_t kBlancos[] = {9, 8, 8, 8, 7, 6, 6, 6};
                const std::size_t blancos = kBlancos[celda.size()];
                texto += std::string(&fila == &filas[0] ? 1 : 0, ' ') + P(blancos, celda);
            }
            texto += "\n";
        }
        return texto + R(130) + "\n\n" + R(55) + "\n" + ajuste + "\n" + R(55) + "\n" + veredicto + "\n\n" + R(55) +
               "\n" + tituloParametros + "\n" + R(55) + "\n" + parametros + R(30) + "\nCaudal de diseño:\n" + R(30) +
               "\n" + diseno + "\n";
    }
};

// 1, 2, 3, 4: mean 2.5, s = 1.290994, L2 = 5/6; alfa = sqrt(6)·s/pi = 1.006584, mu = 2.5 - 0.577216·alfa = 1.918984,
// alfal = L2/ln 2 = 1.202246, mul = 1.806045. T = 2: y = 0.366513, Q = 1.918984 + 0.366513·1.006584 = 2.2879.
TEST_F(ReportesTest, Gumbel) {
    Abrir("frmDisGumbel");
    TeclearDatos({"3", "1", "4", "2"});
    ReporteAjuste esperado{
        .titulo = "Ajuste de una serie de datos a la distribución Gumbel",
        .serie = {"3.0", "1.0", "4.0", "2.0"},
        .encabezados =
            "        m  \t        X  \t                 P(X)     G(Y) Ordinario    G(Y) Mom Lineal    Delta ",
        .filas = {},
        .ajuste = "Ajuste:",
        .veredicto = "",
        .tituloParametros = "Parámetros de la distribución Gumbel:",
        .parametros =
            "Con momentos ordinarios:\nParámetro de posición (µ)= \nParámetro de escala (alfa)= \n\n"
            "Con momentos lineales:\nParámetro de posición (µl)= \nParámetro de escala (alfal)= \n",
        .diseno = "El caudal de diseño para un periodo de retorno de  años, es "};
    EXPECT_EQ(Reporte(), esperado.Texto()) << "before any calculation";
    Pulsar("bCalcular");
    Escribir(dynamic_cast<TextBox&>(*F().Controls("txtxt")), "2");
    Pulsar("bQ");
    esperado.filas = {{"1", "1.0", "0.2000", "0.0828", "0.1415", "0.1172"},
                      {"2", "2.0", "0.4000", "0.3975", "0.4270", "0.0025"},
                      {"3", "3.0", "0.6000", "0.7106", "0.6904", "0.1106"},
                      {"4", "4.0", "0.8000", "0.8812", "0.8511", "0.0812"}};
    esperado.ajuste = "Ajuste con momentos ordinarios:";
    esperado.veredicto =
        "Como el delta teórico 0.1172, es menor que el delta tabular 0.6800. Los datos se ajustan a la distribución "
        "Gumbel, con un nivel de significación del 5%";
    esperado.parametros =
        "Con momentos ordinarios:\nParámetro de posición (µ)= 1.919\nParámetro de escala (alfa)= 1.0066\n\n"
        "Con momentos lineales:\nParámetro de posición (µl)= 1.806\nParámetro de escala (alfal)= 1.2022\n";
    esperado.diseno = "El caudal de diseño para un periodo de retorno de 2 años, es 2.29";
    EXPECT_EQ(Reporte(), esperado.Texto());
}

// 1, 2, 5: the figures are worked out in the test of the form. T = 2: z = 0 but for the approximation's 4.5e-4, so
// Q = 0.5 + exp(ln 1.5) = 2.00.
TEST_F(ReportesTest, LogNormal3) {
    Abrir("frmDisLogNormal3");
    TeclearDatos({"1", "2", "5"});
    Pulsar("bCalcular");
    Escribir(dynamic_cast<TextBox&>(*F().Controls("txtxt")), "2");
    Pulsar("bQ");
    const ReporteAjuste esperado{
        .titulo = "Ajuste de una serie de datos a la distribución log-Normal de 3 parámetros",
        .serie = {"1.0", "2.0", "5.0"},
        .encabezados =
            "        m  \t        X  \t                 P(X)                Z                  F(Z)  "
            "               Delta ",
        .filas = {{"1", "1.0", "0.2500", "-1.2247", "0.1103", "0.1397"},
                  {"2", "2.0", "0.5000", "0.0000", "0.5000", "0.0000"},
                  {"3", "5.0", "0.7500", "1.2247", "0.8897", "0.1397"}},
        .ajuste = "Ajuste con momentos ordinarios:",
        .veredicto =
            "Como el delta teórico 0.1397, es menor que el delta tabular 0.7852. Los datos se ajustan a la "
            "distribución logNormal 3 parámetros, con un nivel de significación del 5%",
        .tituloParametros = "Parámetros de la distribución lognormal:",
        .parametros =
            "Parámetro de posición (xo)= 0.5\nParámetro de escala (µy)= 0.4055\nParámetro de forma (Sy)= "
            "0.897\n",
        .diseno = "El caudal de diseño para un periodo de retorno de 2 años, es 2.00"};
    EXPECT_EQ(Reporte(), esperado.Texto());
}

// The titles and the parameter lines of the other fits; the boxes are empty before a calculation.
TEST_F(ReportesTest, ParametrosDeLosAjustes) {
    const auto dos = [](const std::string& titulo, const std::string& a, const std::string& b, const std::string& c,
                        const std::string& d) {
        const std::string dosPuntos = ":\n";
        return titulo + dosPuntos + R(55) + "\nCon momentos ordinarios:\n" + a + "= \n" + b +
               "= \n\nCon momentos lineales:\n" + c + "= \n" + d + "= \n" + R(30) + "\n";
    };
    const std::string tres =
        ":\n" + R(55) +
        "\nCon momentos ordinarios:\nParámetro de localización (Xo)= \nParámetro de forma (gamma)= "
        "\nParámetro de escala (beta)= \n\nCon momentos lineales:\nParámetro de localización (Xol)= "
        "\nParámetro de forma (gammal)= \nParámetro de escala (betal)= \n" +
        R(30) + "\n";
    const std::string F = "     F(Z) Ordinario    F(Z) Mom Lineal    Delta \n";
    const std::string G = "     G(Y) Ordinario    G(Y) Mom Lineal    Delta \n";
    const std::vector<std::tuple<std::string, std::string, std::string>> casos{
        {"frmDisNormal", F,
         dos("Parámetros de la distribución normal", "Parámetro de localización (Xm)", "Parámetro de escala (S)",
             "Media lineal (Xl)", "Desviación estándar lineal (Sl)")},
        {"frmDisLogNormal2", F,
         dos("Parámetros de la distribución logNormal", "Parámetro de escala (µy)", "Parámetro de forma (Sy)",
             "Parámetro de escala (µyl)", "Parámetro de forma (Syl)")},
        {"frmDisLogGumbel", G,
         dos("Parámetros de la distribución logGumbel", "Parámetro de posición (µ)", "Parámetro de escala (alfa)",
             "Parámetro de posición (µl)", "Parámetro de escala (alfal)")},
        {"frmDisGamma2par", G,
         dos("Los 2 parámetros de la distribución Gamma", "Parámetro de forma (gamma)", "Parámetro de escala (beta)",
             "Parámetro de forma (gammal)", "Parámetro de escala (betal)")},
        {"frmDisGamma3par", G, "Los 3 parámetros de la distribución Gamma" + tres},
        {"frmDisLogPearson3", G, "Los 3 parámetros de la distribución Log-Pearson tipo 3" + tres}};
    for (const auto& [forma, encabezados, parametros] : casos) {
        SCOPED_TRACE(forma);
        Abrir(forma);
        const std::string texto = Reporte();
        EXPECT_NE(texto.find("        m  \t        X  \t                 P(X)  " + encabezados.substr(2)),
                  std::string::npos);
        EXPECT_NE(texto.find("\n" + parametros), std::string::npos);
    }
}

}  // namespace
}  // namespace cuencalia
