#include <gtest/gtest.h>

#include <limits>

#include "tests/archivos_en_disco.h"
#include "tests/hojas/fabrica.h"
#include "tests/numero_de_error.h"

namespace cuencalia::pruebas {
namespace {

Hoja Con(ValorCelda valor, int fila = 1, int columna = 1) {
    Hoja hoja;
    hoja.Poner(fila, columna, std::move(valor));
    return hoja;
}

TEST(Libros, LoQueEscribenOtrosProgramas) {
    // As typed in mezcla.fods; the formulas' results by hand. A5 is merged with A6, so the data end there.
    const Filas mezcla = {{Double(1), Double(0.1), Double(0.125), "río"},
                          {Double(-2.5), Double(1e20), "caudal máximo €", "una negrita rica"},
                          {Double(123456789012), Double(45351), "#DIV/0!", kVacia},
                          {"Año en €", "Falso", "#N/A", kVacia},
                          {Double(5), Double(12.34), kVacia, kVacia}};
    EXPECT_EQ(Leer(Dato("mezcla.xlsx"), 4), mezcla);
    EXPECT_EQ(Leer(Dato("mezcla.xls"), 4), mezcla);
    const std::string ajenos[] = {Zip({{"mimetype", "x"}}), "<html/>", "1;2;3\n", ""};
    for (const std::string& bytes : ajenos) {
        EXPECT_EQ(Rechazo(bytes), kNoEsLibro) << bytes;
    }
}

// Whatever is cut off or turned by a bad disk, no other value comes out. The index of a ZIP archive stands at its end,
// so no cut goes unnoticed; an .xls may lose its last sectors and still have the whole sheet.
TEST(Libros, DanadosEnCualquierByte) {
    for (const char* nombre : {"mezcla.xls", "openpyxl.xlsx"}) {
        const std::string libro = Dato(nombre);
        const Filas filas = Leer(libro, 4);
        const bool esXls = libro[0] != 'P';
        const auto sale = [&](const std::string& danado, bool puedeServir) {
            try {
                return Leer(danado, 4) == filas && puedeServir;
            } catch (const ErrorEjecucion& error) {
                return error.Numero() == kErrorLibro;
            }
        };
        for (std::size_t i = 0; i < libro.size(); ++i) {
            std::string tocado = libro;
            tocado[i] = static_cast<char>(tocado[i] ^ 4);
            ASSERT_TRUE(sale(libro.substr(0, i), esXls) && (esXls || sale(tocado, true))) << nombre << " " << i;
        }
    }
}

class LibrosEnDisco : public testing::Test {
  protected:
    Filas Volver(const Hoja& hoja) {
        libros.EscribirLibro(carpeta / "nuevo.xlsx", hoja);
        return Tabla(libros.LeerPrimeraHoja(carpeta / "nuevo.xlsx", 2, 1501), 2);
    }
    int ErrorAlEscribir(const std::string& ruta, const Hoja& hoja) {
        return NumeroDeError([&] { return libros.EscribirLibro(ruta, hoja), 0; });
    }

    CarpetaTemporal carpeta;
    LibrosDeCalculo libros;
};

TEST_F(LibrosEnDisco, LoEscritoSeLeeIgual) {
    const Filas filas = {{Double(0.1), "río Ω € 😀"},
                         {Double(-1.0 / 3), "<a & \"b\">"},
                         {Double(123456.789012345), " con blancos "},
                         {Double(9.99999999999999E307), "dos\nlíneas\ty \x01"}};  // the greatest number of a cell
    Hoja hoja;
    for (int i = 0; i < 4; ++i) {
        hoja.Poner(i + 1, 1, filas[static_cast<std::size_t>(i)][0]);
        hoja.Poner(i + 1, 2, filas[static_cast<std::size_t>(i)][1]);
    }
    EXPECT_EQ(Volver(hoja), filas);
    EXPECT_EQ(Volver(Hoja()), Filas{});
    EXPECT_EQ(carpeta.Archivos(), 1U);
}

TEST_F(LibrosEnDisco, UnFalloDejaElArchivoAnterior) {
    const std::string ruta = Guardar(carpeta / "viejo.xlsx", "viejo");
    // clang-format off
    const Hoja noCaben[] = {
        Con(std::string(32768, 'a')), Con("\xFF"), Con(std::string("a\0b", 3)), Con("a", 1048577), Con("a", 1, 16385),
        Con("a", 1, 65537), Con(Double(1e308)), Con(Double(std::numeric_limits<double>::quiet_NaN()))};
    // clang-format on
    for (const Hoja& hoja : noCaben) {
        EXPECT_EQ(ErrorAlEscribir(ruta, hoja), kErrorLibro);
    }
    EXPECT_EQ(ErrorAlEscribir(carpeta / "falta/libro.xlsx", Con("a")), 76);
    EXPECT_EQ(NumeroDeError([&] { return libros.LeerPrimeraHoja(carpeta / "falta.xlsx", 1, 1); }), 53);
    std::filesystem::resize_file(Guardar(carpeta / "viejo.xlsx", "viejo"), std::uintmax_t{97} << 20);
    try {
        libros.LeerPrimeraHoja(ruta, 1, 1);
        ADD_FAILURE() << "96 MiB are the limit";
    } catch (const ErrorEjecucion& error) {
        EXPECT_EQ(error.Texto(), "El libro de Excel es demasiado grande");
    }
    Guardar(ruta, "viejo");
    // The disk fills up at any moment: in the library's own files, or in the workbook itself, which is a tenth of them.
    Hoja grande;
    for (int fila = 1; fila <= 500; ++fila) {
        grande.Poner(fila, 1, Double(fila * 7919 % 1000 / 8.0));
    }
    for (rlim_t limite = 0; limite < 15'000; limite += 500) {
        const DiscoDe disco(limite);
        EXPECT_EQ(ErrorAlEscribir(ruta, grande), 61) << limite;
    }
    EXPECT_EQ(BytesDe(ruta), "viejo");
    EXPECT_EQ(carpeta.Archivos(), 1U);
}

}  // namespace
}  // namespace cuencalia::pruebas
