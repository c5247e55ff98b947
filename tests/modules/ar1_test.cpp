#include "modules/regresion/ar1.h"

#include "tests/datos_publicados.h"
#include "tests/numero_de_error.h"

namespace cuencalia {
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

// The folded value is the one that the next is computed from: |1 - 3| = 2, 1 + (2 - 1)/2, |1 + 0.5/2 - 4|.
TEST(AR1, ElPliegueDelValorAbsoluto) {
    const ModeloAR1 modelo{.media = 1, .c0 = {}, .c1 = {}, .ro1 = 0.5F, .varE = {}, .Se = 2};
    Serie Y;
    GenerarAR1(modelo, EnSerie({-1.5, 0, -2}), 3, Y);
    EXPECT_TRUE(Y(1) == 2 && Y(2) == 1.5 && Y(3) == 2.75);
    EXPECT_EQ(NumeroDeError([] { return kLogaritmica.volver(309); }), kDesbordamiento);
}

}  // namespace
}  // namespace cuencalia
