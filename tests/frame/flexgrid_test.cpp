#include "frame/controles/flexgrid.h"

#include <gtest/gtest.h>

#include <tuple>
#include <utility>

#include "frame/controles/anchogrid.h"
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
        for (const auto& [evento, nombre] : {std::pair{&g.LeaveCell, "deja "},
                                             {&g.RowColChange, "llega "},
                                             {&g.Scroll, "corre "},
                                             {&g.GotFocus, "foco "}}) {
            evento->Conectar([this, prefijo = std::string(nombre)] { registro.push_back(prefijo + Celda()); });
        }
        g.MouseDown.Conectar(
            [this](int boton) { registro.push_back("botón " + std::to_string(boton) + " " + Celda()); });
    }

    FlexGrid& Abrir() {
        app.Despachar([&] { app.ModuloAbrir("frmGrid"); });
        return dynamic_cast<FormaGrid&>(*app.Cargada("frmGrid")).grid;
    }
    std::string Celda() const { return std::to_string(g.Row()) + "," + std::to_string(g.Col()); }
    std::string Seleccion() const {
        return Celda() + " a " + std::to_string(g.RowSel()) + "," + std::to_string(g.ColSel());
    }
    /// What happened since the last call.
    Registro Sucesos() { return std::exchange(registro, {}); }
    std::string Columna(int columna) const {
        std::string textos;
        for (int f = 0; f < g.Rows(); ++f) {
            textos += g.TextMatrix(f, columna) + "|";
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
    g.PonerCol(2);
    g.PonerCelda(5, 3);
    g.PonerCelda(5, 3);
    EXPECT_EQ(Sucesos(), (Registro{"deja 1,1", "llega 3,1", "deja 3,1", "llega 3,2", "deja 3,2", "llega 5,3"}));
    g.PonerRows(30);
    g.PonerRows(4);
    g.PonerCols(2);
    g.RemoveItem(3);
    EXPECT_EQ(Sucesos(), (Registro{"deja 5,3", "llega 3,3", "deja 3,3", "llega 3,1", "deja 3,1", "llega 2,1"}))
        << "a grid that shrinks takes its cell along";
    EXPECT_EQ(Seleccion(), "2,1 a 2,1");
}

// The focus arrives at the old cell: what was being written over it is stored there, and only then the cell changes.
TEST_F(FlexGridTest, OrdenDeUnaPulsacion) {
    app.Despachar([&] { g.Presionar(kBotonDerecho, 4, 2); });
    EXPECT_EQ(Sucesos(), (Registro{"foco 1,1", "deja 1,1", "llega 4,2", "botón 2 4,2"}));
    app.Despachar([&] { g.Presionar(kBotonIzquierdo, 6, 0); });
    EXPECT_EQ(Sucesos(), (Registro{"deja 4,2", "llega 6,2", "botón 1 6,2"})) << "a row label keeps the column";
    app.Despachar([&] { g.Presionar(kBotonIzquierdo, 0, 3); });
    EXPECT_EQ(Sucesos(), (Registro{"botón 1 6,2"})) << "a heading moves nothing";
}

TEST_F(FlexGridTest, FilasYColumnasQueVanYVienen) {
    g.PonerRows(3);
    g.PonerEncabezados({"N°", "X", "Y", "Z"});
    for (int f = 1; f < 3; ++f) {
        for (int c = 0; c < 4; ++c) {
            g.PonerTextMatrix(f, c, std::to_string(10 * f + c));
        }
    }
    g.PonerRowHeight(0, 400);
    g.PonerRowHeight(2, 500);
    g.PonerColWidth(1, 777);
    g.AddItem("nuevo");
    EXPECT_EQ(Columna(0) + Columna(3), "N°|10|20|nuevo|Z|13|23||");
    g.RemoveItem(1);
    EXPECT_EQ(Columna(0) + Columna(3), "N°|20|nuevo|Z|23||");
    EXPECT_EQ(g.RowHeight(0) + g.RowHeight(1), 900) << "a row takes its height along";
    g.PonerCols(3);
    g.PonerCols(5);
    EXPECT_EQ(Columna(2) + Columna(3), "Y|22|||||") << "what went does not come back";
    g.PonerRows(2);
    g.PonerRows(3);
    EXPECT_EQ(Columna(0), "N°|20||");
    g.PonerCelda(1, 2);
    g.Clear();
    EXPECT_EQ(std::tuple(Columna(0) + Columna(2), g.ColWidth(1), Celda()), std::tuple("||||||", 777, "1,2"));
}

TEST_F(FlexGridTest, LoQueNoEstaEsElError9YNoCambiaNada) {
    g.PonerCelda(2, 2);
    Sucesos();
    const std::vector<std::function<void()>> fallos{
        [&] { g.TextMatrix(-1, 0); }, [&] { g.TextMatrix(20, 0); },
        [&] { g.TextMatrix(0, -1); }, [&] { g.PonerTextMatrix(0, 4, "x"); },
        [&] { g.PonerRow(20); },      [&] { g.PonerRow(-1); },
        [&] { g.PonerCol(4); },       [&] { g.PonerCelda(3, 4); },
        [&] { g.ColWidth(4); },       [&] { g.PonerColAlignment(-1, 4); },
        [&] { g.RowHeight(20); },     [&] { g.RemoveItem(20); },
        [&] { g.PonerRows(-1); },     [&] { g.Presionar(kBotonIzquierdo, 20, 1); }};
    for (std::size_t i = 0; i < fallos.size(); ++i) {
        EXPECT_EQ(NumeroDeError([&] { return fallos[i](), 0; }), kSubindiceFuera) << i;
    }
    EXPECT_EQ(std::tuple(Sucesos(), g.Rows(), Celda()), std::tuple(Registro{}, 20, "2,2"));
}

TEST_F(FlexGridTest, DesplazamientoYSeleccion) {
    g.PonerTopRow(5);
    g.PonerTopRow(5);
    EXPECT_EQ(Sucesos(), (Registro{"corre 1,1"})) << "once, and the current cell stays";
    g.PonerTopRow(0);
    EXPECT_EQ(g.TopRow(), 1) << "the heading does not scroll";
    g.PonerTopRow(99);
    EXPECT_EQ(g.TopRow(), 19);
    g.PonerRows(4);
    EXPECT_LE(g.TopRow(), 3);
    g.PonerRows(20);

    g.PonerCelda(5, 1);
    g.Seleccionar(8, 3);
    EXPECT_EQ(Seleccion(), "5,1 a 8,3");
    g.PonerCelda(5, 1);
    EXPECT_EQ(Seleccion(), "5,1 a 5,1") << "also when the cell is the current one";
    g.Seleccionar(99, 99);
    EXPECT_EQ(Seleccion(), "5,1 a 19,3");
}

TEST_F(FlexGridTest, TeclasMuevenLaCeldaYLaDejanALaVista) {
    g.PonerFilasVisibles(5);
    for (int f = 1; f < 12; ++f) {
        g.PonerTextMatrix(f, 2, std::to_string(f));
    }
    app.Despachar([&] { g.SetFocus(); });
    constexpr int kAmbas = kControl | kMayusculas;
    struct Caso {
        int tecla, modificadores, veces;
        const char* seleccion;
    };
    static constexpr Caso kCasos[] = {
        {kTeclaArriba, 0, 1, "1,1 a 1,1"},
        {kTeclaIzquierda, 0, 1, "1,1 a 1,1"},
        {kTeclaAbajo, 0, 8, "9,1 a 9,1"},
        {kTeclaDerecha, 0, 5, "9,3 a 9,3"},
        {kTeclaInicio, 0, 1, "9,1 a 9,1"},
        {kTeclaFin, 0, 1, "9,3 a 9,3"},
        {kTeclaFin, kControl, 1, "19,3 a 19,3"},
        {kTeclaRePag, 0, 1, "15,3 a 15,3"},
        {kTeclaAvPag, 0, 2, "19,3 a 19,3"},
        {kTeclaInicio, kControl, 1, "1,1 a 1,1"},
        {kTeclaAbajo, kControl, 1, "19,1 a 19,1"},
        {kTeclaArriba, kControl, 1, "1,1 a 1,1"},
        {kTeclaDerecha, kControl, 1, "1,2 a 1,2"},
        {kTeclaAbajo, kControl, 1, "11,2 a 11,2"},
        {kTeclaAbajo, kControl, 1, "19,2 a 19,2"},
        {kTeclaArriba, kControl, 1, "11,2 a 11,2"},
        {kTeclaArriba, kMayusculas, 2, "11,2 a 9,2"},
        {kTeclaDerecha, kMayusculas, 1, "11,2 a 9,3"},
        {kTeclaInicio, kAmbas, 1, "11,2 a 1,1"},
        {kTeclaAvPag, kMayusculas, 1, "11,2 a 5,1"},
        {kTeclaAbajo, 0, 1, "12,2 a 12,2"},
        {'A', kControl, 1, "1,1 a 19,3"},
        {kTeclaF2, 0, 1, "1,1 a 19,3"},
    };
    for (const Caso& caso : kCasos) {
        for (int i = 0; i < caso.veces; ++i) {
            app.PulsarTecla(caso.tecla, 0, caso.modificadores);
        }
        EXPECT_EQ(Seleccion(), caso.seleccion) << caso.tecla << " " << caso.modificadores;
        const int extremo = caso.tecla == 'A' || caso.tecla == kTeclaF2 ? g.TopRow() : g.RowSel();
        EXPECT_TRUE(extremo >= g.TopRow() && extremo < g.TopRow() + 5) << caso.tecla;
    }
    // From the last row upwards: leaving it would empty a row half typed.
    g.PonerCelda(19, 2);
    app.PulsarTecla('A', 0, kControl);
    EXPECT_EQ(Seleccion(), "19,1 a 1,3");

    g.PonerEncabezados({"N°", "A", "B"});
    g.PonerTextMatrix(2, 0, " 2");
    g.PonerCelda(3, 2);
    g.Seleccionar(2, 1);
    app.PulsarTecla('C', 0, kControl);
    EXPECT_EQ(sistema.portapapeles, "\t2\n\t3\n");
    EXPECT_EQ(g.TextoSeleccionado(true), "N°\tA\tB\n2\t\t2\n\t\t3\n");

    g.PonerRows(1);
    app.PulsarTecla(kTeclaAbajo, 0);
    EXPECT_EQ(g.Row(), 0) << "a grid with nothing but its heading";
    EXPECT_TRUE(sistema.errores.empty());
}

// A letter is 10 pixels wide, W 20. 15 twips make a pixel; a text has 18 pixels of room around it, or 10 at least.
TEST_F(FlexGridTest, UnaColumnaMideLoQueDiceOLoQuePidenSusTextos) {
    const auto columna = [this](int c) {
        return MedirColumnas(g, [](const std::string& texto) {
            return static_cast<int>(10 * texto.size() + (texto[0] == 'W' ? 10 * texto.size() : 0));
        })[static_cast<std::size_t>(c)];
    };
    g.PonerRows(60);
    g.PonerColWidth(0, 300);
    g.PonerTextMatrix(39, 0, "etiqueta");
    g.PonerTextMatrix(40, 0, "no se mide ya");
    EXPECT_EQ(columna(0), (AnchoColumna{98, 98, 0}));
    g.PonerTextMatrix(0, 1, "P (mm)");
    g.PonerTextMatrix(1, 1, "123.45678901");
    g.PonerTextMatrix(2, 1, "WWWWWWWW");
    g.PonerColWidth(1, 600);
    EXPECT_EQ(columna(1), (AnchoColumna{138, 130, 0})) << "results: of the texts with most letters";
    g.PonerRows(41);
    EXPECT_EQ(columna(1).ancho, 178) << "of few rows each text";
    g.KeyPress.Conectar([](int&) {});
    EXPECT_EQ(columna(1), (AnchoColumna{78, 78, 0})) << "data: of its heading";
    g.PonerColWidth(1, 3000);
    EXPECT_EQ(columna(1), (AnchoColumna{200, 100, 0})) << "down to a number of nine letters";
    g.PonerColWidth(1, 600);
    g.PonerRows(10);
    EXPECT_EQ(columna(1).falta, 100) << "in a short grid the texts of the cells have a claim";
}

TEST_F(FlexGridTest, ElAnchoSobranteYElQueFaltaSeReparten) {
    const std::vector<AnchoColumna> columnas{{100, 60, 0}, {100, 80, 0}, {50, 50, 30}};  // 250 in all, 190 at least
    const std::pair<int, std::vector<int>> casos[] = {{250, {100, 100, 50}}, {270, {100, 100, 70}},
                                                      {283, {101, 101, 81}}, {285, {101, 102, 82}},
                                                      {220, {80, 90, 50}},   {100, {60, 80, 50}}};
    for (const auto& [disponible, anchos] : casos) {
        EXPECT_EQ(RepartirAncho(columnas, disponible), anchos) << disponible;
    }
}

}  // namespace
}  // namespace cuencalia
