#include "frame/controles/controles.h"

#include <gtest/gtest.h>

#include "frame/controles/aplicacion.h"
#include "guion/plataformaguion.h"
#include "tests/numero_de_error.h"

namespace cuencalia {
namespace {

/// Two groups of options, two pages and the other controls of a window.
class FormaControles : public Formulario {
  public:
    explicit FormaControles(Aplicacion& app) : Formulario(app, "frmControles", "Controles") {}

    TextBox txt{*this, "txt"};
    Frame FrameA{*this, "FrameA", "Primera"}, FrameB{*this, "FrameB", "Segunda"};
    OptionButton optA1{*this, "optA1", "A1", true}, optA2{*this, "optA2", "A2"}, optA3{*this, "optA3", "A3"};
    OptionButton optB1{*this, "optB1", "B1"}, optB2{*this, "optB2", "B2", true};
    ComboBox combo{*this, "combo", {"0", "10", "20"}};
    CommandButton b{*this, "b", "&Botón"};
    SSTab SSTab1{*this, "SSTab1", {"Uno", "Dos", "Tres"}};
    OptionButton optP1{*this, "optP1", "P1", true}, optP2{*this, "optP2", "P2"};
    OptionButton optQ1{*this, "optQ1", "Q1"}, optQ2{*this, "optQ2", "Q2", true};
    StatusBar barra{*this, "barra", 2};
    ImageList imagenes{*this, "imagenes"};
    Menu menu{*this, "menu", "Menú"};
    Menu entrada{menu, "entrada", "Entrada"};
    Menu raya{menu, "raya", "-"};

  protected:
    Disposicion Disponer() override {
        return Columna({txt, Fila({Grupo(FrameA, {optA1, Fila({optA2, optA3})}), Grupo(FrameB, {optB1, optB2, b})}),
                        combo, Fichas(SSTab1, {Columna({optP1, optP2}), Columna({optQ1, optQ2}), Espacio()})});
    }
};

class ControlesTest : public testing::Test {
  protected:
    ControlesTest() {
        app.Despachar([&] { app.ModuloAbrir("frmControles"); });
    }

    FormaControles& F() { return dynamic_cast<FormaControles&>(*app.Cargada("frmControles")); }

    void Enfocar(Control& control) {
        app.Despachar([&] { control.SetFocus(); });
    }
    void Teclear(const std::u32string& caracteres) {
        for (const char32_t c : caracteres) {
            app.PulsarTecla(0, static_cast<int>(c));
        }
    }
    void Tecla(int codigo, int veces = 1) {
        for (int i = 0; i < veces; ++i) {
            app.PulsarTecla(codigo, 0);
        }
    }
    void Retroceso() { app.PulsarTecla(kTeclaRetroceso, kTeclaRetroceso); }

    PlataformaGuion sistema;
    Aplicacion app{sistema, {{"frmControles", [](Aplicacion& a) { return std::make_unique<FormaControles>(a); }}}};
};

TEST_F(ControlesTest, CajaDeTextoInsertaBorraYMueve) {
    Teclear(U"1234");
    EXPECT_EQ(F().txt.Text(), "1234");
    EXPECT_EQ(F().txt.SelStart(), 4);
    Tecla(kTeclaIzquierda, 2);
    Teclear(U".");
    EXPECT_EQ(F().txt.Text(), "12.34");
    Retroceso();
    EXPECT_EQ(F().txt.Text(), "1234");
    EXPECT_EQ(F().txt.SelStart(), 2);
    Tecla(kTeclaSuprimir);
    EXPECT_EQ(F().txt.Text(), "124");
    Tecla(kTeclaInicio);
    Retroceso();
    EXPECT_EQ(F().txt.Text(), "124") << "nothing stands before the first character";
    Tecla(kTeclaIzquierda);
    Teclear(U"-");
    EXPECT_EQ(F().txt.Text(), "-124");
    Tecla(kTeclaFin);
    Tecla(kTeclaDerecha);
    Tecla(kTeclaSuprimir);
    Teclear(U"5");
    EXPECT_EQ(F().txt.Text(), "-1245") << "nothing stands behind the last one";
}

TEST_F(ControlesTest, CajaDeTextoReemplazaLaSeleccion) {
    const auto con_seleccion = [&](int inicio, int longitud) {
        app.Despachar([&] {
            F().txt.Text = "abcdef";
            F().txt.Seleccionar(inicio, longitud);
        });
    };
    con_seleccion(1, 3);
    Teclear(U"X");
    EXPECT_EQ(F().txt.Text(), "aXef");
    EXPECT_EQ(F().txt.SelStart(), 2);
    EXPECT_EQ(F().txt.SelLength(), 0);
    con_seleccion(1, 3);
    Retroceso();
    EXPECT_EQ(F().txt.Text(), "aef");
    con_seleccion(4, 2);
    Tecla(kTeclaSuprimir);
    EXPECT_EQ(F().txt.Text(), "abcd");
    con_seleccion(1, 3);
    Tecla(kTeclaIzquierda);
    EXPECT_EQ(F().txt.SelStart(), 1) << "an arrow goes to the end of the selection on its side";
    con_seleccion(1, 3);
    Tecla(kTeclaDerecha);
    EXPECT_EQ(F().txt.SelStart(), 4);
    EXPECT_EQ(F().txt.SelLength(), 0);
}

TEST_F(ControlesTest, CajaDeTextoCuentaCaracteresNoBytes) {
    Teclear(U"añ°σz");
    EXPECT_EQ(F().txt.Text(), "añ°σz");
    EXPECT_EQ(F().txt.SelStart(), 5);
    Tecla(kTeclaIzquierda, 2);
    Retroceso();
    EXPECT_EQ(F().txt.Text(), "añσz");
    Tecla(kTeclaSuprimir);
    EXPECT_EQ(F().txt.Text(), "añz");
    Retroceso();
    EXPECT_EQ(F().txt.Text(), "az");
}

TEST_F(ControlesTest, CajaDeTextoAvisaDeCadaCambio) {
    std::vector<std::string> vistos;
    F().txt.Change.Conectar([&] { vistos.push_back(F().txt.Text); });
    Teclear(U"12");
    app.Despachar([&] {
        F().txt.Text = "por código";
        F().txt.Text = "por código";  // not a change
    });
    Tecla(kTeclaFin);
    Retroceso();
    EXPECT_EQ(vistos, (std::vector<std::string>{"1", "12", "por código", "por códig"}));

    app.Despachar([&] { F().txt.Text = "x"; });
    EXPECT_LE(F().txt.SelStart(), 1) << "the cursor stays inside a text that got shorter";
    Teclear(U"y");
    EXPECT_EQ(F().txt.Text().size(), 2U);
}

// A filter of the form may take back what was typed: the cursor must not be left beyond the end.
TEST_F(ControlesTest, CajaDeTextoQueSuFormaCorrige) {
    int cursor = -1;
    F().txt.Change.Conectar([&] {
        cursor = F().txt.SelStart;
        if (F().txt.Text() == "x") {
            F().txt.Text = "";
        }
    });
    Teclear(U"x");
    EXPECT_EQ(F().txt.Text(), "");
    EXPECT_EQ(F().txt.SelStart(), 0);
    Teclear(U"12");
    EXPECT_EQ(F().txt.Text(), "12");
    EXPECT_EQ(cursor, 2) << "Change runs with the cursor where the user left it";
}

TEST_F(ControlesTest, CajaDeResultadoNoSeEscribe) {
    F().txt.Text = "3.0";
    F().txt.Locked = true;
    Teclear(U"9");
    Retroceso();
    Tecla(kTeclaSuprimir);
    EXPECT_EQ(F().txt.Text(), "3.0");
    Tecla(kTeclaFin);
    EXPECT_EQ(F().txt.SelStart(), 3) << "the cursor moves all the same";
    app.Despachar([&] { F().txt.Text = "4.0"; });
    EXPECT_EQ(F().txt.Text(), "4.0");
}

TEST_F(ControlesTest, OpcionesExclusivasEnSuMarco) {
    app.Pulsar(F().optA3);
    EXPECT_FALSE(F().optA1.Value);
    EXPECT_FALSE(F().optA2.Value);
    EXPECT_TRUE(F().optA3.Value);
    EXPECT_TRUE(F().optB2.Value) << "the other frame has a choice of its own";
    app.Pulsar(F().optB1);
    EXPECT_TRUE(F().optB1.Value);
    EXPECT_FALSE(F().optB2.Value);
    EXPECT_TRUE(F().optA3.Value);

    app.Pulsar(F().optQ1);
    EXPECT_FALSE(F().optQ2.Value);
    EXPECT_TRUE(F().optP1.Value) << "each page has a choice of its own";
    EXPECT_TRUE(F().optA3.Value);
}

TEST_F(ControlesTest, OpcionAvisaAlEncenderseTambienPorCodigo) {
    int a1 = 0, a2 = 0;
    F().optA1.Click.Conectar([&] { ++a1; });
    F().optA2.Click.Conectar([&] {
        ++a2;
        EXPECT_FALSE(F().optA1.Value) << "the others are off when Click runs";
    });
    app.Pulsar(F().optA2);
    EXPECT_EQ(a2, 1);
    EXPECT_EQ(a1, 0) << "being turned off is no click";
    app.Pulsar(F().optA2);
    EXPECT_EQ(a2, 1) << "it was on already";
    app.Despachar([&] { F().optA1.Value = true; });
    EXPECT_EQ(a1, 1);
    app.Despachar([&] { F().optA1.Value = false; });
    EXPECT_EQ(a1, 1);
    EXPECT_FALSE(F().optA2.Value) << "turning one off turns none on";
    Enfocar(F().optA2);
    Teclear(U" ");
    EXPECT_EQ(a2, 2);
}

TEST_F(ControlesTest, BotonSePulsaConEnterOBlanco) {
    int clicks = 0;
    F().b.Click.Conectar([&] { ++clicks; });
    Enfocar(F().b);
    app.PulsarTecla(kTeclaEnter, kTeclaEnter);
    Teclear(U" ");
    Teclear(U"a");
    Tecla(kTeclaAbajo);
    EXPECT_EQ(clicks, 2);
}

TEST_F(ControlesTest, CuadroCombinado) {
    int cambios = 0, clicks = 0;
    F().combo.Change.Conectar([&] { ++cambios; });
    F().combo.Click.Conectar([&] { ++clicks; });
    EXPECT_EQ(F().combo.ListIndex(), -1);
    app.Despachar([&] { F().combo.Elegir(1); });
    EXPECT_EQ(F().combo.Text(), "10");
    EXPECT_EQ(F().combo.ListIndex(), 1);
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(cambios, 1);
    EXPECT_EQ(NumeroDeError([&] { return F().combo.Elegir(3), 0; }), kSubindiceFuera);
    EXPECT_EQ(NumeroDeError([&] { return F().combo.Elegir(-1), 0; }), kSubindiceFuera);

    Enfocar(F().combo);
    Tecla(kTeclaAbajo, 3);
    EXPECT_EQ(F().combo.Text(), "20");
    EXPECT_EQ(clicks, 2) << "the last entry stays the last";
    Tecla(kTeclaArriba, 5);
    EXPECT_EQ(F().combo.Text(), "0");
    Teclear(U"5");
    EXPECT_EQ(F().combo.Text(), "05");
    EXPECT_EQ(F().combo.ListIndex(), -1);
    Retroceso();
    EXPECT_EQ(F().combo.ListIndex(), 0);
    F().combo.Editable = false;
    Teclear(U"5");
    Retroceso();
    EXPECT_EQ(F().combo.Text(), "0");
}

TEST_F(ControlesTest, Fichas) {
    int clicks = 0;
    F().SSTab1.Click.Conectar([&] { ++clicks; });
    Enfocar(F().SSTab1);
    Tecla(kTeclaDerecha, 5);
    EXPECT_EQ(F().SSTab1.Tab(), 2);
    EXPECT_EQ(clicks, 2);
    Tecla(kTeclaIzquierda, 5);
    EXPECT_EQ(F().SSTab1.Tab(), 0);
    app.Despachar([&] { F().SSTab1.Tab = 1; });
    EXPECT_EQ(clicks, 5);
    EXPECT_EQ(F().optQ1.Pagina(), 1);
    EXPECT_EQ(F().optQ1.Contenedor(), &F().SSTab1);
    EXPECT_EQ(F().optA1.Pagina(), -1);
}

TEST_F(ControlesTest, EntradaDeMenuGrisNoHaceNada) {
    int clicks = 0;
    F().entrada.Click.Conectar([&] { ++clicks; });
    F().raya.Click.Conectar([&] { ++clicks; });
    EXPECT_TRUE(F().entrada.Elegir());
    F().entrada.Enabled = false;
    EXPECT_FALSE(F().entrada.Elegir());
    F().entrada.Enabled = true;
    F().entrada.Visible = false;
    EXPECT_FALSE(F().entrada.Elegir());
    EXPECT_FALSE(F().raya.Elegir());
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(F().Barra(), std::vector<Menu*>{&F().menu});
    EXPECT_EQ(F().menu.Entradas(), (std::vector<Menu*>{&F().entrada, &F().raya}));
}

TEST_F(ControlesTest, LoQueEstaEnUnMarcoSigueAlMarco) {
    int clicks = 0;
    F().b.Click.Conectar([&] { ++clicks; });
    F().FrameB.Visible = false;
    EXPECT_FALSE(F().b.EsVisible());
    EXPECT_TRUE(F().b.Visible) << "its own flag stays";
    EXPECT_TRUE(F().optA1.EsVisible());
    EXPECT_EQ(NumeroDeError([&] { return F().b.SetFocus(), 0; }), kArgumentoNoValido);
    app.Pulsar(F().b);
    EXPECT_EQ(clicks, 0);
    F().FrameB.Visible = true;
    F().FrameB.Enabled = false;
    EXPECT_FALSE(F().b.EsHabilitado());
    app.Pulsar(F().b);
    EXPECT_EQ(clicks, 0);
    F().FrameB.Enabled = true;
    app.Pulsar(F().b);
    EXPECT_EQ(clicks, 1);
}

TEST_F(ControlesTest, BarraDeEstadoEImagenes) {
    F().barra.PonerPanel(2, "dos");
    EXPECT_EQ(F().barra.Panel(1), "");
    EXPECT_EQ(F().barra.Panel(2), "dos");
    EXPECT_EQ(NumeroDeError([&] { return F().barra.Panel(0); }), kSubindiceFuera);
    EXPECT_EQ(NumeroDeError([&] { return F().barra.PonerPanel(3, ""), 0; }), kSubindiceFuera);

    EXPECT_EQ(F().imagenes.AgregarPar("calcular"), 1);
    EXPECT_EQ(F().imagenes.AgregarPar("limpiar"), 3);
    EXPECT_EQ(F().imagenes.Imagen(3), "limpiar");
    EXPECT_NE(F().imagenes.Imagen(4), F().imagenes.Imagen(3));
    EXPECT_EQ(NumeroDeError([&] { return F().imagenes.Imagen(0); }), kSubindiceFuera);
    EXPECT_EQ(NumeroDeError([&] { return F().imagenes.Imagen(5); }), kSubindiceFuera);
}

TEST_F(ControlesTest, ControlesPorNombre) {
    EXPECT_EQ(F().Controls("optA2"), &F().optA2);
    EXPECT_EQ(F().Controls("frmControles"), &F());
    EXPECT_EQ(F().Controls("optA9"), nullptr);
}

}  // namespace
}  // namespace cuencalia
