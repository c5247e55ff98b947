#include "modules/caudales/marcomaximas.h"
#include "modules/caudales/qmaxgumbel.h"
#include "modules/caudales/qmaxnash.h"
#include "tests/numero_de_error.h"

namespace cuencalia {
namespace {

// The last year of each power of n, and the first of the next, worked out apart; then π/√6.
TEST(GumbelMaximas, DesviacionReducida) {
    for (const auto& [n, SN] :
         {std::pair(29, 1.121763), std::pair(30, 1.119170), std::pair(90, 1.202849), std::pair(91, 1.205437),
          std::pair(149, 1.220120), std::pair(150, 1.225450), std::pair(399, 1.250788), std::pair(400, 1.253910),
          std::pair(1500, 1.276453), std::pair(1501, 1.282550)}) {
        EXPECT_NEAR(DesviacionReducida(n).valor(), SN, 5e-7) << n;
    }
}

TEST(TextoIntervalo, ParteEnteraYFraccionUnidas) {
    EXPECT_EQ(TextoIntervalo(-5.25, 122.999), "-5-.25 - 1221.0");
    EXPECT_EQ(TextoIntervalo(-0.25, 3), "0-.25 - 3.0");
}

TEST(NashMaximas, CaudalesIguales) {
    ArregloBase<Double> Q(1, 1500);
    for (int i = 1; i <= 1500; ++i) {
        Q(i) = 12345.67;
    }
    EXPECT_EQ(EstimarNash(OrdenarPorRango(Q, 1500), 1500, -2).DeltaQ, 0) << "the sums alone would leave a spread";
}

}  // namespace
}  // namespace cuencalia
