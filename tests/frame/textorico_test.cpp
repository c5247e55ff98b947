#include "frame/reportes/editortextorico.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include "frame/base/errores.h"
#include "frame/base/utf8.h"
#include "frame/reportes/rtf.h"
#include "tests/numero_de_error.h"

namespace cuencalia {
namespace {

namespace fs = std::filesystem;

using Textos = std::vector<std::string>;
using Enteros = std::vector<int>;

/// "aaa" centred, "bbb" right, "ccc" left.
EditorTextoRico TresLineas() {
    EditorTextoRico editor;
    editor.SelAlignment(2);
    editor.SelText("aaa\n");
    editor.SelAlignment(1);
    editor.SelText("bbb\n");
    editor.SelAlignment(0);
    editor.SelText("ccc");
    return editor;
}

void Elegir(EditorTextoRico& editor, int inicio, int largo) {
    editor.SelStart(inicio);
    editor.SelLength(largo);
}

TEST(EditorTextoRico, CabezaDeUnReporte) {
    EditorTextoRico editor;
    const auto encabezar = [&editor] {
        editor.SelIndent(200);
        editor.SelRightIndent(200);
        editor.SelAlignment(2);
        for (const char* texto : {"Resultados\n", "\n", "Parámetros", "\n", "\n"}) {
            editor.SelRTF(texto);
        }
        editor.SelAlignment(0);
        editor.SelRTF("\n");
        for (int i = 0; i < 3; ++i) {
            editor.SelRTF("-");
        }
        editor.SelRTF("\n");
    };
    encabezar();
    EXPECT_EQ(editor.Lineas(), (Textos{"Resultados", "", "Parámetros", "", "", "---", ""}));
    EXPECT_EQ(editor.Alineaciones(), (Enteros{2, 2, 2, 2, 0, 0, 0}));
    EXPECT_EQ(editor.Text(), "Resultados\n\nParámetros\n\n\n---\n");
    EXPECT_EQ(editor.SelStart(), editor.Longitud());
    for (const Parrafo& parrafo : editor.Documento().parrafos) {
        EXPECT_EQ(parrafo.formato.sangriaIzquierda, 200);
        EXPECT_EQ(parrafo.formato.sangriaDerecha, 200);
        EXPECT_LE(parrafo.tramos.size(), 1u) << "one dash at a time is still one piece";
    }
    encabezar();
    EXPECT_EQ(editor.Lineas().size(), 13u);
    EXPECT_EQ(editor.Lineas()[6], "Resultados");
    EXPECT_EQ(editor.Alineaciones(), (Enteros{2, 2, 2, 2, 0, 0, 2, 2, 2, 2, 0, 0, 0}));
}

TEST(EditorTextoRico, MargenesSoloDeLoSiguiente) {
    EditorTextoRico editor;
    editor.SelText("del usuario\n");
    editor.SelIndent(200);
    editor.SelText("del reporte\n");
    EXPECT_EQ(editor.Documento().parrafos[0].formato.sangriaIzquierda, 0);
    EXPECT_EQ(editor.Documento().parrafos[1].formato.sangriaIzquierda, 200);
    EXPECT_EQ(editor.SelIndent(), 200) << "the line begun there inherits it";
}

TEST(EditorTextoRico, InsertaEnElCursor) {
    EditorTextoRico editor;
    editor.SelRTF("añb");
    editor.SelStart(2);
    editor.SelRTF("1\r\n2\r3");
    EXPECT_EQ(editor.Text(), "añ1\n2\n3b");
    EXPECT_EQ(editor.SelStart(), 7) << "a line break is one character";
    editor.SelRTF("{llaves} \\par");
    EXPECT_EQ(editor.Lineas().back(), "3{llaves} \\parb");
    editor.SelStart(-5);
    EXPECT_EQ(editor.SelStart(), 0);
    editor.SelStart(1000);
    EXPECT_EQ(editor.SelStart(), editor.Longitud());
    editor.SelText(std::string_view("x\0y\xFFz", 5));
    EXPECT_TRUE(editor.Text().ends_with("bxy\ufffdz"));
    EXPECT_EQ(NumeroDeError([&] { return editor.SelAlignment(4), 0; }), kArgumentoNoValido);
}

TEST(EditorTextoRico, CambiaLosParrafosElegidos) {
    EditorTextoRico editor = TresLineas();
    EXPECT_EQ(editor.Alineaciones(), (Enteros{2, 1, 0}));
    Elegir(editor, 2, 3);
    EXPECT_EQ(editor.SelText(), "a\nb");
    EXPECT_EQ(editor.SelAlignment(), 2) << "that of the first line";
    editor.SelAlignment(3);
    EXPECT_EQ(editor.Alineaciones(), (Enteros{3, 3, 0}));
    Elegir(editor, 4, 4);
    editor.SelIndent(50);
    EXPECT_EQ(editor.Documento().parrafos[1].formato.sangriaIzquierda, 50);
    EXPECT_EQ(editor.Documento().parrafos[2].formato.sangriaIzquierda, 0) << "only its line break is before it";
    Elegir(editor, 9, 100);
    EXPECT_EQ(editor.SelLength(), 2);
}

TEST(EditorTextoRico, ElFormatoDelParrafoVaConSuMarca) {
    EditorTextoRico editor = TresLineas();
    Elegir(editor, 2, 3);
    editor.SelText("");
    EXPECT_EQ(editor.Lineas(), (Textos{"aabb", "ccc"}));
    EXPECT_EQ(editor.Alineaciones(), (Enteros{1, 0}));

    editor = TresLineas();
    editor.SelStart(9);
    editor.SelRTF(R"({\rtf1\pard\qc x\par\pard\qr y})");
    EXPECT_EQ(editor.Lineas(), (Textos{"aaa", "bbb", "cx", "ycc"}));
    EXPECT_EQ(editor.Alineaciones(), (Enteros{2, 1, 2, 0}));

    EditorTextoRico vacio;
    vacio.SelRTF(R"({\rtf1\pard\qc x\par\pard\qr y})");
    EXPECT_EQ(vacio.Alineaciones(), (Enteros{2, 1}));
}

TEST(EditorTextoRico, RtfEnLaSeleccion) {
    EditorTextoRico editor;
    editor.SelText("abcd");
    Elegir(editor, 1, 2);
    editor.SelRTF(R"({\rtf1{\fonttbl{\f0 Arial;}}\f0\fs20\b N\b0 n\u225?})");
    EXPECT_EQ(editor.Text(), "aNnád");
    EXPECT_EQ(editor.SelStart(), 4);
    const std::vector<Tramo>& tramos = editor.Documento().parrafos[0].tramos;
    ASSERT_EQ(tramos.size(), 4u);
    EXPECT_TRUE(tramos[1].formato.negrita);
    EXPECT_EQ(tramos[2].formato.fuente, "Arial");
    editor.SelText("!");
    EXPECT_EQ(tramos[2].texto, "ná!") << "what is typed looks like what is before it";

    Elegir(editor, 1, 2);
    const TextoRico copiado = LeerRtf(editor.SelRTF(), ClaseRtf::kFragmento);
    EXPECT_EQ(copiado.Texto(), "Nn");
    EXPECT_TRUE(copiado.parrafos[0].tramos.at(0).formato.negrita);
    editor.SelText("*");
    EXPECT_EQ(editor.Text(), "a*á!d");
    EXPECT_EQ(tramos[1].texto, "*") << "the format of what it replaces";
    EXPECT_TRUE(tramos[1].formato.negrita);
}

/// A document with something of everything, always the same.
TextoRico Variado() {
    return LeerRtf(
        R"({\rtf1\pard\qc Uno \b dos\b0  tres\par\pard\li300 cu\u225?tro\par\par\pard\qr{\i cinco}\par\pard\qj seis{\ul siete}})");
}

TEST(EditorTextoRico, CortarYPegarRestauraElDocumento) {
    const TextoRico documento = Variado();
    EditorTextoRico editor;
    editor.Documento(documento);
    const int longitud = editor.Longitud();
    for (int inicio = 0; inicio <= longitud; ++inicio) {
        for (int largo = 0; inicio + largo <= longitud; ++largo) {
            Elegir(editor, inicio, largo);
            const std::string cortado = editor.SelRTF();
            editor.SelText("");
            ASSERT_EQ(editor.Longitud(), longitud - largo);
            editor.SelRTF(cortado);
            ASSERT_TRUE(editor.Documento() == documento) << inicio << " " << largo;
            ASSERT_EQ(editor.SelStart(), inicio + largo);
        }
    }
}

// Each step is done on a plain string of characters as well.
TEST(EditorTextoRico, ComoUnaCadenaDeCaracteres) {
    const std::vector<std::pair<std::string, std::u32string>> trozos{
        {"a", U"a"}, {"\n", U"\n"}, {"ñ😀", U"ñ😀"}, {"uno\ndos\n", U"uno\ndos\n"}, {"", U""}, {"€\r\n", U"€\n"}};
    std::mt19937 azar(2024);
    const auto hasta = [&azar](std::size_t maximo) {
        return std::uniform_int_distribution<std::size_t>(0, maximo)(azar);
    };
    EditorTextoRico editor;
    std::u32string cadena;
    for (int paso = 0; paso < 5000; ++paso) {
        const std::size_t inicio = hasta(cadena.size());
        const std::size_t largo = hasta(3) == 0 ? hasta(std::min<std::size_t>(cadena.size() - inicio, 30)) : 0;
        if (hasta(2) != 0) {
            Elegir(editor, static_cast<int>(inicio), static_cast<int>(largo));
        }
        const auto lugar = static_cast<std::size_t>(editor.SelStart());
        const auto elegidos = static_cast<std::size_t>(editor.SelLength());
        if (hasta(9) == 0) {
            editor.SelRTF(R"({\rtf1\b N\b0\par n})");
            cadena.replace(lugar, elegidos, U"N\nn");
        } else {
            const auto& [utf8, caracteres] = trozos[hasta(trozos.size() - 1)];
            editor.SelText(utf8);
            cadena.replace(lugar, elegidos, caracteres);
        }
        std::string esperado;
        for (const char32_t c : cadena) {
            AgregarUtf8(esperado, c);
        }
        ASSERT_EQ(editor.Text(), esperado) << paso;
        ASSERT_EQ(editor.Longitud(), static_cast<int>(cadena.size())) << paso;
        for (const Parrafo& parrafo : editor.Documento().parrafos) {
            for (std::size_t i = 0; i < parrafo.tramos.size(); ++i) {
                ASSERT_FALSE(parrafo.tramos[i].texto.empty()) << paso;
                ASSERT_TRUE(i == 0 || parrafo.tramos[i].formato != parrafo.tramos[i - 1].formato) << paso;
            }
        }
    }
}

class ArchivosDeReporte : public testing::Test {
  protected:
    void SetUp() override {
        carpeta_ = fs::path(testing::TempDir()) / ("cuencalia_reporte_" + std::to_string(getpid()));
        fs::remove_all(carpeta_);
        fs::create_directories(carpeta_);
    }
    void TearDown() override { fs::remove_all(carpeta_); }

    std::string Ruta(const std::string& nombre) const { return (carpeta_ / nombre).string(); }
    void Poner(const std::string& nombre, const std::string& contenido) const {
        std::ofstream(Ruta(nombre), std::ios::binary) << contenido;
    }
    std::string Contenido(const std::string& nombre) const {
        std::ifstream archivo(Ruta(nombre), std::ios::binary);
        return {std::istreambuf_iterator<char>(archivo), {}};
    }
    std::size_t Archivos() const {
        return static_cast<std::size_t>(std::distance(fs::directory_iterator(carpeta_), fs::directory_iterator()));
    }

    fs::path carpeta_;
};

TEST_F(ArchivosDeReporte, LoGuardadoSeAbreIgual) {
    EditorTextoRico editor;
    editor.Documento(Variado());
    editor.SaveFile(Ruta("año.rtf"));
    EditorTextoRico otro;
    otro.SelText("lo de antes");
    otro.LoadFile(Ruta("año.rtf"));
    EXPECT_EQ(otro.Documento(), editor.Documento());
    EXPECT_EQ(otro.SelStart(), 0);
    EXPECT_EQ(otro.Longitud(), editor.Longitud());
    EXPECT_EQ(Archivos(), 1u);
}

TEST_F(ArchivosDeReporte, AbreTextosSimples) {
    const std::vector<std::pair<std::string, std::string>> casos{
        {"Año\r\nuno\n", "Año\nuno\n"},
        {"\xEF\xBB\xBFPrecipitación", "Precipitación"},
        {"A\xF1o \x80", "Año €"},
        {"\xEF\xBB\xBF{\\rtf1 a\\par}", "a"},
        {"", ""},
    };
    for (const auto& [contenido, texto] : casos) {
        Poner("texto", contenido);
        EditorTextoRico editor;
        editor.LoadFile(Ruta("texto"));
        EXPECT_EQ(editor.Text(), texto);
    }
}

TEST_F(ArchivosDeReporte, ErroresAlAbrirDejanElDocumento) {
    EditorTextoRico editor;
    editor.SelText("texto");
    const auto abrir = [&](const std::string& nombre) {
        return NumeroDeError([&] { return editor.LoadFile(Ruta(nombre)), 0; });
    };
    EXPECT_EQ(abrir("no hay"), kArchivoNoEncontrado);
    EXPECT_EQ(abrir("."), kAccesoRuta);
    ASSERT_EQ(mkfifo(Ruta("tubo").c_str(), 0600), 0);
    EXPECT_EQ(abrir("tubo"), kAccesoRuta) << "and does not wait for somebody to write";
    EXPECT_EQ(editor.Text(), "texto");
    EXPECT_EQ(editor.SelStart(), 5);
}

TEST_F(ArchivosDeReporte, ErroresAlGuardar) {
    EditorTextoRico editor;
    const auto guardar = [&](const std::string& nombre) {
        return NumeroDeError([&] { return editor.SaveFile(Ruta(nombre)), 0; });
    };
    fs::create_directory(Ruta("carpeta"));
    EXPECT_EQ(guardar("carpeta"), kAccesoRuta);
    EXPECT_EQ(guardar("no/hay.rtf"), kRutaNoEncontrada);
    EXPECT_EQ(Archivos(), 1u);
}

TEST_F(ArchivosDeReporte, ReemplazaSinCambiarPermisosNiEnlaces) {
    Poner("viejo.rtf", "viejo");
    fs::permissions(Ruta("viejo.rtf"), fs::perms::owner_read | fs::perms::owner_write);
    fs::create_symlink("viejo.rtf", Ruta("enlace.rtf"));
    EditorTextoRico editor;
    editor.SelText("nuevo");
    editor.SaveFile(Ruta("enlace.rtf"));
    EXPECT_TRUE(fs::is_symlink(Ruta("enlace.rtf")));
    EXPECT_EQ(LeerRtf(Contenido("viejo.rtf")).Texto(), "nuevo");
    EXPECT_EQ(fs::status(Ruta("viejo.rtf")).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(ArchivosDeReporte, ConElDiscoLlenoQuedaElViejo) {
    EditorTextoRico editor;
    editor.SelText(std::string(100000, 'x'));
    Poner("reporte.rtf", "viejo");
    const pid_t hijo = fork();
    ASSERT_GE(hijo, 0);
    if (hijo == 0) {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limite{20000, 20000};
        setrlimit(RLIMIT_FSIZE, &limite);
        std::_Exit(NumeroDeError([&] { return editor.SaveFile(Ruta("reporte.rtf")), 0; }));
    }
    int estado = 0;
    ASSERT_EQ(waitpid(hijo, &estado, 0), hijo);
    ASSERT_TRUE(WIFEXITED(estado));
    EXPECT_EQ(WEXITSTATUS(estado), kDiscoLleno);
    EXPECT_EQ(Contenido("reporte.rtf"), "viejo");
    EXPECT_EQ(Archivos(), 1u);
}

}  // namespace
}  // namespace cuencalia
