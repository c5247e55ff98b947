#include <gtest/gtest.h>

#include <filesystem>

#include "frame/base/textos.h"
#include "frame/reportes/editortextorico.h"
#include "frame/reportes/rtf.h"
#include "tests/archivos_en_disco.h"
#include "tests/numero_de_error.h"

namespace cuencalia {
namespace {

using Enteros = std::vector<int>;

EditorTextoRico Con(const std::string& rtf, int inicio = 0, int largo = 0) {
    EditorTextoRico editor;
    editor.Documento(LeerRtf(rtf));
    editor.SelStart(inicio);
    editor.SelLength(largo);
    return editor;
}

const std::string kTresLineas = R"({\rtf1\pard\qc aaa\par\pard\qr bbb\par\pard ccc\par})";

TEST(EditorTextoRico, CambiaLosParrafosElegidos) {
    EditorTextoRico editor = Con(kTresLineas, 2, 3);
    EXPECT_EQ(editor.SelText(), "a\nb");
    EXPECT_EQ(editor.SelAlignment(), 2) << "that of the first line";
    editor.SelAlignment(3);
    EXPECT_EQ(editor.Alineaciones(), (Enteros{3, 3, 0}));
    EXPECT_EQ(NumeroDeError([&] { editor.SelAlignment(4); }), 5);
    editor = Con(kTresLineas, 4, 4);
    editor.SelIndent(50);
    editor.SelRightIndent(60);
    const auto& parrafos = editor.Documento().parrafos;
    EXPECT_EQ((Enteros{parrafos[1].formato.sangriaIzquierda, parrafos[1].formato.sangriaDerecha}), (Enteros{50, 60}));
    EXPECT_EQ(parrafos[2].formato.sangriaIzquierda, 0) << "only its line break is before it";
    editor.SelStart(7);
    editor.SelText("x\ny\n");
    EXPECT_EQ(editor.SelIndent(), 50) << "lines begun there inherit it";
    editor.SelStart(99);
    EXPECT_EQ(editor.SelStart(), editor.Longitud());
    editor.SelStart(-2);
    editor.SelLength(99);
    EXPECT_EQ(Len(editor.SelText()), editor.Longitud());
}

// The format of a paragraph goes with its mark.
TEST(EditorTextoRico, MarcasDeParrafo) {
    const std::string dos = R"({\rtf1\pard\qc x\par\pard\qr y})";
    for (auto [editor, pegado, texto, alineaciones] :
         {std::tuple{Con(kTresLineas, 2, 3), std::string(), "aabb\nccc", Enteros{1, 0}},
          {Con(kTresLineas, 9), dos, "aaa\nbbb\ncx\nycc", Enteros{2, 1, 2, 0}},
          {Con(kTresLineas), dos, "x\nyaaa\nbbb\nccc", Enteros{2, 2, 1, 0}},
          {EditorTextoRico(), dos, "x\ny", Enteros{2, 1}}}) {
        editor.SelRTF(pegado);
        EXPECT_EQ(editor.Text(), texto);
        EXPECT_EQ(editor.Alineaciones(), alineaciones) << texto;
    }
}

TEST(EditorTextoRico, FormatoDeLoQueSeEscribe) {
    EditorTextoRico editor = Con(R"({\rtf1\fs20 abcd})", 1, 2);
    editor.SelRTF(R"({\rtf1{\fonttbl{\f0 Arial;}}\f0\fs20\b N\b0 n\u225?})");
    const std::vector<Tramo>& tramos = editor.Documento().parrafos[0].tramos;
    ASSERT_EQ(tramos.size(), 4u);
    EXPECT_TRUE(tramos[1].formato.negrita);
    editor.SelText("!");
    EXPECT_EQ(tramos[2].texto, "ná!") << "what is typed looks like what is before it";
    editor.SelStart(1);
    editor.SelLength(1);
    editor.SelText("{*}");
    EXPECT_EQ(tramos[1].texto, "{*}") << "the format of what it replaces";
    editor.SelText(std::string_view("\0\xFF", 2));
    EXPECT_EQ(tramos[1].texto, "{*}\ufffd");
}

TEST(EditorTextoRico, CortarYPegarRestauraElDocumento) {
    const TextoRico documento = LeerRtf(
        R"({\rtf1\pard\qc Uno \b dos\b0\par\pard\li300 cu\u225?tro\par\par\pard\qr{\i cinco}\par\pard\qj seis{\ul siete}})");
    EditorTextoRico editor;
    editor.Documento(documento);
    for (int inicio = 0; inicio <= editor.Longitud(); ++inicio) {
        for (int largo = 0; inicio + largo <= editor.Longitud(); ++largo) {
            editor.SelStart(inicio);
            editor.SelLength(largo);
            const std::string cortado = editor.SelRTF();
            editor.SelText("");
            editor.SelRTF(cortado);
            ASSERT_TRUE(editor.Documento() == documento) << inicio << " " << largo;
            ASSERT_EQ(editor.SelStart(), inicio + largo);
        }
    }
}

TEST(EditorTextoRico, Archivos) {
    const pruebas::CarpetaTemporal carpeta;
    const std::string ruta = carpeta / "año.rtf";
    // clang-format off
    const std::pair<std::string, std::string> casos[] = {
        {"Año\r\nuno\n", "Año\nuno\n"}, {"\xEF\xBB\xBFPrecipitación", "Precipitación"}, {"A\xF1o \x80", "Año €"},
        {"\xEF\xBB\xBF{\\rtf1 a\\par}", "a"}, {"", ""}, {kTresLineas, "aaa\nbbb\nccc"}};
    // clang-format on
    EditorTextoRico editor;
    for (const auto& [contenido, texto] : casos) {
        editor.SelText("lo de antes");
        editor.LoadFile(pruebas::Guardar(ruta, contenido));
        EXPECT_EQ(editor.Text(), texto);
        EXPECT_EQ(editor.SelStart(), 0);
    }
    EXPECT_EQ(NumeroDeError([&] { editor.LoadFile(carpeta / "falta"); }), 53);
    EXPECT_EQ(NumeroDeError([&] { editor.SaveFile(carpeta / "falta/x"); }), 76);
    EXPECT_EQ(editor.Text(), "aaa\nbbb\nccc") << "an error leaves the document";
    editor.SaveFile(ruta);
    EXPECT_EQ(LeerRtf(pruebas::BytesDe(ruta)), editor.Documento());
}

// Each of these kept the text box busy for more than two seconds, or took hundreds of MB.
TEST(EditorTextoRico, NoAbreLoQueTardaria) {
    const pruebas::CarpetaTemporal carpeta;
    const auto repetir = [](const std::string& trozo, int veces) {
        std::string todo;
        for (int i = 0; i < veces; ++i) {
            todo += trozo;
        }
        return todo;
    };
    // clang-format off
    const std::pair<std::string, std::string> casos[] = {
        {std::string(90'000, '\n'), "largo"}, {std::string(200'000, 'x'), "palabras"},
        {"{\\rtf1" + repetir("\\b a\\b0 a", 20'000), "formato"}, {repetir("a\u0644", 25'000), "formato"},
        {"{\\rtf1" + repetir("\\b a\\b0 a", 150'000), "largo"}, {"{\\rtf1" + repetir("{\\b{\\b0", 200'000), "largo"},
        {"{\\rtf1{\\colortbl" + std::string(300'000, ';'), "largo"}};
    // clang-format on
    EditorTextoRico editor;
    editor.SelText("lo de antes");
    for (const auto& [contenido, causa] : casos) {
        std::string dicho;
        try {
            editor.Pegar(contenido);
        } catch (const ErrorEjecucion& error) {
            dicho = error.Texto();
        }
        EXPECT_NE(dicho.find(causa), std::string::npos) << contenido.substr(0, 40);
    }
    const std::string ruta = pruebas::Guardar(carpeta / "x.rtf", casos[0].first);
    EXPECT_EQ(NumeroDeError([&] { editor.LoadFile(ruta); }), 1005);
    std::filesystem::resize_file(ruta, std::uintmax_t{2} << 30);
    EXPECT_EQ(NumeroDeError([&] { editor.LoadFile(ruta); }), 1005);
    EXPECT_EQ(editor.Text(), "lo de antes");
    editor.LoadFile(pruebas::Guardar(carpeta / "x.txt", repetir("1\t\t105.3\t\t98.1\n", 20'000)));
    EXPECT_EQ(editor.Documento().parrafos.size(), 20'001u);
}

}  // namespace
}  // namespace cuencalia
