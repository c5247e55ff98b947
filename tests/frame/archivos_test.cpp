#include "frame/base/archivos.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "frame/base/archivoserie.h"
#include "tests/archivos_en_disco.h"
#include "tests/numero_de_error.h"

namespace cuencalia {
namespace {

namespace fs = std::filesystem;
using namespace pruebas;
using namespace std::string_literals;

class Archivos : public testing::Test {
  protected:
    static int ErrorAlReemplazar(const std::string& ruta, const std::string& contenido = "nuevo") {
        return NumeroDeError([&] {
            ReemplazoDeArchivo archivo(ruta);
            archivo.Escribir(contenido.substr(0, contenido.size() / 2));
            archivo.Escribir(contenido.substr(contenido.size() / 2));
            archivo.Publicar();
        });
    }
    /// Of reading the file, of replacing it and of making a series of it.
    static std::vector<int> Errores(const std::string& ruta) {
        return {NumeroDeError([&] { LeerArchivo(ruta); }), ErrorAlReemplazar(ruta),
                NumeroDeError([&] { EscritorSerie(ruta, 1); })};
    }

    CarpetaTemporal carpeta;
    const std::string ruta = Guardar(carpeta / "año.X", "viejo");
};

TEST_F(Archivos, ElNuevoTomaElLugarDelViejo) {
    fs::permissions(ruta, fs::perms(0640));
    fs::create_symlink("año.X", carpeta / "enlace");
    fs::create_symlink(carpeta / "enlace", carpeta / "otro");
    EXPECT_EQ(ErrorAlReemplazar(carpeta / "otro"), 0);
    EXPECT_EQ(BytesDe(ruta), "nuevo");
    EXPECT_TRUE(fs::is_symlink(carpeta / "otro") && fs::is_symlink(carpeta / "enlace"));
    EXPECT_EQ(fs::status(ruta).permissions(), fs::perms(0640));
    {
        ReemplazoDeArchivo sinPublicar(ruta), otro(ruta);
        sinPublicar.Escribir("a medias");
        Guardar(otro.RutaProvisional(), "de una biblioteca");
        otro.Publicar();
    }
    EXPECT_EQ(BytesDe(ruta), "de una biblioteca");
    fs::remove(ruta);
    const mode_t mascara = ::umask(027);
    EXPECT_EQ(ErrorAlReemplazar(carpeta / "enlace", ""), 0) << "a link to a file that is not there yet";
    ::umask(mascara);
    EXPECT_EQ(BytesDe(ruta), "");
    EXPECT_EQ(fs::status(ruta).permissions(), fs::perms(0640));
    EXPECT_EQ(carpeta.Archivos(), 3U) << "no temporary file stays";
}

TEST_F(Archivos, NumerosDeError) {
    ASSERT_EQ(::mkfifo((carpeta / "tubo").c_str(), 0600), 0);
    fs::create_symlink("circulo", carpeta / "circulo");
    // clang-format off
    const std::pair<std::string, std::vector<int>> casos[] = {
        {"", {53, 76, 53}}, {carpeta / "falta/x", {53, 76, 76}}, {ruta + "/x", {53, 76, 76}},
        {carpeta / "", {75, 75, 75}}, {carpeta / "tubo", {75, 75, 75}}, {carpeta / "circulo", {75, 75, 75}},
        {"/dev/full", {75, 75, 75}}, {carpeta / std::string(300, 'x'), {75, 75, 75}}};
    // clang-format on
    ::alarm(20);  // nobody stands at the other end of the pipe, and a call that waits must end
    for (const auto& [nombre, errores] : casos) {
        EXPECT_EQ(Errores(nombre), errores) << nombre;
    }
    ::alarm(0);
    EXPECT_EQ(LeerArchivo(ruta, 3), "vie");
    EXPECT_EQ(carpeta.Archivos(), 3U);
}

TEST_F(Archivos, DiscoLlenoOMuerteDejanElViejo) {
    const std::string largo(100'001, 'x');
    {
        const DiscoDe disco(100'000);
        EXPECT_EQ(ErrorAlReemplazar(ruta, largo), 61);
    }
    EXPECT_EQ(carpeta.Archivos(), 1U);
    const pid_t hijo = ::fork();
    if (hijo == 0) {
        ReemplazoDeArchivo archivo(ruta);
        archivo.Escribir(largo);
        ::raise(SIGKILL);
    }
    ASSERT_EQ(::waitpid(hijo, nullptr, 0), hijo);
    EXPECT_EQ(BytesDe(ruta), "viejo");
    EXPECT_EQ(carpeta.Archivos(), 2U) << "what it was writing";
    EXPECT_EQ(ErrorAlReemplazar(ruta), 0);
    EXPECT_EQ(carpeta.Archivos(), 1U) << "swept by the next one";
}

TEST_F(Archivos, SinPermiso) {
    const std::string prohibido = Guardar(carpeta / "prohibido", "no");
    fs::permissions(prohibido, fs::perms::none);
    fs::permissions(ruta, fs::perms(0666));
    fs::permissions(carpeta / "", fs::perms(0555));
    const uid_t yo = ::geteuid();
    if (yo == 0 && ::seteuid(65534) != 0) {
        GTEST_SKIP() << "the administrator may do anything, and cannot become another user here";
    }
    const CarpetaTemporal temporales;
    ::setenv("TMPDIR", (temporales / "").c_str(), 1);
    EXPECT_EQ(Errores(prohibido), (std::vector{75, 75, 75}));
    EXPECT_EQ(ErrorAlReemplazar(carpeta / "nuevo"), 75);
    // The folder takes no new files, yet this one may be written.
    for (const std::string contenido : {"más largo que el viejo", "corto", "", "viejo"}) {
        EXPECT_EQ(ErrorAlReemplazar(ruta, contenido), 0);
        EXPECT_EQ(BytesDe(ruta), contenido);
    }
    {
        ReemplazoDeArchivo archivo(ruta);
        Guardar(archivo.RutaProvisional(), std::string(1000, 'x'));
        const DiscoDe disco(100);
        EXPECT_EQ(NumeroDeError([&] { archivo.Publicar(); }), 61);
    }
    EXPECT_EQ(BytesDe(ruta), "viejo");
    EXPECT_EQ(temporales.Archivos(), 0U);
    ::unsetenv("TMPDIR");
    ASSERT_EQ(::seteuid(yo), 0);
    fs::permissions(carpeta / "", fs::perms(0755));
}

TEST_F(Archivos, Series) {
    // By hand, least byte first: 1 = 3F800000, -2.5 = C0200000, 0.1 = 3DCCCCCD (nearest), minus infinity = FF800000.
    const std::string bytes = "\x00\x00\x80\x3F\x00\x00\x20\xC0\xCD\xCC\xCC\x3D\x00\x00\x80\xFF"s;
    const Registro valores{Single(1.0F), Single(-2.5F), Single(0.1F), Single(-std::numeric_limits<float>::infinity())};
    for (std::size_t ancho = 1; ancho <= 4; ++ancho) {
        SCOPED_TRACE(ancho);
        const std::string antes = BytesDe(ruta);
        EscritorSerie escritor(ruta, static_cast<int>(ancho));
        escritor.Escribir(valores);
        EXPECT_EQ(BytesDe(ruta), antes);
        escritor.Publicar();
        EXPECT_EQ(BytesDe(ruta), bytes.substr(0, 4 * ancho)) << "nothing of what was there before";
        EXPECT_EQ(BytesDe(ruta + "~"), antes);
        LectorSerie serie(Guardar(ruta, bytes + "\x7F\x7F\x7F"), static_cast<int>(ancho));
        ASSERT_EQ(serie.Registros(), static_cast<int>(4 / ancho)) << "a cut record does not count";
        for (std::size_t i = 0; i + ancho <= 4; i += ancho) {
            const Registro registro = serie.Leer();
            EXPECT_TRUE(std::equal(registro.begin(), registro.begin() + ancho, valores.begin() + i));
        }
        EXPECT_EQ(NumeroDeError([&] { return serie.Leer(); }), 75);
    }
    // clang-format off
    const std::pair<std::int64_t, int> casos[] = {
        {32768 * 16 - 1, 0}, {32768 * 16, 6}, {65537 * 16, 6}, {((std::int64_t{1} << 32) + 1) * 16, 6}};
    // clang-format on
    for (const auto& [largo, error] : casos) {
        fs::resize_file(ruta, static_cast<std::uintmax_t>(largo));  // zeros that take no room
        EXPECT_EQ(NumeroDeError([&] { return LectorSerie(ruta, 4).Registros(); }), error) << largo;
    }
}

}  // namespace
}  // namespace cuencalia
