#include "modules/regresion/frmRegreLineal.h"

#include "tests/archivos_en_disco.h"
#include "tests/forma_en_uso.h"

namespace cuencalia {
namespace {

using pruebas::Filas;
using pruebas::Tabla;
using pruebas::Textos;
using Valores = std::vector<std::optional<Double>>;

const Tabla kSinAjuste{{"Correlación", "Ecuación", "R", "R2"}, {"", "", "", ""}};
constexpr const char* kAntesY = "Antes de hallar el valor de Y, efectuar los calculos de la correlación";
constexpr const char* kAntesX = "Antes de hallar el valor de X, efectuar los calculos de la correlación";
constexpr const char* kB0 = "El coeficiente b tiene un valor de 0";

class RegreLinealTest : public pruebas::FormaEnUso<frmRegreLineal> {
  protected:
    RegreLinealTest() : FormaEnUso("frmRegreLineal") {}

    void Calcular(const Textos& pares) {
        TeclearDatos(pares);
        app.Pulsar(F().bCalcular);
    }
    /// x = 1, 2, 3 and y = 2.5, 3.5, 5.5: b = 3/2, a = 23/6 - 3 = 0.833333, R² = 9/(2·14/3) = 27/28.
    void CalcularTresPares() { Calcular({"1", "2.5", "2", "3.5", "3", "5.5"}); }
    Textos Ajuste() { return Filas(F().grdecua)[1]; }
    std::string YPara(const std::string& x) {
        Escribir(F().txtvxx, x);
        app.Pulsar(F().bCalY);
        return F().txtvyy.Text();
    }
    std::string XPara(const std::string& y) {
        Escribir(F().txtvyy, y);
        app.Pulsar(F().bCalX);
        return F().txtvxx.Text();
    }
};

TEST_F(RegreLinealTest, AlAbrir) {
    EXPECT_EQ(F().Caption(), "Cálculos con ecuaciones de regresión lineal simple, admite valores negativos o 0");
    EXPECT_EQ(Filas(F().grdt), (Tabla{{"Par", "X", "Y"}, {"[?]", "", ""}}));
    EXPECT_EQ(F().grdt.ColWidth(0), 700);
    EXPECT_EQ(F().grdt.ColWidth(2), 1800);
    EXPECT_EQ(Filas(F().grdecua), kSinAjuste);
    const int anchos[] = {1050, 3000, 1050, 1050};
    for (int c = 0; c < 4; ++c) {
        EXPECT_EQ(F().grdecua.ColWidth(c), anchos[c]);
        EXPECT_EQ(F().grdecua.ColAlignment(c), 4);
    }
    EXPECT_EQ(F().grdecua.RowHeight(0), 340);
    EXPECT_EQ(F().grdecua.FixedRows(), 1);
    EXPECT_EQ(F().grdecua.FixedCols(), 0);
    EXPECT_EQ(F().lbl1.Caption(), "Ingreso de los pares de datos:");
    EXPECT_EQ(F().Frame4.Caption(), "Aplicar ecuación lineal:");
    EXPECT_EQ(F().lblCalculoY.Caption(), "Ingresar el valor conocido:");
    EXPECT_EQ(F().Label6.Caption(), "Valor de X:");
    EXPECT_EQ(F().Label7.Caption(), "Valor de Y:");
    EXPECT_EQ(F().bCalY.ToolTipText(), "Calcular valor de Y");
    EXPECT_EQ(F().bCalX.ToolTipText(), "Calcular valor de X");
    EXPECT_FALSE(F().Graph1.EsVisible());
}

TEST_F(RegreLinealTest, AjusteYAplicacion) {
    CalcularTresPares();
    EXPECT_EQ(Filas(F().grdecua)[0], kSinAjuste[0]);
    EXPECT_EQ(Ajuste(), (Textos{"Lineal", "Y = 0.83333 + 1.5 * X", "0.98198", "0.96429"}));
    EXPECT_EQ(YPara("4"), "6.8333");
    EXPECT_EQ(YPara("-2"), "-2.1667");
    EXPECT_EQ(XPara("0.5"), "-0.2222") << "(0.5 - 0.833333)/1.5";
    EXPECT_EQ(F().txtvyy.Text(), "0.5") << "the known value stays as it was typed";
    EXPECT_EQ(YPara("abc"), "0.8333") << "no number counts as 0";
    EXPECT_EQ(YPara("1,5"), "2.3333") << "a comma ends the number";
    EsperarSilencio();
    // The line is applied unrounded: 0.33333 times 100000 would be 33333.
    app.Pulsar(F().bLimpiar);
    Calcular({"0", "0", "3", "1"});
    EXPECT_EQ(Ajuste()[1], "Y = 0.0 + 0.33333 * X");
    EXPECT_EQ(YPara("100000"), "33333.3333");
}

TEST_F(RegreLinealTest, SignosDeLaEcuacion) {
    Calcular({"1", "5.5", "2", "3.5", "3", "2.5"});
    EXPECT_EQ(Ajuste(), (Textos{"Lineal", "Y = 6.83333  -1.5 * X", "-0.98198", "0.96429"}));
    app.Pulsar(F().bLimpiar);
    Calcular({"-2", "-5", "2", "3"});
    EXPECT_EQ(Ajuste(), (Textos{"Lineal", "Y = -1.0 + 2.0 * X", "1.0", "1.0"}));
    app.Pulsar(F().bLimpiar);
    Calcular({"-1", "1", "0", "0", "1", "1"});
    EXPECT_EQ(Ajuste(), (Textos{"Lineal", "Y = 0.66667 + 0.0 * X", "0.0", "0.0"})) << "b = 0 is not negative";
    // The text of b counts, not its value: -0.0000001 shows as 0.0.
    app.Pulsar(F().bLimpiar);
    Calcular({"0", "1", "10000000", "0"});
    EXPECT_EQ(Ajuste()[1], "Y = 1.0 + 0.0 * X");
    EXPECT_EQ(Ajuste()[2], "-1.0");
    EXPECT_EQ(YPara("5000000"), "0.5000");
}

TEST_F(RegreLinealTest, PendienteCero) {
    Calcular({"-1", "1", "0", "0", "1", "1"});
    EXPECT_EQ(YPara("7"), "0.6667");
    Escribir(F().txtvyy, "3");
    EsperarMensaje(F().bCalX, kB0);
    EXPECT_EQ(F().txtvxx.Text(), "");
    EXPECT_EQ(F().txtvyy.Text(), "3");
    // The trap takes any error: here the quotient is beyond a Double.
    app.Pulsar(F().bLimpiar);
    Calcular({"0", "0", "10000000000", "0.00000001"});
    Escribir(F().txtvyy, "1e300");
    EsperarMensaje(F().bCalX, kB0);
    EXPECT_EQ(F().txtvxx.Text(), "");
}

TEST_F(RegreLinealTest, MenosDeDosPares) {
    const std::string texto = "Para el ajuste a la ecuación se requiere por lo menos dos puntos";
    EsperarMensaje(F().bCalY, kAntesY);
    EsperarMensaje(F().bCalcular, texto, 16, "Error");
    EXPECT_EQ(app.Foco(), &F().grdt);
    EXPECT_EQ(F().grdt.Row(), 1);
    EXPECT_EQ(F().grdt.Col(), 1);
    EXPECT_EQ(Filas(F().grdecua), kSinAjuste);
    // The refusal counts as a calculation, with a and b of 0.
    EXPECT_EQ(YPara("7"), "0.0000");
    Escribir(F().txtvyy, "3");
    EsperarMensaje(F().bCalX, kB0);

    TeclearDatos({"1", "2"});
    app.Despachar([&] { F().grdt.Presionar(kBotonIzquierdo, 1, 2); });
    EsperarMensaje(F().bCalcular, texto, 16, "Error");
    EXPECT_EQ(F().grdt.Row(), 2) << "the entry row of a grid with one pair";
    EXPECT_EQ(F().grdt.Col(), 1);
}

// The line of the last fit is the one applied after a refusal.
TEST_F(RegreLinealTest, UnRechazoDejaLaRectaAnterior) {
    CalcularTresPares();
    app.Pulsar(F().bLimpiar);
    EsperarMensaje(F().bCalY, kAntesY);
    EsperarMensaje(F().bCalX, kAntesX);
    EsperarMensaje(F().bCalcular, "Para el ajuste a la ecuación se requiere por lo menos dos puntos", 16, "Error");
    EXPECT_EQ(YPara("4"), "6.8333");
    EXPECT_EQ(XPara("0.5"), "-0.2222");
    EXPECT_EQ(Filas(F().grdecua), kSinAjuste);
}

TEST_F(RegreLinealTest, AplicarSinCalcular) {
    Escribir(F().txtvxx, "1");
    Escribir(F().txtvyy, "2");
    EsperarMensaje(F().bCalY, kAntesY);
    EsperarMensaje(F().bCalX, kAntesX);
    EXPECT_EQ(F().txtvxx.Text(), "1") << "nothing changes";
    EXPECT_EQ(F().txtvyy.Text(), "2");
}

TEST_F(RegreLinealTest, AplicarSinElValorConocido) {
    CalcularTresPares();
    Escribir(F().txtvyy, "2");
    EsperarMensaje(F().bCalY, "Ingresar un valor adecuado para X");
    EXPECT_EQ(app.Foco(), &F().txtvxx);
    EXPECT_EQ(F().txtvyy.Text(), "");
    Escribir(F().txtvxx, "2");
    EsperarMensaje(F().bCalX, "Ingresar un valor adecuado para Y");
    EXPECT_EQ(app.Foco(), &F().txtvyy);
    EXPECT_EQ(F().txtvxx.Text(), "");
    EXPECT_EQ(YPara(" "), "0.8333") << "only the empty text is refused";
}

// The fit is there before the correlation fails: b = 0 is applied from then on, the results keep their old row.
TEST_F(RegreLinealTest, OrdenadasIguales) {
    CalcularTresPares();
    const Textos antes = Ajuste();
    TeclearDesde(1, 2, {"4", "4", "4"});
    EsperarError(F().bCalcular, 6);
    EXPECT_EQ(Ajuste(), antes);
    EXPECT_EQ(YPara("7"), "4.0000");
    Escribir(F().txtvyy, "3");
    EsperarMensaje(F().bCalX, kB0);
}

TEST_F(RegreLinealTest, CalculosQueSeDetienen) {
    Calcular({});
    app.Pulsar(F().bLimpiar);
    sistema.mensajes.clear();
    TeclearDatos({"2", "1", "2", "5"});
    EsperarError(F().bCalcular, 6);
    EXPECT_EQ(Filas(F().grdecua), kSinAjuste);
    EsperarMensaje(F().bCalY, kAntesY);

    app.Pulsar(F().bLimpiar);
    TeclearDatos({"1", "0.1", "2", "0.1", "3", "0.1"});
    EsperarError(F().bCalcular, 5);
    EsperarMensaje(F().bCalY, kAntesY);
    // No trap stands in bCalY.
    CalcularTresPares();
    Escribir(F().txtvxx, "1e308");
    app.Pulsar(F().bLimpiar);
    Calcular({"0", "0", "1", "10"});
    Escribir(F().txtvxx, "1e308");
    EsperarError(F().bCalY, 6);
    EXPECT_EQ(F().txtvyy.Text(), "");
}

TEST_F(RegreLinealTest, EditarDejaElAjuste) {
    CalcularTresPares();
    const Textos antes = Ajuste();
    TeclearDatos({"100", "0"});
    EXPECT_EQ(YPara("4"), "6.8333");
    EXPECT_EQ(Ajuste(), antes);
    app.Pulsar(F().bCalcular);
    EXPECT_NE(Ajuste(), antes);
}

TEST_F(RegreLinealTest, GraficoDeLosPares) {
    TeclearDatos({"3", "5.5", "1", "-2.5"});
    app.Pulsar(F().bGraficar);
    const GraficoModulo& g = F().Graph1;
    EXPECT_TRUE(g.EsVisible()) << "no calculation is needed";
    EXPECT_EQ(g.FontUse(), 4);
    EXPECT_EQ(g.GraphType(), 6);
    EXPECT_EQ(g.GraphStyle(), 1);
    EXPECT_EQ(g.Background(), 11);
    EXPECT_EQ(g.BorderStyle(), 1);
    EXPECT_EQ(g.AutoInc(), 0);
    EXPECT_EQ(g.DrawMode(), 2);
    ASSERT_EQ(g.NumSets(), 1);
    EXPECT_EQ(g.Conjuntos()[0].x, (Valores{3, 1})) << "in the order of the rows";
    EXPECT_EQ(g.Conjuntos()[0].y, (Valores{5.5, -2.5}));
    app.Pulsar(F().bGraficar);
    EXPECT_EQ(g.Conjuntos()[0].x, (Valores{3, 1}));
    TeclearDatos({"7", "8"});
    EXPECT_EQ(g.NumPoints(), 2);
    app.Pulsar(F().bGraficar);
    EXPECT_EQ(g.Conjuntos()[0].x, (Valores{3, 1, 7})) << "the grid is read anew";
    EXPECT_EQ(Filas(F().grdecua), kSinAjuste);
    EsperarSilencio();
}

TEST_F(RegreLinealTest, GraficarMenosDeDosPares) {
    const std::string texto = "Para graficar se requiere por lo menos dos puntos";
    EsperarMensaje(F().bGraficar, texto, 16, "Error");
    EXPECT_FALSE(F().Graph1.EsVisible());
    EsperarMensaje(F().bCalY, kAntesY);
    TeclearDatos({"1", "2"});
    app.Pulsar(F().bMenu);
    Abrir("frmRegreLineal");
    TeclearDatos({"1", "2", "3", "4"});
    app.Pulsar(F().bGraficar);
    sistema.entradaEmergente = "mnuEditEliminar";
    app.Despachar([&] { F().grdt.Presionar(kBotonDerecho, 1, 1); });
    EsperarMensaje(F().bGraficar, texto, 16, "Error");
    EXPECT_TRUE(F().Graph1.EsVisible());
    EXPECT_EQ(F().Graph1.NumPoints(), 2) << "the chart is untouched";
    EXPECT_EQ(app.Foco(), &F().grdt);
    EXPECT_EQ(F().grdt.Row(), 2);
}

TEST_F(RegreLinealTest, LimpiarYCargarOlvidanElAjuste) {
    const pruebas::CarpetaTemporal carpeta;
    const auto preparar = [&] {
        app.Pulsar(F().bLimpiar);
        CalcularTresPares();
        app.Pulsar(F().bGraficar);
        ASSERT_EQ(YPara("4"), "6.8333");
    };
    const auto esperarOlvido = [&] {
        EXPECT_EQ(Filas(F().grdecua), kSinAjuste);
        EXPECT_EQ(F().txtvxx.Text(), "");
        EXPECT_EQ(F().txtvyy.Text(), "");
        EXPECT_FALSE(F().Graph1.EsVisible());
        EsperarMensaje(F().bCalY, kAntesY);
    };
    preparar();
    app.Pulsar(F().bLimpiar);
    EXPECT_EQ(Filas(F().grdt), (Tabla{{"Par", "X", "Y"}, {"[?]", "", ""}}));
    esperarOlvido();

    preparar();
    PulsarCon(F().bCrear, carpeta / "pares.XY");
    EXPECT_EQ(YPara("4"), "6.8333") << "storing forgets nothing";
    PulsarCon(F().bAccesar, carpeta / "pares.XY");
    EXPECT_EQ(Filas(F().grdt)[3], (Textos{" 3", "3.0", "5.5"}));
    esperarOlvido();

    preparar();
    Hoja hoja;
    hoja.Poner(1, 1, Double(1));
    hoja.Poner(1, 2, Double(2));
    sistema.Hojas().EscribirLibro(carpeta / "pares.xlsx", hoja);
    PulsarCon(F().bCargarExcel, carpeta / "pares.xlsx");
    EXPECT_EQ(Filas(F().grdt), (Tabla{{"Par", "X", "Y"}, {" 1", "1.0", "2.0"}, {"[->]", "", ""}}));
    esperarOlvido();
}

TEST_F(RegreLinealTest, MasDe1550Pares) {
    const pruebas::CarpetaTemporal carpeta;
    const auto archivo = [&](int pares) {
        EscritorSerie escritor(carpeta / "pares.XY", 2);
        for (int i = 1; i <= pares; ++i) {
            escritor.Escribir({Single(i), Single(2 * i)});
        }
        return carpeta / "pares.XY";
    };
    PulsarCon(F().bAccesar, archivo(1550));
    app.Pulsar(F().bCalcular);
    EXPECT_EQ(Ajuste(), (Textos{"Lineal", "Y = 0.0 + 2.0 * X", "1.0", "1.0"}));
    PulsarCon(F().bAccesar, archivo(1551));
    EXPECT_EQ(F().grdt.Rows(), 1553);
    EsperarError(F().bCalcular, 9);
    EXPECT_EQ(Filas(F().grdecua), kSinAjuste);
    EsperarError(F().bGraficar, 9);
    EXPECT_FALSE(F().Graph1.EsVisible());
}

}  // namespace
}  // namespace cuencalia
