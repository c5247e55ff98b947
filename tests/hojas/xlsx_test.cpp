#include <gtest/gtest.h>

#include "tests/hojas/fabrica.h"

namespace cuencalia::pruebas {
namespace {

const Filas kUno = {{Double(1)}};

void Sustituir(std::string& texto, const std::string& viejo, const std::string& nuevo) {
    for (auto i = texto.find(viejo); i != std::string::npos; i = texto.find(viejo, i + nuevo.size())) {
        texto.replace(i, viejo.size(), nuevo);
    }
}

std::string EnUtf16(const std::string& ascii) {
    std::string texto = "\xFF\xFE";
    for (const char letra : ascii) {
        texto += letra;
        texto += '\0';
    }
    return texto;
}

TEST(Xlsx, LoQueEscribeOpenpyxl) {
    // The sheet comes after a chart sheet. Serial 59 is the 28th of February 1900, 45351 the 29th of February 2024.
    const Filas esperadas = {{Double(1.5), "compartido", Double(45351.5), "Verdadero"},
                             {Double(2.5), "en línea €", Double(59), "#N/A"},
                             {Double(3.5), kVacia, Double(-0.001), "x < y & z"}};
    EXPECT_EQ(Leer(BytesDeArchivo(RutaDeDatos("openpyxl.xlsx")), 4), esperadas);
    EXPECT_EQ(Leer(BytesDeArchivo(RutaDeDatos("vacio.xlsx")), 4), Filas{});
}

TEST(Xlsx, TextosCompartidosYEnLinea) {
    const std::string filas =
        "<row r='1'><c r='A1' t='s'><v>2</v></c><c r='B1' t='s'><v>0</v></c><c r='C1' t='s'><v>1</v></c></row>"
        "<row r='2'><c r='A2' t='s'><v> 2 </v></c>"
        "<c r='B2' t='inlineStr'><is><r><t>en </t></r><rPh sb='0' eb='1'><t>NO</t></rPh><r><t>línea</t></r></is></c>"
        "<c r='C2' t='str'><f>A1</f><v>de f&#243;rmula</v></c></row>";
    const std::string textos =
        "<si><t xml:space='preserve'> simple </t></si>"
        "<si><r><rPr><b/></rPr><t>ri</t></r><r><t>co</t></r><rPh sb='0' eb='2'><t>NO</t></rPh><phoneticPr/></si>"
        "<si><t>a_x0041_b_x000D__x00G0__x20</t></si>";
    const Filas esperadas = {{"aAb\r_x00G0__x20", " simple ", "rico"}, {"aAb\r_x00G0__x20", "en línea", "de fórmula"}};
    EXPECT_EQ(Leer(LibroCon(filas, textos), 3), esperadas);
}

TEST(Xlsx, NumerosLogicosErroresYVacias) {
    const std::string filas =
        "<row><c><v>+1.5E-3</v></c><c><f>1/8</f><v> 0.125 </v></c><c t='b'><v>0</v></c><c t='e'><v>#REF!</v></c></row>"
        "<row><c t='n'><v>-7</v></c><c><v/></c><c t='str'><v></v></c><c t='d'><v>2024-02-29T06:00:00Z</v></c></row>";
    const Filas esperadas = {{Double(0.0015), Double(0.125), "Falso", "#REF!"},
                             {Double(-7), kVacia, "", Double(45351.25)}};
    EXPECT_EQ(Leer(LibroCon(filas), 4), esperadas);
}

TEST(Xlsx, LugarPorReferenciaOPorOrden) {
    const std::string filas =
        "<row><c><v>1</v></c><c r='C1'><v>3</v></c><c><v>4</v></c></row>"
        "<row r='2'><c r='A2'><v>5</v></c><c r='AA2'><v>9</v></c></row>"
        "<row r='3' spans='1:4'><c><v>6</v></c></row>";
    const Filas esperadas = {{Double(1), kVacia, Double(3), Double(4)},
                             {Double(5), kVacia, kVacia, kVacia},
                             {Double(6), kVacia, kVacia, kVacia}};
    EXPECT_EQ(Leer(LibroCon(filas), 4), esperadas);
}

TEST(Xlsx, LosDatosAcabanEnLaPrimeraCeldaVaciaDeLaColumnaA) {
    const std::string uno = "<row r='1'><c r='A1'><v>1</v></c></row>";
    const std::string tres = "<row r='3'><c r='A3'><v>3</v></c></row>";
    EXPECT_EQ(Leer(LibroCon(uno + tres), 1), kUno);
    EXPECT_EQ(Leer(LibroCon(uno + "<row r='2'><c r='B2'><v>2</v></c></row>" + tres), 1), kUno);
    EXPECT_EQ(Leer(LibroCon(uno + "<row r='2'><c r='A2' s='1'/></row>" + tres), 1), kUno);
    EXPECT_EQ(Leer(LibroCon(uno + "<row r='2'><c r='A2' t='s'><v>0</v></c></row>" + tres, "<si><t/></si>"), 1), kUno);
    EXPECT_EQ(Leer(LibroCon("<row r='2'><c r='A2'><v>2</v></c></row>"), 1), Filas{});
}

TEST(Xlsx, NoLeeMasDeLoNecesario) {
    const std::string malo = "<row r='2'><c r='A2'><v>x</v></c></row><mal formado";
    EXPECT_EQ(Leer(LibroCon("<row r='1'><c r='A1'><v>1</v></c></row>" + malo), 1, 1), kUno);
    EXPECT_EQ(Leer(LibroCon("<row r='1'><c r='A1'><v>1</v></c></row><row r='3'/>" + malo), 1), kUno);
}

TEST(Xlsx, VocabulariosPrefijosYCodificaciones) {
    const Partes base = PaqueteCon("<row><c t='s'><v>0</v></c></row>", "<si><t>si</t></si>");
    const Filas esperadas = {{"si"}};

    Partes estricto = base;
    for (auto& [nombre, xml] : estricto) {
        Sustituir(xml, "http://schemas.openxmlformats.org/spreadsheetml/2006/main",
                  "http://purl.oclc.org/ooxml/spreadsheetml/main");
        Sustituir(xml, "http://schemas.openxmlformats.org/officeDocument/2006/relationships",
                  "http://purl.oclc.org/ooxml/officeDocument/relationships");
    }
    EXPECT_EQ(Leer(Zip(estricto), 1), esperadas);

    Partes prefijos = base;
    for (auto& [nombre, xml] : prefijos) {
        Sustituir(xml, "xmlns:r=", "xmlns:otro=");
        Sustituir(xml, "r:id=", "otro:id=");
        Sustituir(xml, "xmlns=", "xmlns:x=");
        Sustituir(xml, "</", "</@");
        Sustituir(xml, "<", "<x:");
        Sustituir(xml, "<x:/@", "</x:");
    }
    EXPECT_EQ(Leer(Zip(prefijos), 1), esperadas);

    Partes anchos = base;
    for (auto& [nombre, xml] : anchos) {
        xml = EnUtf16(xml);
    }
    EXPECT_EQ(Leer(Zip(anchos), 1), esperadas);
}

TEST(Xlsx, LoAjenoSePasaPorAlto) {
    const std::string filas =
        "<row><c><extLst><z:v xmlns:z='urn:z'><v>8</v></z:v></extLst><v>1</v></c></row>"
        "<mc:AlternateContent xmlns:mc='http://schemas.openxmlformats.org/markup-compatibility/2006'>"
        "<mc:Choice Requires='z' xmlns:z='urn:z'><row><c><v>3</v></c></row></mc:Choice>"
        "<mc:Fallback><row><c><v>2</v></c></row></mc:Fallback></mc:AlternateContent>"
        "<z:row xmlns:z='urn:z'><c><v>4</v></c></z:row>";
    const Filas esperadas = {{Double(1)}, {Double(2)}};
    EXPECT_EQ(Leer(LibroCon(filas), 1), esperadas);
}

TEST(Xlsx, NombresDePartes) {
    Partes partes = PaqueteCon("<row><c><v>1</v></c></row>");
    auto mover = [&partes](const std::string& de, const std::string& a) {
        auto nodo = partes.extract(de);
        nodo.key() = a;
        partes.insert(std::move(nodo));
    };
    mover("xl/workbook.xml", "raro/Libro.xml");
    mover("xl/_rels/workbook.xml.rels", "raro/_rels/libro.XML.rels");
    mover("xl/hoja.xml", "aparte/datos.xml");
    Sustituir(partes["_rels/.rels"], "'xl/workbook.xml'", "'/raro/libro.xml'");
    Sustituir(partes["raro/_rels/libro.XML.rels"], "'hoja.xml'", "'./../aparte/datos.xml'");
    EXPECT_EQ(Leer(Zip(partes), 1), kUno);
}

TEST(Xlsx, LaPrimeraPestanaQueEsHojaDeCalculo) {
    Partes partes = PaqueteCon("<row><c><v>1</v></c></row>");
    Sustituir(partes["xl/workbook.xml"], "<sheets>", "<sheets><sheet name='G' sheetId='7' r:id='g'/>");
    Sustituir(partes["xl/_rels/workbook.xml.rels"], "</Relationships>",
              "<Relationship Id='g' Type='urn:x/chartsheet' Target='g.xml'/></Relationships>");
    EXPECT_EQ(Leer(Zip(partes), 1), kUno);

    Sustituir(partes["xl/_rels/workbook.xml.rels"], "/worksheet", "/dialogsheet");
    EXPECT_EQ(Rechazo(Zip(partes)), "El libro de Excel no tiene ninguna hoja de cálculo");
}

TEST(Xlsx, RechazaLoDanado) {
    const std::string danado = "El libro de Excel está dañado o incompleto";
    for (const char* filas : {
             "<row r='1'><c></row>",                                           // malformed
             "<row r='1'><c r='A1'><v>1</v></c></row><row r='1'/>",            // row twice
             "<row r='1'><c r='B1'><v>1</v></c><c r='A1'><v>1</v></c></row>",  // cells out of order
             "<row r='1'><c r='A2'><v>1</v></c></row>",                        // cell of another row
             "<row r='1'><c r='XFE1'><v>1</v></c></row>",                      // beyond the last column
             "<row r='1'><c r='1'><v>1</v></c></row>",
             "<row r='uno'><c><v>1</v></c></row>",
             "<row r='99999999999'/>",
             "<row><c><v>1,5</v></c></row>",
             "<row><c><v>INF</v></c></row>",
             "<row><c><v>1E999</v></c></row>",
             "<row><c t='s'><v>1</v></c></row>",  // the table has one text
             "<row><c t='s'><v>-1</v></c></row>",
             "<row><c t='nuevo'><v>1</v></c></row>",
             "<row><c t='d'><v>2023-02-29</v></c></row>",
             "<row><c t='d'><v>ayer</v></c></row>",
         }) {
        EXPECT_EQ(Rechazo(LibroCon(filas, "<si><t>a</t></si>")), danado) << filas;
    }
    for (const char* parte : {"xl/workbook.xml", "xl/_rels/workbook.xml.rels", "xl/hoja.xml", "xl/textos.xml"}) {
        Partes partes = PaqueteCon("<row><c t='s'><v>0</v></c></row>", "<si><t>a</t></si>");
        partes[parte] = "<html/>";
        EXPECT_EQ(Rechazo(Zip(partes)), danado) << parte;
        partes.erase(parte);
        EXPECT_EQ(Rechazo(Zip(partes)), danado) << parte;
    }
}

TEST(Xlsx, RechazaLoQueCreceSinMedida) {
    const std::string danado = "El libro de Excel está dañado o incompleto";
    const std::string grande = "El libro de Excel es demasiado grande";

    Partes entidades = PaqueteCon("<row><c t='inlineStr'><is><t>&b;</t></is></c></row>");
    entidades["xl/hoja.xml"].insert(0, "<!DOCTYPE worksheet [<!ENTITY a 'aaaa'><!ENTITY b '&a;&a;&a;'>]>");
    EXPECT_EQ(Rechazo(Zip(entidades)), danado);

    std::string profundo = "<row><c><v>1</v></c></row>";
    for (int i = 0; i < 100; ++i) {
        profundo += "<x>";
    }
    EXPECT_EQ(Rechazo(LibroCon(profundo)), danado);

    const std::string texto(32768 * 7, 'a');
    EXPECT_EQ(Rechazo(LibroCon("<row><c t='s'><v>0</v></c></row>", "<si><t>" + texto + "</t></si>")), danado);

    // Blanks pack a thousand to one.
    const Bytes bomba = LibroCon("<row><c t='s'><v>0</v></c></row>", std::string(65U << 20, ' '));
    ASSERT_LT(bomba.size(), 200000U);
    EXPECT_EQ(Rechazo(bomba), grande);

    std::string filas;
    for (int i = 0; i < 1500; ++i) {
        filas += "<row><c t='s'><v>0</v></c></row>";
    }
    const std::string largo = "<si><t>" + std::string(100000, 'a') + "</t></si>";
    EXPECT_EQ(Rechazo(LibroCon(filas, largo)), grande);
}

}  // namespace
}  // namespace cuencalia::pruebas
