#include <gtest/gtest.h>

#include "tests/hojas/fabrica.h"

namespace cuencalia::pruebas {
namespace {

using namespace std::string_literals;

constexpr std::uint16_t kBiff5 = 0x0500;
constexpr std::uint16_t kBiff8 = 0x0600;
constexpr std::uint16_t kGlobal = 0x0005;
constexpr std::uint16_t kHoja = 0x0010;
constexpr std::uint16_t kGrafico = 0x0020;

const Filas kUno = {{Double(1)}};

// A workbook of one sheet with these records of cells; `globales` stand before it.
Bytes LibroDe(std::uint16_t version, const Flujo& celdas, const Flujo& globales = Flujo(0)) {
    return Flujo(version)
        .Inicio(kGlobal)
        .Declarar(0)
        .Agregar(globales)
        .Fin()
        .Empezar(0, kHoja)
        .Agregar(celdas)
        .Fin()
        .Crudo();
}

std::string Texto(const Bytes& bytes) { return {reinterpret_cast<const char*>(bytes.data()), bytes.size()}; }

Flujo Numero(unsigned fila, unsigned columna, double valor) {
    return Flujo(0).Registro(0x0203, Celda(fila, columna) + F64(valor));
}

// The result of a formula that is no number.
std::string Resultado(char clase, char valor) { return {clase, 0, valor, 0, 0, 0, '\xFF', '\xFF'}; }

TEST(Xls, LoQueEscribeXlwt) {
    // The table of texts takes five records; generar.py writes the same texts by the same rule.
    const Filas filas = Leer(BytesDeArchivo(RutaDeDatos("xlwt.xls")), 4);
    ASSERT_EQ(filas.size(), 300U);
    for (std::size_t i = 0; i < filas.size(); ++i) {
        const std::string numero = std::to_string(i);
        const std::string texto = i % 3 == 0 ? "Ω" + std::string(i, '.') : "río " + numero;
        const std::vector<ValorCelda> esperada = {Double(i) / 4, texto, "rico " + numero,
                                                  i % 2 == 0 ? "Verdadero" : "Falso"};
        ASSERT_EQ(filas[i], esperada) << i;
    }
}

TEST(Xls, RegistrosDeCeldas) {
    // RK values: the upper half of 1.0; the same in hundredths; 1234321 * 4 + 2 = 0x4B5646; the same in hundredths;
    // -3 * 4 + 2 = -10.
    const Flujo celdas = Flujo(0)
                             .Registro(0x027E, Celda(0, 0) + U32(0x3FF00000))
                             .Registro(0x00BD, U16(0) + U16(1) + U16(0) + U32(0x3FF00001) + U16(0) + U32(0x004B5646) +
                                                   U16(0) + U32(0x004B5647) + U16(3))
                             .Registro(0x027E, Celda(1, 0) + U32(0xFFFFFFF6))
                             .Registro(0x0204, Celda(1, 1) + U16(2) + "\0"s + "\xF1o")
                             .Registro(0x00D6, Celda(1, 2) + U16(2) + "\x09\x01\0"s + "\xA9\x03!\0\0\0\0\0"s)
                             .Registro(0x0205, Celda(1, 3) + "\1\0"s)
                             .Agregar(Numero(2, 0, -0.75))
                             .Registro(0x0205, Celda(2, 1) + "\x2A\1"s)
                             .Registro(0x0201, Celda(2, 2));
    const Filas esperadas = {{Double(1), Double(0.01), Double(1234321), Double(12343.21)},
                             {Double(-3), "ño", "Ω!", "Verdadero"},
                             {Double(-0.75), "#N/A", kVacia, kVacia}};
    EXPECT_EQ(Leer(LibroDe(kBiff8, celdas), 4), esperadas);
}

TEST(Xls, FormulasConSuUltimoResultado) {
    const std::string resto(8, '\0');  // flags and an empty expression
    const Flujo celdas = Flujo(0)
                             .Registro(0x0006, Celda(0, 0) + F64(2.5) + resto)
                             .Registro(0x0006, Celda(0, 1) + Resultado(0, 0) + resto)
                             .Registro(0x04BC, "formula compartida")
                             .Registro(0x0207, U16(3) + "\0abc"s)
                             .Registro(0x0006, Celda(0, 2) + Resultado(1, 0) + resto)
                             .Registro(0x0006, Celda(0, 3) + Resultado(2, 7) + resto)
                             .Registro(0x0006, Celda(0, 9) + Resultado(0, 0) + resto)
                             .Registro(0x0207, U16(3) + "\0fue"s)
                             .Registro(0x0006, Celda(1, 0) + Resultado(3, 0) + resto)
                             .Agregar(Numero(2, 0, 1));
    const Filas esperadas = {{Double(2.5), "abc", "Falso", "#DIV/0!"}};
    EXPECT_EQ(Leer(LibroDe(kBiff8, celdas), 4), esperadas);
}

TEST(Xls, TextosPartidosEntreRegistros) {
    // "abcd" goes on with wide characters; "río", with runs and phonetic data cut anywhere, is followed by "fin".
    const Flujo textos = Flujo(0)
                             .Registro(0x00FC, U32(3) + U32(3) + U16(4) + "\0ab"s)
                             .Registro(0x003C, "\1c\0d\0"s + U16(3) + "\x0C"s + U16(1) + U32(5) + "r")
                             .Registro(0x003C, "\0\xEDo"s + "xx")
                             .Registro(0x003C, "xxyyyy")
                             .Registro(0x003C, "y"s + U16(3) + "\0fin"s);
    Flujo celdas(0);
    for (unsigned columna = 0; columna < 3; ++columna) {
        celdas.Registro(0x00FD, Celda(0, columna) + U32(columna));
    }
    const Filas esperadas = {{"abcd", "río", "fin"}};
    EXPECT_EQ(Leer(LibroDe(kBiff8, celdas, textos), 3), esperadas);
}

TEST(Xls, LibroDeExcel5) {
    const Flujo pagina = Flujo(0).Registro(0x0042, U16(0x8001));
    const Flujo celdas = Flujo(0)
                             .Registro(0x0204, Celda(0, 0) + U16(3) + "\x80\xF1o")
                             .Registro(0x0006, Celda(0, 1) + Resultado(0, 0) + std::string(8, '\0'))
                             .Registro(0x0207, U16(2) + "s\xED")
                             .Agregar(Numero(0, 2, 0.1));
    const Filas esperadas = {{"€ño", "sí", Double(0.1)}};
    const Bytes crudo = LibroDe(kBiff5, celdas, pagina);
    EXPECT_EQ(Leer(crudo, 3), esperadas);
    EXPECT_EQ(Leer(Ole({{"Book", Texto(crudo)}}), 3), esperadas);
}

TEST(Xls, LaPrimeraHojaDeCalculo) {
    // A chart sheet and a macro sheet come first, and the sheet holds a chart whose cells are not its own.
    const Flujo libro = Flujo(kBiff8)
                            .Inicio(kGlobal)
                            .Declarar(2)
                            .Declarar(1)
                            .Declarar(0)
                            .Declarar(0)
                            .Fin()
                            .Empezar(0, kGrafico)
                            .Fin()
                            .Empezar(3, kHoja)
                            .Agregar(Numero(0, 0, 99))
                            .Fin()
                            .Empezar(2, kHoja)
                            .Inicio(kGrafico)
                            .Agregar(Numero(1, 0, 98))
                            .Fin()
                            .Agregar(Numero(0, 0, 1))
                            .Fin();
    EXPECT_EQ(Leer(libro.Crudo(), 1), kUno);
    EXPECT_EQ(Rechazo(Flujo(kBiff8).Inicio(kGlobal).Declarar(2).Fin().Crudo()),
              "El libro de Excel no tiene ninguna hoja de cálculo");
}

TEST(Xls, FilasEnCualquierOrdenHastaElHueco) {
    const Flujo celdas = Numero(2, 0, 3).Agregar(Numero(4, 0, 5)).Agregar(Numero(0, 0, 1)).Agregar(Numero(1, 0, 2));
    const Filas esperadas = {{Double(1)}, {Double(2)}, {Double(3)}};
    EXPECT_EQ(Leer(LibroDe(kBiff8, celdas), 1), esperadas);
    EXPECT_EQ(Leer(LibroDe(kBiff8, celdas), 1, 1), kUno);
}

TEST(Xls, RechazaProtegidosYOtrasVersiones) {
    EXPECT_EQ(Rechazo(BytesDeArchivo(RutaDeDatos("protegido.xls"))), "El libro de Excel está protegido con contraseña");
    EXPECT_EQ(Rechazo(Ole({{"EncryptedPackage", "x"}, {"EncryptionInfo", "y"}})),
              "El libro de Excel está protegido con contraseña");
    EXPECT_EQ(Rechazo(Ole({{"WordDocument", "x"}})), "El archivo no es un libro de Excel (.xls o .xlsx)");
    EXPECT_EQ(Rechazo(LibroDe(0x0400, Numero(0, 0, 1))),
              "Formato de libro que no se lee; guárdelo como .xlsx o .xls (97-2003)");
}

TEST(Xls, RechazaLoDanado) {
    const std::string danado = "El libro de Excel está dañado o incompleto";
    EXPECT_EQ(Rechazo(LibroDe(kBiff8, Flujo(0).Registro(0x0203, Celda(0, 0) + "corto"))), danado);
    EXPECT_EQ(Rechazo(LibroDe(kBiff8, Flujo(0).Registro(0x0203, Celda(0, 0) + U32(0) + U32(0x7FF00000)))), danado);
    EXPECT_EQ(Rechazo(LibroDe(kBiff8, Flujo(0).Registro(0x0204, Celda(0, 0) + U16(65535) + "\0a"s))), danado);
    EXPECT_EQ(Rechazo(LibroDe(kBiff8, Flujo(0).Registro(0x00FD, Celda(0, 0) + U32(7)))), danado);
    EXPECT_EQ(Rechazo(Flujo(kBiff8).Inicio(kGlobal).Declarar(0).Fin().Crudo()), danado);  // position 0: no sheet

    // A text whose phonetic data are said to go on for 4 GiB, and a table that is said to hold 2^32 texts.
    const Flujo celda = Flujo(0).Registro(0x00FD, Celda(0, 0) + U32(4000000000U));
    const Flujo textos =
        Flujo(0).Registro(0x00FC, U32(0xFFFFFFFF) + U32(0xFFFFFFFF) + U16(1) + "\4"s + U32(0xFFFFFFFF) + "a");
    EXPECT_EQ(Rechazo(LibroDe(kBiff8, celda, textos)), danado);
}

TEST(Xls, UnLibroIncrustadoNoEsElLibro) {
    // One stream is short and lives among the small sectors, the other is not.
    const std::string uno = Texto(LibroDe(kBiff8, Numero(0, 0, 1)));
    const std::string otro = Texto(LibroDe(kBiff8, Numero(0, 0, 2))) + std::string(5000, '\0');
    EXPECT_EQ(Leer(Ole({{"MBD00/Workbook", otro}, {"Workbook", uno}}), 1), kUno);
    EXPECT_EQ(Leer(Ole({{"A/Workbook", uno}, {"WORKBOOK", otro}}), 1), Filas{{Double(2)}});
    EXPECT_EQ(Rechazo(Ole({{"MBD00/Workbook", uno}})), "El archivo no es un libro de Excel (.xls o .xlsx)");
}

TEST(Xls, EntradasDeDirectorioEnCirculo) {
    // Byte 48 of the header names the sector of the directory; each entry has its neighbours at bytes 68 and 72.
    Bytes libro = Ole({{"Uno", "1"}, {"Dos", "2"}, {"Tres", "3"}});
    const std::size_t directorio = 512 * (std::to_integer<std::size_t>(libro.at(48)) + 1);
    const std::string circulo = U32(1) + U32(2);
    for (std::size_t entrada = 0; entrada < 4; ++entrada) {
        for (std::size_t i = 0; i < circulo.size(); ++i) {
            libro.at(directorio + 128 * entrada + 68 + i) = static_cast<std::byte>(circulo[i]);
        }
    }
    EXPECT_EQ(Rechazo(libro), "El archivo no es un libro de Excel (.xls o .xlsx)");
}

TEST(Xls, CadenasDeSectoresEnCirculo) {
    // The first sector of the table of sectors is named at byte 76 of the header; every sector is made its own next.
    Bytes libro = BytesDeArchivo(RutaDeDatos("xlwt.xls"));
    const auto sector = std::to_integer<std::size_t>(libro.at(76)) | std::to_integer<std::size_t>(libro.at(77)) << 8;
    for (unsigned i = 0; i < 128; ++i) {
        const std::string propio = U32(i);
        for (std::size_t j = 0; j < propio.size(); ++j) {
            libro.at(512 * (sector + 1) + 4 * i + j) = static_cast<std::byte>(propio[j]);
        }
    }
    EXPECT_EQ(Rechazo(libro), "El libro de Excel está dañado o incompleto");
}

}  // namespace
}  // namespace cuencalia::pruebas
