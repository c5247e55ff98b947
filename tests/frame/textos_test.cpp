#include "frame/base/textos.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

#include "frame/base/utf8.h"
#include "tests/numero_de_error.h"

namespace cuencalia {
namespace {

const std::string kCeros(400, '0');  // more digits than a Double's range has

// By hand: round at the last position of the pattern, then drop the zeros under a # that has no 0 to its right.
TEST(Textos, Format) {
    const double valores[] = {0, 3, -0.5, 2.71828182845905, 99.9999999999, -0.00000000004, 1234567.125};
    const std::pair<const char*, std::vector<std::string>> familias[] = {
        {"##0", {"0", "3", "-1", "3", "100", "0", "1234567"}},
        {"###.0", {".0", "3.0", "-.5", "2.7", "100.0", ".0", "1234567.1"}},
        {"#####0.#0", {"0.00", "3.00", "-0.50", "2.72", "100.00", "0.00", "1234567.13"}},
        {"#.0#", {".0", "3.0", "-.5", "2.72", "100.0", ".0", "1234567.13"}},
        {"0.##", {"0.", "3.", "-0.5", "2.72", "100.", "0.", "1234567.13"}},
        {"+#####0.##00", {"+0.0000", "+3.0000", "-+0.5000", "+2.7183", "+100.0000", "+0.0000", "+1234567.1250"}},
        {"#0.0#######", {"0.0", "3.0", "-0.5", "2.71828183", "100.0", "0.0", "1234567.125"}}};
    for (const auto& [patron, textos] : familias) {
        for (std::size_t i = 0; i < textos.size(); ++i) {
            EXPECT_EQ(Format(valores[i], patron), textos[i]) << valores[i] << " by " << patron;
        }
    }
    // A half of the 15th digit and of the pattern's last goes away from zero: 1.005 is stored as 1.00499999999999989…
    // clang-format off
    const std::tuple<double, const char*, std::string> redondeos[] = {
        {1.005, "0.00", "1.01"}, {-1.005, "0.00", "-1.01"}, {0.125, "0.00", "0.13"}, {2.5, "0", "3"}, {0.5, "0", "1"},
        {0.4999999999999, "0", "0"}, {-0.4, "0", "0"}, {-0.04, "0.0", "0.0"}, {0.09995, "0.0##0", "0.1000"},
        {0.000049, "0.0##0", "0.0000"}, {9999.99995, "###0.0###", "10000.0"},
        {0.1 + 0.2, "0.0################", "0.3"}, {123456789012345678.0, "0", "123456789012346000"},
        {999999999999999.5, "0.0", "1000000000000000.0"}, {1e300, "0.0", "1" + kCeros.substr(0, 300) + ".0"},
        {-1e-300, "#0.0##", "0.0"}, {7, "00", "07"}, {5, "0##", "005"}, {0, "#", ""}};
    // clang-format on
    for (const auto& [valor, patron, texto] : redondeos) {
        EXPECT_EQ(Format(valor, patron), texto) << valor << " by " << patron;
    }
    // The nearest Singles are 0.100000001490116… and 1234.5677490234375.
    EXPECT_EQ(Format(Single(0.1F), "#0.0#######"), "0.1");
    EXPECT_EQ(Format(Single(1234.5678F), "0.0#######"), "1234.5677");
    EXPECT_EQ(NumeroDeError([] { return Format(Single(std::numeric_limits<float>::quiet_NaN()), "0"); }), 6);
    EXPECT_EQ(Format("12,50 m", "#0.0#######"), "12,50 m");
    for (const char* const patron : {"", "+", ".", "0.0.0", "0,000", "0.0%", "x"}) {
        EXPECT_THROW(Format(1, patron), std::invalid_argument) << patron;
    }
}

TEST(Textos, Val) {
    // 2^53 + 1 lies half-way between two Doubles and goes to the even one.
    // clang-format off
    const std::pair<std::string, double> casos[] = {
        {"12.5", 12.5}, {"-.5", -0.5}, {"5.", 5}, {"+3", 3}, {" \t\r\n7", 7}, {"1 2", 1}, {"12,5", 12},
        {"1.2.3", 1.2}, {"1e3x", 1000}, {"1E-2", 0.01}, {"1e+2", 100}, {"1e", 1}, {"1e+", 1}, {"1d5", 1}, {"0x1F", 0},
        {"", 0}, {"-", 0}, {".", 0}, {"-.e5", 0}, {"abc", 0}, {",5", 0}, {"inf", 0}, {"-nan", 0}, {"+-5", 0},
        {"--5", 0}, {"- 5", 0}, {"0.1", 0.1}, {"9007199254740993", 9007199254740992.0}, {"1e-400", 0},
        {"0." + kCeros + "1", 0}, {"1" + kCeros + "e-800", 0}, {"." + kCeros + "1e+9", 0},
        {"1e-99999999999999999999", 0}, {"0e99999999999", 0}};
    // clang-format on
    for (const auto& [texto, valor] : casos) {
        EXPECT_EQ(Val(texto), valor) << '"' << texto << '"';
    }
    const std::string fuera[] = {"1e400", "-1" + kCeros, "0." + kCeros + "1e800", "123.4e307",
                                 "0.1e+99999999999999999999"};
    for (const std::string& texto : fuera) {
        EXPECT_EQ(NumeroDeError([&] { return Val(texto); }), 6) << texto;
    }
}

TEST(Textos, CStrYStr) {
    // clang-format off
    const std::pair<double, std::string> casos[] = {
        {0, "0"}, {-0.0, "0"}, {0.5, "0.5"}, {-3, "-3"}, {0.1 + 0.2, "0.3"}, {-2.0 / 3, "-0.666666666666667"},
        {123456.75, "123456.75"}, {999999999999999, "999999999999999"}, {1e15, "1E+15"}, {999999999999999.9, "1E+15"},
        {0.00001, "0.00001"}, {0.0000099, "9.9E-06"}, {-1e20, "-1E+20"}, {1.25e300, "1.25E+300"}};
    // clang-format on
    for (const auto& [valor, texto] : casos) {
        EXPECT_EQ(CStr(valor), texto);
        EXPECT_EQ(Str(valor), texto.front() == '-' ? texto : " " + texto);
    }
    EXPECT_EQ(CStr(Single(0.1F)), "0.1");
}

// The codes at which UTF-8 takes one byte more, and those beside the halves of UTF-16 pairs.
TEST(Textos, Caracteres) {
    // clang-format off
    const std::pair<int, std::string> casos[] = {
        {0x41, "A"}, {0x7F, "\x7F"}, {0x80, "\xC2\x80"}, {0xF1, "\xC3\xB1"}, {0x7FF, "\xDF\xBF"},
        {0x800, "\xE0\xA0\x80"}, {0x20AC, "\xE2\x82\xAC"}, {0xD7FF, "\xED\x9F\xBF"}, {0xE000, "\xEE\x80\x80"},
        {0xFFFF, "\xEF\xBF\xBF"}, {0x10000, "\xF0\x90\x80\x80"}, {0x1F327, "\xF0\x9F\x8C\xA7"},
        {0x10FFFF, "\xF4\x8F\xBF\xBF"}};
    // clang-format on
    for (const auto& [codigo, texto] : casos) {
        SCOPED_TRACE(codigo);
        EXPECT_EQ(Chr(codigo), texto);
        EXPECT_EQ(Asc(texto + "z"), codigo);
        EXPECT_EQ(Len("a" + texto + texto), 3);
        EXPECT_EQ(Subtexto("a" + texto + "ñz", 1, 2), texto + "ñ");
    }
    for (const int codigo : {-1, 0xD800, 0xDFFF, 0x110000}) {
        EXPECT_EQ(NumeroDeError([&] { return Chr(codigo); }), 5) << codigo;
    }
    EXPECT_EQ(NumeroDeError([] { return Asc(""); }), 5);
    EXPECT_EQ(Subtexto("Señal", 4, 10), "l");
    EXPECT_EQ(Subtexto("Señal", 9, 1) + Subtexto("Señal", 1, -1), "");
    EXPECT_EQ(Subtexto("Señal", -2, 3), "Señ");
    EXPECT_EQ(Trim("  \ta b  ") + Trim("   ") + Trim("") + Space(2) + Space(-1), "\ta b  ");
}

// Lone, missing and foreign bytes, forms that are too long, half a UTF-16 pair, a code beyond the last: each byte is a
// character of its own, and the text is not left.
TEST(Textos, UtfDanado) {
    for (const std::string danado : {"\x80", "\xC3", "\xE2\x82", "\xF0\x9F\x8C", "\xFF\xFE", "\xC1\x81", "\xE0\x80\x80",
                                     "\xF0\x80\x80\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80"}) {
        SCOPED_TRACE(testing::PrintToString(danado));
        EXPECT_FALSE(EsUtf8(danado));
        EXPECT_EQ(Len("ñ" + danado), 1 + static_cast<int>(danado.size()));
        EXPECT_EQ(Len("ñ" + danado + "z"), 2 + static_cast<int>(danado.size()));
        EXPECT_EQ(Asc(danado), static_cast<unsigned char>(danado[0]));
        EXPECT_EQ(Subtexto("a" + danado + "b", 1, 1), danado.substr(0, 1));
    }
    EXPECT_EQ(Asc(std::string_view("€").substr(0, 2)), 0xE2) << "what follows the text is not looked at";
}

}  // namespace
}  // namespace cuencalia
