#include "frame/reportes/rtf.h"

#include <gtest/gtest.h>
#include <iconv.h>

#include <algorithm>
#include <random>

#include "frame/base/utf8.h"
#include "tests/archivos_en_disco.h"

namespace cuencalia {
namespace {

using namespace pruebas;

std::string Dato(const std::string& nombre) { return BytesDe(std::string(CUENCALIA_DATOS) + "/rtf/" + nombre); }

std::string TextoDe(std::string_view rtf) { return LeerRtf(rtf).Texto(); }

std::string Repetir(std::string_view texto, int veces) {
    std::string largo;
    for (int i = 0; i < veces; ++i) {
        largo += texto;
    }
    return largo;
}

/// A document of every format and of characters that RTF has its own ways to write; another one for each seed.
TextoRico Inventado(unsigned semilla) {
    // clang-format off
    const std::string trozos[] = {
        "a", " ", "-", "\\", "{", "}", "\t", "7", "é", "\u00a0", "€", "\x01", "?", ";", "\\'41", "\u2011", "日",
        "\uffff", "😀", "par", "\x7f", "\u0080"};
    // clang-format on
    const std::string fuentes[] = {kFuenteReporte, "Arial", "Tipografía {1}"};
    std::mt19937 azar(semilla);
    const auto hasta = [&azar](int maximo) { return std::uniform_int_distribution<int>(0, maximo)(azar); };
    const auto color = [&] { return hasta(1) == 1 ? std::optional<std::uint32_t>(hasta(0xFFFFFF)) : std::nullopt; };
    TextoRico texto;
    for (int i = hasta(6); i > 0; --i, texto.parrafos.emplace_back()) {
        const std::vector<int> paradas(static_cast<std::size_t>(hasta(5)), 1 + hasta(30000));
        texto.parrafos.back().formato = {
            static_cast<Alineacion>(hasta(3)), hasta(3000), -hasta(500), -hasta(700), hasta(400), hasta(400), paradas};
        for (int j = hasta(4); j > 0; --j) {
            Tramo tramo{"",
                        {fuentes[hasta(2)], 1 + hasta(200), hasta(1) == 1, hasta(1) == 1, hasta(1) == 1, hasta(1) == 1,
                         static_cast<PosicionVertical>(hasta(2)), color(), color()}};
            for (int k = hasta(8); k >= 0; --k) {
                tramo.texto += trozos[hasta(std::size(trozos) - 1)];
            }
            texto.parrafos.back().Agregar(std::move(tramo));
        }
    }
    return texto;
}

TEST(Rtf, LoEscritoSeLeeIgual) {
    for (unsigned semilla = 0; semilla < 200; ++semilla) {
        const TextoRico texto = Inventado(semilla);
        for (const ClaseRtf clase : {ClaseRtf::kDocumento, ClaseRtf::kFragmento}) {
            const std::string rtf = EscribirRtf(texto, clase);
            ASSERT_TRUE(LeerRtf(rtf, clase) == texto) << semilla << "\n" << rtf;
            ASSERT_TRUE(
                std::all_of(rtf.begin(), rtf.end(), [](char c) { return c == '\n' || (c >= ' ' && c <= '~'); }));
        }
    }
    // \u takes signed numbers of 16 bits, and \uc1 promises one character for older readers.
    EXPECT_NE(EscribirRtf(DeTextoPlano("\u0241\uffff😀")).find("\\u577?\\u-1?\\u-10179?\\u-8704?"), std::string::npos);
    // LibreOffice ends a raised text with its group alone.
    FormatoCaracter alto;
    alto.posicion = PosicionVertical::kSuperindice;
    TextoRico elevado;
    elevado.parrafos[0].tramos = {{"m", {}}, {"3", alto}};
    elevado.parrafos.push_back({{}, {{"o", alto}}});
    EXPECT_NE(EscribirRtf(elevado).find("m{\\plain\\f0\\fs20\\super 3}"), std::string::npos);
    EXPECT_EQ(LeerRtf(EscribirRtf(elevado)), elevado);
}

// The texts follow from the definition of Rich Text Format 1.9.1, by the section named with each group.
TEST(Rtf, Textos) {
    // clang-format off
    const std::pair<std::string, std::string> casos[] = {
        // Basic entities: delimiters, line ends of the source, symbols.
        {R"({\rtf1 a})", "a"}, {R"({\rtf1\ansi\b  a\b0\i0b c})", " ab c"}, {"{\\rtf1 uno\r\ndos}", "unodos"},
        {R"({\rtf1 \{\}\\})", "{}\\"}, {R"({\rtf1 a\~b\_c\-d\|e\:f})", "a\u00a0b\u2011c\u00addef"},
        {R"({\rtf1\b-x})", "-x"}, {R"({\rtf1 a} b)", "a"}, {R"({\rtf1 a}})", "a"}, {R"({\rtf1 {a{b}c})", "abc"},
        // Paragraphs: the last mark of a document begins no line.
        {R"({\rtf1})", ""}, {R"({\rtf1\par})", ""}, {R"({\rtf1 a\par b\par})", "a\nb"}, {R"({\rtf1 a\par b})", "a\nb"},
        {R"({\rtf1 a\par\par})", "a\n"}, {"{\\rtf1 a\\\r\nb\\\nc}", "a\nb\nc"},
        {R"({\rtf1 a\line b\page c\line})", "a\nb\nc\n"},
        {R"({\rtf1\trowd\cellx900 a\cell b\cell\row\trowd c\cell\cell\row\pard d\par})", "a\tb\t\nc\t\t\nd"},
        // Special characters.
        {R"({\rtf1\tab\emdash\endash\bullet\lquote\rquote\ldblquote\rdblquote})", "\t—–•‘’“”"},
        // Unicode: \uc substitutes, of which a control word, a \'hh and binary data are one each, up to a group's end.
        {R"({\rtf1\u225?b})", "áb"}, {R"({\rtf1\u225\'e1b})", "áb"}, {R"({\rtf1\u225 ab})", "áb"},
        {R"({\rtf1\uc0\u225 ab})", "áab"}, {R"({\rtf1\uc3\u225 a\'62\tab d})", "ád"},
        {"{\\rtf1\\u225\\bin3 }}}b}", "áb"}, {R"({\rtf1{\uc2\u225}ab{\uc2\u225 a}b\u225?c})", "áabábác"},
        {R"({\rtf1\u-3913?\u65?})", "\uf0b7A"}, {R"({\rtf1\u-10179?\u-8704?\uc0\u55357\u56832})", "😀😀"},
        {R"({\rtf1\u-10179?a\u-8704?b\u55357?})", "\ufffda\ufffdb\ufffd"},
        {R"({\rtf1\u128512?\u99999999999?})", "😀\ufffd"},
        // Characters above 127 by the document's code page or the font's character set.
        {R"({\rtf1\ansi\'e1\'80})", "á€"}, {"{\\rtf1\\ansi\xE1}", "á"}, {R"({\rtf1\ansi\ansicpg1251\'e1})", "б"},
        {R"({\rtf1\mac\'87})", "á"}, {R"({\rtf1\pc\'a0\pca\'b5})", "áÁ"}, {R"({\rtf1\ansi\ansicpg932\'e1})", "á"},
        {R"({\rtf1\ansi{\fonttbl{\f0\fcharset0 A;}{\f1\fcharset204 B;}{\f2\fcharset161 C;}{\f3\fcharset238 D;}}\f1\'e1{\f2\'e1}\'e1\f3\'e3\f0\'e1})", "бαбăá"},
        {R"({\rtf1\ansi\ansicpg1250\deff1{\fonttbl{\f0\fcharset1 A;}{\f1\fcharset162 B;}{\f2\cpg850 C;}}\'fd\f0\'e3\f2\'a0})", "ıăá"},
        {R"({\rtf1 \'4a\'4xyz\'})", "J4xyz"}, {R"({\rtf1 a\'0ab\'00c\'09d})", "a\nbc\td"},
        // Destinations.
        {R"({\rtf1{\stylesheet{\s0 Normal;}}{\info{\title T}{\author \'e1}}{\header H}{\footerr F}a})", "a"},
        {R"({\rtf1{\*\desconocido{\b x}\'41\u65?}a{\desconocido b}})", "ab"},
        {R"({\rtf1{\pict\pngblip 89504e47}a{\*\shppict{\pict 00}}{\nonshppict{\pict 00}}b})", "ab"},
        {R"({\rtf1{\object\objemb{\*\objclass X}{\*\objdata 0105}{\result r{\pict 00}}}a})", "ra"},
        {R"({\rtf1{\field{\*\fldinst DATE}{\fldrslt hoy}}{\field{\fldinst{ PAGE}}{\fldrslt{1}}}})", "hoy1"},
        {R"({\rtf1{\pntext\bullet\tab}{\*\pn\pnlvlblt{\pntxtb\'B7}}a{\listtext 1.\tab}b})", "•\ta1.\tb"},
        {R"({\rtf1 a\v oculto\v0 b{\v c}d})", "abd"}, {"{\\rtf1 a\\bin4 {}\\}b{\\pict\\bin3 }}}}c}", "abc"},
        // Not RTF source.
        {"", ""}, {"{\\rt", "{\\rt"}, {"hola\r\n\\par", "hola\n\\par"}};
    // clang-format on
    for (const auto& [rtf, texto] : casos) {
        EXPECT_EQ(TextoDe(rtf), texto) << rtf;
    }
    EXPECT_EQ(LeerRtf(R"({\rtf1 a\par})", ClaseRtf::kFragmento).Texto(), "a\n");
}

TEST(Rtf, FormatosDeCaracter) {
    using F = FormatoCaracter;
    const std::string tablas =
        R"({\rtf1\deff1{\fonttbl{\f0\fnil\fcharset0 Courier New{\*\falt Courier};}{\f1\froman T\'edmes;}\f2\fswiss Arial})"
        R"({\colortbl;\red255\green0\blue16;\red300\green-1\blue2;})";
    // clang-format off
    const std::pair<std::string, void (*)(F&)> casos[] = {
        {"", [](F&) {}}, {"\\f77", [](F& f) { f.fuente = kFuenteReporte; }},
        {"\\f0\\fs21", [](F& f) { f.fuente = "Courier New", f.medioPuntos = 21; }},
        {"\\f2\\b\\i", [](F& f) { f.fuente = "Arial", f.negrita = f.cursiva = true; }},
        {"\\b\\i\\ulw\\strike\\b0\\i0", [](F& f) { f.subrayado = f.tachado = true; }},
        {"\\ul\\strike\\ulnone\\strike0\\ul\\ul0\\ulc1", [](F&) {}}, {"\\cf3\\cb-1", [](F&) {}},
        {"\\cf1\\highlight2", [](F& f) { f.color = 0xFF0010, f.fondo = 0xFF0002; }},
        {"\\chcbpat1", [](F& f) { f.fondo = 0xFF0010; }}, {"\\cf1\\cf0\\chcbpat1\\highlight0\\sub\\sub0", [](F&) {}},
        {"\\super", [](F& f) { f.posicion = PosicionVertical::kSuperindice; }},
        {"\\dn6", [](F& f) { f.posicion = PosicionVertical::kSubindice; }},
        {"\\super\\nosupersub{\\b\\f0{\\i}}\\b\\f2\\cf1\\plain", [](F&) {}}};
    // clang-format on
    for (const auto& [rtf, cambio] : casos) {
        F esperado{"Tímes", 24, false, false, false, false, PosicionVertical::kNormal, {}, {}};
        cambio(esperado);
        EXPECT_EQ(LeerRtf(tablas + rtf + " x}").parrafos.at(0).tramos.at(0).formato, esperado) << rtf;
    }
}

TEST(Rtf, UnDocumentoDeLibreOffice) {
    constexpr std::size_t kMarca = 3;
    const TextoRico informe = LeerRtf(Dato("informe.rtf"));
    EXPECT_EQ(informe.Texto() + "\n", Dato("informe.txt").substr(kMarca));
    // From the styles of informe.fodt.
    std::string alineaciones;
    for (const Parrafo& parrafo : informe.parrafos) {
        alineaciones += std::to_string(static_cast<int>(parrafo.formato.alineacion));
    }
    EXPECT_EQ(alineaciones, "22213000000");
}

TEST(Rtf, PaginasDeCodigoComoLasDelSistema) {
    for (const std::string numero : {"1250", "1251", "1252", "1253", "1254", "437", "850", "10000"}) {
        const iconv_t conversor = iconv_open("UTF-8", numero == "10000" ? "MACINTOSH" : ("CP" + numero).c_str());
        for (int byte = 0x80; byte <= 0xFF; ++byte) {
            char origen[] = {static_cast<char>(byte), '\0'};
            char destino[8] = {};
            char *de = origen, *a = destino;
            std::size_t quedan = 1, caben = sizeof destino;
            std::string esperado = iconv(conversor, &de, &quedan, &a, &caben) == 0 ? destino : "\ufffd";
            if (numero == "10000" && (byte == 0xC6 || byte == 0xF0)) {
                esperado = byte == 0xC6 ? "\u2206" : "\uf8ff";  // which glibc has otherwise; Apple's ROMAN.TXT (2005)
            }
            EXPECT_EQ(TextoDe("{\\rtf1\\ansi\\ansicpg" + numero + origen + "}"), esperado) << numero << " " << byte;
        }
        iconv_close(conversor);
    }
}

TEST(Rtf, FuentesHostiles) {
    constexpr int kMuchos = 100000;
    // clang-format off
    const std::pair<std::string, std::string> casos[] = {
        {Repetir("{", kMuchos) + "a" + Repetir("}", kMuchos) + "b}", "ab"}, {"a" + Repetir("}", kMuchos), "a"},
        {Repetir("{\\b{\\i\\b0", kMuchos) + " a" + Repetir("}", 2 * kMuchos) + "b}", "ab"},
        {"a" + Repetir("{\\*\\x", kMuchos), "a"}, {"a\\" + Repetir("x", kMuchos) + " b}", "ab"},
        {"a\\bin2147483647 b}", "a"}, {"a{\\pict\\bin99999999999999999999 b}c}", "a"}, {"a\\bin-1 b}", "ab"},
        {"\\uc2147483647\\u225 abc}", "á"}};
    // clang-format on
    for (const auto& [rtf, texto] : casos) {
        EXPECT_EQ(TextoDe("{\\rtf1 " + rtf), texto) << rtf.substr(0, 60);
    }
    const Parrafo parrafo = LeerRtf("{\\rtf1{\\fonttbl{\\f2147483647 " + Repetir("N", kMuchos) +
                                    ";}}\\deff-2147483648\\f2147483647\\fs99999999999\\cf2147483647\\highlight-"
                                    "99999999999\\li99999999999\\ri-99999999999" +
                                    Repetir("\\tx5", kMuchos) + " x}")
                                .parrafos.at(0);
    EXPECT_LT(parrafo.tramos.at(0).formato.fuente.size(), 100u);
    EXPECT_EQ(parrafo.tramos[0].formato.medioPuntos, 3276);
    EXPECT_FALSE(parrafo.tramos[0].formato.color || parrafo.tramos[0].formato.fondo);
    EXPECT_EQ(parrafo.formato,
              (FormatoParrafo{Alineacion::kIzquierda, 31680, -31680, 0, 0, 0, std::vector<int>(32, 5)}));
}

}  // namespace
}  // namespace cuencalia
