#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <clocale>
#include <filesystem>
#include <fstream>
#include <limits>

#include "tests/hojas/fabrica.h"

namespace cuencalia::pruebas {
namespace {

namespace fs = std::filesystem;

class ArchivosDeHojas : public testing::Test {
  protected:
    void SetUp() override {
        carpeta_ = fs::path(testing::TempDir()) / ("hojas_" + std::to_string(getpid()));
        fs::create_directories(carpeta_);
    }
    void TearDown() override { fs::remove_all(carpeta_); }

    std::string Ruta(const std::string& nombre) const { return (carpeta_ / nombre).string(); }
    std::string Guardar(const std::string& nombre, const std::string& contenido) const {
        std::ofstream(Ruta(nombre), std::ios::binary) << contenido;
        return Ruta(nombre);
    }
    int ErrorAlLeer(const std::string& ruta) {
        try {
            libros_.LeerPrimeraHoja(ruta, 2, 10);
            return 0;
        } catch (const ErrorEjecucion& error) {
            return error.Numero();
        }
    }
    int ErrorAlEscribir(const std::string& ruta, const Hoja& hoja) {
        try {
            libros_.EscribirLibro(ruta, hoja);
            return 0;
        } catch (const ErrorEjecucion& error) {
            return error.Numero();
        }
    }
    std::size_t Archivos() const {
        return static_cast<std::size_t>(std::distance(fs::directory_iterator(carpeta_), fs::directory_iterator()));
    }

    fs::path carpeta_;
    LibrosDeCalculo libros_;
};

class LibrosDeLibreOffice : public ArchivosDeHojas, public testing::WithParamInterface<const char*> {};

TEST_P(LibrosDeLibreOffice, ValoresDeMezcla) {
    // As typed in mezcla.fods; the formulas' results by hand. A5 is merged with A6, so the data end there.
    const Filas esperadas = {{Double(1), Double(0.1), Double(0.125), "río"},
                             {Double(-2.5), Double(1e20), "caudal máximo €", "una negrita rica"},
                             {Double(123456789012), Double(45351), "#DIV/0!", kVacia},
                             {"Año en €", "Falso", "#N/A", kVacia},
                             {Double(5), Double(12.34), kVacia, kVacia}};
    EXPECT_EQ(Tabla(libros_.LeerPrimeraHoja(RutaDeDatos(GetParam()), 4, 1501), 4), esperadas);
}

INSTANTIATE_TEST_SUITE_P(Formatos, LibrosDeLibreOffice, testing::Values("mezcla.xlsx", "mezcla.xls"));

TEST_F(ArchivosDeHojas, ElTipoLoDiceElContenido) {
    fs::copy_file(RutaDeDatos("mezcla.xlsx"), Ruta("es_xlsx.xls"));
    fs::copy_file(RutaDeDatos("mezcla.xls"), Ruta("es_xls.xlsx"));
    EXPECT_EQ(libros_.LeerPrimeraHoja(Ruta("es_xlsx.xls"), 1, 10).Filas(), 5);
    EXPECT_EQ(libros_.LeerPrimeraHoja(Ruta("es_xls.xlsx"), 1, 10).Filas(), 5);

    EXPECT_EQ(ErrorAlLeer(Guardar("tabla.xls", "<html><table></table></html>")), kErrorLibro);
    EXPECT_EQ(ErrorAlLeer(Guardar("lista.xlsx", "1;2;3\n")), kErrorLibro);
    EXPECT_EQ(ErrorAlLeer(Guardar("vacio.xlsx", "")), kErrorLibro);
    const Bytes zip = Zip({{"mimetype", "application/vnd.oasis.opendocument.spreadsheet"}});
    EXPECT_EQ(Rechazo(zip), "El archivo no es un libro de Excel (.xls o .xlsx)");
}

TEST_F(ArchivosDeHojas, ErroresDeAcceso) {
    EXPECT_EQ(ErrorAlLeer(""), kArchivoNoEncontrado);
    EXPECT_EQ(ErrorAlLeer(Ruta("no_esta.xlsx")), kArchivoNoEncontrado);
    EXPECT_EQ(ErrorAlLeer(Ruta("ni_la_carpeta/libro.xlsx")), kArchivoNoEncontrado);
    EXPECT_EQ(ErrorAlLeer(carpeta_.string()), kAccesoRuta);
    if (geteuid() != 0) {
        fs::permissions(Guardar("ajeno.xlsx", "x"), fs::perms::none);
        EXPECT_EQ(ErrorAlLeer(Ruta("ajeno.xlsx")), kAccesoRuta);
    }
}

TEST_F(ArchivosDeHojas, CortadosEnCualquierByte) {
    for (const char* nombre : {"mezcla.xlsx", "openpyxl.xlsx", "mezcla.xls"}) {
        const Bytes libro = BytesDeArchivo(RutaDeDatos(nombre));
        const bool esXlsx = std::string(nombre).ends_with("x");
        for (std::size_t largo = 0; largo < libro.size(); ++largo) {
            const Bytes corte(libro.begin(), libro.begin() + static_cast<std::ptrdiff_t>(largo));
            const std::string rechazo = Rechazo(corte);
            // The index of a ZIP archive stands at its end, so no cut goes unnoticed. An .xls may lose its last sectors
            // and still have the whole sheet, but never part of it.
            const bool entero = !esXlsx && rechazo.empty() && Leer(corte, 4) == Leer(libro, 4);
            ASSERT_TRUE(entero || rechazo.starts_with("El ")) << nombre << " " << largo << " " << rechazo;
        }
    }
}

TEST_F(ArchivosDeHojas, LoEscritoSeLeeIgual) {
    const double maximo = 9.99999999999999E307;  // the greatest number of a cell
    Hoja hoja;
    const Filas filas = {{Double(0.1), "río Ω €"},
                         {Double(-1.0 / 3), "<a & \"b\">"},
                         {Double(123456.789012345), " con blancos "},
                         {Double(maximo), "dos\nlíneas\ty \x01"}};
    for (std::size_t i = 0; i < filas.size(); ++i) {
        hoja.Poner(static_cast<int>(i) + 1, 1, filas[i][0]);
        hoja.Poner(static_cast<int>(i) + 1, 2, filas[i][1]);
    }
    libros_.EscribirLibro(Ruta("nuevo.xlsx"), hoja);
    EXPECT_EQ(Archivos(), 1U);
    EXPECT_EQ(Tabla(libros_.LeerPrimeraHoja(Ruta("nuevo.xlsx"), 2, 1501), 2), filas);

    libros_.EscribirLibro(Ruta("nuevo.xlsx"), Hoja());
    EXPECT_EQ(libros_.LeerPrimeraHoja(Ruta("nuevo.xlsx"), 2, 1501).Filas(), 0);
}

// Desktop toolkits adopt the user's locale for the whole program, decimal comma included.
TEST_F(ArchivosDeHojas, LaComaDecimalDelSistemaNoEntraEnElLibro) {
    const std::string previa = std::setlocale(LC_NUMERIC, nullptr);
    if (std::setlocale(LC_NUMERIC, "es_ES.UTF-8") == nullptr && std::setlocale(LC_NUMERIC, "de_DE.UTF-8") == nullptr) {
        GTEST_SKIP() << "no locale with a decimal comma on this system";
    }
    Hoja hoja;
    hoja.Poner(1, 1, Double(0.5));
    libros_.EscribirLibro(Ruta("coma.xlsx"), hoja);
    const ValorCelda leida = libros_.LeerPrimeraHoja(Ruta("coma.xlsx"), 1, 1).Cells(1, 1);
    std::setlocale(LC_NUMERIC, previa.c_str());
    EXPECT_EQ(leida, ValorCelda(Double(0.5)));
}

TEST_F(ArchivosDeHojas, UnFalloAlEscribirDejaElArchivoAnterior) {
    auto con = [](ValorCelda valor, int fila = 1, int columna = 1) {
        Hoja hoja;
        hoja.Poner(fila, columna, std::move(valor));
        return hoja;
    };
    libros_.EscribirLibro(Ruta("viejo.xlsx"), con("viejo"));

    EXPECT_EQ(ErrorAlEscribir(Ruta("viejo.xlsx"), con(std::string(32768, 'a'))), kErrorLibro);
    EXPECT_EQ(ErrorAlEscribir(Ruta("viejo.xlsx"), con("\xFF")), kErrorLibro);
    EXPECT_EQ(ErrorAlEscribir(Ruta("viejo.xlsx"), con("a", 1048577)), kErrorLibro);
    EXPECT_EQ(ErrorAlEscribir(Ruta("viejo.xlsx"), con("a", 1, 65537)), kErrorLibro);
    EXPECT_EQ(ErrorAlEscribir(Ruta("viejo.xlsx"), con(Double(1e308))), kErrorLibro);
    EXPECT_EQ(ErrorAlEscribir(Ruta("viejo.xlsx"), con(Double(std::numeric_limits<double>::quiet_NaN()))), kErrorLibro);
    EXPECT_EQ(ErrorAlEscribir(Ruta("no_hay/libro.xlsx"), con("a")), kRutaNoEncontrada);
    EXPECT_EQ(ErrorAlEscribir(carpeta_.string(), con("a")), kAccesoRuta);
    ASSERT_EQ(mkfifo(Ruta("tubo").c_str(), 0600), 0);
    EXPECT_EQ(ErrorAlEscribir(Ruta("tubo"), con("a")), kAccesoRuta);
    EXPECT_EQ(ErrorAlLeer(Ruta("tubo")), kAccesoRuta);
    EXPECT_EQ(ErrorAlEscribir(Ruta("viejo.xlsx/libro.xlsx"), con("a")), kRutaNoEncontrada);

    EXPECT_EQ(Archivos(), 2U);  // nothing half-written beside the old workbook and the pipe
    EXPECT_EQ(libros_.LeerPrimeraHoja(Ruta("viejo.xlsx"), 1, 10).Cells(1, 1), ValorCelda("viejo"));
}

}  // namespace
}  // namespace cuencalia::pruebas
