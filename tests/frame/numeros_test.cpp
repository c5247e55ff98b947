#include "frame/base/numeros.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>

#include "tests/numero_de_error.h"

namespace cuencalia {
namespace {

constexpr double kMayor = std::numeric_limits<double>::max();

TEST(Numeros, DoubleSinInfinitosSilenciosos) {
    const Double cero = 0, uno = 1, mayor = kMayor;
    EXPECT_EQ(NumeroDeError([&] { return uno / cero; }), kDivisionPorCero);
    EXPECT_EQ(NumeroDeError([&] { return -uno / -cero; }), kDivisionPorCero);
    EXPECT_EQ(NumeroDeError([&] { return cero / cero; }), kDesbordamiento);
    EXPECT_EQ(NumeroDeError([&] { return mayor + mayor; }), kDesbordamiento);
    EXPECT_EQ(NumeroDeError([&] { return -mayor - mayor; }), kDesbordamiento);
    EXPECT_EQ(NumeroDeError([&] { return mayor * -2; }), kDesbordamiento);
    EXPECT_EQ(NumeroDeError([&] { return mayor / 0.5; }), kDesbordamiento);
    EXPECT_EQ(NumeroDeError([&] { return mayor * 1; }), 0);
    EXPECT_EQ(Double(1e-200) * 1e-200, 0) << "an underflow is no fault";

    Double acumulado = 3;
    EXPECT_EQ(NumeroDeError([&] { return acumulado /= cero; }), kDivisionPorCero);
    EXPECT_EQ(acumulado, 3) << "the statement that failed assigns nothing";
}

TEST(Numeros, SingleTiene32Bits) {
    EXPECT_EQ(Single(16777216.0F) + Single(1), Single(16777216.0F)) << "2^24 + 1 has no Single";
    EXPECT_EQ(NumeroDeError([] { return Single(3e38F) * Single(2); }), kDesbordamiento);
    EXPECT_EQ(Double(Single(0.1F)), 0.100000001490116119384765625) << "the exact value of the Single nearest to 0.1";
}

TEST(Numeros, EnterosNoDanLaVuelta) {
    EXPECT_EQ(NumeroDeError([] { return Integer(32767) + 1; }), kDesbordamiento);
    EXPECT_EQ(NumeroDeError([] { return Integer(-32768) - 1; }), kDesbordamiento);
    EXPECT_EQ(NumeroDeError([] { return Integer(200) * Integer(200); }), kDesbordamiento);
    EXPECT_EQ(NumeroDeError([] { return -Integer(-32768); }), kDesbordamiento);
    EXPECT_EQ(NumeroDeError([] { return Integer(40000); }), kDesbordamiento);
    EXPECT_EQ(NumeroDeError([] { return Long(2147483647) + 1; }), kDesbordamiento);
    EXPECT_EQ(NumeroDeError([] { return Long(50000) * Long(50000); }), kDesbordamiento);
    EXPECT_EQ(Long(200) * Long(200), Long(40000));

    Integer cuenta = 32766;
    EXPECT_EQ(++cuenta, 32767);
    EXPECT_EQ(NumeroDeError([&] { return ++cuenta; }), kDesbordamiento);
    EXPECT_EQ(cuenta, 32767);
}

TEST(Numeros, CocienteYRestoDeEnteros) {
    EXPECT_EQ(Integer(7) / Integer(2), 3.5);
    EXPECT_EQ(NumeroDeError([] { return Integer(7) / Integer(0); }), kDivisionPorCero);
    EXPECT_EQ(Mod(Integer(7), Integer(3)), 1);
    EXPECT_EQ(Mod(Integer(-7), Integer(3)), -1);
    EXPECT_EQ(Mod(Integer(7), Integer(-3)), 1);
    EXPECT_EQ(Mod(Long(-2147483647 - 1), Long(-1)), 0);
    EXPECT_EQ(NumeroDeError([] { return Mod(Integer(5), Integer(0)); }), kDivisionPorCero);
}

TEST(Numeros, RedondeoAEnteroVaAlPar) {
    for (const auto& [x, entero] : {std::pair{0.5, 0},
                                    {1.5, 2},
                                    {2.5, 2},
                                    {3.5, 4},
                                    {-0.5, 0},
                                    {-1.5, -2},
                                    {-2.5, -2},
                                    {2.4999, 2},
                                    {2.5001, 3},
                                    {32767.4, 32767},
                                    {-32768.5, -32768}}) {
        EXPECT_EQ(CInt(x), entero) << x;
        EXPECT_EQ(CLng(x), entero) << x;
    }
    for (const double x : {32767.5, 32768.0, -32768.51, 1e300}) {
        EXPECT_EQ(NumeroDeError([&] { return CInt(x); }), kDesbordamiento) << x;
    }
    EXPECT_EQ(CLng(2147483647.4), 2147483647);
    EXPECT_EQ(NumeroDeError([] { return CLng(2147483647.5); }), kDesbordamiento);
}

TEST(Numeros, CSngRedondeaALoSumoAlMayorSingle) {
    EXPECT_EQ(CSng(0.1), Single(0.1F));
    EXPECT_EQ(CSng(1e-60), Single(0));
    // The greatest Single is (2 - 2^-23)·2^127 = 3.40282346…e38, and half its last place reaches to 3.402823567797…e38.
    EXPECT_EQ(CSng(3.40282356e38), Single(std::numeric_limits<float>::max()));
    EXPECT_EQ(NumeroDeError([] { return CSng(3.40282357e38); }), kDesbordamiento);
    EXPECT_EQ(NumeroDeError([] { return CSng(-1e39); }), kDesbordamiento);
}

TEST(Numeros, IntBajaYFixTrunca) {
    EXPECT_EQ(Int(2.7), 2);
    EXPECT_EQ(Fix(2.7), 2);
    EXPECT_EQ(Int(-2.7), -3);
    EXPECT_EQ(Fix(-2.7), -2);
    EXPECT_EQ(Int(-2), -2);
}

TEST(Numeros, FuncionesFueraDeSuDominio) {
    EXPECT_EQ(NumeroDeError([] { return Log(0); }), kArgumentoNoValido);
    EXPECT_EQ(NumeroDeError([] { return Log(-1); }), kArgumentoNoValido);
    EXPECT_EQ(NumeroDeError([] { return Sqr(-1e-300); }), kArgumentoNoValido);
    EXPECT_EQ(Sqr(0), 0);
    // The natural logarithm of the greatest Double is 709.78.
    EXPECT_EQ(NumeroDeError([] { return Exp(709); }), 0);
    EXPECT_EQ(NumeroDeError([] { return Exp(710); }), kDesbordamiento);
    EXPECT_EQ(Exp(-800), 0);
    EXPECT_EQ(4 * Atn(1), 3.14159265358979323846);
}

TEST(Numeros, Potencias) {
    EXPECT_EQ(Elevar(2, 10), 1024);
    EXPECT_EQ(Elevar(-2, 3), -8);
    EXPECT_EQ(Elevar(4, -0.5), 0.5);
    EXPECT_EQ(Elevar(0, 0), 1);
    EXPECT_EQ(Elevar(0, 2.5), 0);
    EXPECT_EQ(NumeroDeError([] { return Elevar(-8, 1.0 / 3); }), kArgumentoNoValido);
    EXPECT_EQ(NumeroDeError([] { return Elevar(0, -1); }), kArgumentoNoValido);
    EXPECT_EQ(NumeroDeError([] { return Elevar(10, 400); }), kDesbordamiento);
    EXPECT_EQ(NumeroDeError([] { return Elevar(-10, 401); }), kDesbordamiento);
}

TEST(Numeros, SubindicesComprobados) {
    Arreglo<int, -2, 2> a;
    EXPECT_EQ(a.UBound(), 2);
    for (int i = -2; i <= 2; ++i) {
        EXPECT_EQ(a(i), 0);
        a(i) = 10 * i;
    }
    EXPECT_EQ(a(-2), -20);
    EXPECT_EQ(a(2), 20);
    for (const int i : {-3, 3, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        EXPECT_EQ(NumeroDeError([&] { return a(i); }), kSubindiceFuera) << i;
    }
    const Serie x;
    EXPECT_EQ(NumeroDeError([&] { return x(0); }), kSubindiceFuera);
    EXPECT_EQ(NumeroDeError([&] { return x(1501); }), kSubindiceFuera);
    EXPECT_EQ(x(1500), 0);
}

TEST(Numeros, RndUniforme) {
    constexpr int kNumeros = 10000;
    Randomize(1);
    double suma = 0, suma_cuadrados = 0;
    for (int i = 0; i < kNumeros; ++i) {
        const double u = Rnd().valor();
        ASSERT_TRUE(u >= 0 && u < 1) << u;
        suma += u;
        suma_cuadrados += u * u;
    }
    // Five standard errors: u has the variance 1/12, u² the variance 1/5 - 1/9 = 4/45.
    EXPECT_NEAR(suma / kNumeros, 1.0 / 2, 5 * std::sqrt(1.0 / 12 / kNumeros));
    EXPECT_NEAR(suma_cuadrados / kNumeros, 1.0 / 3, 5 * std::sqrt(4.0 / 45 / kNumeros));
}

TEST(Numeros, RandomizeRepiteLaSucesion) {
    const auto primero = [](double semilla) {
        Randomize(semilla);
        return Rnd();
    };
    EXPECT_EQ(primero(43200.25), primero(43200.25));
    EXPECT_NE(primero(43200.25), primero(43200.26)) << "the fraction of the second counts";
    EXPECT_EQ(primero(0.0), primero(-0.0));
}

TEST(Numeros, TimerEsHoraLocal) {
    const char* const zona = std::getenv("TZ");
    const std::string anterior = zona != nullptr ? zona : "";
    setenv("TZ", "PRUEBA-05:30", 1);  // five hours and a half ahead of universal time
    tzset();
    const double segundos = Timer().valor();
    const auto universal = static_cast<double>(std::time(nullptr) % 86400);
    zona != nullptr ? setenv("TZ", anterior.c_str(), 1) : unsetenv("TZ");
    tzset();

    ASSERT_TRUE(segundos >= 0 && segundos < 86400) << segundos;
    const double adelanto = std::fmod(segundos - universal + 2 * 86400, 86400);
    EXPECT_NEAR(adelanto, 5.5 * 3600, 2) << "two seconds: the whole one that universal lacks and the time between";
}

}  // namespace
}  // namespace cuencalia
