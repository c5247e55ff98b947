#include "frame/modulo/modulo.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "frame/base/textos.h"
#include "guion/plataformaguion.h"

namespace cuencalia {
namespace {

using Textos = std::vector<std::string>;

/// A module that calculates nothing: it reads its columns and counts what the frame asks of it.
class ModuloPrueba : public ModuloCalculo {
  public:
    ModuloPrueba(Aplicacion& app, const std::string& nombre, const DescripcionModulo& descripcion)
        : ModuloCalculo(app, nombre, descripcion), arreglos(descripcion.encabezados.size() - 1) {
        std::vector<ArregloBase<Double>*> columnas;
        for (Serie& arreglo : arreglos) {
            columnas.push_back(&arreglo);
        }
        LeerEn(columnas);
        AgregarBoton(bCalcular, "calcular");
        AgregarBoton(bOtro, "otro");
        AgregarBoton(bLimpiar, "limpiar");
        AgregarBoton(bImprimir, "imprimir");
        AgregarBoton(bMenu, "menu");
        AgregarBoton(bExtra, "extra");
        bExtra.Click.Conectar([] {});
    }

    CommandButton bOtro{*this, "bOtro", "Sin orden"}, bExtra{*this, "bExtra", "Extra"};
    std::vector<Serie> arreglos;
    std::string pasos;  ///< R: results built, L: the rest cleared.

    void InicializarResultados() override { pasos += 'R'; }
    void bCalcular_Click() override { CargarMatrices(); }
    void GenerarReporte(Reporte&) override { pasos += 'I'; }

  protected:
    void LimpiarOtros() override { pasos += 'L'; }
    Disposicion Contenido() override { return Grupo(Frame7, {bExtra}); }
    Disposicion ZonaBotones() override { return Grupo(Frame6, {bCalcular, bOtro, bLimpiar, bImprimir, bMenu}); }
};

class MenuPrueba : public Formulario {
  public:
    explicit MenuPrueba(Aplicacion& app) : Formulario(app, "frmCuencalia", "Menú") {}
};

/// One column, four columns, a month form, four columns with selection columns and widths of their own.
TablaFormas Formas() {
    const auto modulo = [](const std::string& nombre, const DescripcionModulo& descripcion) {
        return [nombre, descripcion](Aplicacion& a) { return std::make_unique<ModuloPrueba>(a, nombre, descripcion); };
    };
    const Textos cuarteto{"Cuarteto", "X1", "X2", "X3", "Y"};
    return {
        {"frmCuencalia", [](Aplicacion& a) { return std::make_unique<MenuPrueba>(a); }},
        {"frmUna", modulo("frmUna", {.titulo = "Una columna", .encabezados = {"N°", "X"}})},
        {"frmCuatro",
         modulo("frmCuatro", {.titulo = "Cuatro columnas", .encabezados = cuarteto, .patronEdicion = kPatronEdicionB})},
        {"frmMes", modulo("frmMes", {.titulo = "Meses", .encabezados = {"Mes", "T"}, .etiquetas = EtiquetaFila::Mes})},
        {"frmSel", modulo("frmSel", {.titulo = "Selección",
                                     .encabezados = cuarteto,
                                     .anchos = {900, 1000, 2000},
                                     .columnaSel = 1,
                                     .columnaSelEntrada = 3})},
    };
}

class ModuloTest : public testing::Test {
  protected:
    ModuloTest() { Abrir("frmUna"); }

    void Abrir(const std::string& nombre) {
        app.Despachar([&] { app.ModuloAbrir(nombre); });
        forma = nombre;
    }

    ModuloPrueba& M() { return dynamic_cast<ModuloPrueba&>(*app.Cargada(forma)); }
    FlexGrid& G() { return M().grdt; }
    TextBox& Caja() { return M().txtt; }

    void Teclear(const std::string& texto) {
        for (const char c : texto) {
            app.PulsarTecla(0, c);
        }
    }
    void Enter() { app.PulsarTecla(kTeclaEnter, kTeclaEnter); }
    void Escape() { app.PulsarTecla(kTeclaEscape, kTeclaEscape); }
    void Tecla(int codigo) { app.PulsarTecla(codigo, 0); }
    void Celda(int fila, int columna, BotonRaton boton = kBotonIzquierdo) {
        app.Despachar([&] { G().Presionar(boton, fila, columna); });
    }
    /// Types each value with its ENTER from where the cursor stands.
    void Valores(const Textos& valores) {
        for (const std::string& valor : valores) {
            Teclear(valor);
            Enter();
        }
    }
    void MenuFila(const std::string& entrada, int fila) {
        sistema.entradaEmergente = entrada;
        sistema.entradaElegida = false;
        Celda(fila, 1, kBotonDerecho);
        sistema.entradaEmergente.reset();
    }

    Textos Columna(int columna) {
        Textos textos;
        for (int f = 0; f < G().Rows(); ++f) {
            textos.push_back(G().TextMatrix(f, columna));
        }
        return textos;
    }
    Textos Fila(int fila) {
        Textos textos;
        for (int c = 0; c < G().Cols(); ++c) {
            textos.push_back(G().TextMatrix(fila, c));
        }
        return textos;
    }
    std::string Cursor() { return std::to_string(G().Row()) + "," + std::to_string(G().Col()); }

    PlataformaGuion sistema;
    Aplicacion app{sistema, Formas()};
    std::string forma;
};

TEST_F(ModuloTest, AlAbrir) {
    EXPECT_EQ(Columna(0), (Textos{"N°", "[?]"}));
    EXPECT_EQ(Columna(1), (Textos{"X", ""}));
    EXPECT_EQ(G().FixedRows(), 1);
    EXPECT_EQ(G().FixedCols(), 1);
    EXPECT_EQ(G().ColWidth(0), 700);
    EXPECT_EQ(G().ColWidth(1), 1800);
    EXPECT_EQ(G().ColAlignment(0), 4);
    EXPECT_EQ(G().ColAlignment(1), 4);
    EXPECT_EQ(G().RowHeight(0), 340);
    EXPECT_EQ(G().BorderStyle(), 1);
    EXPECT_EQ(G().Width(), 700 + 1800 + 300);
    EXPECT_EQ(G().Height(), 14 * G().RowHeight(1) + 340);
    EXPECT_FALSE(Caja().Visible);
    EXPECT_EQ(app.Foco(), &G());
    EXPECT_EQ(M().pasos, "R");
    EXPECT_EQ(M().Caption(), "Una columna");
    EXPECT_EQ(M().mnuEditInsertar.Caption(), "Insertar Fila");
    EXPECT_EQ(M().mnuEditEliminar.Caption(), "Eliminar Fila");
    EXPECT_EQ(M().mnuEdicion.Entradas(),
              (std::vector<Menu*>{&M().mnuEditInsertar, &M().mnuEditraya1, &M().mnuEditEliminar}));

    Abrir("frmCuatro");
    EXPECT_EQ(Fila(0), (Textos{"Cuarteto", "X1", "X2", "X3", "Y"}));
    EXPECT_EQ(G().Width(), 700 + 4 * 1800 + 300);
    Abrir("frmSel");
    EXPECT_EQ(G().ColWidth(0), 900);
    EXPECT_EQ(G().ColWidth(2), 2000);
    EXPECT_EQ(G().ColWidth(3), 1800);
    EXPECT_EQ(G().Width(), 900 + 1000 + 2000 + 1800 + 1800 + 300);
    Abrir("frmMes");
    EXPECT_EQ(G().TextMatrix(0, 0), "Mes");
}

TEST_F(ModuloTest, UnaSerieTecleada) {
    Valores({"1.5", "20", "-3"});
    EXPECT_EQ(Columna(0), (Textos{"N°", " 1", " 2", " 3", "[->]"}));
    EXPECT_EQ(Columna(1), (Textos{"X", "1.5", "20.0", "-3.0", ""}));
    EXPECT_EQ(Cursor(), "4,1");
    EXPECT_FALSE(Caja().Visible);
    EXPECT_EQ(app.Foco(), &G());
    EXPECT_TRUE(sistema.mensajes.empty());
}

// What is written becomes a number as soon as it is confirmed: letters are 0, a comma ends the number, the pattern
// keeps eight decimals.
TEST_F(ModuloTest, ConfirmarMuestraElNumeroEnLaCelda) {
    Valores({"12,5", "abc", "1e2", "0.123456789123", ".5", "7x", ""});
    EXPECT_EQ(Columna(1), (Textos{"X", "12.0", "0.0", "100.0", "0.12345679", "0.5", "7.0", "0.0", ""}));

    Abrir("frmCuatro");
    Valores({"12,5", "2.50"});
    EXPECT_EQ(Fila(1), (Textos{"[->]", "12.0", "2.5", "", ""})) << "before the row is committed";
    EXPECT_EQ(Cursor(), "1,3");
}

TEST_F(ModuloTest, EnterEnLaFilaDeEntradaVaciaConfirmaCeros) {
    Enter();
    EXPECT_EQ(Columna(0), (Textos{"N°", " 1", "[->]"}));
    EXPECT_EQ(Columna(1), (Textos{"X", "0.0", ""}));

    Abrir("frmCuatro");
    Enter();
    EXPECT_EQ(Fila(1), (Textos{"[->]", "", "", "", ""})) << "only the last column commits the row";
    Enter();
    Teclear("4");
    Enter();
    EXPECT_EQ(Cursor(), "1,4");
    EXPECT_EQ(G().Rows(), 2);
    Enter();
    EXPECT_EQ(Fila(1), (Textos{" 1", "0.0", "0.0", "4.0", "0.0"}));
    EXPECT_EQ(Fila(2), (Textos{"[->]", "", "", "", ""}));
    EXPECT_EQ(Cursor(), "2,1");
}

TEST_F(ModuloTest, MarcasDeLaFilaDeEntrada) {
    Valores({"1", "2"});
    Celda(1, 1);
    EXPECT_EQ(Columna(0), (Textos{"N°", " 1", " 2", "[?]"}));
    Celda(3, 1);
    EXPECT_EQ(Columna(0), (Textos{"N°", " 1", " 2", "[->]"}));
    Tecla(kTeclaArriba);
    EXPECT_EQ(G().TextMatrix(3, 0), "[?]");
    Tecla(kTeclaAbajo);
    EXPECT_EQ(G().TextMatrix(3, 0), "[->]");
    G().HighLight = 0;
    Celda(2, 1);
    EXPECT_EQ(G().HighLight(), 1);
}

TEST_F(ModuloTest, LaFilaAMediasSePierdeAlDejarla) {
    Abrir("frmCuatro");
    Valores({"1", "2", "3", "4", "5", "6"});
    ASSERT_EQ(Fila(2), (Textos{"[->]", "5.0", "6.0", "", ""}));
    Celda(2, 1);
    EXPECT_EQ(Fila(2), (Textos{"[->]", "5.0", "6.0", "", ""})) << "another cell of the same row";
    Celda(1, 3);
    EXPECT_EQ(Fila(2), (Textos{"[?]", "", "", "", ""}));
    EXPECT_EQ(Fila(1), (Textos{" 1", "1.0", "2.0", "3.0", "4.0"}));

    Celda(2, 1);
    Teclear("7");
    Tecla(kTeclaArriba);  // stores the 7, and leaves the row
    EXPECT_EQ(Fila(2), (Textos{"[?]", "", "", "", ""}));
    EXPECT_EQ(Cursor(), "1,1");
}

TEST_F(ModuloTest, AbajoYArribaGuardanSinFormato) {
    Valores({"1", "2", "3"});
    Celda(1, 1);
    Teclear("7");
    Tecla(kTeclaAbajo);
    EXPECT_EQ(Cursor(), "2,1");
    EXPECT_EQ(app.Foco(), &G());
    EXPECT_FALSE(Caja().Visible);
    Teclear("8,9z");
    Tecla(kTeclaArriba);
    EXPECT_EQ(Cursor(), "1,1");
    EXPECT_EQ(Columna(1), (Textos{"X", "7", "8,9z", "3.0", ""}));
    Teclear("6");
    Tecla(kTeclaArriba);
    EXPECT_EQ(Cursor(), "1,1") << "the first data row is the first";
    EXPECT_EQ(G().Text(), "6");
    Celda(3, 1);
    Teclear("5");
    Tecla(kTeclaAbajo);
    EXPECT_EQ(Cursor(), "4,1") << "from the last data row to the entry row";
    EXPECT_EQ(G().TextMatrix(4, 0), "[->]");
    Teclear("4");
    Tecla(kTeclaAbajo);
    EXPECT_EQ(Cursor(), "4,1");
    EXPECT_EQ(Columna(1), (Textos{"X", "6", "8,9z", "5", "4"})) << "stored in the entry row, which is not committed";
    EXPECT_EQ(G().Rows(), 5);

    app.Pulsar(M().bCalcular);
    EXPECT_EQ(M().n, 3);
    EXPECT_EQ(M().arreglos[0](2), 8) << "read by Val all the same";
    Celda(4, 1);
    Enter();
    EXPECT_EQ(G().TextMatrix(4, 1), "4.0") << "ENTER commits what stands there";
}

TEST_F(ModuloTest, EscapeDejaLaCeldaComoEstaba) {
    Valores({"1", "2"});
    Celda(1, 1);
    Teclear("99");
    Escape();
    EXPECT_EQ(Columna(1), (Textos{"X", "1.0", "2.0", ""}));
    EXPECT_FALSE(Caja().Visible);
    EXPECT_EQ(app.Foco(), &G());
    EXPECT_EQ(Cursor(), "1,1");
    Celda(2, 1);
    EXPECT_EQ(Columna(1), (Textos{"X", "1.0", "2.0", ""})) << "nor does it come back later";
}

TEST_F(ModuloTest, UnaTeclaReemplazaLaCelda) {
    Valores({"5"});
    Celda(1, 1);
    EXPECT_FALSE(Caja().Visible) << "a click opens nothing";
    Teclear("8");
    EXPECT_TRUE(Caja().Visible);
    EXPECT_EQ(app.Foco(), &Caja());
    EXPECT_EQ(Caja().Text(), "8");
    EXPECT_EQ(Caja().SelStart(), 1);
    EXPECT_EQ(G().Text(), "5.0") << "the cell waits for the confirmation";
    Teclear(".25");
    EXPECT_EQ(Caja().Text(), "8.25");
    Enter();
    EXPECT_EQ(G().TextMatrix(1, 1), "8.25");

    // The codes of these characters are those of the arrow keys.
    Celda(1, 1);
    Teclear("(");
    EXPECT_EQ(Caja().Text(), "(");
    Teclear("&%'");
    EXPECT_EQ(Caja().Text(), "(&%'");
    EXPECT_EQ(Cursor(), "1,1");
}

TEST_F(ModuloTest, ElBlancoEditaLaCeldaComoEsta) {
    Valores({"5.25"});
    Celda(1, 1);
    Teclear(" ");
    EXPECT_EQ(Caja().Text(), "5.25");
    EXPECT_EQ(Caja().SelStart(), 0);
    EXPECT_EQ(Caja().SelLength(), 4) << "offered selected";
    Tecla(kTeclaFin);
    Teclear("7");
    Enter();
    EXPECT_EQ(G().TextMatrix(1, 1), "5.257");
    Celda(1, 1);
    Teclear(" 6");
    EXPECT_EQ(Caja().Text(), "6") << "typing replaces what is selected";
    Tecla(kTeclaAbajo);
    Celda(1, 1);
    app.PulsarTecla(kTeclaRetroceso, kTeclaRetroceso);  // the codes below the blank do as the blank
    EXPECT_EQ(Caja().Text(), "6");
    EXPECT_EQ(Caja().SelLength(), 1);
}

TEST_F(ModuloTest, LaCajaFlotaSobreLaCelda) {
    Abrir("frmCuatro");
    for (int i = 0; i < 12; ++i) {
        Enter();
    }
    G().Left = 120;
    G().Top = 450;
    G().FontName = "Mono";
    G().FontSize = 12;
    Celda(3, 2);
    Teclear("1");
    EXPECT_EQ(Caja().Left(), 120 + 700 + 1800);
    EXPECT_EQ(Caja().Top(), 450 + 340 + 2 * G().RowHeight(1));
    EXPECT_EQ(Caja().Width(), 1800);
    EXPECT_EQ(Caja().Height(), G().RowHeight(3));
    EXPECT_EQ(Caja().FontName(), "Mono");
    EXPECT_EQ(Caja().FontSize(), 12);
}

TEST_F(ModuloTest, CambiarDeCeldaODesplazarEscondeLaCaja) {
    Valores({"1", "2", "3"});
    Celda(1, 1);
    Teclear("9");
    app.Despachar([&] { G().DesplazadoPorUsuario(2); });
    EXPECT_FALSE(Caja().Visible);
    Celda(2, 1);
    EXPECT_EQ(Columna(1), (Textos{"X", "1.0", "2.0", "3.0", ""})) << "a hidden box stores nothing";

    Celda(1, 1);
    Teclear("9");
    app.Despachar([&] { G().PonerRow(2); });
    EXPECT_FALSE(Caja().Visible);
    EXPECT_EQ(Columna(1), (Textos{"X", "1.0", "2.0", "3.0", ""}));

    Celda(1, 1);
    Teclear("9");
    Celda(3, 1);
    EXPECT_EQ(Columna(1), (Textos{"X", "9", "2.0", "3.0", ""})) << "a click brings the focus first, and that stores";
}

TEST_F(ModuloTest, EnterEnUnaFilaDeDatosBajaPorLaMismaColumna) {
    Abrir("frmCuatro");
    Valores({"1", "2", "3", "4", "5", "6", "7", "8"});
    Celda(1, 3);
    Enter();
    EXPECT_EQ(Cursor(), "2,3");
    EXPECT_EQ(Fila(1), (Textos{" 1", "1.0", "2.0", "3.0", "4.0"}));
    Enter();
    EXPECT_EQ(Cursor(), "3,3");
    EXPECT_EQ(G().TextMatrix(3, 0), "[->]");
    EXPECT_EQ(G().Rows(), 4);
    Celda(1, 4);
    Teclear("40,9");
    Enter();
    EXPECT_EQ(Cursor(), "2,4");
    EXPECT_EQ(G().TextMatrix(1, 4), "40.0");
}

TEST_F(ModuloTest, InsertarFila) {
    Valores({"10", "20", "30"});
    MenuFila("mnuEditInsertar", 2);
    EXPECT_TRUE(sistema.entradaElegida);
    EXPECT_EQ(Columna(0), (Textos{"N°", " 1", " 2", " 3", " 4", "[?]"}));
    EXPECT_EQ(Columna(1), (Textos{"X", "10.0", "", "20.0", "30.0", ""}));
    EXPECT_EQ(Cursor(), "2,1") << "on the empty row";
    app.Pulsar(M().bCalcular);
    EXPECT_EQ(M().n, 4);
    EXPECT_EQ(M().arreglos[0](2), 0) << "an empty row counts as 0";
    EXPECT_EQ(M().arreglos[0](4), 30);

    Abrir("frmCuatro");
    Valores({"1", "2", "3", "4", "5", "6", "7", "8"});
    Celda(2, 4);
    MenuFila("mnuEditInsertar", 1);
    EXPECT_EQ(Fila(1), (Textos{" 1", "", "", "", ""}));
    EXPECT_EQ(Fila(2), (Textos{" 2", "1.0", "2.0", "3.0", "4.0"}));
    EXPECT_EQ(Fila(3), (Textos{" 3", "5.0", "6.0", "7.0", "8.0"}));
    EXPECT_EQ(Fila(4), (Textos{"[?]", "", "", "", ""}));

    // Both procedures end in the first column, wherever the cursor stood.
    Celda(2, 3);
    app.Despachar([&] { M().InsertarFila(); });
    EXPECT_EQ(Cursor(), "2,1");
    Celda(2, 3);
    app.Despachar([&] { M().EliminarFila(); });
    EXPECT_EQ(Cursor(), "2,1");
    EXPECT_EQ(Fila(2), (Textos{" 2", "1.0", "2.0", "3.0", "4.0"}));
}

TEST_F(ModuloTest, InsertarEstaGrisEnLaFilaDeEntrada) {
    Valores({"10", "20"});
    MenuFila("mnuEditInsertar", 3);
    EXPECT_FALSE(sistema.entradaElegida);
    EXPECT_FALSE(M().mnuEditInsertar.Enabled);
    EXPECT_EQ(Columna(1), (Textos{"X", "10.0", "20.0", ""}));
    Celda(3, 1);
    EXPECT_TRUE(M().mnuEditInsertar.Enabled) << "any later press frees it";
    app.Despachar([&] { M().InsertarFila(); });
    EXPECT_EQ(Columna(1), (Textos{"X", "10.0", "20.0", ""}));
    EXPECT_EQ(Cursor(), "3,1");
    MenuFila("mnuEditInsertar", 2);
    EXPECT_TRUE(sistema.entradaElegida);
}

TEST_F(ModuloTest, EliminarFila) {
    Valores({"10", "20", "30"});
    MenuFila("mnuEditEliminar", 2);
    EXPECT_EQ(Columna(0), (Textos{"N°", " 1", " 2", "[?]"}));
    EXPECT_EQ(Columna(1), (Textos{"X", "10.0", "30.0", ""}));
    EXPECT_EQ(Cursor(), "2,1");
    MenuFila("mnuEditEliminar", 2);
    EXPECT_EQ(Columna(0), (Textos{"N°", " 1", "[?]"}));
    EXPECT_EQ(Columna(1), (Textos{"X", "10.0", ""}));
    EXPECT_EQ(Cursor(), "2,1") << "where the last data row was";
    MenuFila("mnuEditEliminar", 1);
    EXPECT_EQ(Columna(0), (Textos{"N°", "[?]"}));
    EXPECT_EQ(Columna(1), (Textos{"X", ""}));
    EXPECT_EQ(Cursor(), "1,1");
    Valores({"5"});
    EXPECT_EQ(Columna(1), (Textos{"X", "5.0", ""})) << "and the grid takes data again";
}

TEST_F(ModuloTest, EliminarEnLaFilaDeEntradaBorraTodo) {
    Valores({"10", "20", "30"});
    MenuFila("mnuEditEliminar", 4);
    EXPECT_TRUE(sistema.entradaElegida);
    EXPECT_EQ(Columna(0), (Textos{"N°", "[?]"}));
    EXPECT_EQ(Columna(1), (Textos{"X", ""}));
    EXPECT_EQ(Cursor(), "1,1");
    EXPECT_TRUE(sistema.mensajes.empty());
    MenuFila("mnuEditEliminar", 1);
    EXPECT_EQ(Columna(0), (Textos{"N°", "[?]"})) << "with no data too";

    Abrir("frmCuatro");
    Valores({"1", "2", "3", "4", "5", "6"});
    MenuFila("mnuEditEliminar", 2);
    EXPECT_EQ(Fila(0), (Textos{"Cuarteto", "X1", "X2", "X3", "Y"}));
    EXPECT_EQ(Fila(1), (Textos{"[?]", "", "", "", ""}));
    EXPECT_EQ(G().Rows(), 2);
}

TEST_F(ModuloTest, ElBotonDerechoSeleccionaYElIzquierdoNoAbreElMenu) {
    Abrir("frmCuatro");
    Valores({"1", "2", "3", "4", "5", "6", "7", "8"});
    const auto seleccion = [&](int fila) {
        Celda(fila, 3, kBotonDerecho);
        return Cursor() + " a " + std::to_string(G().RowSel()) + "," + std::to_string(G().ColSel());
    };
    EXPECT_EQ(seleccion(2), "2,1 a 2,4");
    EXPECT_EQ(seleccion(3), "3,1 a 1,4") << "on the entry row all the data";

    sistema.entradaEmergente = "mnuEditEliminar";
    Celda(1, 3);
    EXPECT_TRUE(sistema.entradaEmergente.has_value()) << "no menu asked for it";
    EXPECT_EQ(Cursor(), "1,3");
    EXPECT_EQ(G().Rows(), 4);
    sistema.entradaEmergente.reset();

    Abrir("frmSel");
    Valores({"1", "2", "3", "4"});
    EXPECT_EQ(seleccion(1), "1,1 a 1,1");
    EXPECT_EQ(seleccion(2), "2,1 a 1,3");
}

TEST_F(ModuloTest, MenosCeldasDeLasNecesarias) {
    const auto cursor = [&](void (ModuloCalculo::*metodo)()) {
        app.Despachar([&] { M().bCalcular.SetFocus(); });
        app.Despachar([&] { (M().*metodo)(); });
        EXPECT_EQ(app.Foco(), &G());
        return Cursor();
    };
    EXPECT_EQ(cursor(&ModuloCalculo::MenorQue2Celdas), "1,1") << "no data: Rows is 2";
    Valores({"1"});
    EXPECT_EQ(cursor(&ModuloCalculo::MenorQue2Celdas), "2,1");
    EXPECT_EQ(cursor(&ModuloCalculo::MenorQue4Celdas), "2,1") << "Rows is 3: the entry row of a short grid";
    Valores({"2", "3", "4", "5"});
    EXPECT_EQ(cursor(&ModuloCalculo::MenorQue2Celdas), "2,1");
    EXPECT_EQ(cursor(&ModuloCalculo::MenorQue4Celdas), "4,1");
    EXPECT_EQ(cursor(&ModuloCalculo::MenorQue5Celdas), "5,1");
    Abrir("frmCuatro");
    Enter();
    EXPECT_EQ(cursor(&ModuloCalculo::MenorQue5Celdas), "1,1") << "the column goes back to the first";
}

TEST_F(ModuloTest, NombresDeLosMeses) {
    Abrir("frmMes");
    Valores(Textos(14, "1"));
    EXPECT_EQ(Columna(0), (Textos{"Mes", "Ene", "Feb", "Mar", "Abr", "May", "Jun", "Jul", "Ago", "Set", "Oct", "Nov",
                                  "Dic", "Ene", "Feb", "[->]"}));
    MenuFila("mnuEditEliminar", 3);
    EXPECT_EQ(Columna(0), (Textos{"Mes", "Ene", "Feb", "Mar", "Abr", "May", "Jun", "Jul", "Ago", "Set", "Oct", "Nov",
                                  "Dic", "Ene", "[?]"}));
    MenuFila("mnuEditInsertar", 1);
    EXPECT_EQ(G().TextMatrix(1, 0), "Ene");
    EXPECT_EQ(G().TextMatrix(14, 0), "Feb");
}

TEST_F(ModuloTest, EnterEnLaCuadriculaMantieneLaFilaALaVista) {
    for (int i = 0; i < 11; ++i) {
        Enter();
    }
    EXPECT_EQ(Cursor(), "12,1");
    EXPECT_EQ(G().TopRow(), 1);
    Enter();
    EXPECT_EQ(G().TopRow(), 1) << "row 13 stands 12 rows below the top";
    Enter();
    EXPECT_EQ(G().TopRow(), 2);
    for (int i = 14; i < 40; ++i) {
        Enter();
    }
    EXPECT_EQ(Cursor(), "40,1");
    EXPECT_EQ(G().TopRow(), 28);
    Celda(20, 1);
    Enter();
    EXPECT_EQ(Cursor(), "21,1");
    EXPECT_EQ(G().TopRow(), 9);

    const auto desde = [&](int fila) {
        Celda(fila, 1);
        app.Despachar([&] { G().DesplazadoPorUsuario(5); });
        Enter();
        return G().TopRow();
    };
    EXPECT_EQ(desde(10), 5) << "up to row 11 the grid stays as the user scrolled it";
    EXPECT_EQ(desde(11), 1);
    EXPECT_EQ(desde(12), 1);
}

TEST_F(ModuloTest, ImagenesDeLosBotones) {
    const auto sobre = [&](Control& control) { app.Despachar([&] { control.MouseMove(); }); };
    const std::vector<CommandButton*> botones{&M().bCalcular, &M().bOtro, &M().bLimpiar,
                                              &M().bImprimir, &M().bMenu, &M().bExtra};
    // The i-th button has the pictures 2i - 1 at rest and 2i lit: a digit for each, 0 dark and 1 lit.
    const auto luces = [&] {
        std::string digitos;
        for (int i = 1; i <= static_cast<int>(botones.size()); ++i) {
            const std::string& imagen = botones[static_cast<std::size_t>(i - 1)]->Picture();
            EXPECT_TRUE(imagen == M().ImageList1.Imagen(2 * i - 1) || imagen == M().ImageList1.Imagen(2 * i)) << i;
            digitos += imagen == M().ImageList1.Imagen(2 * i) ? '1' : '0';
        }
        return digitos;
    };
    EXPECT_EQ(luces(), "000000");
    sobre(M().bCalcular);
    EXPECT_EQ(luces(), "100000");
    sobre(M().bOtro);
    sobre(M().bExtra);
    EXPECT_EQ(luces(), "110001") << "a button does nothing to the others";
    sobre(M().Frame6);
    EXPECT_EQ(luces(), "000001") << "a frame darkens its own";
    sobre(M().bMenu);
    sobre(M().Frame7);
    EXPECT_EQ(luces(), "000010");
    sobre(M().bExtra);
    sobre(M());
    EXPECT_EQ(luces(), "000000") << "the form darkens all";
}

TEST_F(ModuloTest, BarraDeEstadoMientrasSeEscribe) {
    EXPECT_EQ(M().StatusBar1.Panel(1), "");
    Teclear("1");
    EXPECT_EQ(M().StatusBar1.Panel(1), "Para introducir o modificar datos, digitarlos y luego presionar ENTER");
    Enter();
    EXPECT_EQ(M().StatusBar1.Panel(1), "");
    Teclear("1");
    Escape();
    EXPECT_EQ(M().StatusBar1.Panel(1), "");
}

TEST_F(ModuloTest, CargarMatricesLeeCadaColumna) {
    app.Pulsar(M().bCalcular);
    EXPECT_EQ(M().n, 0);
    Abrir("frmCuatro");
    Valores({"1", "2", "3", "4", "5.5", "-6", "abc", "8,9", "7"});
    app.Pulsar(M().bCalcular);
    EXPECT_EQ(M().n, 2) << "the entry row is no data";
    const auto fila = [&](int i) {
        std::vector<double> valores;
        for (const Serie& arreglo : M().arreglos) {
            valores.push_back(arreglo(i).valor());
        }
        return valores;
    };
    EXPECT_EQ(fila(1), (std::vector<double>{1, 2, 3, 4}));
    EXPECT_EQ(fila(2), (std::vector<double>{5.5, -6, 0, 8}));
    MenuFila("mnuEditEliminar", 1);
    EXPECT_EQ(M().n, 2) << "stale until the next reading";
    app.Pulsar(M().bCalcular);
    EXPECT_EQ(M().n, 1);
    EXPECT_EQ(fila(1), (std::vector<double>{5.5, -6, 0, 8}));
}

TEST_F(ModuloTest, LaFila1501NoCabe) {
    for (int i = 0; i < 1500; ++i) {
        Enter();
    }
    app.Pulsar(M().bCalcular);
    EXPECT_EQ(M().n, 1500);
    EXPECT_TRUE(sistema.errores.empty());
    Celda(1501, 1);
    Enter();
    app.Pulsar(M().bCalcular);
    ASSERT_EQ(sistema.errores.size(), 1U);
    EXPECT_EQ(sistema.errores[0].Numero(), 9);
    EXPECT_TRUE(sistema.mensajes.empty());
    EXPECT_EQ(G().Rows(), 1503) << "the grid itself keeps what was typed";
}

TEST_F(ModuloTest, Limpiar) {
    Valores({"1", "2", "3"});
    Celda(2, 1);
    Teclear("9");
    app.Pulsar(M().bLimpiar);
    EXPECT_EQ(Columna(0), (Textos{"N°", "[?]"}));
    EXPECT_EQ(Columna(1), (Textos{"X", ""}));
    EXPECT_FALSE(Caja().Visible);
    EXPECT_EQ(M().pasos, "RRL") << "the results are built anew, then the rest is cleared";
    EXPECT_TRUE(sistema.mensajes.empty());
    EXPECT_EQ(app.Foco(), &G());
}

TEST_F(ModuloTest, UnBotonSinOrdenEstaGris) {
    EXPECT_FALSE(M().bOtro.Enabled);
    for (const CommandButton* boton : {&M().bCalcular, &M().bLimpiar, &M().bImprimir, &M().bMenu, &M().bExtra}) {
        EXPECT_TRUE(boton->Enabled) << boton->Nombre();
    }
}

TEST_F(ModuloTest, BotonesComunes) {
    EXPECT_EQ(M().bCalcular.ToolTipText(), "Efectuar cálculos");
    EXPECT_EQ(M().bLimpiar.Caption(), "&Limpiar");
    EXPECT_EQ(M().bLimpiar.ToolTipText(), "Limpiar pantalla");
    EXPECT_EQ(M().bImprimir.Caption(), "&Imprimir");
    EXPECT_EQ(M().bImprimir.ToolTipText(), "Imprimir pantalla");
    EXPECT_EQ(M().bMenu.Caption(), "&Menú Principal");
    EXPECT_EQ(M().bMenu.ToolTipText(), "Retornar menú principal");
    EXPECT_EQ(M().bReporte.Caption(), "&Reporte");
    EXPECT_EQ(M().bReporte.ToolTipText(), "Generar reporte");
    EXPECT_EQ(M().bCalculadora.Caption(), "Calculadora");
    EXPECT_EQ(M().bCrear.ToolTipText(), "Crear archivo");
    EXPECT_EQ(M().bAccesar.ToolTipText(), "Cargar archivo");
    EXPECT_EQ(M().bCargarExcel.ToolTipText(), "Cargar archivo desde Excel");
    EXPECT_EQ(M().Frame7.Caption(), "Archivos y resultados:");
    EXPECT_EQ(M().lbl1.Caption(), "Ingreso de datos:");
    EXPECT_EQ(M().Label2.Caption(), "Nota:");
    EXPECT_EQ(M().Label1.Caption(), "Una vez que digite el dato, presionar ENTER");

    app.Pulsar(M().bImprimir);
    EXPECT_EQ(sistema.impresas, Textos{"frmUna"});
    Valores({"1"});
    app.Pulsar(M().bMenu);
    EXPECT_EQ(app.Cargada("frmUna"), nullptr);
    EXPECT_EQ(sistema.alFrente, app.Cargada("frmCuencalia"));
    Abrir("frmUna");
    EXPECT_EQ(Columna(0), (Textos{"N°", "[?]"})) << "an empty module";
    EXPECT_EQ(Columna(1), (Textos{"X", ""}));
    EXPECT_EQ(Cursor(), "1,1");
}

}  // namespace
}  // namespace cuencalia
