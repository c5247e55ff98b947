#include "frame/base/numeros.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>

#include "tests/numero_de_error.h"

namespace cuencalia {
namespace {

TEST(Numeros, SinInfinitosNiVueltasCalladas) {
    const Double cero = 0, uno = 1, mayor = std::numeric_limits<double>::max();
    EXPECT_EQ(NumeroDeError([&] { return uno / cero; }), 11);
    EXPECT_EQ(NumeroDeError([&] { return cero / cero; }), 6);
    EXPECT_EQ(NumeroDeError([&] { return mayor + mayor; }), 6);
    EXPECT_EQ(NumeroDeError([&] { return mayor * -2; }), 6);
    EXPECT_EQ(NumeroDeError([&] { return mayor / 0.5; }), 6);
    EXPECT_EQ(NumeroDeError([&] { return mayor * 1; }), 0);
    EXPECT_EQ(Double(1e-200) * 1e-200, 0) << "an underflow is no fault";
    Double acumulado = 3;
    EXPECT_EQ(NumeroDeError([&] { return acumulado /= cero; }), 11);
    EXPECT_EQ(acumulado, 3) << "the statement that failed assigns nothing";
    EXPECT_EQ(Single(16777216.0F) + Single(1), Single(16777216.0F)) << "2^24 + 1 has no Single";
    EXPECT_EQ(NumeroDeError([] { return Single(3e38F) * Single(2); }), 6);

    EXPECT_EQ(NumeroDeError([] { return Integer(32767) + 1; }), 6);
    EXPECT_EQ(NumeroDeError([] { return Integer(200) * Integer(200); }), 6);
    EXPECT_EQ(NumeroDeError([] { return -Integer(-32768); }), 6);
    EXPECT_EQ(NumeroDeError([] { return Long(50000) * Long(50000); }), 6);
    EXPECT_EQ(Integer(7) / Integer(2), 3.5);
    EXPECT_EQ(NumeroDeError([] { return Integer(7) / Integer(0); }), 11);
    EXPECT_EQ(Mod(Integer(-7), Integer(3)), -1);
    EXPECT_EQ(Mod(Integer(7), Integer(-3)), 1);
    EXPECT_EQ(Mod(Long(-2147483647 - 1), Long(-1)), 0);
    EXPECT_EQ(NumeroDeError([] { return Mod(Integer(5), Integer(0)); }), 11);
}

TEST(Numeros, Redondeos) {
    // clang-format off
    const std::pair<double, int> alPar[] = {
        {0.5, 0}, {1.5, 2}, {2.5, 2}, {3.5, 4}, {-0.5, 0}, {-1.5, -2}, {-2.5, -2}, {2.4999, 2}, {2.5001, 3},
        {32767.4, 32767}, {-32768.5, -32768}};
    // clang-format on
    for (const auto& [x, entero] : alPar) {
        EXPECT_EQ(CInt(x), entero) << x;
        EXPECT_EQ(CLng(x), entero) << x;
    }
    for (const double x : {32767.5, -32768.51, 1e300}) {
        EXPECT_EQ(NumeroDeError([&] { return CInt(x); }), 6) << x;
    }
    EXPECT_EQ(CLng(2147483647.4), 2147483647);
    EXPECT_EQ(NumeroDeError([] { return CLng(2147483647.5); }), 6);
    // The greatest Single is (2 - 2^-23)·2^127 = 3.40282346…e38, and half its last place reaches to 3.402823567797…e38.
    EXPECT_EQ(CSng(3.40282356e38), Single(std::numeric_limits<float>::max()));
    EXPECT_EQ(NumeroDeError([] { return CSng(3.40282357e38); }), 6);
    EXPECT_EQ(Int(-2.7), -3);
    EXPECT_EQ(Fix(-2.7), -2);
}

TEST(Numeros, Funciones) {
    EXPECT_EQ(NumeroDeError([] { return Log(0); }), 5);
    EXPECT_EQ(NumeroDeError([] { return Sqr(-1e-300); }), 5);
    EXPECT_EQ(Sqr(0), 0);
    // The natural logarithm of the greatest Double is 709.78.
    EXPECT_EQ(NumeroDeError([] { return Exp(709); }), 0);
    EXPECT_EQ(NumeroDeError([] { return Exp(710); }), 6);
    const double potencias[][3] = {{2, 10, 1024}, {-2, 3, -8}, {4, -0.5, 0.5}, {0, 0, 1}, {0, 2.5, 0}};
    for (const auto& [base, exponente, potencia] : potencias) {
        EXPECT_EQ(Elevar(base, exponente), potencia) << base << " to " << exponente;
    }
    const double fallos[][3] = {{-8, 1.0 / 3, 5}, {0, -1, 5}, {10, 400, 6}, {-10, 401, 6}};
    for (const auto& [base, exponente, error] : fallos) {
        EXPECT_EQ(NumeroDeError([b = base, e = exponente] { return Elevar(b, e); }), error) << base << " " << exponente;
    }
}

TEST(Numeros, SubindicesComprobados) {
    Arreglo<int, -2, 2> a;
    for (int i = -2; i <= a.UBound(); ++i) {
        a(i) = 10 * i;
    }
    EXPECT_EQ(a(-2) + 10 * a(2), 180) << "20 · 10 - 20";
    for (const int i : {-3, 3, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        EXPECT_EQ(NumeroDeError([&] { return a(i); }), 9) << i;
    }
}

TEST(Numeros, Rnd) {
    Double suma = 0;
    for (int i = 0; i < 10000; ++i) {
        suma += Rnd();
    }
    EXPECT_NEAR(suma.valor(), 5000, 150) << "five standard errors: u has the variance 1/12";
    const auto primero = [](double semilla) { return Randomize(semilla), Rnd(); };
    EXPECT_EQ(primero(43200.25), primero(43200.25));
    EXPECT_NE(primero(43200.25), primero(43200.26)) << "the fraction of the second counts";
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
    const double adelanto = std::fmod(segundos - universal + 2 * 86400, 86400);
    EXPECT_NEAR(adelanto, 5.5 * 3600, 2) << "two seconds: the whole one that universal lacks and the time between";
}

}  // namespace
}  // namespace cuencalia
