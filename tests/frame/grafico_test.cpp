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
};

using Valores = std::vector<std::optional<Double>>;

/// Counts what the view of the chart would paint anew.
struct VistaContadora : VistaControl {
    void ModeloCambio() override { ++cambios; }
    int cambios = 0;
};

class GraficoTest : public testing::Test {
  protected:
    void Tamano(int puntos, int conjuntos) {
        G.PonerNumPoints(puntos);
        G.PonerNumSets(conjuntos);
    }
    const Valores& X(std::size_t conjunto) { return G.Conjuntos().at(conjunto - 1).x; }
    const Valores& Y(std::size_t conjunto) { return G.Conjuntos().at(conjunto - 1).y; }

    PlataformaGuion sistema;
    Aplicacion app{sistema, {}};
    FormaConGrafico forma{app};
    GraficoModulo& G = forma.Graph1;
};

TEST_F(GraficoTest, OcultoHastaQueSeDibuja) {
    EXPECT_FALSE(G.Visible);
    EXPECT_EQ(G.AutoInc(), 1);
    GraficoDibujar(G, {}, {{.x = {1}, .y = {2}}});
    EXPECT_TRUE(G.Visible);
}

// All the y first, set after set, and then all the x: each kind has its own next point.
TEST_F(GraficoTest, AutoIncRecorrePuntosYConjuntos) {
    Tamano(2, 3);
    for (const int y : {1, 2, 3, 4, 5, 6}) {
        G.PonerGraphData(y);
    }
    for (const int x : {10, 20, 30, 40, 50, 60}) {
        G.PonerXPosData(x);
    }
    EXPECT_EQ(Y(1), (Valores{1, 2}));
    EXPECT_EQ(Y(2), (Valores{3, 4}));
    EXPECT_EQ(Y(3), (Valores{5, 6}));
    EXPECT_EQ(X(1), (Valores{10, 20}));
    EXPECT_EQ(X(2), (Valores{30, 40}));
    EXPECT_EQ(X(3), (Valores{50, 60}));
    EXPECT_EQ(NumeroDeError([&] { return G.PonerGraphData(7), 0; }), 5) << "there is no fourth set";
    EXPECT_EQ(NumeroDeError([&] { return G.PonerXPosData(7), 0; }), 5);
}

TEST_F(GraficoTest, AutoIncContinuaDesdeElConjuntoYElPuntoElegidos) {
    Tamano(3, 2);
    G.PonerThisSet(2);
    G.PonerThisPoint(2);
    G.PonerGraphData(1);
    G.PonerGraphData(2);
    G.PonerXPosData(9);
    EXPECT_EQ(Y(1), Valores(3));
    EXPECT_EQ(Y(2), (Valores{std::nullopt, 1, 2}));
    EXPECT_EQ(X(2), (Valores{std::nullopt, 9, std::nullopt}));
    G.PonerThisPoint(1);
    G.PonerThisSet(1);
    G.PonerGraphData(5);
    EXPECT_EQ(Y(1), (Valores{5, std::nullopt, std::nullopt}));
}

TEST_F(GraficoTest, SinAutoIncSeEscribeElPuntoElegido) {
    Tamano(2, 2);
    G.AutoInc = 0;
    G.PonerGraphData(1);
    G.PonerGraphData(2);
    EXPECT_EQ(Y(1), (Valores{2, std::nullopt})) << "the same point again";
    G.PonerThisPoint(2);
    G.PonerThisSet(2);
    EXPECT_EQ(G.ThisPoint(), 2);
    EXPECT_EQ(G.ThisSet(), 2);
    G.PonerGraphData(3);
    G.PonerXPosData(4);
    EXPECT_EQ(Y(2), (Valores{std::nullopt, 3}));
    EXPECT_EQ(X(2), (Valores{std::nullopt, 4}));
}

TEST_F(GraficoTest, EscribirElTamanoVacia) {
    const auto llenar = [&] {
        Tamano(2, 2);
        G.PonerThisSet(2);
        G.PonerLegendText("Ord");
        G.PonerGraphData(1);
        G.PonerXPosData(2);
    };
    llenar();
    G.PonerNumPoints(2);
    EXPECT_EQ(Y(2), Valores(2)) << "also when the number is the same";
    EXPECT_EQ(X(2), Valores(2));
    EXPECT_EQ(G.NumSets(), 2);
    EXPECT_EQ(G.ThisSet(), 1);
    llenar();
    G.PonerNumPoints(3);
    EXPECT_EQ(Y(1), Valores(3));
    llenar();
    G.PonerNumSets(1);
    EXPECT_EQ(G.NumSets(), 1);
    EXPECT_EQ(G.NumPoints(), 2);
    EXPECT_EQ(Y(1), Valores(2));
    EXPECT_EQ(G.Conjuntos()[0].leyenda, "");
    G.PonerGraphData(8);
    EXPECT_EQ(Y(1), (Valores{8, std::nullopt})) << "writing begins at the first point";
}

TEST_F(GraficoTest, FueraDeLimites) {
    Tamano(2, 3);
    G.PonerThisPoint(2);
    G.PonerThisSet(3);
    for (const int malo : {0, -1}) {
        EXPECT_EQ(NumeroDeError([&] { return G.PonerNumPoints(malo), 0; }), 5);
        EXPECT_EQ(NumeroDeError([&] { return G.PonerNumSets(malo), 0; }), 5);
        EXPECT_EQ(NumeroDeError([&] { return G.PonerThisPoint(malo), 0; }), 5);
        EXPECT_EQ(NumeroDeError([&] { return G.PonerThisSet(malo), 0; }), 5);
    }
    EXPECT_EQ(NumeroDeError([&] { return G.PonerThisPoint(3), 0; }), 5);
    EXPECT_EQ(NumeroDeError([&] { return G.PonerThisSet(4), 0; }), 5);
    EXPECT_EQ(G.NumPoints(), 2);
    EXPECT_EQ(G.NumSets(), 3);
    EXPECT_EQ(G.ThisPoint(), 2);
    EXPECT_EQ(G.ThisSet(), 3);
}

TEST_F(GraficoTest, GraficoDibujar) {
    GraficoDibujar(G,
                   {.tipo = kGraficoAreas,
                    .estilo = kSimbolosSueltos,
                    .fondo = 7,
                    .conTrama = true,
                    .titulo = "Tiempo (min)",
                    .autoInc = 1},
                   {{"Exp", {1, 2, 3}, {4, 5, 6}}, {"Ord", {7, 8, 9}, {10, 11, 12}}});
    EXPECT_EQ(G.FontUse(), 4);
    EXPECT_EQ(G.GraphType(), 8);
    EXPECT_EQ(G.GraphStyle(), 1);
    EXPECT_EQ(G.Background(), 7);
    EXPECT_EQ(G.BorderStyle(), 1);
    EXPECT_EQ(G.PatternData(), 2);
    EXPECT_EQ(G.BottomTitle(), "Tiempo (min)");
    EXPECT_EQ(G.AutoInc(), 1);
    EXPECT_EQ(G.DrawMode(), 2);
    EXPECT_EQ(G.NumPoints(), 3);
    ASSERT_EQ(G.NumSets(), 2);
    EXPECT_EQ(G.Conjuntos()[0].leyenda, "Exp");
    EXPECT_EQ(G.Conjuntos()[1].leyenda, "Ord");
    EXPECT_EQ(X(1), (Valores{1, 2, 3}));
    EXPECT_EQ(Y(1), (Valores{4, 5, 6}));
    EXPECT_EQ(X(2), (Valores{7, 8, 9}));
    EXPECT_EQ(Y(2), (Valores{10, 11, 12}));

    GraficoDibujar(G, {.autoInc = 0}, {{"", {1, 2}, {3, 4}}});
    EXPECT_EQ(G.GraphType(), 6);
    EXPECT_EQ(G.GraphStyle(), 0);
    EXPECT_EQ(G.Background(), 11);
    EXPECT_EQ(G.BottomTitle(), "");
    EXPECT_EQ(G.AutoInc(), 0);
    EXPECT_EQ(G.NumSets(), 1) << "nothing of the chart before is left";
    EXPECT_EQ(X(1), (Valores{1, 2}));
    EXPECT_EQ(Y(1), (Valores{3, 4}));
    EXPECT_EQ(G.Conjuntos()[0].leyenda, "");
}

TEST_F(GraficoTest, LimpiarGrafico) {
    GraficoDibujar(G, {.fondo = 7}, {{"Exp", {1, 2}, {3, 4}}});
    VistaContadora vista;
    G.PonerVista(&vista);
    G.LimpiarGrafico();
    EXPECT_FALSE(G.Visible);
    EXPECT_EQ(G.Background(), 11);
    EXPECT_EQ(G.BorderStyle(), 0);
    EXPECT_EQ(G.DrawMode(), 1);
    EXPECT_GT(vista.cambios, 0);
    vista.cambios = 0;
    GraficoDibujar(G, {}, {{"", {5}, {6}}});
    EXPECT_EQ(X(1), (Valores{5}));
    EXPECT_EQ(Y(1), (Valores{6}));
    EXPECT_TRUE(G.Visible);
    EXPECT_EQ(G.DrawMode(), 2);
    EXPECT_GT(vista.cambios, 0);
    G.PonerVista(nullptr);
}

}  // namespace
}  // namespace cuencalia
