#include "frame/base/archivoserie.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cmath>
#include <limits>

#include "tests/archivos_en_disco.h"
#include "tests/numero_de_error.h"

namespace cuencalia {
namespace {

using pruebas::BytesDe;
using pruebas::CarpetaTemporal;
using pruebas::Guardar;
using namespace std::string_literals;

// Records by hand: 1 = 3F800000, -2.5 = C0200000, 0.1 = 3DCCCCCD (nearest), 3 = 40400000, 1E6 = 49742400, least byte
// first.
const std::string kUno = "\x00\x00\x80\x3F"s;
const std::string kMenosDosYMedio = "\x00\x00\x20\xC0"s;
const std::string kDecimo = "\xCD\xCC\xCC\x3D"s;
const std::string kTres = "\x00\x00\x40\x40"s;
const std::string kMillon = "\x00\x24\x74\x49"s;

class ArchivoSerieTest : public testing::Test {
  protected:
    static void Escribir(const std::string& ruta, int valores, const std::vector<Registro>& registros) {
        EscritorSerie archivo(ruta, valores);
        for (const Registro& registro : registros) {
            archivo.Escribir(registro);
        }
    }
    static std::vector<float> Leer(const std::string& ruta, int valores) {
        LectorSerie archivo(ruta, valores);
        std::vector<float> leidos;
        for (int i = 0; i < archivo.Registros(); ++i) {
            const Registro registro = archivo.Leer();
            for (int c = 0; c < 4; ++c) {
                const float valor = registro[static_cast<std::size_t>(c)].valor();
                if (c < valores) {
                    leidos.push_back(valor);
                } else {
                    EXPECT_EQ(valor, 0);
                }
            }
        }
        return leidos;
    }
    static int ErrorAlLeer(const std::string& ruta, int valores = 1) {
        return NumeroDeError([&] { return LectorSerie(ruta, valores).Registros(); });
    }
    static int ErrorAlCrear(const std::string& ruta) {
        return NumeroDeError([&] { return EscritorSerie(ruta, 1), 0; });
    }
    static auto Abiertos() {
        const std::filesystem::directory_iterator descriptores("/proc/self/fd");
        return std::distance(begin(descriptores), end(descriptores));
    }
    /// A file of zeros of any length that takes no room on the disk.
    static std::string Hueco(const std::string& ruta, std::int64_t bytes) {
        Guardar(ruta, "");
        EXPECT_EQ(::truncate(ruta.c_str(), bytes), 0);
        return ruta;
    }

    CarpetaTemporal carpeta;
    const std::string ruta = carpeta / "serie.X";
};

TEST_F(ArchivoSerieTest, BytesEnDisco) {
    const Registro registro{Single(1.0F), Single(-2.5F), Single(0.1F), Single(3.0F)};
    const Registro otro{Single(1e6F), Single(1.0F), Single(1.0F), Single(-2.5F)};
    const std::string esperados[] = {
        kUno + kMillon,
        kUno + kMenosDosYMedio + kMillon + kUno,
        kUno + kMenosDosYMedio + kDecimo + kMillon + kUno + kUno,
        kUno + kMenosDosYMedio + kDecimo + kTres + kMillon + kUno + kUno + kMenosDosYMedio,
    };
    for (int valores = 1; valores <= 4; ++valores) {
        SCOPED_TRACE(valores);
        Escribir(ruta, valores, {registro, otro});
        EXPECT_EQ(BytesDe(ruta), esperados[valores - 1]);
    }
}

TEST_F(ArchivoSerieTest, LeeLosBytesPorRegistros) {
    const std::string bytes = kUno + kMenosDosYMedio + kDecimo + kTres + kMillon + kUno + kUno + kDecimo;
    Guardar(ruta, bytes);
    const std::vector<float> todos{1, -2.5F, 0.1F, 3, 1e6F, 1, 1, 0.1F};
    EXPECT_EQ(Leer(ruta, 1), todos);
    EXPECT_EQ(Leer(ruta, 2), todos);
    EXPECT_EQ(Leer(ruta, 4), todos);
    EXPECT_EQ(LectorSerie(ruta, 1).Registros(), 8);
    EXPECT_EQ(LectorSerie(ruta, 2).Registros(), 4);
    EXPECT_EQ(LectorSerie(ruta, 4).Registros(), 2);
    // Of 32 bytes the trios take 24; the rest is never read.
    EXPECT_EQ(LectorSerie(ruta, 3).Registros(), 2);
    EXPECT_EQ(Leer(ruta, 3), std::vector<float>(todos.begin(), todos.begin() + 6));
}

TEST_F(ArchivoSerieTest, ColaMasCortaQueUnRegistroSePierde) {
    for (int sobra = 0; sobra < 8; ++sobra) {
        SCOPED_TRACE(sobra);
        Guardar(ruta, kUno + kTres + std::string(static_cast<std::size_t>(sobra), '\x7F'));
        EXPECT_EQ(Leer(ruta, 2), (std::vector<float>{1, 3}));
    }
    Guardar(ruta, kUno.substr(0, 3));
    EXPECT_EQ(LectorSerie(ruta, 1).Registros(), 0);
    EXPECT_EQ(LectorSerie(Guardar(ruta, ""), 4).Registros(), 0);
}

TEST_F(ArchivoSerieTest, ExtremosDeUnSingle) {
    constexpr float kMaximo = std::numeric_limits<float>::max();
    constexpr float kMinimo = std::numeric_limits<float>::denorm_min();
    Escribir(ruta, 3, {{Single(kMaximo), Single(-kMinimo), Single(-0.0F)}});
    EXPECT_EQ(BytesDe(ruta), "\xFF\xFF\x7F\x7F\x01\x00\x00\x80\x00\x00\x00\x80"s);
    const auto leidos = Leer(ruta, 3);
    EXPECT_EQ(leidos, (std::vector<float>{kMaximo, -kMinimo, 0}));
    EXPECT_TRUE(std::signbit(leidos[2]));
    // What a damaged file holds is handed over as it is: whoever uses it finds the fault.
    Guardar(ruta, "\x00\x00\x80\x7F\x00\x00\x80\xFF\x00\x00\xC0\x7F"s);
    const auto danados = Leer(ruta, 1);
    EXPECT_EQ(danados[0], std::numeric_limits<float>::infinity());
    EXPECT_EQ(danados[1], -std::numeric_limits<float>::infinity());
    EXPECT_TRUE(std::isnan(danados[2]));
}

TEST_F(ArchivoSerieTest, NoQuedaNingunRegistroAnterior) {
    Escribir(ruta, 4, std::vector<Registro>(100, {Single(1.0F), Single(1.0F), Single(1.0F), Single(1.0F)}));
    Escribir(ruta, 1, {{Single(3.0F)}});
    EXPECT_EQ(BytesDe(ruta), kTres);
    Escribir(ruta, 1, {});
    EXPECT_EQ(BytesDe(ruta), "");
}

TEST_F(ArchivoSerieTest, RegistrosQueCabenEnUnEntero) {
    const std::int64_t ancho = 16;
    const auto abiertos = Abiertos();
    EXPECT_EQ(LectorSerie(Hueco(ruta, 32767 * ancho), 4).Registros(), 32767);
    EXPECT_EQ(LectorSerie(Hueco(ruta, 32768 * ancho - 1), 4).Registros(), 32767);
    EXPECT_EQ(ErrorAlLeer(Hueco(ruta, 32768 * ancho), 4), 6);
    EXPECT_EQ(ErrorAlLeer(Hueco(ruta, 65537 * ancho), 4), 6) << "its 16 low bits are a small number";
    EXPECT_EQ(ErrorAlLeer(Hueco(ruta, std::int64_t{2} << 30)), 6) << "2 GB of zeros";
    EXPECT_EQ(ErrorAlLeer(Hueco(ruta, ((std::int64_t{1} << 32) + 1) * 4)), 6) << "its 32 low bits are 1";
    EXPECT_EQ(Abiertos(), abiertos) << "a file that is refused is closed";
}

TEST_F(ArchivoSerieTest, LoQueNoSePuedeAbrir) {
    EXPECT_EQ(ErrorAlLeer(""), 53);
    EXPECT_EQ(ErrorAlLeer(carpeta / "falta.X"), 53);
    EXPECT_EQ(ErrorAlLeer(carpeta / "falta/serie.X"), 53);
    EXPECT_EQ(ErrorAlLeer(carpeta / ""), 75);
    EXPECT_EQ(ErrorAlCrear(""), 53);
    EXPECT_EQ(ErrorAlCrear(carpeta / "falta/serie.X"), 76);
    EXPECT_EQ(ErrorAlCrear(carpeta / ""), 75);
    EXPECT_EQ(ErrorAlCrear("/dev/full"), 75) << "no regular file";
    EXPECT_FALSE(std::filesystem::exists(carpeta / "falta.X")) << "reading makes no file";
    Guardar(ruta, kUno);
    EXPECT_EQ(ErrorAlLeer(ruta + "/dentro"), 53);
    EXPECT_EQ(ErrorAlCrear(ruta + "/dentro"), 76);
    EXPECT_EQ(BytesDe(ruta), kUno);
}

// Nobody stands at the other end: a call that waits is ended by the alarm, and the test fails.
TEST_F(ArchivoSerieTest, UnaTuberiaNoDetieneElPrograma) {
    ASSERT_EQ(::mkfifo(ruta.c_str(), 0600), 0);
    ::alarm(20);
    EXPECT_EQ(ErrorAlLeer(ruta), 75);
    EXPECT_EQ(ErrorAlCrear(ruta), 75);
    ::alarm(0);
}

TEST_F(ArchivoSerieTest, SinPermiso) {
    Guardar(ruta, kUno);
    ASSERT_EQ(::chmod(ruta.c_str(), 0), 0);
    const uid_t yo = ::geteuid();
    constexpr uid_t kNadie = 65534;
    if (yo == 0 && ::seteuid(kNadie) != 0) {
        GTEST_SKIP() << "the administrator may open anything, and cannot become another user here";
    }
    const int alLeer = ErrorAlLeer(ruta);
    const int alCrear = ErrorAlCrear(ruta);
    ASSERT_EQ(::seteuid(yo), 0);
    EXPECT_EQ(alLeer, 75);
    EXPECT_EQ(alCrear, 75);
    ::chmod(ruta.c_str(), 0600);
    EXPECT_EQ(BytesDe(ruta), kUno) << "nor is it emptied";
}

TEST_F(ArchivoSerieTest, DiscoLleno) {
    const Registro par{Single(1.0F), Single(3.0F)};
    int escritos = 0;
    int error = 0;
    {
        const pruebas::DiscoDe disco(20);
        error = NumeroDeError([&] {
            EscritorSerie archivo(ruta, 2);
            for (; escritos < 10; ++escritos) {
                archivo.Escribir(par);
            }
            return 0;
        });
    }
    EXPECT_EQ(error, 61);
    EXPECT_EQ(escritos, 2);
    EXPECT_EQ(BytesDe(ruta), kUno + kTres + kUno + kTres + kUno) << "what was written stays";
    EXPECT_EQ(LectorSerie(ruta, 2).Registros(), 2);
}

}  // namespace
}  // namespace cuencalia
