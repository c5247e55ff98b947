#include "modules/regresion/ar1.h"

#include <cstdlib>
#include <filesystem>

#include "frame/base/textos.h"
#include "modules/regresion/frmAutoregresivo.h"
#include "tests/archivos_en_disco.h"
#include "tests/datos_publicados.h"
#include "tests/forma_en_uso.h"
#include "tests/numero_de_error.h"

namespace cuencalia::pruebas {
namespace {

ArregloBase<Single> EnSingles(const std::vector<double>& valores) {
    ArregloBase<Single> x(1, static_cast<int>(valores.size()));
    for (int i = 1; i <= x.UBound(); ++i) {
        x(i) = CSng(valores[static_cast<std::size_t>(i - 1)]);
    }
    return x;
}

// As published, r(1) has seven decimals. A value of about 150 is off by 7.6e-6 at most as a Single, and so is the mean:
// of the deviation of 5 that is 3e-6, which the products of two of them double.
TEST(AR1, SinglesDondeToca) {
    EXPECT_NEAR(AjustarAR1(EnSingles(LeerColumna("numerics_autocorrelacion.csv")), 200).ro1.valor(), 0.9558447, 6e-6);
    // 2^24 + 1 is no Single: the sum stays at 2^24.
    EXPECT_EQ(Media(EnSingles({0x1p24, 1, 1, 1}), 4), Single(0x1p22F));
    const ModeloAR1 m = AjustarAR1DeLogaritmos(EnSingles({0.1, 0.1, 0.1, 1}), 4);
    EXPECT_NEAR(m.media.valor(), 0.75 * std::log10(double{0.1F}), 6 * kRedondeo) << "a Single has 2^29 times as much";
}

// A long series has the moments of its model: mean 200, variance 20²/(1 - 0.6²) = 25², correlation 0.6. Five standard
// errors, of variance s²(1 + r)/(1 - r)/n, 2s⁴(1 + r²)/(1 - r²)/n and (1 - r²)/n in a normal AR(1).
TEST(AR1, SerieLarga) {
    constexpr int n = 200000;
    constexpr double r = 0.6;
    const ModeloAR1 modelo{.media = 200, .c0 = {}, .c1 = {}, .ro1 = 0.6F, .varE = {}, .Se = 20};
    ArregloBase<Double> Z(1, n), Y(1, n);
    Randomize(2);
    GenerarNormalEstandar(Z, n);
    GenerarAR1(modelo, Z, n, Y);
    double media = 0, varianza = 0, c1 = 0;
    for (int i = 1; i <= n; ++i) {
        media += Y(i).valor() / n;
    }
    for (int i = 1; i <= n; ++i) {
        const double d = Y(i).valor() - media;
        varianza += d * d / n;
        c1 += i < n ? d * (Y(i + 1).valor() - media) / n : 0;
    }
    EXPECT_NEAR(media, 200, 5 * 25 * std::sqrt((1 + r) / (1 - r) / n));
    EXPECT_NEAR(varianza, 625, 5 * 625 * std::sqrt(2 * (1 + r * r) / (1 - r * r) / n));
    EXPECT_NEAR(c1 / varianza, r, 5 * std::sqrt((1 - r * r) / n));
}

// The folded value is the one that the next is computed from: |1 - 3| = 2, 1 + (2 - 1)/2, |1 + 0.5/2 - 4|.
TEST(AR1, ElPliegueDelValorAbsoluto) {
    const ModeloAR1 modelo{.media = 1, .c0 = {}, .c1 = {}, .ro1 = 0.5F, .varE = {}, .Se = 2};
    Serie Y;
    GenerarAR1(modelo, EnSerie({-1.5, 0, -2}), 3, Y);
    EXPECT_TRUE(Y(1) == 2 && Y(2) == 1.5 && Y(3) == 2.75);
    EXPECT_EQ(NumeroDeError([] { return kLogaritmica.volver(309); }), kDesbordamiento);
}

class Autoregresivo : public FormaEnUso<frmAutoregresivo> {
  protected:
    Autoregresivo() : FormaEnUso("frmAutoregresivo") { sistema.reloj = 43200; }

    /// Calculates with these data; the number of the run-time error that ends it, or 0.
    int Calcular(const std::string& Ngen, const std::vector<double>& valores = {61, 93.1, 72.9, 64.7, 62.9}) {
        FlexGrid& grid = F().datos.grdt;
        grid.PonerRows(static_cast<int>(valores.size()) + 2);
        for (int i = 1; i <= F().datos.Filas(); ++i) {
            grid.PonerTextMatrix(i, 1, CStr(valores[static_cast<std::size_t>(i - 1)]));
        }
        F().txtNgen.Text = Ngen;
        sistema.errores.clear();
        app.Pulsar(F().bCalcular);
        return sistema.errores.empty() ? 0 : sistema.errores[0].Numero();
    }
    Textos Generados() {
        Textos textos;
        for (int i = 1; i <= F().Ngen; ++i) {
            textos.push_back(F().grdGenerada.TextMatrix(i, 1));
        }
        return textos;
    }
};

// With the warm-up 2950 values take all 3000; a whole number has 16 bits; fewer than four have no kurtosis. A series
// that cannot be generated leaves the one before to the chart, the sheet and the report.
TEST_F(Autoregresivo, CuantosValores) {
    const std::tuple<const char*, int, int> casos[] = {{"4", 0, 4},        {"2950", 0, 2950},  {"2951", 9, 2950},
                                                       {"32767", 6, 2950}, {"32768", 6, 2950}, {"3", 11, 3},
                                                       {"1", 6, 1},        {"0", 6, 0},        {"4.5", 0, 4}};
    for (const auto& [Ngen, error, quedan] : casos) {
        EXPECT_EQ(Calcular(Ngen), error) << Ngen;
        EXPECT_EQ(F().Ngen, quedan) << Ngen;
    }
    EXPECT_EQ(F().grdGenerada.TextMatrix(2950, 0), " 2950");
    EXPECT_EQ(Calcular("5", {5, 5, 5, 5}), 6) << "0/0 in the skewness";
}

TEST_F(Autoregresivo, CadaCalculoDaOtraSerie) {
    Calcular("100");
    const Textos primera = Generados();
    Calcular("100");
    for (std::size_t i = 0; i < 100; ++i) {
        EXPECT_NE(Generados()[i], primera[i]) << "though the clock stands still";
    }
    app.Despachar([this] { app.Unload(F()); });
    Abrir("frmAutoregresivo");
    sistema.reloj = 43200.001;  // no other Single
    Calcular("100");
    EXPECT_EQ(Generados(), primera) << "the clock alone decides";
}

TEST_F(Autoregresivo, LibreOfficeLeeElLibro) {
    const CarpetaTemporal carpeta;
    Calcular("2950");
    sistema.archivo = carpeta / "serie.xlsx";
    app.Pulsar(F().bCrearExcel);
    const std::string orden = "timeout 120 soffice -env:UserInstallation=file://" + (carpeta / "perfil") +
                              " --headless --convert-to csv --outdir " + (carpeta / "") + " " +
                              (carpeta / "serie.xlsx") + " >/dev/null 2>&1";
    if (std::system(orden.c_str()) != 0 || !std::filesystem::exists(carpeta / "serie.csv")) {
        GTEST_SKIP() << "LibreOffice Calc is not on this machine";
    }
    std::string esperado;
    for (const std::string& valor : Generados()) {
        esperado += valor + "\n";
    }
    EXPECT_EQ(BytesDe(carpeta / "serie.csv"), esperado);
}

}  // namespace
}  // namespace cuencalia::pruebas
