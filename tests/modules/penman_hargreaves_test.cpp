#include <algorithm>
#include <array>
#include <cmath>

#include "frame/base/textos.h"
#include "modules/evapotranspiracion/frmHargreaves.h"
#include "modules/evapotranspiracion/penman.h"
#include "modules/evapotranspiracion/radiacion.h"
#include "tests/forma_en_uso.h"
#include "tests/numero_de_error.h"

namespace cuencalia {
namespace {

Double Radianes(double grados) { return grados * kPi / 180; }

/// Day length (h) and radiation (mm) of a day of the year at a latitude in radians: FAO 56, eq. 21 to 25 and 34, and
/// 2.45 MJ for a mm.
std::pair<double, double> Fao56(double lat, int J) {
    const double pi = kPi.valor(), delta = 0.409 * std::sin(2 * pi * J / 365 - 1.39);
    const double dr = 1 + 0.033 * std::cos(2 * pi * J / 365), ws = std::acos(-std::tan(lat) * std::tan(delta));
    const double suma = ws * std::sin(lat) * std::sin(delta) + std::cos(lat) * std::cos(delta) * std::sin(ws);
    return {24 / pi * ws, 24 * 60 / pi * 0.0820 * dr * suma / 2.45};
}

// The differences that docs/numerics.md tells: least and greatest of Ra in %, greatest of N in hours, then March.
TEST(Radiacion, MediasDelMesDeFao56) {
    constexpr std::array dias{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    for (const auto& [grados, menor, mayor, enMarzo, horas, horasEnMarzo] :
         {std::tuple(0, 0.87, 2.06, 0.91, 0.0, 0.0), std::tuple(20, 0.49, 2.47, 6.03, 0.020, 0.242),
          std::tuple(40, -0.18, 2.99, 13.00, 0.048, 0.558), std::tuple(60, -2.56, 3.95, 26.96, 0.114, 1.155),
          std::tuple(-20, 1.16, 1.66, -4.02, 0.020, -0.242), std::tuple(-40, 0.60, 1.97, -10.18, 0.048, -0.558),
          std::tuple(-60, -2.06, 3.02, -20.93, 0.114, -1.155)}) {
        double minimo = 100, maximo = -100, deN = 0;
        for (int mes = 1, J = 0; mes <= 12; ++mes) {
            double N = 0, Ra = 0;
            const int hasta = J + dias.at(static_cast<std::size_t>(mes - 1)), cuantos = hasta - J;
            while (++J <= hasta) {
                const auto [Ndia, RaDia] = Fao56(Radianes(grados).valor(), J);
                N += Ndia / cuantos;
                Ra += RaDia / cuantos;
            }
            --J;
            const Insolacion i = InsolacionDe(Radianes(grados), mes);
            const double diferencia = 100 * (i.Ra.valor() / Ra - 1), diferenciaN = i.N.valor() - N;
            if (mes == 3) {
                EXPECT_NEAR(diferencia, enMarzo, 0.006) << grados;
                EXPECT_NEAR(diferenciaN, horasEnMarzo, 0.0006) << grados;
            } else {
                minimo = std::min(minimo, diferencia);
                maximo = std::max(maximo, diferencia);
                deN = std::max(deN, std::abs(diferenciaN));
            }
        }
        EXPECT_NEAR(minimo, menor, 0.006) << grados;
        EXPECT_NEAR(maximo, mayor, 0.006) << grados;
        EXPECT_NEAR(deN, horas, 0.0006) << grados;
    }
}

// FAO 56, examples 8 and 9: 3 September at 20 ºS, with delta = 0.120 and dr = 0.985, has ws = 1.527, N = 11.7 and
// Ra = 32.2 MJ/m2 by its constants.
TEST(Radiacion, EjemploDeFao56YLatitudesPolares) {
    const Double lat = Radianes(-20), ws = AnguloDePuesta(lat, 0.120);
    EXPECT_NEAR(ws.valor(), 1.527, 5e-4);
    EXPECT_NEAR(HorasDeSol(ws).valor(), 11.7, 0.05);
    const double Ra = RadiacionExtraterrestre(lat, 0.120, 1 / 0.985, ws).valor();
    EXPECT_NEAR(Ra * (24 * 60 / kPi.valor() * 0.0820) / (916.732 / 58.98757), 32.2, 0.05);
    // In June the midnight sun begins at 90º - 23.0157º.
    for (const double grados : {66.98, -66.98}) {
        EXPECT_NEAR(InsolacionDe(Radianes(grados), 6).N.valor(), grados > 0 ? 24 : 0, 0.3);
        EXPECT_TRUE(SaleYSePone(Radianes(grados), SolEn(6).declinacion));
    }
    for (const double grados : {67.0, -67.0, 90.0, -90.0}) {
        EXPECT_EQ(NumeroDeError([&] { return InsolacionDe(Radianes(grados), 6).N; }), 5) << grados;
        EXPECT_FALSE(SaleYSePone(Radianes(grados), SolEn(6).declinacion));
    }
    EXPECT_EQ(NumeroDeError([] { return SolEn(0).declinacion; }), 9);
}

/// Climate of Cairo in July, FAO 24: 232 km a day of wind, 11.5 hours of sunshine.
DatosPenman Cairo() { return {Radianes(30), 7, 95, 28.5, 55, 80, 232.0 / 24, 2, 1.5, 11.5}; }

// As FAO 24 prints the steps of its example; N is 13.9 in its table 3.
TEST(Penman, CairoPasoAPaso) {
    const ResultadoPenman r = EToPenman(Cairo());
    for (const auto& [valor, publicado, tolerancia] : {std::tuple(r.ea, 38.9, 0.05),
                                                       {r.ed, 21.4, 0.05},
                                                       {r.deficit, 17.5, 0.05},
                                                       {r.fu, 0.90, 0.005},
                                                       {r.W, 0.77, 0.005},
                                                       {r.N, 13.9, 0.2},
                                                       {r.Ra, 16.8, 0.05},
                                                       {r.n_N, 0.83, 0.01},
                                                       {r.Rs, 11.2, 0.05},
                                                       {r.Rns, 8.4, 0.05},
                                                       {r.fT, 16.4, 0.05},
                                                       {r.fed, 0.13, 0.01},
                                                       {r.fnN, 0.85, 0.005},
                                                       {Double(r.Rn), 6.6, 0.11},
                                                       {r.adveccion, 3.6, 0.05}}) {
        EXPECT_NEAR(valor.valor(), publicado, tolerancia);
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

// Cells of table 16 of FAO 24 and how far the polynomial is from them: the greatest difference either way, and Cairo's
// between its cells.
TEST(Penman, FactorDeAjusteYLaTabla16) {
    for (const auto& [U, Rs, HR, R, tabla, diferencia] :
         {std::tuple(6.F, 12, 90, 3, 1.22, 0.224), std::tuple(9.F, 3, 90, 1, 0.62, -0.074),
          std::tuple(0.F, 12, 30, 1, 1.00, 0.031), std::tuple(9.F, 3, 30, 4, 0.55, -0.0367)}) {
        EXPECT_NEAR(FactorDeAjuste(U, Rs, HR, R).valor(), tabla + diferencia, 6e-4);
    }
    EXPECT_NEAR(EToPenman(Cairo()).c.valor(), 1.22, 0.005);
}

TEST(Penman, LaAlturaDelViento) {
    const double en2 = 4.87 / std::log(130.18);
    EXPECT_DOUBLE_EQ(FactorDeAltura(2).valor(), en2);
    EXPECT_NEAR(FactorDeAltura(2.0001).valor(), en2 + 0.01, 2e-5);
    EXPECT_NEAR(FactorDeAltura(10).valor(), 0.748 + 0.01, 5e-4) << "0.748: FAO 56, example 14";
    EXPECT_EQ(NumeroDeError([] { return FactorDeAltura(kAlturaMinima); }), 5);
}

// FAO 56, example 20: Lyon in July, Ra of 40.6 MJ/m2, 5.0 mm a day.
TEST(Hargreaves, LyonDeFao56) {
    EXPECT_NEAR(EToHargreaves(40.6 / 2.45, 14.8, 26.6).valor(), 5.0, 0.05);
    EXPECT_EQ(NumeroDeError([] { return EToHargreaves(16, 20, 10); }), 5);
    EXPECT_EQ(NumeroDeError([] { return KcDeCultivo(EtapaCultivo::Final, 47); }), 9);
}

class HargreavesTest : public pruebas::FormaEnUso<frmHargreaves> {
  protected:
    HargreavesTest() : FormaEnUso("frmHargreaves") {}
};

// The number that the user reads in an entry is the one that is used, whatever the list.
TEST_F(HargreavesTest, ElKcDeCadaCultivoEsElDeSuEntrada) {
    const std::vector<std::string> cultivos = F().cobKcIni.List();
    ASSERT_EQ(cultivos.size(), 47U);
    F().temperaturas.Caja(0).Text = "10";
    F().temperaturas.Caja(1).Text = "26";
    for (const auto& [opcion, lista] :
         {std::pair(&F().OptInicio, &F().cobKcIni), {&F().OptMediano, &F().cobKcMed}, {&F().OptFin, &F().cobKcFin}}) {
        app.Pulsar(*opcion);
        for (std::size_t i = 0; i < cultivos.size(); ++i) {
            const std::string entrada = lista->List().at(i);
            const std::size_t parentesis = entrada.find(" (");
            EXPECT_EQ(entrada.substr(0, parentesis), cultivos[i].substr(0, cultivos[i].find(" (")));
            app.Despachar([&, lista = lista] { lista->Elegir(static_cast<int>(i)); });
            app.Pulsar(F().bCalcular);
            EXPECT_EQ(F().Kc, CSng(Val(entrada.substr(parentesis + 2)))) << entrada;
        }
    }
    EsperarSilencio();
}

}  // namespace
}  // namespace cuencalia
