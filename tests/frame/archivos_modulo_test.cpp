#include <gtest/gtest.h>

#include "frame/base/textos.h"
#include "tests/archivos_en_disco.h"
#include "tests/forma_en_uso.h"

namespace cuencalia {
namespace {

using pruebas::BytesDe;
using pruebas::CarpetaTemporal;
using pruebas::Filas;
using pruebas::Guardar;
using pruebas::Tabla;
using pruebas::Textos;
using namespace std::string_literals;

/// File dialogs whose Cancel is an error, where a test asks for it.
struct PlataformaConCancel : PlataformaGuion {
    bool cancelEsError = false;
    int errorDelDialogo = kDialogoCancelado;

    void ElegirArchivo(ModoArchivo modo, const std::string& titulo, const std::string& filtro,
                       std::string& nombre) override {
        if (cancelEsError) {
            throw ErrorEjecucion(errorDelDialogo);
        }
        PlataformaGuion::ElegirArchivo(modo, titulo, filtro, nombre);
    }
};

const Tabla kVacia{{"N°", "X"}, {"[?]", ""}};
const Tabla kUnoDosTres{{"N°", "X"}, {" 1", "1.0"}, {" 2", "2.0"}, {" 3", "3.0"}, {"[->]", ""}};
// 1 = 3F800000, 2 = 40000000, 3 = 40400000, 0.1 = 3DCCCCCD, least byte first.
const std::string kUno = "\x00\x00\x80\x3F"s;
const std::string kDos = "\x00\x00\x00\x40"s;
const std::string kTres = "\x00\x00\x40\x40"s;
const std::string kDecimo = "\xCD\xCC\xCC\x3D"s;

class ArchivosModuloTest : public pruebas::FormaEnUso<ModuloCalculo, PlataformaConCancel> {
  protected:
    ArchivosModuloTest() : FormaEnUso("frmParamEsta") {}

    Tabla Datos() { return Filas(F().grdt); }
    template <typename C>
    C& Control_(const std::string& nombre) {
        return dynamic_cast<C&>(*F().Controls(nombre));
    }
    /// The results that a load must clear: 1, 2, 3, 10 calculated and sorted.
    void CalcularAlgo() {
        app.Pulsar(F().bLimpiar);
        TeclearDatos({"1", "2", "3", "10"});
        app.Pulsar(F().bCalcular);
        app.Pulsar(Control_<CommandButton>("bOrdenar"));
        ASSERT_EQ(Control_<TextBox>("txtL1").Text(), "4.0000");
        ASSERT_EQ(Control_<FlexGrid>("grdParam").TextMatrix(1, 1), "4.0000");
        ASSERT_TRUE(Control_<FlexGrid>("grdorden").EsVisible());
    }
    void EsperarResultadosVacios() {
        EXPECT_EQ(Control_<TextBox>("txtL1").Text(), "");
        EXPECT_EQ(Control_<FlexGrid>("grdParam").TextMatrix(1, 1), "");
        EXPECT_EQ(Control_<FlexGrid>("grdParam").TextMatrix(0, 1), "Muestrales");
        EXPECT_FALSE(Control_<FlexGrid>("grdorden").EsVisible());
        EXPECT_FALSE(Control_<Label>("lblOrdenado").EsVisible());
    }
    std::string Libro(const std::string& nombre, const std::vector<std::vector<ValorCelda>>& filas) {
        Hoja hoja;
        for (std::size_t f = 0; f < filas.size(); ++f) {
            for (std::size_t c = 0; c < filas[f].size(); ++c) {
                hoja.Poner(static_cast<int>(f) + 1, static_cast<int>(c) + 1, filas[f][c]);
            }
        }
        sistema.Hojas().EscribirLibro(carpeta / nombre, hoja);
        return carpeta / nombre;
    }
    std::string LibroDeUnos(int filas) {
        return Libro("largo.xlsx", std::vector<std::vector<ValorCelda>>(static_cast<std::size_t>(filas), {Double(1)}));
    }
    static std::string Repetir(const std::string& registro, int veces) {
        std::string bytes;
        for (int i = 0; i < veces; ++i) {
            bytes += registro;
        }
        return bytes;
    }
    void EsperarMensajeDeCancel(Control& boton, const std::string& texto) {
        sistema.cancelEsError = true;
        EsperarMensaje(boton, texto);
        sistema.cancelEsError = false;
    }

    CarpetaTemporal carpeta;
    const std::string ruta = carpeta / "serie.X";
};

TEST_F(ArchivosModuloTest, TitulosYFiltrosDeLosDialogos) {
    struct Caso {
        const char* forma;
        const char* crear;
        const char* accesar;
    };
    for (const Caso& caso : {Caso{"frmParamEsta", "Valores de X|*.X", "Valores X|*.X"},
                             Caso{"frmParEstAgru", "Valores de X|*.X", "Valores X|*.X"},
                             Caso{"frmDistriFre", "Valores de X|*.X", "Valores X|*.X"},
                             Caso{"frmRegreLineal", "Pares valores X,Y|*.XY", "Pares valores X,Y|*.XY"}}) {
        SCOPED_TRACE(caso.forma);
        Abrir(caso.forma);
        app.Pulsar(F().bCrear);
        EXPECT_EQ(sistema.tituloDialogo, "Ubicar directorio y escribir el nombre archivo a crear");
        EXPECT_EQ(sistema.filtroDialogo, caso.crear);
        app.Pulsar(F().bAccesar);
        EXPECT_EQ(sistema.tituloDialogo, "Seleccionar el archivo a cargar");
        EXPECT_EQ(sistema.filtroDialogo, caso.accesar);
        sistema.tituloDialogo.clear();
        app.Pulsar(F().bCargarExcel);
        EXPECT_EQ(sistema.tituloDialogo, "Seleccionar el archivo a cargar");
        EXPECT_EQ(sistema.filtroDialogo, "Archivos de Excel 97-2003|*.xls|Archivos de Excel 07-2010|*.xlsx");
    }
    EsperarSilencio();
}

TEST_F(ArchivosModuloTest, CrearGuardaLaCuadricula) {
    TeclearDatos({"1", "0.1", "3"});
    Guardar(ruta, std::string(1000, 'x'));
    PulsarCon(F().bCrear, ruta);
    EXPECT_EQ(BytesDe(ruta), kUno + kDecimo + kTres) << "no question, and nothing of the old file";
    EXPECT_EQ(Datos()[2], (Textos{" 2", "0.1"}));
    EXPECT_EQ(app.Globales().NombreArchivo, ruta);

    app.Pulsar(F().bLimpiar);
    PulsarCon(F().bCrear, ruta);
    EXPECT_EQ(BytesDe(ruta), "") << "an empty grid makes an empty file";

    Abrir("frmRegreLineal");
    TeclearDatos({"1", "2", "3", "0.1"});
    PulsarCon(F().bCrear, carpeta / "pares.XY");
    EXPECT_EQ(BytesDe(carpeta / "pares.XY"), kUno + kDos + kTres + kDecimo);
    EsperarSilencio();
}

// A cell left with Down holds what was typed as it stands; an inserted row is empty.
TEST_F(ArchivosModuloTest, CrearLeeLosTextosComoNumeros) {
    TeclearDatos({"1", "2"});
    app.Despachar([&] { F().grdt.Presionar(kBotonIzquierdo, 2, 1); });
    Teclear("3z");
    app.PulsarTecla(kTeclaAbajo, 0);
    sistema.entradaEmergente = "mnuEditInsertar";
    app.Despachar([&] { F().grdt.Presionar(kBotonDerecho, 1, 1); });
    PulsarCon(F().bCrear, ruta);
    EXPECT_EQ(BytesDe(ruta), std::string(4, '\0') + kUno + kTres);
}

TEST_F(ArchivosModuloTest, AccesarMuestraLaSerieYSuEntrada) {
    CalcularAlgo();
    PulsarCon(F().bAccesar, Guardar(ruta, kUno + kDos + kTres));
    EXPECT_EQ(Datos(), kUnoDosTres);
    EXPECT_EQ(F().grdt.Row(), 4);
    EXPECT_EQ(F().grdt.Col(), 1);
    EXPECT_EQ(F().n, 3);
    EXPECT_EQ(app.Globales().NRegistros, 3);
    EXPECT_EQ(app.Globales().NombreArchivo, ruta);
    EsperarResultadosVacios();

    TeclearDatos({"4"});
    EXPECT_EQ(Datos().size(), 6U) << "the entry row takes the next value";
    PulsarCon(F().bAccesar, Guardar(ruta, ""));
    EXPECT_EQ(Datos(), (Tabla{{"N°", "X"}, {"[->]", ""}}));
    EXPECT_EQ(F().grdt.Row(), 1);
    EXPECT_EQ(F().n, 0);
    PulsarCon(F().bAccesar, Guardar(ruta, kUno + kDos + kTres + "\x01\x02\x03"));
    EXPECT_EQ(Datos(), kUnoDosTres) << "the tail is never read";
    EsperarSilencio();
}

// Each text packs into these bytes with Python's struct, and with a digit less into others: 3DCCCCCD, 3EAAAAAB,
// 4B7FFFFF, 322BCC77, 4996B43F (1234567.875, for which 1234567.9 is enough), BF000000, and the zero with a sign.
TEST_F(ArchivosModuloTest, UnSingleSeMuestraConSusCifras) {
    const std::string bytes = kDecimo + "\xAB\xAA\xAA\x3E\xFF\xFF\x7F\x4B\x77\xCC\x2B\x32\x3F\xB4\x96\x49"s +
                              "\x00\x00\x00\xBF\x00\x00\x00\x80"s;
    PulsarCon(F().bAccesar, Guardar(ruta, bytes));
    Textos textos;
    for (std::size_t i = 1; i + 1 < Datos().size(); ++i) {
        textos.push_back(Datos()[i][1]);
    }
    EXPECT_EQ(textos, (Textos{"0.1", "0.33333334", "16777215.0", "0.00000001", "1234567.9", "-0.5", "0.0"}));
    PulsarCon(F().bCrear, carpeta / "copia.X");
    EXPECT_EQ(BytesDe(carpeta / "copia.X"), bytes.substr(0, 27) + '\0') << "but for the sign of zero";
}

TEST_F(ArchivosModuloTest, CancelAlCrear) {
    TeclearDatos({"1"});
    app.Pulsar(F().bCrear);
    EXPECT_TRUE(std::filesystem::is_empty(carpeta / "")) << "there is no name yet";
    PulsarCon(F().bCrear, ruta);
    TeclearDatos({"3"});
    app.Pulsar(F().bCrear);
    EXPECT_EQ(BytesDe(ruta), kUno + kTres) << "the name of the last use";
    EsperarSilencio();

    app.Pulsar(F().bMenu);
    Abrir("frmParamEsta");
    TeclearDatos({"2"});
    app.Pulsar(F().bCrear);
    EXPECT_EQ(BytesDe(ruta), kUno + kTres) << "a module opened anew has no last use";
}

TEST_F(ArchivosModuloTest, CancelAlAccesar) {
    CalcularAlgo();
    app.Pulsar(F().bAccesar);
    EXPECT_EQ(Datos(), kVacia);
    EsperarResultadosVacios();

    PulsarCon(F().bAccesar, Guardar(ruta, kUno + kDos + kTres));
    CalcularAlgo();
    app.Pulsar(F().bAccesar);
    EXPECT_EQ(Datos(), kUnoDosTres) << "the name of the last use is read again";
    EsperarResultadosVacios();
    EsperarSilencio();
}

TEST_F(ArchivosModuloTest, CancelAlCargarExcel) {
    CalcularAlgo();
    app.Pulsar(F().bCargarExcel);
    EXPECT_EQ(Datos(), kVacia);
    EsperarResultadosVacios();

    PulsarCon(F().bCargarExcel, Libro("serie.xlsx", {{Double(1)}, {Double(2)}, {Double(3)}}));
    CalcularAlgo();
    app.Pulsar(F().bCargarExcel);
    EXPECT_EQ(Datos(), kUnoDosTres);
    EsperarSilencio();
}

TEST_F(ArchivosModuloTest, FallosCallados) {
    for (const std::string& malo : {carpeta / "falta.X", carpeta / "", Guardar(carpeta / "grande.X", "")}) {
        SCOPED_TRACE(malo);
        if (malo == carpeta / "grande.X") {
            ASSERT_EQ(::truncate(malo.c_str(), std::int64_t{2} << 30), 0);
        }
        CalcularAlgo();
        PulsarCon(F().bAccesar, malo);
        EXPECT_EQ(Datos(), kVacia);
        EsperarResultadosVacios();
        CalcularAlgo();
        PulsarCon(F().bCargarExcel, malo);
        EXPECT_EQ(Datos(), kVacia);
        EsperarResultadosVacios();
    }
    CalcularAlgo();
    PulsarCon(F().bCrear, carpeta / "falta/serie.X");
    EXPECT_EQ(Control_<TextBox>("txtL1").Text(), "4.0000") << "storing clears nothing";
    EXPECT_EQ(Datos().size(), 6U);
    EsperarSilencio();
    PulsarCon(F().bAccesar, Guardar(ruta, kUno));
    EXPECT_EQ(Datos(), (Tabla{{"N°", "X"}, {" 1", "1.0"}, {"[->]", ""}})) << "the next file is read";
}

// The second record is not a number: what was read before it stays.
TEST_F(ArchivosModuloTest, ArchivoDanado) {
    for (const std::string& malo : {"\x00\x00\x80\x7F"s, "\x00\x00\xC0\xFF"s}) {
        PulsarCon(F().bAccesar, Guardar(ruta, kUno + malo + kTres));
        EXPECT_EQ(Datos()[1], (Textos{" 1", "1.0"}));
        EXPECT_EQ(F().grdt.Rows(), 5);
        EXPECT_EQ(F().grdt.TextMatrix(2, 1), "");
        EXPECT_EQ(F().grdt.TextMatrix(3, 1), "");
    }
    EsperarSilencio();
}

TEST_F(ArchivosModuloTest, DiscoLleno) {
    TeclearDatos({"1", "2", "3"});
    {
        const pruebas::DiscoDe disco(8);
        PulsarCon(F().bCrear, ruta);
    }
    EXPECT_EQ(BytesDe(ruta), kUno + kDos);
    // A number beyond a Single has the same end.
    TeclearDesde(3, 1, {"1e39"});
    PulsarCon(F().bCrear, ruta);
    EXPECT_EQ(BytesDe(ruta), kUno + kDos);
    EsperarSilencio();
}

TEST_F(ArchivosModuloTest, ErrorDelDialogoCancelado) {
    PulsarCon(F().bAccesar, Guardar(ruta, kUno + kDos + kTres));
    CalcularAlgo();
    const Tabla antes = Datos();
    EsperarMensajeDeCancel(F().bCrear, "Error desconocido al salvar el archivo " + ruta);
    EXPECT_EQ(Control_<TextBox>("txtL1").Text(), "4.0000");
    EsperarMensajeDeCancel(F().bAccesar, "Error desconocido al abrir el archivo " + ruta);
    EXPECT_EQ(Datos(), antes) << "the grid goes after the dialog";
    EsperarResultadosVacios();
    EsperarMensajeDeCancel(F().bCargarExcel, "Error desconocido al abrir el archivo " + ruta);
    EXPECT_EQ(Datos(), kVacia) << "here it goes before the dialog";

    sistema.mensajes.clear();
    sistema.errorDelDialogo = 32754;
    sistema.cancelEsError = true;
    for (Control* boton : {&F().bCrear, &F().bAccesar, &F().bCargarExcel}) {
        app.Pulsar(*boton);
    }
    EsperarSilencio();
    EXPECT_EQ(BytesDe(ruta), kUno + kDos + kTres);
}

TEST_F(ArchivosModuloTest, OtroAnchoDeRegistroYOtroModulo) {
    Guardar(ruta, kUno + kDos + kTres);
    Abrir("frmRegreLineal");
    PulsarCon(F().bAccesar, ruta);
    EXPECT_EQ(Datos(), (Tabla{{"Par", "X", "Y"}, {" 1", "1.0", "2.0"}, {"[->]", "", ""}}));
    TeclearDatos({"3", "0.1"});
    PulsarCon(F().bCrear, carpeta / "pares.XY");

    Abrir("frmDistriFre");
    PulsarCon(F().bAccesar, carpeta / "pares.XY");
    EXPECT_EQ(Datos(), (Tabla{{"N°", "X"}, {" 1", "1.0"}, {" 2", "2.0"}, {" 3", "3.0"}, {" 4", "0.1"}, {"[->]", ""}}));
    for (const char* otro : {"frmParEstAgru", "frmParamEsta"}) {
        PulsarCon(F().bCrear, ruta);
        Abrir(otro);
        PulsarCon(F().bAccesar, ruta);
        EXPECT_EQ(Datos()[4], (Textos{" 4", "0.1"})) << otro;
    }
    EsperarSilencio();
}

TEST_F(ArchivosModuloTest, MasDe1500Registros) {
    PulsarCon(F().bAccesar, Guardar(ruta, Repetir(kUno, 1501)));
    EXPECT_EQ(F().n, 1501);
    EXPECT_EQ(F().grdt.Rows(), 1503);
    EXPECT_EQ(F().grdt.TextMatrix(1501, 0), " 1501");
    EXPECT_EQ(F().grdt.TextMatrix(1501, 1), "1.0");
    EXPECT_EQ(F().grdt.TextMatrix(1502, 0), "[->]");
    EsperarSilencio();
    EsperarError(F().bCalcular, 9);
    EXPECT_EQ(Control_<TextBox>("txtL1").Text(), "");

    const std::string otro = Guardar(carpeta / "otro.X", "intacto");
    PulsarCon(F().bCrear, otro);
    EXPECT_EQ(BytesDe(otro), "intacto");
    EsperarSilencio();
}

TEST_F(ArchivosModuloTest, MasRegistrosQueUnEntero) {
    PulsarCon(F().bAccesar, Guardar(ruta, Repetir(kUno, 32768)));
    EXPECT_EQ(Datos(), kVacia);
    EXPECT_EQ(F().n, 0);
    EsperarSilencio();
}

TEST_F(ArchivosModuloTest, HojaDeCalculo) {
    CalcularAlgo();
    PulsarCon(F().bCargarExcel, Libro("serie.xlsx", {{Double(1.5), "otra"},
                                                     {Double(-0.123456789123)},
                                                     {"texto", Double(7)},
                                                     {Double(1e10)},
                                                     {std::monostate(), Double(5)},
                                                     {Double(6)}}));
    EXPECT_EQ(
        Datos(),
        (Tabla{
            {"N°", "X"}, {" 1", "1.5"}, {" 2", "-0.12345679"}, {" 3", "texto"}, {" 4", "10000000000.0"}, {"[->]", ""}}))
        << "the data end at the gap, and a text stands as it is";
    EXPECT_EQ(F().grdt.Row(), 5);
    EXPECT_EQ(F().grdt.Col(), 1);
    EXPECT_EQ(F().n, 4);
    EXPECT_EQ(app.Globales().NRegistros, 4);
    EXPECT_EQ(app.Globales().NombreArchivo, carpeta / "serie.xlsx");
    EsperarResultadosVacios();

    // The sheet that openpyxl wrote (see tests/datos/hojas): 1.5, 2.5 and 3.5 with texts beside them, a gap, 5.5.
    Abrir("frmRegreLineal");
    PulsarCon(F().bCargarExcel, std::string(CUENCALIA_DATOS) + "/hojas/openpyxl.xlsx");
    EXPECT_EQ(Datos(), (Tabla{{"Par", "X", "Y"},
                              {" 1", "1.5", "compartido"},
                              {" 2", "2.5", "en línea €"},
                              {" 3", "3.5", ""},
                              {"[->]", "", ""}}));
    PulsarCon(F().bCargarExcel, std::string(CUENCALIA_DATOS) + "/hojas/vacio.xlsx");
    EXPECT_EQ(Datos(), (Tabla{{"Par", "X", "Y"}, {"[->]", "", ""}}));
    EsperarSilencio();
}

TEST_F(ArchivosModuloTest, HojaDemasiadoLarga) {
    TeclearDatos({"7"});
    PulsarCon(F().bCargarExcel, LibroDeUnos(1501));
    EXPECT_EQ(Datos(), kVacia);
    PulsarCon(F().bCargarExcel, LibroDeUnos(1500));
    EXPECT_EQ(F().n, 1500);
    EXPECT_EQ(F().grdt.Rows(), 1502);
    EXPECT_EQ(F().grdt.TextMatrix(1500, 1), "1.0");

    Abrir("frmRegreLineal");
    PulsarCon(F().bCargarExcel, LibroDeUnos(1551));
    EXPECT_EQ(F().grdt.Rows(), 2);
    PulsarCon(F().bCargarExcel, LibroDeUnos(1550));
    EXPECT_EQ(F().grdt.Rows(), 1552) << "this module's arrays are longer";
    EsperarSilencio();
}

TEST_F(ArchivosModuloTest, LibroDanado) {
    const std::string libro = Libro("serie.xlsx", {{Double(1)}, {Double(2)}});
    const std::string bytes = BytesDe(libro);
    for (const std::string& danado : {bytes.substr(0, bytes.size() / 2), "no es un libro"s, ""s}) {
        TeclearDatos({"7"});
        PulsarCon(F().bCargarExcel, Guardar(libro, danado));
        EXPECT_EQ(Datos(), kVacia) << danado.size();
    }
    EsperarSilencio();
}

}  // namespace
}  // namespace cuencalia
