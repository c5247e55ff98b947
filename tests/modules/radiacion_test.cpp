#include "modules/evapotranspiracion/radiacion.h"

#include "modules/evapotranspiracion/penman.h"
#include "tests/datos_publicados.h"

namespace cuencalia {
namespace {

Double Radianes(double grados) { return grados * kPi / 180; }

// Worked out apart from the declination and the distance of each month.
TEST(Radiacion, CadaMesTieneSuSol) {
    int mes = 0;
    for (const double Ra :
         {6.2687, 8.2892, 12.6797, 14.1852, 16.3140, 17.2378, 16.8620, 15.1896, 12.4858, 9.3729, 6.8407, 5.7017}) {
        EXPECT_NEAR(InsolacionDe(Radianes(40), ++mes).Ra.valor(), Ra, 6e-5) << mes;
    }
}

// Worked out apart with Um and Rn rounded to 24 bits; as Doubles they would differ by 6e-10 of c and 3e-8 of ETo.
TEST(Penman, VientoYRadiacionNetaEnSingle) {
    const ResultadoPenman r = EToPenman({Radianes(-22), 9, 1600, 34, 75, 85, 3, 3, 1, 10});
    for (const auto& [valor, esperado] : {std::pair(r.Ra, 13.986070716625932),
                                          {Double(r.Rn), 6.09798002243042},
                                          {r.c, 1.179736028981939},
                                          {r.radiacion, 5.124206257218321},
                                          {r.ETo, 7.174999926639882}}) {
        EXPECT_NEAR(valor.valor(), esperado, 1e-12 * esperado);
    }
}

}  // namespace
}  // namespace cuencalia
