#include "frame/base/textos.h"

#include <gtest/gtest.h>

#include <clocale>
#include <locale>
#include <stdexcept>
#include <vector>

#include "tests/numero_de_error.h"

namespace cuencalia {
namespace {

const std::string kCeros(400, '0');  // more digits than a Double's range has

// Every pattern of the modules. The values are worked out by hand from the rule: round at the last position of the
// pattern, then drop trailing zeros that stand under a # with no 0 to its right.
TEST(Format, PatronesDeLosModulos) {
    struct Familia {
        std::vector<std::string> patrones;
        std::vector<std::string> textos;
    };
    const std::vector<double> valores = {0, 3, -0.5, 2.71828182845905, 99.9999999999, -0.00000000004, 1234567.125};
    const std::vector<Familia> familias = {
        {{"##0", "0"}, {"0", "3", "-1", "3", "100", "0", "1234567"}},
        {{"###0.0", "0.0"}, {"0.0", "3.0", "-0.5", "2.7", "100.0", "0.0", "1234567.1"}},
        {{"###.0"}, {".0", "3.0", "-.5", "2.7", "100.0", ".0", "1234567.1"}},
        {{"#####0.#0", "0.#0"}, {"0.00", "3.00", "-0.50", "2.72", "100.00", "0.00", "1234567.13"}},
        {{"###.#0"}, {".00", "3.00", "-.50", "2.72", "100.00", ".00", "1234567.13"}},
        {{"#####0.0#", "##0.0#", "0.0#"}, {"0.0", "3.0", "-0.5", "2.72", "100.0", "0.0", "1234567.13"}},
        {{"###.0#", "#.0#"}, {".0", "3.0", "-.5", "2.72", "100.0", ".0", "1234567.13"}},
        {{"0.##"}, {"0.", "3.", "-0.5", "2.72", "100.", "0.", "1234567.13"}},
        {{"0.##0"}, {"0.000", "3.000", "-0.500", "2.718", "100.000", "0.000", "1234567.125"}},
        {{"#0.0##", "0.0##"}, {"0.0", "3.0", "-0.5", "2.718", "100.0", "0.0", "1234567.125"}},
        {{"#####0.###0", "#####0.##00", "#####0.0##0", "###0.###0", "#0.0000", "0.###0", "0.##00", "0.0000"},
         {"0.0000", "3.0000", "-0.5000", "2.7183", "100.0000", "0.0000", "1234567.1250"}},
        {{"+#####0.##00"}, {"+0.0000", "+3.0000", "-+0.5000", "+2.7183", "+100.0000", "+0.0000", "+1234567.1250"}},
        {{"#####0.0###", "###0.0###", "##0.0###", "0.0###"},
         {"0.0", "3.0", "-0.5", "2.7183", "100.0", "0.0", "1234567.125"}},
        {{"#####0.0####", "#0.0####", "0.0####"}, {"0.0", "3.0", "-0.5", "2.71828", "100.0", "0.0", "1234567.125"}},
        {{"#0.0######"}, {"0.0", "3.0", "-0.5", "2.7182818", "100.0", "0.0", "1234567.125"}},
        {{"#0.0#######", "0.0#######"}, {"0.0", "3.0", "-0.5", "2.71828183", "100.0", "0.0", "1234567.125"}},
    };
    for (const Familia& familia : familias) {
        for (const std::string& patron : familia.patrones) {
            for (std::size_t i = 0; i < valores.size(); ++i) {
                EXPECT_EQ(Format(valores[i], patron), familia.textos[i]) << valores[i] << " by " << patron;
            }
        }
    }
}

TEST(Format, RedondeaLos15DigitosConLaMitadHaciaAfuera) {
    EXPECT_EQ(Format(1.005, "0.00"), "1.01") << "stored as 1.00499999999999989…";
    EXPECT_EQ(Format(-1.005, "0.00"), "-1.01");
    EXPECT_EQ(Format(0.125, "0.00"), "0.13");
    EXPECT_EQ(Format(2.5, "0"), "3");
    EXPECT_EQ(Format(0.5, "0"), "1");
    EXPECT_EQ(Format(0.4999999999999, "0"), "0");
    EXPECT_EQ(Format(-0.4, "0"), "0");
    EXPECT_EQ(Format(-0.04, "0.0"), "0.0");
    EXPECT_EQ(Format(0.09995, "0.0##0"), "0.1000");
    EXPECT_EQ(Format(0.00005, "0.0##0"), "0.0001");
    EXPECT_EQ(Format(0.000049, "0.0##0"), "0.0000");
    EXPECT_EQ(Format(9999.99995, "###0.0###"), "10000.0");
    EXPECT_EQ(Format(0.1 + 0.2, "0.0###################"), "0.3");
    EXPECT_EQ(Format(123456789012345678.0, "0"), "123456789012346000");
    EXPECT_EQ(Format(999999999999999.5, "0.0"), "1000000000000000.0");
}

TEST(Format, ExtremosDeUnDouble) {
    EXPECT_EQ(Format(1e15, "0.0#"), "1000000000000000.0");
    EXPECT_EQ(Format(1e300, "0.00"), "1" + kCeros.substr(0, 300) + ".00");
    EXPECT_EQ(Format(1e-300, "0.00"), "0.00");
    EXPECT_EQ(Format(-1e-300, "#0.0#######"), "0.0");
    EXPECT_EQ(Format(std::numeric_limits<double>::denorm_min(), "0.0"), "0.0");
}

TEST(Format, SingleConSusDigitosMasCortos) {
    EXPECT_EQ(Format(Single(0.1F), "#0.0#######"), "0.1") << "as a Double it would be 0.10000000149";
    EXPECT_EQ(Format(Single(1234.5678F), "0.0#######"), "1234.5677") << "the nearest Single is 1234.5677490234375";
    EXPECT_EQ(Format(Single(16777216.0F), "#0.0#######"), "16777216.0");
    EXPECT_EQ(Format(Single(0.00125F), "0.0##0"), "0.0013");
    EXPECT_EQ(NumeroDeError([] { return Format(Single(std::numeric_limits<float>::quiet_NaN()), "0.0"); }),
              kDesbordamiento);
    EXPECT_EQ(NumeroDeError([] { return Format(Single(std::numeric_limits<float>::infinity()), "0.0"); }),
              kDesbordamiento);
}

TEST(Format, TextosYPatronesAjenos) {
    EXPECT_EQ(Format("12,50 m", "#0.0#######"), "12,50 m");
    EXPECT_EQ(Format(7, "00"), "07");
    EXPECT_EQ(Format(5, "0##"), "005") << "the digits to the right of a forced one are forced";
    EXPECT_EQ(Format(0, "#"), "");
    for (const char* const patron : {"", "+", ".", "0.0.0", "0,000", "0.0%", "x"}) {
        EXPECT_THROW(Format(1, patron), std::invalid_argument) << patron;
    }
}

TEST(Val, ElNumeroMasLargoDelComienzo) {
    const std::vector<std::pair<std::string, double>> casos = {
        {"12.5", 12.5},
        {"-.5", -0.5},
        {"5.", 5},
        {"+3", 3},
        {" \t\r\n7", 7},
        {"1 2", 1},
        {"12,5", 12},
        {"1.2.3", 1.2},
        {"3 m3/s", 3},
        {"1e3x", 1000},
        {"1E-2", 0.01},
        {"1e+2", 100},
        {"1e", 1},
        {"1e+", 1},
        {"1d5", 1},
        {"1D5", 1},
        {"0x1F", 0},
        {"", 0},
        {"   ", 0},
        {"-", 0},
        {".", 0},
        {"-.e5", 0},
        {"abc", 0},
        {",5", 0},
        {"inf", 0},
        {"-nan", 0},
        {"+-5", 0},
        {"--5", 0},
        {"- 5", 0},
        {"0.1", 0.1},
        {"9007199254740993", 9007199254740992.0},  // 2^53 + 1 lies half-way and goes to the even one
    };
    for (const auto& [texto, valor] : casos) {
        EXPECT_EQ(Val(texto), valor) << '"' << texto << '"';
    }
}

TEST(Val, FueraDelAlcanceDeUnDouble) {
    const std::string enorme = "99999999999999999999";
    for (const std::string& texto : {std::string("1e400"), "1" + kCeros, "0." + kCeros + "1e800", "1e" + enorme,
                                     std::string("123.4e307"), "0.1e+" + enorme}) {
        EXPECT_EQ(NumeroDeError([&] { return Val(texto); }), kDesbordamiento) << texto;
        EXPECT_EQ(NumeroDeError([&] { return Val("-" + texto); }), kDesbordamiento) << texto;
    }
    for (const std::string& texto : {std::string("1e-400"), "0." + kCeros + "1", "1" + kCeros + "e-800", "1e-" + enorme,
                                     "." + kCeros + "1e+9", "0e" + enorme}) {
        EXPECT_EQ(Val(texto), 0) << texto;
    }
}

TEST(Textos, CStrYStr) {
    const std::vector<std::pair<double, std::string>> casos = {
        {0, "0"},
        {-0.0, "0"},
        {0.5, "0.5"},
        {-3, "-3"},
        {0.1 + 0.2, "0.3"},
        {1.0 / 3, "0.333333333333333"},
        {-2.0 / 3, "-0.666666666666667"},
        {123456.75, "123456.75"},
        {999999999999999, "999999999999999"},
        {1e15, "1E+15"},
        {999999999999999.9, "1E+15"},
        {0.00001, "0.00001"},
        {0.0000099, "9.9E-06"},
        {1.5e-7, "1.5E-07"},
        {-1e20, "-1E+20"},
        {1.25e300, "1.25E+300"},
    };
    for (const auto& [valor, texto] : casos) {
        EXPECT_EQ(CStr(valor), texto);
        EXPECT_EQ(Str(valor), texto.front() == '-' ? texto : " " + texto);
    }
}

class ComaDecimal : public std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
};

TEST(Textos, NoDependenDeLaConfiguracionRegional) {
    const std::locale anterior = std::locale::global(std::locale(std::locale(), new ComaDecimal));
    const std::string c_anterior = std::setlocale(LC_ALL, nullptr);
    std::setlocale(LC_ALL, "es_ES.UTF-8");  // where the machine has it
    EXPECT_EQ(Val("1.5"), 1.5);
    EXPECT_EQ(CStr(1.5), "1.5");
    EXPECT_EQ(Format(1.5, "0.0"), "1.5");
    std::setlocale(LC_ALL, c_anterior.c_str());
    std::locale::global(anterior);
}

TEST(Textos, CaracteresDeUtf8) {
    EXPECT_EQ(Len("Señal N°"), 8);
    EXPECT_EQ(Subtexto("Señal N°", 2, 3), "ñal");
    EXPECT_EQ(Subtexto("Señal N°", 6, 10), "N°");
    EXPECT_EQ(Subtexto("Señal", 9, 1), "");
    EXPECT_EQ(Subtexto("Señal", 1, -1), "");

    const std::vector<std::pair<int, std::string>> caracteres = {
        {10, "\n"}, {65, "A"}, {0xF1, "\xC3\xB1"}, {0x20AC, "\xE2\x82\xAC"}, {0x1F327, "\xF0\x9F\x8C\xA7"}};
    for (const auto& [codigo, texto] : caracteres) {
        EXPECT_EQ(Chr(codigo), texto);
        EXPECT_EQ(Asc(texto + "z"), codigo);
        EXPECT_EQ(Len(texto), 1);
    }
    EXPECT_EQ(Chr(0), std::string(1, '\0'));
    for (const int codigo : {-1, 0xD800, 0xDFFF, 0x110000}) {
        EXPECT_EQ(NumeroDeError([&] { return Chr(codigo); }), kArgumentoNoValido) << codigo;
    }
    EXPECT_EQ(NumeroDeError([] { return Asc(""); }), kArgumentoNoValido);
}

TEST(Textos, UtfDanadoNoSeSaleDelTexto) {
    const std::string cortado = "a\xE2\x82";  // the third byte of the euro sign is missing
    EXPECT_EQ(Len(cortado), 3);
    EXPECT_EQ(Subtexto(cortado, 1, 1), "\xE2");
    EXPECT_EQ(Asc("\xF1"
                  "a"),
              0xF1);
    EXPECT_EQ(Asc("\xFF"), 0xFF);
}

TEST(Textos, Blancos) {
    EXPECT_EQ(Trim("  a b  "), "a b");
    EXPECT_EQ(Trim("\ta "), "\ta");
    EXPECT_EQ(Trim("   "), "");
    EXPECT_EQ(Trim(""), "");
    EXPECT_EQ(Space(3), "   ");
    EXPECT_EQ(Space(-1), "");
}

}  // namespace
}  // namespace cuencalia
