#include "modules/estadistica/frmParamEsta.h"

#include <gtest/gtest.h>

#include "frame/base/textos.h"
#include "shell/formas.h"
#include "tests/datos_publicados.h"
#include "guion/plataformaguion.h"

namespace cuencalia {
namespace {

using Textos = std::vector<std::string>;
using Tabla = std::vector<Textos>;

const Tabla kTablaVacia{{"Parámetros", "Muestrales", "Poblacionales", "Momentos Lineales"},
                        {"", "", "", ""},
                        {"", "", "", ""},
                        {"", "", "", ""},
                        {"", "", "", ""},
                        {"", "", "", ""},
                        {"", "", "", ""}};

class ParamEstaTest : public testing::Test {
  protected:
    ParamEstaTest() {
        app.Despachar([&] { app.ModuloAbrir("frmParamEsta"); });
    }

    frmParamEsta& F() { return dynamic_cast<frmParamEsta&>(*app.Cargada("frmParamEsta")); }

    void Teclear(const std::string& texto) {
        for (const char c : texto) {
            app.PulsarTecla(0, c);
        }
    }
    /// Types the values into the entry row, each with its ENTER.
    void TeclearSerie(const Textos& valores) {
        app.Despachar([&] { F().grdt.Presionar(kBotonIzquierdo, F().grdt.Rows() - 1, 1); });
        for (const std::string& valor : valores) {
            Teclear(valor);
            app.PulsarTecla(kTeclaEnter, kTeclaEnter);
        }
    }
    void Calcular() { app.Pulsar(F().bCalcular); }

    static Tabla Filas(const FlexGrid& grid) {
        Tabla filas;
        for (int f = 0; f < grid.Rows(); ++f) {
            Textos& fila = filas.emplace_back();
            for (int c = 0; c < grid.Cols(); ++c) {
                fila.push_back(grid.TextMatrix(f, c));
            }
        }
        return filas;
    }
    Tabla Parametros() { return Filas(F().grdParam); }
    Textos L() { return {F().txtL1.Text, F().txtL2.Text, F().txtL3.Text, F().txtL4.Text}; }

    PlataformaGuion sistema;
    Aplicacion app{sistema, FormasDelPrograma()};
};

TEST_F(ParamEstaTest, AlAbrir) {
    EXPECT_EQ(F().Caption(), "Cálculo de parámetros estadísticos, comunes y con momentos lineales");
    EXPECT_EQ(Filas(F().grdt), (Tabla{{"N°", "X"}, {"[?]", ""}}));
    EXPECT_EQ(Parametros(), kTablaVacia);
    EXPECT_EQ(F().grdParam.FixedRows(), 1);
    EXPECT_EQ(F().grdParam.FixedCols(), 1);
    EXPECT_EQ(F().grdParam.ColWidth(0), 2050);
    for (int c = 1; c < 4; ++c) {
        EXPECT_EQ(F().grdParam.ColWidth(c), 1750);
        EXPECT_EQ(F().grdParam.ColAlignment(c), 4);
    }
    EXPECT_EQ(F().grdParam.ColAlignment(0), 4);
    EXPECT_EQ(F().grdParam.RowHeight(0), 340);
    EXPECT_EQ(F().grdParam.BorderStyle(), 0);
    EXPECT_EQ(L(), Textos(4));
    EXPECT_EQ(F().Frame8.Caption(), "Coeficientes Lineales:");
    EXPECT_EQ(F().lblL4.Caption(), "L4:");
    EXPECT_FALSE(F().orden.grdorden.EsVisible());
    EXPECT_FALSE(F().orden.lblOrdenado.EsVisible());
    EXPECT_EQ(F().orden.lblOrdenado.Caption(), "Datos ordenados:");
    EXPECT_EQ(F().orden.bOrdenar.Caption(), "&Ordenar");
    EXPECT_EQ(F().orden.bOrdenar.ToolTipText(), "Mostrar serie ordenada");
}

// The pairs of pictures are numbered by the buttons' fixed order.
TEST_F(ParamEstaTest, ImagenesEnSuOrden) {
    CommandButton* const botones[] = {&F().bCalcular,    &F().orden.bOrdenar, &F().bLimpiar, &F().bImprimir,
                                      &F().bMenu,        &F().bCrear,         &F().bAccesar, &F().bReporte,
                                      &F().bCalculadora, &F().bCargarExcel};
    int reposo = 1;
    for (CommandButton* boton : botones) {
        EXPECT_EQ(boton->Picture(), F().ImageList1.Imagen(reposo)) << boton->Nombre();
        app.Despachar([&] { boton->MouseMove(); });
        EXPECT_EQ(boton->Picture(), F().ImageList1.Imagen(reposo + 1)) << boton->Nombre();
        reposo += 2;
    }
    app.Despachar([&] { F().Frame6.MouseMove(); });
    EXPECT_EQ(F().orden.bOrdenar.Picture(), F().ImageList1.Imagen(3));
    EXPECT_EQ(F().bCrear.Picture(), F().ImageList1.Imagen(12)) << "it stands in the other frame";
    app.Despachar([&] { F().Frame7.MouseMove(); });
    EXPECT_EQ(F().bCrear.Picture(), F().ImageList1.Imagen(11));
}

// 1, 2, 3, 4, 5: deviations -2 to 2, S2 = 10, S3 = 0, S4 = 34. Sample: s² = 10/4, s = 1.58114, Cv = s/3 = 0.52705,
// Ck = 125·6.8 / (4·3·2·6.25) = 5.66667. Population: v = 10/5, sd = 1.41421, Cv = 0.47140, Ck = 6.8/4. Linear moments:
// the ten differences add up to 20, L2 = 20/10/2 = 1; L3 = L4 = 0; L2/L1 = 1/3.
TEST_F(ParamEstaTest, DeUnoACinco) {
    TeclearSerie({"3", "1", "5", "2", "4"});
    Calcular();
    const Tabla esperada{{"Parámetros", "Muestrales", "Poblacionales", "Momentos Lineales"},
                         {"Media:                      ", "3.0000", "3.0000", "3.0000"},
                         {"Varianza:                   ", "2.5", "2.0", "1.0"},
                         {"Desviación Estándar:        ", "1.5811", "1.4142", "1.0000"},
                         {"Coeficiente Variación:      ", "0.5270", "0.4714", "0.3333"},
                         {"Coeficiente de Sesgo:       ", "0.0000", "0.0000", "0.0000"},
                         {"Coeficiente de Curtosis:    ", "5.6667", "1.7000", "0.0000"}};
    EXPECT_EQ(Parametros(), esperada);
    EXPECT_EQ(L(), (Textos{"3.0000", "1.0000", "0.0000", "0.0000"}));
    EXPECT_EQ(F().grdParam.ColAlignment(0), 1);
    EXPECT_EQ(F().grdParam.ColAlignment(1), 4);
    EXPECT_FALSE(F().orden.grdorden.EsVisible());
    EXPECT_TRUE(sistema.mensajes.empty());

    Calcular();
    EXPECT_EQ(Parametros(), esperada) << "the same again";
    EXPECT_EQ(L(), (Textos{"3.0000", "1.0000", "0.0000", "0.0000"}));
}

// 1, 2, 3, 4, 10: mean 4, deviations -3, -2, -1, 0, 6, S2 = 50, S3 = 180, S4 = 1394. Sample: s² = 12.5, s = 3.53553,
// Cv = 0.88388, Cs = 25·36 / (12·12.5·s) = 1.69706, Ck = 125·278.8 / (24·156.25) = 9.29333. Population: v = 10,
// sd = 3.16228, Cv = 0.79057, Cs = 36/10^1.5 = 1.13842, Ck = 2.788. Linear: the differences of the ten pairs add up to
// 40, L2 = 2; x3 - 2·x2 + x1 of the ten triples to 30, L3 = 1; x4 - 3·x3 + 3·x2 - x1 of the five quadruples to 20, L4
// = 1.
TEST_F(ParamEstaTest, SerieAsimetrica) {
    TeclearSerie({"10", "1", "2", "3", "4"});
    Calcular();
    const Tabla tabla = Parametros();
    EXPECT_EQ(tabla[1], (Textos{"Media:                      ", "4.0000", "4.0000", "4.0000"}));
    EXPECT_EQ(tabla[2], (Textos{"Varianza:                   ", "12.5", "10.0", "4.0"}));
    EXPECT_EQ(tabla[3], (Textos{"Desviación Estándar:        ", "3.5355", "3.1623", "2.0000"}));
    EXPECT_EQ(tabla[4], (Textos{"Coeficiente Variación:      ", "0.8839", "0.7906", "0.5000"}));
    EXPECT_EQ(tabla[5], (Textos{"Coeficiente de Sesgo:       ", "1.6971", "1.1384", "0.5000"}));
    EXPECT_EQ(tabla[6], (Textos{"Coeficiente de Curtosis:    ", "9.2933", "2.7880", "0.5000"}));
    EXPECT_EQ(L(), (Textos{"4.0000", "2.0000", "1.0000", "1.0000"}));
}

// The L-moments are the published ones (L3 and L4 from the ratios t3 and t4). The other columns were computed with
// exact fractions in Python: mean 3.236364, s² = 3.958545, s = 1.989609, Cv = 0.614767, Cs = 0.858277, Ck = 3.385478;
// v = 3.598678, sd = 1.897018, Cv = 0.586157, Cs = 0.736501, Ck = 2.215949.
TEST_F(ParamEstaTest, MuestraPublicada) {
    constexpr const char* kMuestra = "lmoments3_muestra11";
    Textos valores;
    for (const double valor : LeerColumna(std::string(kMuestra) + ".csv")) {
        valores.push_back(Format(valor, "0.0###"));
    }
    ASSERT_EQ(valores.size(), 11U);
    TeclearSerie(valores);
    Calcular();
    const auto publicado = [&](const char* magnitud) { return Publicado(kMuestra, "momentos lineales", magnitud); };
    const double l1 = publicado("l1"), l2 = publicado("l2"), t3 = publicado("t3"), t4 = publicado("t4");
    const auto cuatro = [](double valor) { return Format(valor, "0.0000"); };
    EXPECT_EQ(L(), (Textos{cuatro(l1), cuatro(l2), cuatro(l2 * t3), cuatro(l2 * t4)}));
    const Tabla tabla = Parametros();
    const auto fila = [&](std::size_t f) { return Textos(tabla[f].begin() + 1, tabla[f].end()); };
    EXPECT_EQ(fila(1), (Textos{"3.2364", "3.2364", "3.2364"}));
    EXPECT_EQ(fila(2), (Textos{"3.9585", "3.5987", "1.3037"})) << "the square of L2 is 1.303749";
    EXPECT_EQ(fila(3), (Textos{"1.9896", "1.8970", cuatro(l2)}));
    EXPECT_EQ(fila(4), (Textos{"0.6148", "0.5862", cuatro(l2 / l1)}));
    EXPECT_EQ(fila(5), (Textos{"0.8583", "0.7365", cuatro(t3)}));
    EXPECT_EQ(fila(6), (Textos{"3.3855", "2.2159", cuatro(t4)}));
}

TEST_F(ParamEstaTest, MenosDeDosDatosSeRehusa) {
    const auto rehusa = [&] {
        sistema.mensajes.clear();
        Calcular();
        ASSERT_EQ(sistema.mensajes.size(), 1U);
        EXPECT_EQ(sistema.mensajes[0].texto, "Para el cálculo de los parámetros se requieren por lo menos dos datos");
        EXPECT_EQ(sistema.mensajes[0].icono, 16);
        EXPECT_EQ(sistema.mensajes[0].titulo, "Error");
        EXPECT_EQ(app.Foco(), &F().grdt) << "ready for the value that is missing";
        EXPECT_EQ(F().grdt.Row(), F().grdt.Rows() - 1);
        EXPECT_EQ(F().grdt.Col(), 1);
    };
    rehusa();
    EXPECT_EQ(Parametros(), kTablaVacia);
    TeclearSerie({"7"});
    rehusa();
    EXPECT_EQ(Parametros(), kTablaVacia);
    EXPECT_EQ(L(), Textos(4));
    EXPECT_EQ(Filas(F().grdt), (Tabla{{"N°", "X"}, {" 1", "7.0"}, {"[->]", ""}}));

    // Results of a series that is there no more stand until a calculation replaces them.
    TeclearSerie({"1", "2", "4"});
    Calcular();
    const Tabla antes = Parametros();
    const Textos l = L();
    ASSERT_NE(antes, kTablaVacia);
    sistema.entradaEmergente = "mnuEditEliminar";
    app.Despachar([&] { F().grdt.Presionar(kBotonDerecho, F().grdt.Rows() - 1, 1); });
    ASSERT_EQ(F().grdt.Rows(), 2);
    rehusa();
    EXPECT_EQ(Parametros(), antes);
    EXPECT_EQ(L(), l);
}

struct CasoError {
    const char* porque;
    Textos valores;
    int numero;
};

// With m3 = 0 or s = 0 the quotient at fault is 0 / 0, which is an overflow; any other one divides by zero.
TEST_F(ParamEstaTest, SeriesQueDetienenElCalculo) {
    const CasoError casos[] = {
        {"n - 2 is 0, and so is m3 of any two values", {"1.0", "2.0"}, 6},
        {"n - 3 is 0", {"1.0", "2.0", "4.0"}, 11},
        {"s and m3 are 0", {"5.0", "5.0", "5.0", "5.0"}, 6},
        {"the mean is 0", {"-3.0", "-1.0", "1.0", "3.0"}, 11},
        {"s and the mean are 0", {"0.0", "0.0", "0.0", "0.0"}, 6},
    };
    for (const CasoError& caso : casos) {
        SCOPED_TRACE(caso.porque);
        app.Pulsar(F().bLimpiar);
        sistema.errores.clear();
        TeclearSerie(caso.valores);
        Calcular();
        ASSERT_EQ(sistema.errores.size(), 1U);
        EXPECT_EQ(sistema.errores[0].Numero(), caso.numero);
        EXPECT_TRUE(sistema.mensajes.empty());
        EXPECT_EQ(Parametros(), kTablaVacia) << "no partial results";
        EXPECT_EQ(L(), Textos(4));
        ASSERT_EQ(F().grdt.Rows(), static_cast<int>(caso.valores.size()) + 2);
        for (std::size_t i = 0; i < caso.valores.size(); ++i) {
            EXPECT_EQ(F().grdt.TextMatrix(static_cast<int>(i) + 1, 1), caso.valores[i]);
        }
    }
    TeclearSerie({"1", "2", "3", "4"});
    Calcular();
    EXPECT_EQ(Parametros()[1][1], "1.2500") << "0, 0, 0, 0, 1, 2, 3, 4: the program goes on";
}

TEST_F(ParamEstaTest, OrdenarNoNecesitaCalcular) {
    TeclearSerie({"3", "-1.5", "3", "0.25", "10"});
    app.Pulsar(F().orden.bOrdenar);
    const FlexGrid& lista = F().orden.grdorden;
    EXPECT_TRUE(lista.EsVisible());
    EXPECT_TRUE(F().orden.lblOrdenado.EsVisible());
    EXPECT_EQ(Filas(lista),
              (Tabla{{"N°", "X"}, {" 1", "-1.5"}, {" 2", "0.25"}, {" 3", "3.0"}, {" 4", "3.0"}, {" 5", "10.0"}}));
    EXPECT_EQ(lista.ColWidth(0), 700);
    EXPECT_EQ(lista.ColWidth(1), 1800);
    EXPECT_EQ(lista.ColAlignment(0), 4);
    EXPECT_EQ(lista.ColAlignment(1), 4);
    EXPECT_EQ(lista.RowHeight(0), 340);
    EXPECT_EQ(lista.BorderStyle(), 1);
    EXPECT_EQ(lista.Width(), 2800);
    EXPECT_EQ(lista.Height(), 14 * lista.RowHeight(1) + 340);
    EXPECT_EQ(Parametros(), kTablaVacia);
    EXPECT_EQ(Filas(F().grdt)[1], (Textos{" 1", "3.0"})) << "the data stay as they were typed";
}

TEST_F(ParamEstaTest, OrdenarYCalcularNoSeEstorban) {
    TeclearSerie({"4", "1", "3", "2"});
    Calcular();
    const Tabla parametros = Parametros();
    const Textos l = L();
    app.Pulsar(F().orden.bOrdenar);
    EXPECT_EQ(Parametros(), parametros);
    EXPECT_EQ(L(), l);

    const Tabla lista = Filas(F().orden.grdorden);
    TeclearSerie({"0"});
    EXPECT_EQ(Parametros(), parametros) << "typing leaves the old results standing";
    Calcular();
    EXPECT_NE(Parametros(), parametros);
    EXPECT_EQ(Filas(F().orden.grdorden), lista);
    EXPECT_TRUE(F().orden.grdorden.EsVisible());
    app.Pulsar(F().orden.bOrdenar);
    EXPECT_EQ(Filas(F().orden.grdorden),
              (Tabla{{"N°", "X"}, {" 1", "0.0"}, {" 2", "1.0"}, {" 3", "2.0"}, {" 4", "3.0"}, {" 5", "4.0"}}));
}

TEST_F(ParamEstaTest, OrdenarSinDatos) {
    app.Pulsar(F().orden.bOrdenar);
    EXPECT_TRUE(F().orden.grdorden.EsVisible());
    EXPECT_EQ(Filas(F().orden.grdorden), (Tabla{{"N°", "X"}}));
    EXPECT_TRUE(sistema.errores.empty());
    EXPECT_TRUE(sistema.mensajes.empty());
}

TEST_F(ParamEstaTest, Limpiar) {
    TeclearSerie({"1", "2", "3", "5"});
    Calcular();
    app.Pulsar(F().orden.bOrdenar);
    app.Pulsar(F().bLimpiar);
    EXPECT_EQ(Filas(F().grdt), (Tabla{{"N°", "X"}, {"[?]", ""}}));
    EXPECT_EQ(Parametros(), kTablaVacia);
    EXPECT_EQ(F().grdParam.ColAlignment(0), 4) << "as when it opened";
    EXPECT_EQ(L(), Textos(4));
    EXPECT_FALSE(F().orden.grdorden.EsVisible());
    EXPECT_FALSE(F().orden.lblOrdenado.EsVisible());
    EXPECT_TRUE(sistema.mensajes.empty());
}

}  // namespace
}  // namespace cuencalia
