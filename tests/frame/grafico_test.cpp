#include "frame/reportes/grafico.h"

#include <gtest/gtest.h>

#include "frame/base/textos.h"
#include "frame/controles/aplicacion.h"
#include "guion/plataformaguion.h"
#include "tests/numero_de_error.h"

namespace cuencalia {
namespace {

using Enteros = std::vector<int>;

class GraficoTest : public testing::Test {
  protected:
    void Tamano(int puntos, int conjuntos) {
        G.PonerNumPoints(puntos);
        G.PonerNumSets(conjuntos);
    }
    void Escribir(const Enteros& y, const Enteros& x) {
        for (const int valor : y) {
            G.PonerGraphData(valor);
        }
        for (const int valor : x) {
            G.PonerXPosData(valor);
        }
    }
    /// Legend, x and y of each set, with a hyphen where nothing was written.
    std::string Datos() const {
        std::string texto;
        for (const auto& [leyenda, x, y] : G.Conjuntos()) {
            texto += leyenda;
            for (const auto& [letra, valores] : {std::pair{"x", x}, {" y", y}}) {
                texto += letra;
                for (const auto& valor : valores) {
                    texto += valor ? Str(*valor) : " -";
                }
            }
            texto += "; ";
        }
        return texto;
    }
    Enteros Lugar() const { return {G.NumPoints(), G.NumSets(), G.ThisPoint(), G.ThisSet()}; }
    Enteros Aspecto() const { return {G.Visible(), G.Background(), G.BorderStyle(), G.DrawMode()}; }
    Enteros Clase() const { return {G.GraphType(), G.GraphStyle(), G.AutoInc()}; }

    PlataformaGuion sistema;
    Aplicacion app{sistema, {}};
    Formulario forma{app, "frmGrafico", "Gráfico"};
    GraficoModulo G{forma, "Graph1"};
};

// All the y first, set after set, and then all the x: each kind has its own next point.
TEST_F(GraficoTest, AutoIncRecorrePuntosYConjuntos) {
    Tamano(2, 3);
    Escribir({1, 2, 3, 4, 5, 6}, {10, 20, 30, 40, 50, 60});
    EXPECT_EQ(Datos(), "x 10 20 y 1 2; x 30 40 y 3 4; x 50 60 y 5 6; ");
    EXPECT_EQ(NumeroDeError([&] { G.PonerGraphData(7); }), 5) << "there is no fourth set";
    EXPECT_EQ(NumeroDeError([&] { G.PonerXPosData(7); }), 5);

    Tamano(3, 2);
    G.PonerThisSet(2);
    G.PonerThisPoint(2);
    Escribir({1, 2}, {9});
    EXPECT_EQ(Datos(), "x - - - y - - -; x - 9 - y - 1 2; ") << "it goes on from where it was told";
    G.PonerThisPoint(1);
    G.PonerThisSet(1);
    Escribir({5}, {});
    EXPECT_EQ(Datos(), "x - - - y 5 - -; x - 9 - y - 1 2; ");
}

TEST_F(GraficoTest, SinAutoIncSeEscribeElPuntoElegido) {
    Tamano(2, 2);
    G.AutoInc = 0;
    Escribir({1, 2}, {});
    EXPECT_EQ(Datos(), "x - - y 2 -; x - - y - -; ") << "the same point again";
    G.PonerThisPoint(2);
    G.PonerThisSet(2);
    Escribir({3}, {4});
    EXPECT_EQ(Datos(), "x - - y 2 -; x - 4 y - 3; ");
}

TEST_F(GraficoTest, EscribirElTamanoVacia) {
    const auto llenar = [&] {
        Tamano(2, 2);
        G.PonerThisSet(2);
        G.PonerLegendText("Ord");
        Escribir({1}, {2});
    };
    llenar();
    G.PonerNumPoints(2);
    EXPECT_EQ(Datos(), "x - - y - -; x - - y - -; ") << "also when the number is the same";
    EXPECT_EQ(Lugar(), (Enteros{2, 2, 1, 1}));
    llenar();
    G.PonerNumSets(1);
    EXPECT_EQ(Datos(), "x - - y - -; ");
    Escribir({8}, {});
    EXPECT_EQ(Datos(), "x - - y 8 -; ") << "writing begins at the first point";
}

TEST_F(GraficoTest, FueraDeLimites) {
    Tamano(2, 3);
    G.PonerThisPoint(2);
    G.PonerThisSet(3);
    using Grafico = GraficoModulo;
    // clang-format off
    const std::pair<void (Grafico::*)(int), int> casos[] = {
        {&Grafico::PonerNumPoints, 0}, {&Grafico::PonerNumSets, 0}, {&Grafico::PonerThisPoint, 3}, {&Grafico::PonerThisSet, 4}};
    // clang-format on
    for (const auto& [poner, alto] : casos) {
        for (const int malo : {0, -1, alto}) {
            EXPECT_EQ(NumeroDeError([&, p = poner] { (G.*p)(malo); }), 5) << malo;
        }
    }
    EXPECT_EQ(Lugar(), (Enteros{2, 3, 2, 3}));
}

TEST_F(GraficoTest, DibujarYLimpiar) {
    EXPECT_FALSE(G.Visible);
    EXPECT_EQ(G.AutoInc(), 1);
    const DescripcionGrafico areas{kGraficoAreas, kSimbolosSueltos, 7, true, "Tiempo (min)", 1};
    GraficoDibujar(G, areas, {{"Exp", {1, 2, 3}, {4, 5, 6}}, {"Ord", {7, 8, 9}, {10, 11, 12}}});
    EXPECT_EQ(Datos(), "Expx 1 2 3 y 4 5 6; Ordx 7 8 9 y 10 11 12; ");
    EXPECT_EQ(Clase(), (Enteros{8, 1, 1}));
    EXPECT_EQ(Aspecto(), (Enteros{true, 7, 1, 2}));
    EXPECT_EQ(G.FontUse() * 10 + G.PatternData(), 42);
    EXPECT_EQ(G.BottomTitle(), "Tiempo (min)");

    GraficoDibujar(G, {.autoInc = 0}, {{"", {1, 2}, {3, 4}}});
    EXPECT_EQ(Datos(), "x 1 2 y 3 4; ") << "nothing of the chart before is left";
    EXPECT_EQ(Clase(), (Enteros{6, 0, 0}));
    EXPECT_EQ(Aspecto(), (Enteros{true, 11, 1, 2}));
    EXPECT_EQ(G.BottomTitle(), "");

    G.Background = 7;
    G.LimpiarGrafico();
    EXPECT_EQ(Aspecto(), (Enteros{false, 11, 0, 1}));
    GraficoDibujar(G, {}, {{"", {5}, {6}}});
    EXPECT_EQ(Datos(), "x 5 y 6; ");
    EXPECT_EQ(Aspecto(), (Enteros{true, 11, 1, 2}));
}

}  // namespace
}  // namespace cuencalia
