#include "frame/reportes/rtf.h"

#include <gtest/gtest.h>
#include <iconv.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include "frame/base/utf8.h"
#include "frame/reportes/paginascodigo.h"

namespace cuencalia {
namespace {

namespace fs = std::filesystem;

const fs::path kDatos = fs::path(CUENCALIA_DATOS) / "rtf";

std::string Contenido(const fs::path& ruta) {
    std::ifstream archivo(ruta, std::ios::binary);
    EXPECT_TRUE(archivo) << ruta;
    return {std::istreambuf_iterator<char>(archivo), {}};
}

std::string TextoDe(std::string_view rtf) { return LeerRtf(rtf).Texto(); }

/// The only piece of a document of one.
Tramo TramoDe(const std::string& rtf) {
    const TextoRico texto = LeerRtf(rtf);
    EXPECT_EQ(texto.parrafos.size(), 1u) << rtf;
    EXPECT_EQ(texto.parrafos[0].tramos.size(), 1u) << rtf;
    return texto.parrafos.at(0).tramos.at(0);
}

/// Documents of every format and of characters that RTF has its own ways to write.
class Generador {
  public:
    explicit Generador(unsigned semilla) : azar_(semilla) {}

    TextoRico Documento() {
        TextoRico texto;
        texto.parrafos.resize(1 + Hasta(6));
        for (Parrafo& parrafo : texto.parrafos) {
            parrafo.formato = FormatoDeParrafo();
            for (std::size_t i = Hasta(4); i > 0; --i) {
                parrafo.Agregar({Texto(), FormatoDeCaracter()});
            }
        }
        return texto;
    }

  private:
    std::size_t Hasta(std::size_t maximo) { return std::uniform_int_distribution<std::size_t>(0, maximo)(azar_); }
    int Entre(int minimo, int maximo) { return std::uniform_int_distribution<int>(minimo, maximo)(azar_); }
    bool Moneda() { return Hasta(1) == 1; }

    std::string Texto() {
        static const std::vector<std::string> kTrozos{
            "a",    " ", "-", "\\", "{",     "}",      "\t", "7",      "é", "\u00a0", "Ñ",    "€",
            "\x01", "?", ";", "'",  "\\'41", "\u2011", "日", "\uffff", "😀", "par",    "\x7f", "\u0080"};
        std::string texto;
        for (std::size_t i = 1 + Hasta(8); i > 0; --i) {
            texto += kTrozos[Hasta(kTrozos.size() - 1)];
        }
        return texto;
    }

    std::optional<std::uint32_t> Color() {
        return Moneda() ? std::optional<std::uint32_t>(static_cast<std::uint32_t>(Hasta(0xFFFFFF))) : std::nullopt;
    }

    FormatoCaracter FormatoDeCaracter() {
        static const std::vector<std::string> kFuentes{kFuenteReporte, "Arial", "Tipografía {1}"};
        return {kFuentes[Hasta(2)],
                Entre(1, 200),
                Moneda(),
                Moneda(),
                Moneda(),
                Moneda(),
                static_cast<PosicionVertical>(Hasta(2)),
                Color(),
                Color()};
    }

    FormatoParrafo FormatoDeParrafo() {
        FormatoParrafo formato{static_cast<Alineacion>(Hasta(3)),
                               Entre(0, 3000),
                               Entre(-500, 3000),
                               Entre(-700, 700),
                               Entre(0, 400),
                               Entre(0, 400),
                               {}};
        for (std::size_t i = Hasta(5); i > 0; --i) {
            formato.tabuladores.push_back(Entre(1, 31680));
        }
        return formato;
    }

    std::mt19937 azar_;
};

TEST(EscribirRtf, LoEscritoSeLeeIgual) {
    for (unsigned semilla = 0; semilla < 300; ++semilla) {
        const TextoRico texto = Generador(semilla).Documento();
        for (const ClaseRtf clase : {ClaseRtf::kDocumento, ClaseRtf::kFragmento}) {
            const std::string rtf = EscribirRtf(texto, clase);
            ASSERT_TRUE(LeerRtf(rtf, clase) == texto) << "semilla " << semilla << "\n" << rtf;
            ASSERT_TRUE(std::all_of(rtf.begin(), rtf.end(), [](char c) { return c == '\n' || (c >= ' ' && c <= '~'); }))
                << rtf;
        }
    }
}

TEST(EscribirRtf, EscribeFuenteSignosYMarcas) {
    TextoRico texto = DeTextoPlano("Año {1}\\\n\tfin");
    texto.parrafos[0].formato.alineacion = Alineacion::kCentrada;
    texto.parrafos[1].formato.sangriaIzquierda = 200;
    const std::string rtf = EscribirRtf(texto);
    EXPECT_TRUE(rtf.starts_with("{\\rtf1\\ansi\\ansicpg1252\\uc1\\deff0"));
    EXPECT_NE(rtf.find("{\\f0\\fmodern\\fprq1\\fcharset0 Courier New;}"), std::string::npos);
    EXPECT_NE(rtf.find("\\pard\\qc \\plain\\f0\\fs20 A\\u241?o \\{1\\}\\\\\\par\n"), std::string::npos) << rtf;
    EXPECT_NE(rtf.find("\\pard\\ql\\li200 \\tab fin\\par\n}"), std::string::npos) << rtf;
    EXPECT_EQ(EscribirRtf(texto, ClaseRtf::kFragmento).find("fin\\par"), std::string::npos);
}

TEST(EscribirRtf, LibreOfficeLeeLoEscrito) {
    if (std::system("command -v soffice >/dev/null 2>&1") != 0) {
        GTEST_SKIP() << "LibreOffice is not on this machine";
    }
    TextoRico texto = DeTextoPlano(
        "Resultados\n\nCálculo de {parámetros} \\ 100 %\n N°\t\t X\t\t\nm3/s y más\n😀 ≤ 日\n\n"
        "---------------------------------------------");
    texto.parrafos[0].formato = {Alineacion::kCentrada, 200, 200, 0, 0, 0, {}};
    texto.parrafos[4].tramos.clear();
    FormatoCaracter alto;
    alto.posicion = PosicionVertical::kSuperindice;
    FormatoCaracter vivo;
    vivo.negrita = true;
    vivo.color = 0xC00000;
    vivo.fondo = 0xFFFF00;
    texto.parrafos[4].Agregar({"m", {}});
    texto.parrafos[4].Agregar({"3", alto});
    texto.parrafos[4].Agregar({"/s y", {}});
    texto.parrafos[4].Agregar({" más", vivo});

    const fs::path carpeta = fs::path(testing::TempDir()) / "cuencalia_rtf_libreoffice";
    fs::remove_all(carpeta);
    fs::create_directories(carpeta);
    std::ofstream(carpeta / "reporte.rtf", std::ios::binary) << EscribirRtf(texto);
    const std::string orden = "cd '" + carpeta.string() + "' && timeout 120 soffice -env:UserInstallation=file://" +
                              (carpeta / "perfil").string() +
                              " --headless --convert-to 'txt:Text (encoded):UTF8' reporte.rtf >/dev/null 2>&1";
    ASSERT_EQ(std::system(orden.c_str()), 0);
    EXPECT_EQ(Contenido(carpeta / "reporte.txt"), "\xEF\xBB\xBF" + texto.Texto() + "\n");
    fs::remove_all(carpeta);
}

// The texts follow from the definition of Rich Text Format 1.9.1, by the section named with each group.
TEST(LeerRtf, Textos) {
    struct Caso {
        std::string rtf;
        std::string texto;
    };
    const std::vector<Caso> casos{
        // Basic entities: delimiters, line ends of the source, symbols.
        {R"({\rtf1 a})", "a"},
        {R"({\rtf1\ansi\b  a\b0\i0b c})", " ab c"},
        {"{\\rtf1 uno\r\ndos}", "unodos"},
        {R"({\rtf1 \{\}\\})", "{}\\"},
        {R"({\rtf1 a\~b\_c\-d\|e\:f})", "a\u00a0b\u2011c\u00addef"},
        {R"({\rtf1\b-x})", "-x"},
        {R"({\rtf1 a} b)", "a"},
        {R"({\rtf1 a}})", "a"},
        {R"({\rtf1 {a{b}c})", "abc"},
        // Paragraphs: the last mark of a document begins no line.
        {R"({\rtf1})", ""},
        {R"({\rtf1\par})", ""},
        {R"({\rtf1 a\par b\par})", "a\nb"},
        {R"({\rtf1 a\par b})", "a\nb"},
        {R"({\rtf1 a\par\par})", "a\n"},
        {"{\\rtf1 a\\\r\nb\\\nc}", "a\nb\nc"},
        {R"({\rtf1 a\line b\page c\line})", "a\nb\nc\n"},
        {R"({\rtf1\trowd\cellx900 a\cell b\cell\row\trowd c\cell\cell\row\pard d\par})", "a\tb\t\nc\t\t\nd"},
        // Special characters.
        {R"({\rtf1\tab\emdash\endash\bullet\lquote\rquote\ldblquote\rdblquote})", "\t—–•‘’“”"},
        // Unicode: \uc substitutes, of which a control word, a \'hh and binary data are one each, up to a group's end.
        {R"({\rtf1\u225?b})", "áb"},
        {R"({\rtf1\u225\'e1b})", "áb"},
        {R"({\rtf1\u225 ab})", "áb"},
        {R"({\rtf1\uc0\u225 ab})", "áab"},
        {R"({\rtf1\uc3\u225 a\'62\tab d})", "ád"},
        {"{\\rtf1\\u225\\bin3 }}}b}", "áb"},
        {R"({\rtf1{\uc2\u225}ab{\uc2\u225 a}b\u225?c})", "áabábác"},
        {R"({\rtf1\u-3913?\u65?})", "\uf0b7A"},
        {R"({\rtf1\u-10179?\u-8704?\uc0\u55357\u56832})", "😀😀"},
        {R"({\rtf1\u-10179?a\u-8704?b\u55357?})", "\ufffda\ufffdb\ufffd"},
        {R"({\rtf1\u128512?\u99999999999?})", "😀\ufffd"},
        // Characters above 127 by the document's code page or the font's character set.
        {R"({\rtf1\ansi\'e1\'80})", "á€"},
        {"{\\rtf1\\ansi\xE1}", "á"},
        {R"({\rtf1\ansi\ansicpg1251\'e1})", "б"},
        {R"({\rtf1\mac\'87})", "á"},
        {R"({\rtf1\pc\'a0\pca\'b5})", "áÁ"},
        {R"({\rtf1\ansi\ansicpg932\'e1})", "á"},
        {R"({\rtf1\ansi{\fonttbl{\f0\fcharset0 A;}{\f1\fcharset204 B;}{\f2\fcharset161 C;}{\f3\fcharset238 D;}}\f1\'e1{\f2\'e1}\'e1\f3\'e3\f0\'e1})",
         "бαбăá"},
        {R"({\rtf1\ansi\ansicpg1250\deff1{\fonttbl{\f0\fcharset1 A;}{\f1\fcharset162 B;}{\f2\cpg850 C;}}\'fd\f0\'e3\f2\'a0})",
         "ıăá"},
        {R"({\rtf1 \'4a\'4xyz\'})", "J4xyz"},
        {R"({\rtf1 a\'0ab\'00c\'09d})", "a\nbc\td"},
        // Destinations.
        {R"({\rtf1{\stylesheet{\s0 Normal;}}{\info{\title T}{\author \'e1}}{\header H}{\footerr F}a})", "a"},
        {R"({\rtf1{\*\desconocido{\b x}\'41\u65?}a{\desconocido b}})", "ab"},
        {R"({\rtf1{\pict\pngblip 89504e47}a{\*\shppict{\pict 00}}{\nonshppict{\pict 00}}b})", "ab"},
        {R"({\rtf1{\object\objemb{\*\objclass X}{\*\objdata 0105}{\result r{\pict 00}}}a})", "ra"},
        {R"({\rtf1{\field{\*\fldinst DATE}{\fldrslt hoy}}{\field{\fldinst{ PAGE}}{\fldrslt{1}}}})", "hoy1"},
        {R"({\rtf1{\pntext\bullet\tab}{\*\pn\pnlvlblt{\pntxtb\'B7}}a{\listtext 1.\tab}b})", "•\ta1.\tb"},
        {R"({\rtf1 a\v oculto\v0 b{\v c}d})", "abd"},
        {"{\\rtf1 a\\bin4 {}\\}b{\\pict\\bin3 }}}}c}", "abc"},
        // Not RTF source.
        {"", ""},
        {"{\\rt", "{\\rt"},
        {"hola\r\n\\par", "hola\n\\par"},
    };
    for (const Caso& caso : casos) {
        EXPECT_EQ(TextoDe(caso.rtf), caso.texto) << caso.rtf;
    }
    EXPECT_EQ(LeerRtf(R"({\rtf1 a\par})", ClaseRtf::kFragmento).Texto(), "a\n");
}

TEST(LeerRtf, FormatosDeCaracter) {
    const std::string tablas =
        R"({\rtf1\deff1{\fonttbl{\f0\fnil\fcharset0 Courier New{\*\falt Courier};}{\f1\froman T\'edmes;}\f2\fswiss Arial;})"
        R"({\colortbl;\red255\green0\blue16;\red300\green-1\blue2;})";
    const auto formato = [&tablas](const std::string& resto) { return TramoDe(tablas + resto + " x}").formato; };
    const auto con = [](auto cambio) {
        FormatoCaracter f{"Tímes", 24, false, false, false, false, PosicionVertical::kNormal, {}, {}};
        cambio(f);
        return f;
    };
    using F = FormatoCaracter;
    EXPECT_EQ(formato(""), con([](F&) {}));
    EXPECT_EQ(formato("\\f0\\fs21"), con([](F& f) { f.fuente = "Courier New", f.medioPuntos = 21; }));
    EXPECT_EQ(formato("\\f2\\b\\i"), con([](F& f) { f.fuente = "Arial", f.negrita = f.cursiva = true; }));
    EXPECT_EQ(formato("\\b\\i\\ulw\\strike\\b0\\i0"), con([](F& f) { f.subrayado = f.tachado = true; }));
    EXPECT_EQ(formato("\\ul\\strike\\ulnone\\strike0"), con([](F&) {}));
    EXPECT_EQ(formato("\\ul\\ul0\\ulc1"), con([](F&) {}));
    EXPECT_EQ(formato("\\cf1\\highlight2"), con([](F& f) { f.color = 0xFF0010, f.fondo = 0xFF0002; }));
    EXPECT_EQ(formato("\\cf1\\cf0\\chcbpat1\\highlight0"), con([](F&) {}));
    EXPECT_EQ(formato("\\cf3\\cb-1"), con([](F&) {}));
    EXPECT_EQ(formato("\\super"), con([](F& f) { f.posicion = PosicionVertical::kSuperindice; }));
    EXPECT_EQ(formato("\\dn6"), con([](F& f) { f.posicion = PosicionVertical::kSubindice; }));
    EXPECT_EQ(formato("\\super\\nosupersub"), con([](F&) {}));
    EXPECT_EQ(formato("{\\b\\f0{\\i}}"), con([](F&) {})) << "a group gives back what it found";
    EXPECT_EQ(formato("\\b\\f2\\cf1\\plain"), con([](F&) {}));
    EXPECT_EQ(formato("\\f77"), con([](F& f) { f.fuente = kFuenteReporte; })) << "no such font";
}

TEST(LeerRtf, FormatosDeParrafo) {
    const TextoRico texto = LeerRtf(
        R"({\rtf1\pard\qc\li200\ri300\fi-100\sb10\sa20\tx720\tx1440 a\par b\par\pard\qr c\par{\qj d\par}\ql e\line f\par})");
    ASSERT_EQ(texto.Texto(), "a\nb\nc\nd\ne\nf");
    const FormatoParrafo centrado{Alineacion::kCentrada, 200, 300, -100, 10, 20, {720, 1440}};
    EXPECT_EQ(texto.parrafos[0].formato, centrado);
    EXPECT_EQ(texto.parrafos[1].formato, centrado) << "the format goes on until \\pard";
    EXPECT_EQ(texto.parrafos[2].formato.alineacion, Alineacion::kDerecha);
    EXPECT_EQ(texto.parrafos[2].formato.sangriaIzquierda, 0);
    EXPECT_EQ(texto.parrafos[3].formato.alineacion, Alineacion::kJustificada);
    EXPECT_EQ(texto.parrafos[4].formato.alineacion, Alineacion::kIzquierda);
    EXPECT_EQ(LeerRtf(R"({\rtf1\qc a})").parrafos[0].formato.alineacion, Alineacion::kCentrada);
}

TEST(LeerRtf, DocumentosDeLibreOffice) {
    constexpr std::size_t kMarca = 3;
    const TextoRico informe = LeerRtf(Contenido(kDatos / "informe.rtf"));
    EXPECT_EQ(informe.Texto() + "\n", Contenido(kDatos / "informe.txt").substr(kMarca));
    // From the styles of informe.fodt.
    std::vector<int> alineaciones;
    for (const Parrafo& parrafo : informe.parrafos) {
        alineaciones.push_back(static_cast<int>(parrafo.formato.alineacion));
    }
    EXPECT_EQ(alineaciones, (std::vector<int>{2, 2, 2, 1, 3, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(informe.parrafos[0].tramos.at(0).formato.fuente, "Courier New");
    EXPECT_EQ(informe.parrafos[0].tramos.at(0).formato.medioPuntos, 28);
    const Parrafo& justificado = informe.parrafos[4];
    EXPECT_EQ(justificado.formato.sangriaIzquierda, 1440);
    EXPECT_EQ(justificado.formato.sangriaDerecha, 720);
    EXPECT_EQ(justificado.formato.primeraLinea, -360);
    EXPECT_EQ(informe.parrafos[5].formato.tabuladores, (std::vector<int>{1440, 3600}));
    const auto tramo = [&justificado](std::string_view texto) {
        const auto lugar = std::find_if(justificado.tramos.begin(), justificado.tramos.end(),
                                        [texto](const Tramo& t) { return t.texto == texto; });
        return lugar == justificado.tramos.end() ? FormatoCaracter{} : lugar->formato;
    };
    EXPECT_EQ(tramo("3").posicion, PosicionVertical::kSuperindice);
    EXPECT_TRUE(tramo("negrita").negrita);
    EXPECT_TRUE(tramo("cursiva").cursiva);
    EXPECT_TRUE(tramo("subrayado").subrayado);
    EXPECT_TRUE(tramo("tachado").tachado);
    EXPECT_EQ(tramo("en color").color, 0xC00000u);
    EXPECT_EQ(tramo("en color").fondo, 0xFFFF00u);

    // The export gives each cell a line; here a row is a line.
    std::string exportado = Contenido(kDatos / "tabla.txt").substr(kMarca);
    const auto cambiar = [&exportado](std::string_view de, std::string_view a) {
        const std::size_t lugar = exportado.find(de);
        ASSERT_NE(lugar, std::string::npos) << de;
        exportado.replace(lugar, de.size(), a);
    };
    cambiar("    • Máximo", "•\tMáximo");
    cambiar("    • Mínimo", "•\tMínimo");
    cambiar("Año\nQ (m³/s)\n", "Año\tQ (m³/s)\t\n");
    cambiar("1998\n125.4\n", "1998\t125.4\t\n");
    cambiar("1999\n98.2\n", "1999\t98.2\t\n");
    EXPECT_EQ(TextoDe(Contenido(kDatos / "tabla.rtf")) + "\n", exportado);
}

TEST(LeerRtf, PaginasDeCodigoComoLasDelSistema) {
    const std::vector<std::pair<int, std::string>> paginas{{1250, "CP1250"}, {1251, "CP1251"},    {1252, "CP1252"},
                                                           {1253, "CP1253"}, {1254, "CP1254"},    {437, "CP437"},
                                                           {850, "CP850"},   {10000, "MACINTOSH"}};
    for (const auto& [numero, nombre] : paginas) {
        const iconv_t conversor = iconv_open("UTF-8", nombre.c_str());
        ASSERT_NE(conversor, reinterpret_cast<iconv_t>(-1)) << nombre;
        for (int byte = 0x80; byte <= 0xFF; ++byte) {
            char origen[1] = {static_cast<char>(byte)};
            char destino[8] = {};
            char* de = origen;
            char* a = destino;
            std::size_t quedan = sizeof origen;
            std::size_t caben = sizeof destino;
            const bool existe = iconv(conversor, &de, &quedan, &a, &caben) != static_cast<std::size_t>(-1);
            std::string esperado = existe ? std::string(destino, a) : "\ufffd";
            // The two that glibc has otherwise, as in Apple's ROMAN.TXT (2005).
            if (numero == 10000 && byte == 0xC6) {
                esperado = "\u2206";
            } else if (numero == 10000 && byte == 0xF0) {
                esperado = "\uf8ff";
            }
            const std::string rtf = "{\\rtf1\\ansi\\ansicpg" + std::to_string(numero) + std::string(origen, 1) + "}";
            EXPECT_EQ(TextoDe(rtf), esperado) << nombre << " " << byte;
        }
        iconv_close(conversor);
    }
}

TEST(LeerRtf, CortadoEnCualquierByte) {
    const std::string fuentes[] = {EscribirRtf(Generador(7).Documento()), Contenido(kDatos / "informe.rtf"),
                                   Contenido(kDatos / "tabla.rtf")};
    for (const std::string& fuente : fuentes) {
        const std::string entero = TextoDe(fuente);
        for (std::size_t n = 5; n < fuente.size(); ++n) {
            std::string cortado = TextoDe(std::string_view(fuente).substr(0, n));
            // Only the two halves of the character whose number is cut may come out as others.
            const std::size_t caracteres = ContarUtf8(cortado);
            cortado.resize(ByteDeCaracter(cortado, caracteres - std::min<std::size_t>(caracteres, 2)));
            ASSERT_TRUE(entero.starts_with(cortado)) << n << ": " << cortado;
        }
    }
}

TEST(LeerRtf, FuentesHostiles) {
    const auto repetir = [](std::string_view texto, int veces) {
        std::string largo;
        for (int i = 0; i < veces; ++i) {
            largo += texto;
        }
        return largo;
    };
    constexpr int kMuchos = 100000;
    EXPECT_EQ(TextoDe("{\\rtf1 " + repetir("{", kMuchos) + "a" + repetir("}", kMuchos) + "b}"), "ab");
    EXPECT_EQ(TextoDe("{\\rtf1 " + repetir("{\\b{\\i\\b0", kMuchos) + " a" + repetir("}", 2 * kMuchos) + "b}"), "ab");
    EXPECT_EQ(TextoDe("{\\rtf1 a" + repetir("{\\*\\x", kMuchos)), "a");
    EXPECT_EQ(TextoDe("{\\rtf1 a" + repetir("}", kMuchos)), "a");
    EXPECT_EQ(TextoDe("{\\rtf1 a\\bin2147483647 b}"), "a");
    EXPECT_EQ(TextoDe("{\\rtf1 a{\\pict\\bin99999999999999999999 b}c}"), "a");
    EXPECT_EQ(TextoDe("{\\rtf1 a\\bin-1 b}"), "ab");
    EXPECT_EQ(TextoDe("{\\rtf1\\uc2147483647\\u225 abc}"), "á");
    EXPECT_EQ(TextoDe("{\\rtf1 a\\" + repetir("x", kMuchos) + " b}"), "ab");

    const Tramo tramo =
        TramoDe("{\\rtf1{\\fonttbl{\\f2147483647 " + repetir("N", kMuchos) +
                ";}}\\deff-2147483648\\f2147483647\\fs99999999999\\cf2147483647\\highlight-99999999999 x}");
    EXPECT_LT(tramo.formato.fuente.size(), 100u);
    EXPECT_LE(tramo.formato.medioPuntos, 3276);
    EXPECT_EQ(tramo.formato.color, std::nullopt);
    EXPECT_EQ(tramo.formato.fondo, std::nullopt);

    const FormatoParrafo parrafo =
        LeerRtf("{\\rtf1\\li99999999999\\ri-99999999999" + repetir("\\tx5", kMuchos) + " x}").parrafos[0].formato;
    EXPECT_EQ(parrafo.sangriaIzquierda, 31680);
    EXPECT_EQ(parrafo.sangriaDerecha, -31680);
    EXPECT_LE(parrafo.tabuladores.size(), 32u);
}

TEST(DeWindows1252, LaMitadAltaYLaBaja) { EXPECT_EQ(DeWindows1252("A\xF1o \x80\x96\xFF\x81"), "Año €–ÿ\ufffd"); }

}  // namespace
}  // namespace cuencalia
