#include <gtest/gtest.h>

#include "frame/base/textos.h"
#include "frame/modulo/cajas.h"
#include "frame/modulo/meses.h"
#include "frame/modulo/modulocalculo.h"
#include "guion/plataformaguion.h"
#include "tests/archivos_en_disco.h"

namespace cuencalia {
namespace {

using pruebas::BytesDe;
using pruebas::Guardar;
using Textos = std::vector<std::string>;
using namespace std::string_literals;

constexpr FormatoSerie kArchivoMargen{1, "Crear", "Abrir", "*.M", 1, 1, true, "0.0#", "0.0"};

/// A module of one data column whose files have a trailing record and whose sheets a first row of their own. It reads
/// into twelve Singles.
class ModuloFichas : public ModuloCalculo {
  public:
    explicit ModuloFichas(Aplicacion& app)
        : ModuloCalculo(app, "frmFichas",
                        {.titulo = "Fichas",
                         .datos = {.encabezados = {"Mes", "T"}, .etiqueta = MesCorto},
                         .archivo = &kArchivoMargen}) {
        LeerEn({&t});
        DeclararBotones({{&bOtro, "otro"}}, {{&bExtra, "extra"}});
        DeclararTablas({&tabla});
        DeclararResultados({&txtr});
        DeclararEntradas({&txta});
        AvisarFallos(kDatosInadecuados);
        SoloNumero(txta);
        SoloNumero(txtb, Cifras::Enteras);
        EncadenarEnter({&txta, &txtb}, bExtra);
        bExtra.Click.Conectar([this] { exigido = Exigir(txta, {"Falta a"}) && ExigirCalculo(); });
    }

    Arreglo<Single, 1, 12> t;
    TextBox txta{*this, "txta"}, txtb{*this, "txtb"}, txtr{*this, "txtr"}, txtMargen{*this, "txtMargen"};
    CommandButton bOtro{*this, "bOtro", "Sin orden"}, bExtra{*this, "bExtra", "Extra"};
    Tabla tabla{*this,
                "tabla",
                "Tabla",
                {.filas = 4, .columnas = {{"N°", 700}, {"v", 900}}, .columnasFijas = 1, .unidades = {"", "(mm)"}}};
    bool exigido = false;

    void GenerarReporte(Reporte&) override {}
    std::vector<Registro> RegistrosDeCola() override { return {{CSng(Val(txtMargen.Text()))}}; }
    void LeerCola(const std::vector<Registro>& cola) override { txtMargen.Text = Format(cola[0][0], "0.##"); }
    void LeerCabeza(const Hoja& hoja) override { txtMargen.Text = Format(std::get<Double>(hoja.Cells(1, 1)), "0.0"); }

  protected:
    bool Calcular() override {
        CargarMatrices();
        tabla.PonerFila(2, {"1", Format(1 / Double(t(1)), "0.0")});
        txtr.Text = "listo";
        return true;
    }
    Disposicion Contenido() override { return Columna({txta, txtb, txtr, txtMargen, bExtra, bOtro, tabla}); }
};

/// Columns as told; it calculates nothing but the reading of its arrays.
class ModuloColumnas : public ModuloCalculo {
  public:
    ModuloColumnas(Aplicacion& app, const std::string& nombre, const DescripcionGrid& grid)
        : ModuloCalculo(app, nombre, {.titulo = nombre, .datos = grid, .archivo = &kArchivoX}),
          arreglos(grid.encabezados.size() - 1) {
        std::vector<Matriz> columnas;
        for (Serie& arreglo : arreglos) {
            columnas.emplace_back(&arreglo);
        }
        LeerEn(columnas);
        DeclararBotones({});
    }

    std::vector<Serie> arreglos;

    void GenerarReporte(Reporte&) override {}

  protected:
    bool Calcular() override {
        CargarMatrices();
        return true;
    }
};

class MenuPrueba : public Formulario {
  public:
    explicit MenuPrueba(Aplicacion& app) : Formulario(app, "frmCuencalia", "Menú") {}
};

TablaFormas Formas() {
    const auto columnas = [](const std::string& nombre, const DescripcionGrid& grid) {
        return [=](Aplicacion& a) { return std::make_unique<ModuloColumnas>(a, nombre, grid); };
    };
    return {{"frmCuencalia", [](Aplicacion& a) { return std::make_unique<MenuPrueba>(a); }},
            {"frmFichas", [](Aplicacion& a) { return std::make_unique<ModuloFichas>(a); }},
            {"frmUna", columnas("frmUna", {.encabezados = {"N°", "X"}})},
            {"frmTres", columnas("frmTres", {.encabezados = {"Trío", "A", "B", "C"},
                                             .anchos = {900, 1000},
                                             .patronEdicion = kPatronEdicionB,
                                             .columnaSel = 2,
                                             .columnaSelEntrada = 3})}};
}

/// File dialogs whose Cancel is an error, where a test asks for it.
struct PlataformaConCancel : PlataformaGuion {
    int errorDelDialogo = 0;

    void ElegirArchivo(ModoArchivo modo, const std::string& titulo, const std::string& filtro,
                       std::string& nombre) override {
        if (errorDelDialogo != 0) {
            throw ErrorEjecucion(errorDelDialogo);
        }
        PlataformaGuion::ElegirArchivo(modo, titulo, filtro, nombre);
    }
};

class ModuloTest : public testing::Test {
  protected:
    ModuloTest() { Abrir("frmUna"); }

    void Abrir(const std::string& nombre) {
        app.Despachar([&] { app.ModuloAbrir(nombre); });
        forma = nombre;
    }
    ModuloCalculo& M() { return dynamic_cast<ModuloCalculo&>(*app.Cargada(forma)); }
    ModuloFichas& F() { return dynamic_cast<ModuloFichas&>(M()); }
    FlexGrid& G() { return M().datos.grdt; }
    TextBox& Caja() { return M().datos.txtt; }

    /// Types the characters; these stand for keys: ENTER \n, Escape ^, down v, up A, Backspace <.
    void Teclas(const std::string& texto) {
        for (const char c : texto) {
            const int codigo = c == '\n'  ? kTeclaEnter
                               : c == '^' ? kTeclaEscape
                               : c == 'v' ? kTeclaAbajo
                               : c == 'A' ? kTeclaArriba
                               : c == '<' ? kTeclaRetroceso
                                          : 0;
            app.PulsarTecla(codigo, codigo == 0 ? c : codigo == kTeclaAbajo || codigo == kTeclaArriba ? 0 : codigo);
        }
    }
    void Celda(int fila, int columna, BotonRaton boton = kBotonIzquierdo) {
        app.Despachar([&] { G().Presionar(boton, fila, columna); });
    }
    bool MenuFila(const std::string& entrada, int fila) {
        sistema.entradaEmergente = entrada;
        sistema.entradaElegida = false;
        Celda(fila, 1, kBotonDerecho);
        sistema.entradaEmergente.reset();
        return sistema.entradaElegida;
    }
    /// The rows below the heading, cells joined by commas, and the cursor.
    std::string Ver() {
        std::string texto;
        for (int f = 1; f < G().Rows(); ++f) {
            for (int c = 0; c < G().Cols(); ++c) {
                texto += (c == 0 ? "" : ",") + G().TextMatrix(f, c);
            }
            texto += "|";
        }
        return texto + " @" + std::to_string(G().Row()) + "," + std::to_string(G().Col());
    }
    std::string Tras(const std::string& teclas) { return Teclas(teclas), Ver(); }
    std::string TrasPulsar(Control& boton, const std::string& archivo = "") {
        if (!archivo.empty()) {
            sistema.archivo = archivo;
        }
        app.Pulsar(boton);
        return Ver();
    }
    /// What was told since the last call: messages, and numbers of run-time errors.
    Textos Dicho() {
        Textos dicho;
        for (const Mensaje& m : sistema.mensajes) {
            dicho.push_back(m.texto);
        }
        for (const ErrorEjecucion& e : sistema.errores) {
            dicho.push_back(std::to_string(e.Numero()));
        }
        sistema.mensajes.clear();
        sistema.errores.clear();
        return dicho;
    }

    PlataformaConCancel sistema;
    Aplicacion app{sistema, Formas()};
    std::string forma;
};

TEST_F(ModuloTest, LoDigitadoEsUnNumeroAlConfirmarlo) {
    EXPECT_EQ(Ver(), "[?],| @1,1");
    EXPECT_EQ(Tras("12,5\nabc\n1e2\n0.123456789123\n.5\n7x\n\n"),
              " 1,12.0| 2,0.0| 3,100.0| 4,0.12345679| 5,0.5| 6,7.0| 7,0.0|[->],| @8,1");
    Abrir("frmTres");
    EXPECT_EQ(G().ColWidth(0) + G().ColWidth(2), 900 + 1800);
    EXPECT_EQ(Tras("12,5\n2.50\n"), "[->],12.0,2.5,| @1,3") << "only the last column commits the row";
    EXPECT_EQ(Tras("\n"), " 1,12.0,2.5,0.0|[->],,,| @2,1");
    EXPECT_EQ(Tras("4\n5"), " 1,12.0,2.5,0.0|[->],4.0,,| @2,2");
    Celda(2, 1);
    EXPECT_EQ(Ver(), " 1,12.0,2.5,0.0|[->],4.0,5,| @2,1") << "another cell of the same row";
    Celda(1, 3);
    EXPECT_EQ(Ver(), " 1,12.0,2.5,0.0|[?],,,| @1,3") << "a row left half-way is lost";
    EXPECT_EQ(Tras("40,9\n"), " 1,12.0,2.5,40.0|[->],,,| @2,3") << "down the same column";
}

TEST_F(ModuloTest, TeclasDeLaCajaFlotante) {
    Teclas("1\n2\n3\n");
    Celda(1, 1);
    EXPECT_EQ(Tras("7v"), " 1,7| 2,2.0| 3,3.0|[?],| @2,1") << "stored as it was written";
    EXPECT_EQ(Tras("8,9zA"), " 1,7| 2,8,9z| 3,3.0|[?],| @1,1");
    EXPECT_EQ(Tras("6A"), " 1,6| 2,8,9z| 3,3.0|[?],| @1,1");
    EXPECT_EQ(Tras("99^"), " 1,6| 2,8,9z| 3,3.0|[?],| @1,1");
    EXPECT_EQ(app.Foco(), &G());
    Celda(3, 1);
    EXPECT_EQ(Tras("5v4v"), " 1,6| 2,8,9z| 3,5|[->],4| @4,1");
    app.Pulsar(M().bCalcular);
    EXPECT_EQ(M().n, 3);
    EXPECT_EQ(dynamic_cast<ModuloColumnas&>(M()).arreglos[0](2), 8) << "read as a number all the same";
    Celda(4, 1);
    EXPECT_EQ(Tras("\n"), " 1,6| 2,8,9z| 3,5| 4,4.0|[->],| @5,1");

    // A key replaces the cell, the blank and Backspace edit it as it stands, offered selected.
    Celda(4, 1);
    using Edicion = std::tuple<std::string, int, int>;
    // clang-format off
    const std::pair<std::string, Edicion> casos[] = {
        {"(", {"(", 1, 0}}, {"&%'", {"&%'", 3, 0}}, {" ", {"4.0", 0, 3}}, {"<", {"4.0", 0, 3}}, {" 6", {"6", 1, 0}}};
    // clang-format on
    for (const auto& [teclas, queda] : casos) {
        EXPECT_EQ(M().StatusBar1.Panel(1), "");
        Teclas(teclas);
        EXPECT_EQ(app.Foco(), &Caja());
        EXPECT_EQ(Edicion(Caja().Text(), Caja().SelStart(), Caja().SelLength()), queda);
        EXPECT_EQ(M().StatusBar1.Panel(1), "Para introducir o modificar datos, digitarlos y luego presionar ENTER");
        Teclas("^");
    }
    app.PulsarTecla(kTeclaF2, 0);
    EXPECT_TRUE(Caja().Visible);
    app.Despachar([&] { G().DesplazadoPorUsuario(2); });
    EXPECT_FALSE(Caja().Visible) << "scrolling drops what was being written";
    EXPECT_EQ(app.Foco(), &G());
    Teclas("9");
    app.Despachar([&] { G().PonerRow(2); });
    EXPECT_EQ(G().TextMatrix(4, 1), "4.0") << "so does a move by the program";
    Teclas("9");
    Celda(3, 1);
    EXPECT_EQ(G().TextMatrix(2, 1), "9") << "a click brings the focus first, and that stores";
}

TEST_F(ModuloTest, MenuDeFila) {
    Teclas("10\n20\n30\n");
    EXPECT_TRUE(MenuFila("mnuEditInsertar", 2));
    EXPECT_EQ(Ver(), " 1,10.0| 2,| 3,20.0| 4,30.0|[?],| @2,1");
    EXPECT_FALSE(MenuFila("mnuEditInsertar", 5)) << "greyed on the entry row";
    app.Despachar([&] { M().datos.InsertarFila(); });
    EXPECT_EQ(Ver(), " 1,10.0| 2,| 3,20.0| 4,30.0|[->],| @5,1");
    Celda(5, 1);
    EXPECT_TRUE(M().datos.mnuEditInsertar.Enabled);
    EXPECT_TRUE(MenuFila("mnuEditEliminar", 4));
    EXPECT_EQ(Ver(), " 1,10.0| 2,| 3,20.0|[?],| @4,1");
    MenuFila("mnuEditEliminar", 1);
    EXPECT_EQ(Ver(), " 1,| 2,20.0|[?],| @1,1");
    MenuFila("mnuEditEliminar", 3);
    EXPECT_EQ(Ver(), "[?],| @1,1") << "on the entry row all the data go";

    Abrir("frmTres");
    Teclas("1\n2\n3\n4\n5\n6\n");
    const auto seleccion = [&](int fila) {
        Celda(fila, 3, kBotonDerecho);
        return std::to_string(G().Row()) + "," + std::to_string(G().Col()) + " " + std::to_string(G().RowSel()) + "," +
               std::to_string(G().ColSel());
    };
    EXPECT_EQ(seleccion(2), "2,1 2,2");
    EXPECT_EQ(seleccion(3), "3,1 1,3");
    MenuFila("mnuEditEliminar", 1);
    EXPECT_EQ(G().ColSel(), 1) << "the mark goes with the row";
}

TEST_F(ModuloTest, DondeQuedaElCursor) {
    const auto tras = [&](void (GridDatos::*metodo)()) {
        app.Despachar([&] { M().bCalcular.SetFocus(); });
        app.Despachar([&] { (M().datos.*metodo)(); });
        return (app.Foco() == &G() ? "" : "sin foco ") + std::to_string(G().Row()) + "," + std::to_string(G().Col());
    };
    EXPECT_EQ(tras(&GridDatos::MenorQue2Celdas), "1,1") << "the entry row of a short grid";
    Teclas("1\n2\n3\n4\n5\n");
    EXPECT_EQ(tras(&GridDatos::MenorQue2Celdas), "2,1");
    EXPECT_EQ(tras(&GridDatos::MenorQue4Celdas), "4,1");
    EXPECT_EQ(tras(&GridDatos::MenorQue5Celdas), "5,1");

    // ENTER keeps the row in sight from row 12 on, twelve rows below the top.
    Celda(6, 1);
    Teclas(std::string(34, '\n'));
    const auto arriba = [&](int fila) {
        Celda(fila, 1);
        app.Despachar([&] { G().DesplazadoPorUsuario(5); });
        Teclas("\n");
        return G().TopRow();
    };
    EXPECT_EQ(G().Row(), 40);
    EXPECT_EQ(G().TopRow(), 28);
    EXPECT_EQ(arriba(10), 5);
    EXPECT_EQ(arriba(11), 1);
    EXPECT_EQ(arriba(20), 9);
}

TEST_F(ModuloTest, BotonesYSusImagenes) {
    Abrir("frmFichas");
    std::vector<Control*> botones;
    for (const char* nombre : {"bCalcular", "bOtro", "bLimpiar", "bImprimir", "bMenu", "bCrear", "bAccesar", "bReporte",
                               "bCalculadora", "bCargarExcel", "bExtra"}) {
        botones.push_back(F().Controls(nombre));
    }
    // The i-th button has the pictures 2i - 1 at rest and 2i lit: a digit for each, 0 dark and 1 lit.
    const auto tras = [&](Control& bajoElPuntero) {
        app.Despachar([&] { bajoElPuntero.MouseMove(); });
        std::string luces;
        for (int i = 1; i <= static_cast<int>(botones.size()); ++i) {
            const std::string imagen = dynamic_cast<CommandButton&>(*botones[std::size_t(i - 1)]).Picture();
            EXPECT_EQ(imagen, F().ImageList1.Imagen(imagen == F().ImageList1.Imagen(2 * i) ? 2 * i : 2 * i - 1));
            luces += imagen == F().ImageList1.Imagen(2 * i) ? '1' : '0';
        }
        return luces;
    };
    EXPECT_EQ(tras(F().bCalcular), "10000000000");
    EXPECT_EQ(tras(F().bReporte), "10000001000") << "a button does nothing to the others";
    EXPECT_EQ(tras(F().Frame6), "00000001000") << "a frame darkens its own";
    EXPECT_EQ(tras(F().bExtra), "00000001001");
    EXPECT_EQ(tras(F()), "00000000000") << "the form darkens all";
    EXPECT_FALSE(F().bOtro.Enabled || F().bCalculadora.Enabled) << "nothing answers them here";

    app.Pulsar(M().bImprimir);
    EXPECT_EQ(sistema.impresas, Textos{"frmFichas"});
    app.Pulsar(M().bMenu);
    EXPECT_EQ(app.Cargada("frmFichas"), nullptr);
    EXPECT_EQ(sistema.alFrente, app.Cargada("frmCuencalia"));
}

TEST_F(ModuloTest, ResultadosFallosYLimpieza) {
    Abrir("frmFichas");
    EXPECT_EQ(F().tabla.TextMatrix(1, 1), "(mm)");
    EXPECT_EQ(F().tabla.FixedRows(), 2);
    Teclas("4\n");
    app.Pulsar(F().bExtra);
    Teclas("1");
    EXPECT_EQ(F().txta.Text(), "1") << "the box that must be filled has the focus";
    app.Pulsar(F().bExtra);
    EXPECT_EQ(Dicho(), (Textos{"Falta a", "Efectuar cálculos antes de graficar"}));
    app.Pulsar(F().bCalcular);
    app.Pulsar(F().bExtra);
    EXPECT_TRUE(F().exigido);
    EXPECT_EQ(F().tabla.TextMatrix(2, 1), "0.3") << "1 / 4 is 0.25";
    EXPECT_TRUE(F().txtr.Locked && !F().txta.Locked);
    app.Pulsar(F().bLimpiar);
    EXPECT_EQ(Ver(), "[?],| @1,1");
    EXPECT_EQ(F().tabla.TextMatrix(2, 1) + F().txtr.Text() + F().txta.Text(), "");
    EXPECT_FALSE(F().calculado);

    for (const int filas : {1, 13}) {  // 1 / 0, and a thirteenth month
        app.Despachar([&] { F().datos.EmpezarCarga(filas); });
        app.Pulsar(F().bCalcular);
        EXPECT_EQ(F().txtr.Text(), "");
        EXPECT_EQ(Dicho(), Textos{"Ingresar datos adecuadamente "}) << "the module's own words";
    }
}

TEST_F(ModuloTest, CajasDeNumeros) {
    Abrir("frmFichas");
    app.Despachar([&] { F().txta.SetFocus(); });
    Teclas("-1a2..5,e<\n3.4\n");
    EXPECT_EQ(F().txta.Text() + " " + F().txtb.Text(), "12. 34");
    EXPECT_EQ(app.Foco(), &F().bExtra);
}

// 1 = 3F800000, 2 = 40000000, 3 = 40400000, 0.1 = 3DCCCCCD, least byte first.
const std::string kUno = "\x00\x00\x80\x3F"s;
const std::string kDos = "\x00\x00\x00\x40"s;
const std::string kTres = "\x00\x00\x40\x40"s;
const std::string kDecimo = "\xCD\xCC\xCC\x3D"s;

class ArchivosModuloTest : public ModuloTest {
  protected:
    std::string Libro(const std::vector<ValorCelda>& columna) {
        Hoja hoja;
        for (std::size_t f = 0; f < columna.size(); ++f) {
            hoja.Poner(static_cast<int>(f) + 1, 1, columna[f]);
        }
        sistema.Hojas().EscribirLibro(carpeta / "serie.xlsx", hoja);
        return carpeta / "serie.xlsx";
    }

    pruebas::CarpetaTemporal carpeta;
    const std::string ruta = carpeta / "serie.X";
};

TEST_F(ArchivosModuloTest, GuardarYCargar) {
    ComandosArchivo& a = M().archivos;
    EXPECT_EQ(TrasPulsar(a.bAccesar, Guardar(ruta, kUno + kDecimo + kTres + "\x01\x02\x03")),
              " 1,1.0| 2,0.1| 3,3.0|[->],| @4,1")
        << "the tail is never read";
    EXPECT_EQ(M().n, 3);
    EXPECT_EQ(sistema.filtroDialogo, "Valores X|*.X");
    Celda(3, 1);
    Teclas("2zv");
    TrasPulsar(a.bCrear, Guardar(carpeta / "otra.X", std::string(1000, 'x')));
    EXPECT_EQ(BytesDe(carpeta / "otra.X"), kUno + kDecimo + kDos) << "no question, and nothing of the old file";
    EXPECT_EQ(sistema.filtroDialogo, "Valores de X|*.X");
    // Single values by their shortest digits: 3EAAAAAB, 4B7FFFFF, 322BCC77, 4996B43F (1234567.875), the zero with a
    // sign.
    EXPECT_EQ(TrasPulsar(a.bAccesar, Guardar(ruta, "\xAB\xAA\xAA\x3E\xFF\xFF\x7F\x4B\x77\xCC\x2B\x32\x3F\xB4\x96\x49"s +
                                                       "\x00\x00\x00\x80"s)),
              " 1,0.33333334| 2,16777215.0| 3,0.00000001| 4,1234567.9| 5,0.0|[->],| @6,1");
    EXPECT_EQ(TrasPulsar(a.bAccesar), Ver()) << "a cancelled dialog reads the name of the last use again";
    EXPECT_EQ(TrasPulsar(a.bAccesar, Guardar(ruta, "")), "[->],| @1,1");
    EXPECT_EQ(Dicho(), Textos{});

    app.Pulsar(M().bMenu);
    Abrir("frmUna");
    Teclas("1\n");
    TrasPulsar(M().archivos.bCrear);
    EXPECT_EQ(BytesDe(ruta), "") << "a module opened anew has no last use";
}

TEST_F(ArchivosModuloTest, ColaCabezaYEtiquetas) {
    Abrir("frmFichas");
    ComandosArchivo& a = F().archivos;
    EXPECT_EQ(TrasPulsar(a.bAccesar, Guardar(ruta, kUno + kDecimo + kDos)), "Ene,1.0|Feb,0.1|[->],| @3,1");
    EXPECT_EQ(F().txtMargen.Text(), "2.");
    TrasPulsar(a.bCrear, carpeta / "copia.M");
    EXPECT_EQ(BytesDe(carpeta / "copia.M"), kUno + kDecimo + kDos);
    EXPECT_EQ(TrasPulsar(a.bAccesar, Guardar(ruta, kTres)), "[->],| @1,1") << "no data, and the trailing record";
    EXPECT_EQ(F().txtMargen.Text(), "3.");
    EXPECT_EQ(TrasPulsar(a.bAccesar, Guardar(ruta, "")), "[?],| @1,1") << "not even the trailing record";

    const std::vector<ValorCelda> trece(13, Double(1.25));
    EXPECT_EQ(TrasPulsar(a.bCargarExcel, Libro({Double(7), Double(1.25), "texto", std::monostate(), Double(6)})),
              "Ene,1.3|Feb,texto|[->],| @3,1")
        << "up to the gap; a text stands as it is";
    EXPECT_TRUE(F().StatusBar1.Panel(2).starts_with("1 celda marcada no es un número")) << F().StatusBar1.Panel(2);
    EXPECT_EQ(sistema.filtroDialogo, "Archivos de Excel 97-2003|*.xls|Archivos de Excel 07-2010|*.xlsx");
    EXPECT_EQ(F().txtMargen.Text(), "7.0");
    EXPECT_EQ(F().t(1), Single(1.3F)) << "read, as the grid shows it, before any calculation";
    EXPECT_TRUE(TrasPulsar(a.bCargarExcel, Libro(trece)).ends_with("Dic,1.3|[->],| @13,1"));
    std::vector<ValorCelda> catorce = trece;
    catorce.emplace_back(Double(1));
    EXPECT_EQ(TrasPulsar(a.bCargarExcel, Libro(catorce)), "[?],| @1,1") << "more than the array holds";
    EXPECT_EQ(TrasPulsar(a.bCargarExcel, Guardar(carpeta / "no.xlsx", "no es un libro")), "[?],| @1,1");
    EXPECT_EQ(Dicho(), Textos{});
}

TEST_F(ArchivosModuloTest, FallosCallados) {
    ComandosArchivo& a = M().archivos;
    for (const std::string& malo : {carpeta / "falta.X", carpeta / ""}) {
        Teclas("7\n");
        EXPECT_EQ(TrasPulsar(a.bAccesar, malo), "[?],| @1,1");
    }
    // The second record is no number: what was read before it stays, and the old series can be brought back.
    Teclas("7\n");
    EXPECT_EQ(TrasPulsar(a.bAccesar, Guardar(ruta, kUno + "\x00\x00\x80\x7F"s + kTres)), " 1,1.0| 2,|,|,| @1,1");
    EXPECT_TRUE(M().StatusBar1.Panel(2).starts_with("El registro 2 no es un número")) << M().StatusBar1.Panel(2);
    app.Elegir(M().datos.mnuEditDeshacer);
    EXPECT_EQ(Ver(), " 1,7.0|[->],| @2,1");
    Teclas("8\n");
    app.Elegir(M().datos.mnuEditRehacer);
    EXPECT_EQ(Ver(), " 1,7.0| 2,8.0|[->],| @3,1") << "what was taken back is gone once more is typed";
    Teclas("5");
    app.Pulsar(M().bCalcular);
    EXPECT_TRUE(M().StatusBar1.Panel(2).starts_with("La última fila no se ha confirmado"));
    app.Elegir(M().datos.mnuEditDeshacer);
    EXPECT_EQ(M().StatusBar1.Panel(3), "n = 2 · los resultados son anteriores a los datos");
    EXPECT_EQ(TrasPulsar(a.bAccesar, Guardar(ruta, std::string(4 * 32768, '\0'))), "[?],| @1,1");
    TrasPulsar(a.bAccesar, Guardar(ruta, std::string(4 * 1500, '\0')));
    app.Pulsar(M().bCalcular);
    EXPECT_EQ(M().n, 1500);
    TrasPulsar(a.bAccesar, Guardar(ruta, std::string(4 * 1501, '\0')));
    EXPECT_EQ(G().TextMatrix(1501, 0), " 1501") << "the grid has no limit; calculating and storing have";
    app.Pulsar(M().bCalcular);
    EXPECT_EQ(Dicho(), Textos{"9"});
    TrasPulsar(a.bCrear, Guardar(carpeta / "otra.X", "intacto"));
    EXPECT_EQ(BytesDe(carpeta / "otra.X"), "intacto");
    TrasPulsar(a.bAccesar, Guardar(ruta, kUno + kDos));
    Celda(2, 1);
    Teclas("1e39\n");
    TrasPulsar(a.bCrear, carpeta / "nueva.X");
    EXPECT_EQ(BytesDe(carpeta / "nueva.X"), kUno) << "beyond a Single: what came before is stored";
    EXPECT_TRUE(M().StatusBar1.Panel(2).starts_with("El valor 2 no cabe")) << M().StatusBar1.Panel(2);
    EXPECT_EQ(Dicho(), Textos{});

    sistema.errorDelDialogo = kDialogoCancelado;
    const std::string nombre = carpeta / "nueva.X";
    app.Pulsar(a.bCrear);
    EXPECT_EQ(TrasPulsar(a.bAccesar), " 1,1.0| 2,1" + std::string(39, '0') + ".0|[->],| @3,1")
        << "the grid goes after the dialog";
    EXPECT_EQ(TrasPulsar(a.bCargarExcel), "[?],| @1,1") << "here before it";
    EXPECT_EQ(Dicho(), (Textos{"Error desconocido al salvar el archivo " + nombre,
                               "Error desconocido al abrir el archivo " + nombre,
                               "Error desconocido al abrir el archivo " + nombre}));
    sistema.errorDelDialogo = 32754;
    app.Pulsar(a.bCrear);
    EXPECT_EQ(Dicho(), Textos{});
}

}  // namespace
}  // namespace cuencalia
