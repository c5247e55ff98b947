#include "frame/controles/flexgrid.h"

#include <gtest/gtest.h>

#include <utility>

#include "frame/controles/aplicacion.h"
#include "guion/plataformaguion.h"
#include "tests/numero_de_error.h"

namespace cuencalia {
namespace {

class FormaGrid : public Formulario {
  public:
    explicit FormaGrid(Aplicacion& app) : Formulario(app, "frmGrid", "Grid") {}

    TextBox txt{*this, "txt"};
    FlexGrid grid{*this, "grid"};

  protected:
    Disposicion Disponer() override { return Columna({txt, grid}); }
};

using Registro = std::vector<std::string>;

/// A grid of 20 rows and 4 columns, one of each fixed, that writes down its events with the current cell.
class FlexGridTest : public testing::Test {
  protected:
    FlexGridTest() : g(Abrir()) {
        g.PonerRows(20);
        g.PonerCols(4);
        const auto anotar = [this](Evento<>& evento, const std::string& nombre) {
            evento.Conectar([this, nombre] {
                registro.push_back(nombre + " " + std::to_string(g.Row()) + "," + std::to_string(g.Col()));
            });
        };
        anotar(g.LeaveCell, "deja");
        anotar(g.RowColChange, "llega");
        anotar(g.Scroll, "corre");
        anotar(g.GotFocus, "foco");
        g.MouseDown.Conectar([this](int boton) {
            registro.push_back("botón " + std::to_string(boton) + " en " + std::to_string(g.Row()) + "," +
                               std::to_string(g.Col()));
        });
    }

    FlexGrid& Abrir() {
        app.Despachar([&] { app.ModuloAbrir("frmGrid"); });
        return dynamic_cast<FormaGrid&>(*app.Cargada("frmGrid")).grid;
    }

    /// What happened since the last call.
    Registro Sucesos() { return std::exchange(registro, {}); }

    void Tecla(int codigo) { app.PulsarTecla(codigo, 0); }

    std::vector<std::string> Columna(int columna) const {
        std::vector<std::string> textos;
        for (int f = 0; f < g.Rows(); ++f) {
            textos.push_back(g.TextMatrix(f, columna));
        }
        return textos;
    }

    PlataformaGuion sistema;
    Aplicacion app{sistema, {{"frmGrid", [](Aplicacion& a) { return std::make_unique<FormaGrid>(a); }}}};
    FlexGrid& g;
    Registro registro;
};

TEST_F(FlexGridTest, MoverLaCeldaAvisaAntesYDespues) {
    g.PonerRow(3);
    EXPECT_EQ(Sucesos(), (Registro{"deja 1,1", "llega 3,1"}));
    g.PonerCol(2);
    EXPECT_EQ(Sucesos(), (Registro{"deja 3,1", "llega 3,2"}));
    g.PonerCelda(5, 3);
    EXPECT_EQ(Sucesos(), (Registro{"deja 3,2", "llega 5,3"})) << "one move, one pair of events";
    g.PonerCelda(5, 3);
    EXPECT_EQ(Sucesos(), Registro{}) << "it stands there already";
}

TEST_F(FlexGridTest, PerderFilasOColumnasMueveLaCelda) {
    g.PonerCelda(15, 3);
    Sucesos();
    g.PonerRows(30);
    EXPECT_EQ(Sucesos(), Registro{});
    g.PonerRows(4);
    EXPECT_EQ(Sucesos(), (Registro{"deja 15,3", "llega 3,3"}));
    g.PonerCols(2);
    EXPECT_EQ(Sucesos(), (Registro{"deja 3,3", "llega 3,1"}));
    EXPECT_EQ(g.RowSel(), 3);
    EXPECT_EQ(g.ColSel(), 1);
    g.RemoveItem(3);
    EXPECT_EQ(Sucesos(), (Registro{"deja 3,1", "llega 2,1"}));
}

TEST_F(FlexGridTest, ClearVaciaSoloLosTextos) {
    g.PonerColWidth(2, 1234);
    g.PonerColAlignment(2, kAlinearDerecha);
    g.PonerRowHeight(0, 340);
    g.PonerCelda(4, 2);
    g.PonerText("cuatro");
    g.PonerTextMatrix(0, 0, "N°");
    Sucesos();
    g.Clear();
    for (int c = 0; c < 4; ++c) {
        EXPECT_EQ(Columna(c), std::vector<std::string>(20));
    }
    EXPECT_EQ(g.Rows(), 20);
    EXPECT_EQ(g.Cols(), 4);
    EXPECT_EQ(g.ColWidth(2), 1234);
    EXPECT_EQ(g.ColAlignment(2), 7);
    EXPECT_EQ(g.RowHeight(0), 340);
    EXPECT_EQ(g.Row(), 4);
    EXPECT_EQ(g.Col(), 2);
    EXPECT_EQ(Sucesos(), Registro{});
}

TEST_F(FlexGridTest, FilasYColumnasQueVanYVienen) {
    g.PonerRows(3);
    g.PonerEncabezados({"N°", "X", "Y", "Z"});
    for (int f = 1; f < 3; ++f) {
        for (int c = 0; c < 4; ++c) {
            g.PonerTextMatrix(f, c, std::to_string(10 * f + c));
        }
    }
    g.PonerRowHeight(0, 340);
    g.PonerRowHeight(2, 500);
    g.AddItem("nuevo");
    EXPECT_EQ(Columna(0), (Registro{"N°", "10", "20", "nuevo"}));
    EXPECT_EQ(Columna(3), (Registro{"Z", "13", "23", ""}));

    g.RemoveItem(1);
    EXPECT_EQ(Columna(0), (Registro{"N°", "20", "nuevo"}));
    EXPECT_EQ(Columna(3), (Registro{"Z", "23", ""}));
    EXPECT_EQ(g.RowHeight(0), 340);
    EXPECT_EQ(g.RowHeight(1), 500) << "a row takes its height along";

    g.PonerColWidth(1, 777);
    g.PonerCols(3);
    EXPECT_EQ(Columna(0), (Registro{"N°", "20", "nuevo"}));
    EXPECT_EQ(Columna(2), (Registro{"Y", "22", ""}));
    g.PonerCols(5);
    EXPECT_EQ(Columna(2), (Registro{"Y", "22", ""}));
    EXPECT_EQ(Columna(3), (Registro{"", "", ""})) << "what went does not come back";
    EXPECT_EQ(g.ColWidth(1), 777);

    g.PonerRows(2);
    g.PonerRows(3);
    EXPECT_EQ(Columna(0), (Registro{"N°", "20", ""}));
}

TEST_F(FlexGridTest, LoQueNoEstaEsElError9YNoCambiaNada) {
    g.PonerCelda(2, 2);
    Sucesos();
    const auto falla = [](auto accion) { return NumeroDeError([&] { return accion(), 0; }) == kSubindiceFuera; };
    EXPECT_TRUE(falla([&] { g.TextMatrix(-1, 0); }));
    EXPECT_TRUE(falla([&] { g.TextMatrix(20, 0); }));
    EXPECT_TRUE(falla([&] { g.TextMatrix(0, -1); }));
    EXPECT_TRUE(falla([&] { g.PonerTextMatrix(0, 4, "x"); }));
    EXPECT_TRUE(falla([&] { g.PonerRow(20); }));
    EXPECT_TRUE(falla([&] { g.PonerRow(-1); }));
    EXPECT_TRUE(falla([&] { g.PonerCol(4); }));
    EXPECT_TRUE(falla([&] { g.PonerCelda(3, 4); }));
    EXPECT_TRUE(falla([&] { g.ColWidth(4); }));
    EXPECT_TRUE(falla([&] { g.PonerColAlignment(-1, 4); }));
    EXPECT_TRUE(falla([&] { g.RowHeight(20); }));
    EXPECT_TRUE(falla([&] { g.RemoveItem(20); }));
    EXPECT_TRUE(falla([&] { g.PonerRows(-1); }));
    EXPECT_TRUE(falla([&] { g.PonerEncabezados({"1", "2", "3", "4", "5"}); }));
    EXPECT_TRUE(falla([&] { g.Presionar(kBotonIzquierdo, 20, 1); }));
    EXPECT_EQ(Sucesos(), Registro{});
    EXPECT_EQ(g.Rows(), 20);
    EXPECT_EQ(g.Row(), 2);
    EXPECT_EQ(g.Col(), 2);
}

TEST_F(FlexGridTest, TopRowYScroll) {
    g.PonerTopRow(5);
    EXPECT_EQ(g.TopRow(), 5);
    g.PonerTopRow(5);
    EXPECT_EQ(Sucesos(), (Registro{"corre 1,1"})) << "once, and the current cell stays";
    g.PonerTopRow(0);
    EXPECT_EQ(g.TopRow(), 1) << "the heading does not scroll";
    g.PonerTopRow(99);
    EXPECT_EQ(g.TopRow(), 19);
    Sucesos();
    g.DesplazadoPorUsuario(3);
    EXPECT_EQ(Sucesos(), (Registro{"corre 1,1"}));
    g.PonerTopRow(15);
    g.PonerRows(4);
    EXPECT_LE(g.TopRow(), 3) << "a grid that shrinks does not stay scrolled beyond its end";
}

TEST_F(FlexGridTest, TeclasMuevenLaCeldaYLaDejanALaVista) {
    g.PonerFilasVisibles(5);
    app.Despachar([&] { g.SetFocus(); });
    const auto a_la_vista = [&] { return g.Row() >= g.TopRow() && g.Row() < g.TopRow() + 5; };
    Tecla(kTeclaArriba);
    Tecla(kTeclaIzquierda);
    EXPECT_EQ(g.Row(), 1);
    EXPECT_EQ(g.Col(), 1) << "the fixed row and column cannot be reached";
    for (int i = 0; i < 8; ++i) {
        Tecla(kTeclaAbajo);
        EXPECT_TRUE(a_la_vista()) << g.Row();
    }
    EXPECT_EQ(g.Row(), 9);
    EXPECT_GT(g.TopRow(), 1);
    for (int i = 0; i < 5; ++i) {
        Tecla(kTeclaDerecha);
    }
    EXPECT_EQ(g.Col(), 3);
    Tecla(kTeclaFin);
    EXPECT_EQ(g.Row(), 19);
    EXPECT_TRUE(a_la_vista());
    Tecla(kTeclaAvPag);
    Tecla(kTeclaAbajo);
    EXPECT_EQ(g.Row(), 19);
    Tecla(kTeclaRePag);
    EXPECT_LT(g.Row(), 19);
    EXPECT_GE(g.Row(), 14) << "a page is no more than what is shown";
    EXPECT_TRUE(a_la_vista());
    Tecla(kTeclaInicio);
    EXPECT_EQ(g.Row(), 1);
    EXPECT_EQ(g.TopRow(), 1);
    EXPECT_EQ(g.Col(), 3);
    Tecla(kTeclaF2);
    EXPECT_EQ(g.Row(), 1) << "a key that means nothing to it";

    g.PonerRows(1);
    Tecla(kTeclaAbajo);
    EXPECT_EQ(g.Row(), 0) << "a grid with nothing but its heading";
    EXPECT_TRUE(sistema.errores.empty());
}

// The focus arrives at the old cell: what was being written over it is stored there, and only then the cell changes.
TEST_F(FlexGridTest, OrdenDeUnaPulsacion) {
    app.Despachar([&] { g.Presionar(kBotonDerecho, 4, 2); });
    EXPECT_EQ(Sucesos(), (Registro{"foco 1,1", "deja 1,1", "llega 4,2", "botón 2 en 4,2"}));
    app.Despachar([&] { g.Presionar(kBotonIzquierdo, 6, 0); });
    EXPECT_EQ(Sucesos(), (Registro{"deja 4,2", "llega 6,2", "botón 1 en 6,2"})) << "a row label keeps the column";
    app.Despachar([&] { g.Presionar(kBotonIzquierdo, 0, 3); });
    EXPECT_EQ(Sucesos(), (Registro{"botón 1 en 6,2"})) << "a heading moves nothing";
}

TEST_F(FlexGridTest, Seleccion) {
    g.PonerCelda(5, 1);
    g.Seleccionar(8, 3);
    EXPECT_EQ(g.RowSel(), 8);
    EXPECT_EQ(g.ColSel(), 3);
    EXPECT_EQ(g.Row(), 5);
    EXPECT_EQ(g.Col(), 1);
    g.PonerRow(6);
    EXPECT_EQ(g.RowSel(), 6);
    EXPECT_EQ(g.ColSel(), 1);
    g.Seleccionar(8, 3);
    g.PonerCelda(6, 1);
    EXPECT_EQ(g.ColSel(), 1) << "also when the cell is the current one";
    g.Seleccionar(99, 99);
    EXPECT_EQ(g.RowSel(), 19);
    EXPECT_EQ(g.ColSel(), 3);
}

TEST_F(FlexGridTest, LugarDeLaCelda) {
    g.PonerColWidth(0, 700);
    g.PonerColWidth(1, 1800);
    g.PonerColWidth(2, 900);
    g.PonerRowHeight(0, 340);
    for (int f = 1; f < 20; ++f) {
        g.PonerRowHeight(f, 200 + f);
    }
    g.PonerCelda(1, 1);
    EXPECT_EQ(g.CellLeft(), 700);
    EXPECT_EQ(g.CellTop(), 340);
    EXPECT_EQ(g.CellWidth(), 1800);
    EXPECT_EQ(g.CellHeight(), 201);
    g.PonerCelda(6, 2);
    EXPECT_EQ(g.CellLeft(), 700 + 1800);
    EXPECT_EQ(g.CellTop(), 340 + 201 + 202 + 203 + 204 + 205);
    g.PonerTopRow(4);
    EXPECT_EQ(g.CellTop(), 340 + 204 + 205) << "rows 1 to 3 are out of sight";
    EXPECT_EQ(g.CellWidth(), 900);
}

}  // namespace
}  // namespace cuencalia
