#include <gtest/gtest.h>

#include <algorithm>

#include "tests/hojas/fabrica.h"

namespace cuencalia::pruebas {
namespace {

using namespace std::string_literals;

using Registros = std::vector<std::pair<unsigned, std::string>>;

std::string Unir(const Registros& registros) {
    std::string bytes;
    for (const auto& [tipo, datos] : registros) {
        bytes += Registro(tipo, datos);
    }
    return bytes;
}

// A workbook of one sheet with these records of cells; `globales` stand before it.
std::string LibroDe(const Registros& celdas, const Registros& globales = {}, unsigned version = 0x0600) {
    return LibroBiff({{0, Unir(celdas)}}, Unir(globales), version);
}

std::string Numero(unsigned fila, double valor) { return Registro(0x0203, Celda(fila, 0) + F64(valor)); }

// A formula with an empty expression, whose result is no number.
std::string Formula(unsigned columna, char clase, char valor, unsigned fila = 0) {
    return Celda(fila, columna) + std::string{clase, 0, valor, 0, 0, 0, '\xFF', '\xFF'} + std::string(8, '\0');
}

TEST(Xls, Celdas) {
    // RK values: the upper half of 1.0; the same in hundredths; 1234321 * 4 + 2 = 0x4B5646; the same in hundredths;
    // -3 * 4 + 2 = -10.
    // clang-format off
    const Registros celdas = {
        {0x027E, Celda(0, 0) + U32(0x3FF00000)},
        {0x00BD, U16(0) + U16(1) + U16(0) + U32(0x3FF00001) + U16(0) + U32(0x004B5646) + U16(0) + U32(0x004B5647) + U16(3)},
        {0x027E, Celda(1, 0) + U32(0xFFFFFFF6)}, {0x0204, Celda(1, 1) + U16(2) + "\0"s + "\xF1o"},
        {0x00D6, Celda(1, 2) + U16(4) + "\x09\x01\0"s + "\xA9\x03!\0\x3D\xD8\x00\xDE\0\0\0\0"s},
        {0x0205, Celda(1, 3) + "\1\0"s}, {0x0203, Celda(2, 0) + F64(-0.75)}, {0x0205, Celda(2, 1) + "\x2A\1"s},
        {0x0205, Celda(2, 2) + "\0\0"s}, {0x0201, Celda(2, 3)}};
    // The stored results of formulas: a text comes in a record of its own, and is only wanted after its formula.
    const Registros formulas = {
        {0x0006, Celda(0, 0) + F64(2.5) + std::string(8, '\0')}, {0x0207, U16(2) + "\0no"s}, {0x0006, Formula(1, 0, 0)},
        {0x04BC, "formula compartida"}, {0x0207, U16(3) + "\0abc"s}, {0x0006, Formula(2, 1, 0)},
        {0x0006, Formula(3, 2, 7)}, {0x0006, Formula(9, 0, 0)}, {0x0207, U16(3) + "\0fue"s}};
    // clang-format on
    const Filas esperadas = {{Double(1), Double(0.01), Double(1234321), Double(12343.21)},
                             {Double(-3), "ño", "Ω!😀", "Verdadero"},
                             {Double(-0.75), "#N/A", "Falso", kVacia}};
    EXPECT_EQ(Leer(LibroDe(celdas), 4), esperadas);
    EXPECT_EQ(Leer(LibroDe(formulas), 4), (Filas{{Double(2.5), "abc", "Falso", "#DIV/0!"}}));
    EXPECT_EQ(Leer(LibroDe({{0x0006, Formula(0, 3, 0)}}), 1), Filas{}) << "an empty text ends the data";
    const std::string desorden = LibroBiff({{0, Numero(2, 3) + Numero(4, 5) + Numero(0, 1) + Numero(1, 2)}});
    EXPECT_EQ(Leer(desorden, 1), (Filas{{Double(1)}, {Double(2)}, {Double(3)}}));
    EXPECT_EQ(Leer(desorden, 1, 1), kUno);
}

// The codes of [MS-XLS] 2.5.10, and one that is none.
TEST(Xls, Errores) {
    Registros celdas;
    for (const char codigo : "\0\7\x0F\x17\x1D\x24\x2A\x2B"s) {
        celdas.emplace_back(0x0205, Celda(static_cast<unsigned>(celdas.size()), 0) + codigo + '\1');
    }
    EXPECT_EQ(Leer(LibroDe(celdas), 1),
              (Filas{{"#NULL!"}, {"#DIV/0!"}, {"#VALUE!"}, {"#REF!"}, {"#NAME?"}, {"#NUM!"}, {"#N/A"}, {"#ERROR!"}}));
}

TEST(Xls, TextosPartidosEntreRegistros) {
    // "abcd" goes on with wide characters; "río", with runs and phonetic data cut anywhere, is followed by "fin". The
    // text of a cell goes on with narrow ones, between the halves of a pair; that of a formula has halves with no
    // other.
    const Registros textos = {{0x00FC, U32(3) + U32(3) + U16(4) + "\0ab"s},
                              {0x003C, "\1c\0d\0"s + U16(3) + "\x0C"s + U16(1) + U32(5) + "r"},
                              {0x003C, "\0\xEDo"s + "xx"},
                              {0x003C, "xxyyyy"},
                              {0x003C, "y"s + U16(3) + "\0fin"s}};
    const Registros celdas = {{0x00FD, Celda(0, 0) + U32(0)},
                              {0x00FD, Celda(0, 1) + U32(1)},
                              {0x00FD, Celda(0, 2) + U32(2)},
                              {0x0204, Celda(1, 0) + U16(4) + "\1a\0\x3D\xD8"s},
                              {0x003C, "\1\x00\xDE"s},
                              {0x003C, "\0\xF1"s},
                              {0x0006, Formula(1, 0, 0, 1)},
                              {0x0207, U16(5) + "\1\x3D\xD8"s},
                              {0x003C, "\1\x3D\xD8o\0\x00\xDE\x3D\xD8"s}};
    EXPECT_EQ(Leer(LibroDe(celdas, textos), 3),
              (Filas{{"abcd", "río", "fin"}, {"a😀ñ", "\ufffd\ufffdo\ufffd\ufffd", kVacia}}));
}

TEST(Xls, LibroDeExcel5) {
    // Windows-1252, Mac Roman, and a page of two bytes a character.
    // clang-format off
    const std::tuple<unsigned, const char*, const char*> casos[] = {
        {0x8001, "\x80\xF1o", "€ño"}, {0x8000, "\x96o\xA5", "ño•"}, {932, "a\x93\xFA", "a日"}};
    // clang-format on
    for (const auto& [pagina, bytes, texto] : casos) {
        const Registros celdas = {
            {0x0204, Celda(0, 0) + U16(3) + bytes}, {0x0006, Formula(1, 0, 0)}, {0x0207, U16(2) + "si"}};
        const std::string libro = LibroDe(celdas, {{0x0042, U16(pagina)}}, 0x0500);
        EXPECT_EQ(Leer(Ole({{"Book", libro}}), 2), (Filas{{texto, "si"}}));
    }
}

TEST(Xls, LaPrimeraHojaDeCalculo) {
    // A chart sheet and a macro sheet come first, and the sheet holds a chart whose cells are not its own.
    const std::string grafico = Inicio(0x0020, 0x0600) + Numero(1, 98) + kFin;
    EXPECT_EQ(Leer(LibroBiff({{2, ""}, {1, ""}, {0, grafico + Numero(0, 1)}, {0, Numero(0, 99)}}), 1), kUno);
    // A workbook inside the workbook has streams of the same names. One stream is short and lives among the small
    // sectors, the other is not.
    const std::string uno = LibroBiff({{0, Numero(0, 1)}});
    const std::string otro = LibroBiff({{0, Numero(0, 2)}}) + std::string(5000, '\0');
    EXPECT_EQ(Leer(Ole({{"A", "x"}, {"MBD00/Workbook", otro}, {"Workbook", uno}}), 1), kUno);
    EXPECT_EQ(Leer(Ole({{"A/Workbook", uno}, {"WORKBOOK", otro}}), 1), Filas{{Double(2)}});
    // The tree of the directory may go to either side.
    std::string espejo = Ole({{"A", "x"}, {"Workbook", uno}});
    const std::size_t raiz = espejo.find("R\0o\0o\0t\0"s);
    for (std::size_t entrada = raiz; entrada < raiz + 3 * 128; entrada += 128) {
        std::swap_ranges(&espejo[entrada + 68], &espejo[entrada + 72], &espejo[entrada + 72]);
    }
    EXPECT_EQ(Leer(espejo, 1), kUno);
}

TEST(Xls, Rechazos) {
    const auto celda = [](unsigned tipo, const std::string& datos) { return LibroDe({{tipo, Celda(0, 0) + datos}}); };
    // A text whose phonetic data are said to go on for 4 GiB, in a table that is said to hold 2^32 texts.
    const std::string textos = U32(0xFFFFFFFF) + U32(0xFFFFFFFF) + U16(1) + "\4"s + U32(0xFFFFFFFF) + "a";
    // Each entry of the directory, whose sector byte 48 of the header names, has its neighbours at bytes 68 and 72.
    std::string enCirculo = Ole({{"Uno", "1"}, {"Dos", "2"}, {"Tres", "3"}});
    const auto sector = [](const std::string& libro, std::size_t byte) {
        return 512U *
               (static_cast<unsigned char>(libro[byte]) + 256U * static_cast<unsigned char>(libro[byte + 1]) + 1);
    };
    for (std::size_t entrada = 0; entrada < 4; ++entrada) {
        enCirculo.replace(sector(enCirculo, 48) + 128 * entrada + 68, 8, U32(1) + U32(2));
    }
    // The first sector of the table of sectors is named at byte 76 of the header; every sector is made its own next.
    std::string sinFin = Dato("xlwt.xls");
    for (unsigned i = 0; i < 128; ++i) {
        sinFin.replace(sector(sinFin, 76) + 4 * i, 4, U32(i));
    }
    // clang-format off
    const std::pair<std::string, std::string> casos[] = {
        {Dato("protegido.xls"), kProtegido}, {Ole({{"EncryptedPackage", "x"}, {"EncryptionInfo", "y"}}), kProtegido},
        {Ole({{"WordDocument", "x"}}), kNoEsLibro}, {Ole({{"Workbook/x", "x"}}), kNoEsLibro},
        {Ole({{"MBD00/Workbook", LibroBiff({{0, Numero(0, 1)}})}}), kNoEsLibro}, {enCirculo, kNoEsLibro},
        {sinFin, kDanado},
        {LibroDe({}, {}, 0x0400), "Formato de libro que no se lee; guárdelo como .xlsx o .xls (97-2003)"},
        {LibroBiff({{2, ""}}), kSinHojas}, {celda(0x0203, "corto"), kDanado},
        // No sheet at position 0.
        {Inicio(5, 0x0600) + Registro(0x0085, U32(0) + "\0\0"s) + kFin, kDanado},
        {celda(0x0203, U32(0) + U32(0x7FF00000)), kDanado}, {celda(0x0204, U16(65535) + "\0a"s), kDanado},
        {celda(0x00FD, U32(7)), kDanado},
        {LibroDe({{0x00FD, Celda(0, 0) + U32(4000000000U)}}, {{0x00FC, textos}}), kDanado}};
    // clang-format on
    for (const auto& caso : casos) {
        EXPECT_EQ(Rechazo(caso.first), caso.second) << &caso - casos;
    }
}

}  // namespace
}  // namespace cuencalia::pruebas
