#include <algorithm>
#include <map>

#include "frame/base/archivoserie.h"
#include "modules/caudales/frmQmaxNash.h"
#include "modules/caudales/qmaxgumbel.h"
#include "modules/caudales/qmaxnash.h"
#include "tests/archivos_en_disco.h"
#include "tests/forma_en_uso.h"
#include "tests/numero_de_error.h"

namespace cuencalia {
namespace {

using namespace std::string_literals;

/// Mean and deviation (divisor n) of the reduced variables of the plotting positions m / (n + 1): Gumbel's table.
std::pair<double, double> Tabular(int n) {
    double suma = 0, cuadrados = 0;
    for (int m = 1; m <= n; ++m) {
        const double y = -std::log(-std::log(m / (n + 1.0)));
        suma += y;
        cuadrados += y * y;
    }
    return {suma / n, std::sqrt(cuadrados / n - suma / n * (suma / n))};
}

// YN and SN as Gumbel (1958) prints them, to four decimals, for the table by its definition; then the greatest
// differences of the formulas from it, by range of n, as docs/numerics.md tells them.
TEST(GumbelMaximas, ParametrosReducidosYLaTabla) {
    for (const auto& [n, YN, SN] : {std::tuple(20, 0.5236, 1.0628), std::tuple(50, 0.5485, 1.1607),
                                    std::tuple(100, 0.5600, 1.2065), std::tuple(1000, 0.5745, 1.2685)}) {
        EXPECT_NEAR(Tabular(n).first, YN, 6e-5);
        EXPECT_NEAR(Tabular(n).second, SN, 6e-5);
    }
    // The last year of each power of n, and the first of the next, worked out apart; then π/√6.
    for (const auto& [n, SN] :
         {std::pair(29, 1.121763), std::pair(30, 1.119170), std::pair(90, 1.202849), std::pair(91, 1.205437),
          std::pair(149, 1.220120), std::pair(150, 1.225450), std::pair(399, 1.250788), std::pair(400, 1.253910),
          std::pair(1500, 1.276453), std::pair(1501, 1.282550)}) {
        EXPECT_NEAR(DesviacionReducida(n).valor(), SN, 5e-7) << n;
    }
    for (const auto& [desde, hasta, deYN, deSN] :
         {std::tuple(2, 7, 0.06450, 0.24752), std::tuple(8, 9, 0.00509, 0.01730), std::tuple(10, 29, 0.00273, 0.01312),
          std::tuple(30, 90, 0.00049, 0.00680), std::tuple(91, 149, 0.00043, 0.00495),
          std::tuple(150, 399, 0.00062, 0.00453), std::tuple(400, 1500, 0.00062, 0.00417)}) {
        double mayorYN = 0, mayorSN = 0;
        for (int n = desde; n <= hasta; ++n) {
            const auto [YN, SN] = Tabular(n);
            mayorYN = std::max(mayorYN, std::abs(MediaReducida(n).valor() - YN));
            mayorSN = std::max(mayorSN, std::abs(DesviacionReducida(n).valor() - SN));
        }
        EXPECT_NEAR(mayorYN, deYN, 5e-6) << desde;
        EXPECT_NEAR(mayorSN, deSN, 5e-6) << desde;
    }
}

TEST(TextoIntervalo, ParteEnteraYFraccionUnidas) {
    EXPECT_EQ(TextoIntervalo(317.801, 469.535), "317.8 - 469.54");
    EXPECT_EQ(TextoIntervalo(-5.25, 122.999), "-5-.25 - 1221.0");
    EXPECT_EQ(TextoIntervalo(-0.25, 3), "0-.25 - 3.0");
}

TEST(NashMaximas, PeriodosYCantidades) {
    EXPECT_NEAR(VariableDeNash(2).valor(), -0.521390227654, 1e-12) << "log 0.301029995664";
    EXPECT_EQ(NumeroDeError([] { return VariableDeNash(1); }), 11);
    EXPECT_EQ(NumeroDeError([] { return VariableDeNash(0.5); }), 5);
    Serie Q;
    for (int i = 1; i <= 1500; ++i) {
        Q(i) = 12345.67;
    }
    const CaudalNash c = EstimarNash(OrdenarPorRango(Q, 1500), 1500, VariableDeNash(100));
    EXPECT_EQ(c.b, 0);
    EXPECT_EQ(c.DeltaQ, 0) << "the sums alone would leave a spread by rounding";
    EXPECT_NEAR(c.Qmax.valor(), 12345.67, 1e-6);
    for (const int n : {0, 1, 2}) {
        EXPECT_NE(NumeroDeError([&] { return EstimarNash(OrdenarPorRango(Q, n), n, -1).b; }), 0) << n;
    }
}

class MaximasTest : public pruebas::FormaEnUso<frmQmaxNash> {
  protected:
    MaximasTest() : FormaEnUso("frmQmaxNash") {}

    /// Loads two discharges and a year, and says what year and what second row there is then.
    std::string Cargar(float anno) {
        EscritorSerie archivo(carpeta / "a.Q", 1);
        for (const float valor : {100.F, 250.5F, anno}) {
            archivo.Escribir({Single(valor)});
        }
        archivo.Publicar();
        sistema.archivo = carpeta / "a.Q";
        app.Pulsar(F().archivos.bAccesar);
        return F().txtanno.Text() + F().datos.grdt.TextMatrix(2, 0) + "," + F().datos.grdt.TextMatrix(2, 1);
    }

    const pruebas::CarpetaTemporal carpeta;
};

// 100 = 42C80000, 250.5 = 437A8000, 1998 = 44F9C000, least byte first.
TEST_F(MaximasTest, ElAnnoDeInicioEsElUltimoRegistro) {
    const std::string bytes = "\0\0\xC8\x42\0\x80\x7A\x43\0\xC0\xF9\x44"s;
    EXPECT_EQ(Cargar(1998), "1998 1999,250.5");
    sistema.archivo = carpeta / "b.Q";
    app.Pulsar(F().archivos.bCrear);
    EXPECT_EQ(pruebas::BytesDe(carpeta / "b.Q"), bytes);
    app.Despachar([&] { F().txtanno.SetFocus(); });
    app.Despachar([&] {
        F().txtanno.Text = "40000";
        F().datos.grdt.PonerTextMatrix(1, 1, "7");
    });
    app.Pulsar(F().bMenu);
    EXPECT_EQ(NumerosDe(sistema.errores), std::vector{6}) << "on leaving the box";
    sistema.archivo = carpeta / "b.Q";
    app.Pulsar(F().archivos.bCrear);
    EXPECT_EQ(pruebas::BytesDe(carpeta / "b.Q"), bytes) << "a year that is none leaves the old file";

    EXPECT_EQ(Cargar(1970.5F), "1970 1971,250.5") << "a half goes to the even year";
    EXPECT_EQ(Cargar(1971.5F), "1972 1973,250.5");
    EXPECT_EQ(Cargar(32767), "32767 32768,250.5") << "the labels go beyond 16 bits";
    EXPECT_EQ(Cargar(40000), "32767 32768,250.5") << "the rows stay, the year is the old one";
    EXPECT_TRUE(sistema.mensajes.empty());
}

}  // namespace
}  // namespace cuencalia
