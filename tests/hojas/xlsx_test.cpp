#include <gtest/gtest.h>

#include "tests/hojas/fabrica.h"

namespace cuencalia::pruebas {
namespace {

std::string Sustituir(std::string texto, const std::vector<std::pair<std::string, std::string>>& cambios) {
    for (const auto& [viejo, nuevo] : cambios) {
        for (auto i = texto.find(viejo); i != std::string::npos; i = texto.find(viejo, i + nuevo.size())) {
            texto.replace(i, viejo.size(), nuevo);
        }
    }
    return texto;
}

TEST(Xlsx, Celdas) {
    const std::string textos =
        "<si><t xml:space='preserve'> simple </t></si>"
        "<si><r><rPr><b/></rPr><t>ri</t></r><r><t>co</t></r><rPh sb='0' eb='2'><t>NO</t></rPh><phoneticPr/></si>"
        "<si><t>a_x0041_b_x000D__x00G0__x0042-_x20</t></si>";
    const std::string filas =
        "<row r='1'><c r='A1' t='s'><v>2</v></c><c r='B1' t='s'><v>0</v></c><c r='C1' t='s'><v> 1 </v></c></row>"
        "<row r='2'><c t='inlineStr'><is><r><t>en </t></r><rPh sb='0' "
        "eb='1'><t>NO</t></rPh><r><t>línea</t></r></is></c>"
        "<c t='str'><f>A1</f><v>de f&#243;rmula</v></c><c t='d'><v>2024-02-29T06:00:00Z</v></c><c "
        "t='d'><v>1900-02-28</v></c></row>"
        "<row><c><v>+1.5E-3</v></c><c><f>1/8</f><v> 0.125 </v></c><c t='b'><v>0</v></c><c t='e'><v>#REF!</v></c></row>"
        "<row r='4'><c><v>1</v></c><c r='C4'><v>3</v></c><c><v>4</v></c><c r='AA4'><v>9</v></c></row>"
        "<row><c t='n'><v>-7</v></c><c><v/></c><c t='str'><v></v></c></row>"
        "<row><c t='b'><v>1</v></c><c t='b'><v>true</v></c><c t='d'><v>18:45</v></c><c t='d'><v>1900-03-01T00:00:43.2"
        "</v></c></row>";
    // Serial 59 is the 28th of February 1900, 45351 the 29th of February 2024; 18.75 hours, and 43.2 s in 86400.
    const Filas esperadas = {{"aAb\r_x00G0__x0042-_x20", " simple ", "rico", kVacia},
                             {"en línea", "de fórmula", Double(45351.25), Double(59)},
                             {Double(0.0015), Double(0.125), "Falso", "#REF!"},
                             {Double(1), kVacia, Double(3), Double(4)},
                             {Double(-7), kVacia, "", kVacia},
                             {"Verdadero", "Verdadero", Double(0.78125), Double(61.0005)}};
    EXPECT_EQ(Leer(LibroCon(filas, textos), 4), esperadas);
}

TEST(Xlsx, LosDatosAcabanEnLaPrimeraCeldaVaciaDeLaColumnaA) {
    const std::string uno = "<row r='1'><c r='A1'><v>1</v></c></row>";
    const std::string tres = "<row r='3'><c r='A3'><v>3</v></c></row>";
    for (const char* const dos : {"", "<row r='2'><c r='B2'><v>2</v></c></row>", "<row r='2'><c r='A2' s='1'/></row>",
                                  "<row r='2'><c r='A2' t='s'><v>0</v></c></row>", "<row r='3'/><mal formado",
                                  "<row r='3'><c><v>x</v></c></row>"}) {
        EXPECT_EQ(Leer(LibroCon(uno + dos + tres, "<si><t/></si>"), 1), kUno) << dos;
    }
    EXPECT_EQ(Leer(LibroCon(uno + "<row r='2'><c r='A2'><v>x</v></c></row><mal formado"), 1, 1), kUno);
    EXPECT_EQ(Leer(LibroCon(tres), 1), Filas{});
    EXPECT_EQ(Leer(Dato("vacio.xlsx"), 4), Filas{});
}

// The strict vocabulary, other prefixes and another encoding say the same.
TEST(Xlsx, VocabulariosPrefijosYCodificaciones) {
    const Partes base = PaqueteCon("<row><c t='s'><v>0</v></c></row>", "<si><t>si</t></si>");
    Partes estricto, prefijos, anchos;
    for (const auto& [nombre, xml] : base) {
        // clang-format off
        estricto[nombre] = Sustituir(xml, {
            {"schemas.openxmlformats.org/spreadsheetml/2006/main", "purl.oclc.org/ooxml/spreadsheetml/main"},
            {"schemas.openxmlformats.org/officeDocument/2006/rel", "purl.oclc.org/ooxml/officeDocument/rel"}});
        prefijos[nombre] = Sustituir(xml, {{"xmlns:r=", "xmlns:otro="}, {"r:id=", "otro:id="}, {"xmlns=", "xmlns:x="},
                                           {"</", "</@"}, {"<", "<x:"}, {"<x:/@", "</x:"}});
        // clang-format on
        anchos[nombre] = "\xFF\xFE";
        for (const char letra : xml) {
            anchos[nombre] += {letra, '\0'};
        }
    }
    for (const Partes& partes : {estricto, prefijos, anchos}) {
        EXPECT_EQ(Leer(Zip(partes), 1), Filas{{"si"}});
    }
}

TEST(Xlsx, LoAjenoSePasaPorAlto) {
    const std::string filas =
        "<row><c><extLst><z:v xmlns:z='urn:z'><v>8</v></z:v></extLst><v>1</v></c></row>"
        "<mc:AlternateContent xmlns:mc='http://schemas.openxmlformats.org/markup-compatibility/2006'>"
        "<mc:Choice Requires='z' xmlns:z='urn:z'><row><c><v>3</v></c></row></mc:Choice>"
        "<mc:Fallback><row><c><v>2</v></c></row></mc:Fallback></mc:AlternateContent>"
        "<z:row xmlns:z='urn:z'><c><v>4</v></c></z:row>";
    EXPECT_EQ(Leer(LibroCon(filas), 1), (Filas{{Double(1)}, {Double(2)}}));
}

// Other names and capitals, targets from the root and from the folder; the first tab is a chart.
TEST(Xlsx, PartesYPestanas) {
    Partes base = PaqueteCon("<row><c><v>1</v></c></row>");
    Partes partes;
    std::string& relaciones = partes["raro/_rels/libro.XML.rels"];
    partes["raro/Libro.xml"] = Sustituir(base["xl/workbook.xml"], {{"<sheets>", "<sheets><sheet r:id='g'/>"}});
    partes["aparte/datos.xml"] = base["xl/hoja.xml"];
    partes["_rels/.rels"] = Sustituir(base["_rels/.rels"], {{"'xl/workbook.xml'", "'/raro/libro.xml'"}});
    relaciones = Sustituir(base["xl/_rels/workbook.xml.rels"],
                           {{"'hoja.xml'", "'./../aparte/datos.xml'"},
                            {"</", "<Relationship Id='g' Type='urn:x/chartsheet' Target='g.xml'/></"}});
    EXPECT_EQ(Leer(Zip(partes), 1), kUno);
    relaciones = Sustituir(relaciones, {{"/worksheet", "/dialogsheet"}});
    EXPECT_EQ(Rechazo(Zip(partes)), kSinHojas);
    // A sheet that stands in another file.
    base["xl/_rels/workbook.xml.rels"] = Sustituir(base["xl/_rels/workbook.xml.rels"],
                                                   {{"Target='hoja.xml'", "TargetMode='External' Target='hoja.xml'"}});
    EXPECT_EQ(Rechazo(Zip(base)), kDanado);
}

TEST(Xlsx, RechazaLoDanado) {
    // clang-format off
    const char* const casos[] = {
        // Malformed; a row twice; cells out of order, of another row, beyond the last column, without a column.
        "<row r='1'><c></row>", "<row r='1'><c r='A1'><v>1</v></c></row><row r='1'/>",
        "<row r='1'><c r='B1'><v>1</v></c><c r='A1'><v>1</v></c></row>", "<row r='1'><c r='A2'><v>1</v></c></row>",
        "<row r='1'><c r='XFE1'><v>1</v></c></row>", "<row r='1'><c r='1'><v>1</v></c></row>",
        // What should be a number; a text beyond the table; no day of the calendar.
        "<row r='uno'><c><v>1</v></c></row>", "<row r='99999999999'/>", "<row><c><v>1,5</v></c></row>",
        "<row><c><v>INF</v></c></row>", "<row><c><v>1E999</v></c></row>", "<row><c t='s'><v>1</v></c></row>",
        "<row><c t='s'><v>-1</v></c></row>", "<row><c t='nuevo'><v>1</v></c></row>",
        "<row><c t='d'><v>2023-02-29</v></c></row>", "<row><c t='d'><v>ayer</v></c></row>"};
    // clang-format on
    for (const char* filas : casos) {
        EXPECT_EQ(Rechazo(LibroCon(filas, "<si><t>a</t></si>")), kDanado) << filas;
    }
    for (const char* parte : {"xl/workbook.xml", "xl/_rels/workbook.xml.rels", "xl/hoja.xml", "xl/textos.xml"}) {
        Partes partes = PaqueteCon("<row><c t='s'><v>0</v></c></row>", "<si><t>a</t></si>");
        partes[parte] = "<html/>";
        EXPECT_EQ(Rechazo(Zip(partes)), kDanado) << parte;
        partes.erase(parte);
        EXPECT_EQ(Rechazo(Zip(partes)), kDanado) << parte;
    }
}

TEST(Xlsx, RechazaLoQueCreceSinMedida) {
    const std::string grande = "El libro de Excel es demasiado grande";
    Partes entidades = PaqueteCon("<row><c t='inlineStr'><is><t>&b;</t></is></c></row>");
    entidades["xl/hoja.xml"].insert(0, "<!DOCTYPE worksheet [<!ENTITY a 'aaaa'><!ENTITY b '&a;&a;&a;'>]>");
    EXPECT_EQ(Rechazo(Zip(entidades)), kDanado);
    EXPECT_EQ(Rechazo(LibroCon("<!--" + std::string(1U << 20, 'x') + "--><row><c><v>1</v></c></row>")), grande);
    EXPECT_EQ(Rechazo(LibroCon(std::string(49U << 20, ' '))), grande);
    Partes muchas = PaqueteCon("<row><c><v>1</v></c></row>");
    for (int i = 0; i < 10'000; ++i) {
        muchas[std::to_string(i)];
    }
    EXPECT_EQ(Rechazo(Zip(muchas)), grande);
    std::string anidadas, filas;
    for (int i = 0; i < 100; ++i) {
        anidadas = "<x>" + anidadas + "</x>";
    }
    EXPECT_EQ(Rechazo(LibroCon(anidadas)), kDanado);
    const std::string unTexto = "<row><c t='s'><v>0</v></c></row>";
    EXPECT_EQ(Rechazo(LibroCon(unTexto, "<si><t>" + std::string(32768 * 7, 'a') + "</t></si>")), kDanado);
    // Blanks pack a thousand to one.
    EXPECT_EQ(Rechazo(LibroCon(unTexto, std::string(65U << 20, ' '))), grande);
    for (int i = 0; i < 1500; ++i) {
        filas += unTexto;
    }
    EXPECT_EQ(Rechazo(LibroCon(filas, "<si><t>" + std::string(100'000, 'a') + "</t></si>")), grande);
}

}  // namespace
}  // namespace cuencalia::pruebas
