#include "frame/reportes/grafico.h"

#include <gtest/gtest.h>

#include "frame/controles/aplicacion.h"
#include "guion/plataformaguion.h"
#include "tests/numero_de_error.h"

namespace cuencalia {
namespace {

class FormaConGrafico : public Formulario {
  public:
    explicit FormaConGrafico(Aplicacion& app) : Formulario(app, "frmGrafico", "Gráfico") {}
    GraficoModulo Graph1{*this, "Graph1"};
    Label lblX{*this, "lblX"}, lblY{*this, "lblY"};
};

using Valores = std::vector<std::optional<Double>>;

class GraficoTest : public testing::Test {
  protected:
    const Valores& X(std::size_t conjunto) { return G.Conjuntos().at(conjunto - 1).x; }
    const Valores& Y(std::size_t conjunto) { return G.Conjuntos().at(conjunto - 1).y; }
    template <typename Paso>
    static int Error(Paso paso) {
        return NumeroDeError([&] { return paso(), 0; });
    }

    PlataformaGuion sistema;
    Aplicacion app{sistema, {}};
    FormaConGrafico forma{app};
    GraficoModulo& G = forma.Graph1;
};

// All the y first, set after set, and then all the x: each kind has its own next point.
TEST_F(GraficoTest, AutoIncRecorrePuntosYConjuntos) {
    G.PonerNumPoints(2);
    G.PonerNumSets(3);
    for (const int y : {1, 2, 3, 4, 5, 6}) {
        G.PonerGraphData(y);
    }
    for (const int x : {10, 20, 30}) {
        G.PonerXPosData(x);
    }
    EXPECT_EQ(Y(1), (Valores{1, 2}));
    EXPECT_EQ(Y(3), (Valores{5, 6}));
    EXPECT_EQ(X(1), (Valores{10, 20}));
    EXPECT_EQ(X(2), (Valores{30, std::nullopt}));
    EXPECT_EQ(Error([&] { G.PonerGraphData(7); }), 5) << "there is no fourth set";
    G.PonerThisSet(1);
    G.PonerThisPoint(2);
    for (const int y : {7, 8}) {
        G.PonerGraphData(y);
    }
    G.PonerXPosData(40);
    EXPECT_EQ(Y(1), (Valores{1, 7})) << "it goes on from the point chosen";
    EXPECT_EQ(Y(2), (Valores{8, 4}));
    EXPECT_EQ(X(1), (Valores{10, 40}));
}

TEST_F(GraficoTest, SinAutoIncSeEscribeElPuntoElegido) {
    G.PonerNumPoints(2);
    G.PonerNumSets(2);
    G.AutoInc = 0;
    G.PonerThisPoint(2);
    G.PonerThisSet(2);
    for (const int y : {3, 4}) {
        G.PonerGraphData(y);
    }
    EXPECT_EQ(Y(2), (Valores{std::nullopt, 4}));
    for (const int malo : {0, 3}) {
        EXPECT_EQ(Error([&] { G.PonerThisPoint(malo); }), 5) << malo;
        EXPECT_EQ(Error([&] { G.PonerThisSet(malo); }), 5) << malo;
    }
    EXPECT_EQ(Error([&] { G.PonerNumPoints(0); }), 5);
    EXPECT_EQ(Error([&] { G.PonerNumSets(0); }), 5);
    G.PonerLegendText("vieja");
    G.PonerNumPoints(2);
    G.PonerGraphData(5);
    EXPECT_EQ(G.Conjuntos()[1].leyenda, "");
    EXPECT_EQ(Y(2), Valores(2)) << "writing the size empties, also when it stays the same";
    EXPECT_EQ(Y(1), (Valores{5, std::nullopt})) << "and begins at the first point";
}

TEST_F(GraficoTest, UnConjuntoSinPosicionesTomaLasDelPrimeroOVaDe1AN) {
    const DescripcionGrafico tres{.autoInc = 0, .puntos = 3, .conjuntos = 3};
    GraficoDibujar(G, tres, {{"", {}, {5, 6}}, {"", {10, 20}, {7, 8}}});
    EXPECT_EQ(G.Abscisas(1), (Valores{1, 2, 3}));
    EXPECT_EQ(G.Abscisas(2), (Valores{10, 20, std::nullopt})) << "a point of its own without one has none";
    EXPECT_EQ(G.Abscisas(3), (Valores{1, 2, 3}));
    EXPECT_EQ(X(1), Valores(3)) << "what was never written stays so";
    GraficoDibujar(G, tres, {{"", {10, 20}, {7, 8}}, {"", {}, {5, 6}}});
    EXPECT_EQ(G.Abscisas(2), (Valores{10, 20, std::nullopt}));
    EXPECT_EQ(Error([&] { G.Abscisas(4); }), 5);
}

TEST_F(GraficoTest, UnaSecuenciaDibujaTodosLosGraficos) {
    G.RotularEjes(forma.lblX, forma.lblY);
    EXPECT_FALSE(G.Visible || forma.lblX.Visible);
    GraficoDibujar(G, {.tipo = kGraficoAreas, .estilo = kSimbolosSueltos, .fondo = 7, .conTrama = true, .titulo = "t"},
                   {{"Exp", {1, 2, 3}, {4, 5, 6}}, {"Ord", {7, 8, 9}, {10, 11, 12}}});
    EXPECT_EQ((std::vector{G.FontUse(), G.GraphType(), G.GraphStyle(), G.Background(), G.BorderStyle(), G.PatternData(),
                           G.AutoInc(), G.DrawMode(), G.NumPoints(), G.NumSets()}),
              (std::vector{4, 8, 1, 7, 1, 2, 1, 2, 3, 2}));
    EXPECT_TRUE(G.Visible && forma.lblX.Visible && forma.lblY.Visible);
    EXPECT_EQ(G.BottomTitle(), "t");
    EXPECT_EQ(G.Conjuntos()[1].leyenda, "Ord");
    EXPECT_EQ(X(2), (Valores{7, 8, 9}));
    EXPECT_EQ(Y(2), (Valores{10, 11, 12}));
    GraficoDibujar(G, {}, {{"", {1, 2}, {3, 4}}});
    EXPECT_EQ(G.Background(), 11);
    EXPECT_EQ(Y(1), (Valores{3, 4}));
    EXPECT_EQ(G.Conjuntos()[0].leyenda, "") << "nothing of the chart before is left";
    EXPECT_EQ(Error([&] { GraficoDibujar(G, {.puntos = 1}, {{"", {}, {3, 4}}}); }), 5) << "no room";
    G.LimpiarGrafico(7);
    EXPECT_EQ((std::vector{G.Background(), G.BorderStyle(), G.DrawMode()}), (std::vector{7, 0, 1}));
    EXPECT_FALSE(G.Visible || forma.lblX.Visible || forma.lblY.Visible);
    G.LimpiarGrafico();
    EXPECT_EQ(G.Background(), 11);
}

}  // namespace
}  // namespace cuencalia
