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
    OptionButton optA1{*this, "optA1", "A1", true}, optA2{*this, "optA2", "A2"};
    OptionButton optB1{*this, "optB1", "B1"}, optB2{*this, "optB2", "B2", true};
    ComboBox combo{*this, "combo", {"0", "10", "20"}};
    CommandButton b{*this, "b", "&Botón"};
    SSTab SSTab1{*this, "SSTab1", {"Uno", "Dos", "Tres"}};
    OptionButton optP1{*this, "optP1", "P1", true}, optQ1{*this, "optQ1", "Q1"}, optQ2{*this, "optQ2", "Q2", true};
    StatusBar barra{*this, "barra", 2};
    Menu menu{*this, "menu", "Menú"};
    Menu entrada{menu, "entrada", "Entrada"}, raya{menu, "raya", "-"};

  protected:
    Disposicion Disponer() override {
        return Columna({txt, Fila({Grupo(FrameA, {optA1, Fila({optA2})}), Grupo(FrameB, {optB1, optB2, b})}), combo,
                        Fichas(SSTab1, {optP1, Columna({optQ1, optQ2}), Espacio()})});
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
    std::tuple<std::string, int, int> Caja() { return {F().txt.Text(), F().txt.SelStart(), F().txt.SelLength()}; }
    /// Types characters; these stand for keys: left [, right ], home {, end }, up ^, down _, Delete ~, Backspace <.
    void Teclas(const std::u32string& texto) {
        static const std::u32string kSignos = U"[]{}^_~<";
        static constexpr int kCodigos[] = {kTeclaIzquierda, kTeclaDerecha, kTeclaInicio,   kTeclaFin,
                                           kTeclaArriba,    kTeclaAbajo,   kTeclaSuprimir, kTeclaRetroceso};
        for (const char32_t c : texto) {
            const auto signo = kSignos.find(c);
            const int codigo = signo == std::u32string::npos ? 0 : kCodigos[signo];
            app.PulsarTecla(codigo, codigo == 0 ? static_cast<int>(c) : codigo == kTeclaRetroceso ? codigo : 0);
        }
    }

    PlataformaGuion sistema;
    Aplicacion app{sistema, {{"frmControles", [](Aplicacion& a) { return std::make_unique<FormaControles>(a); }}}};
};

TEST_F(ControlesTest, CajaDeTexto) {
    struct Caso {
        const char* texto;
        int inicio, largo;
        const char32_t* teclas;
        const char* queda;
        int cursor;
    };
    static constexpr Caso kCasos[] = {
        {"", 0, 0, U"1234[[.", "12.34", 3},  {"12.34", 3, 0, U"<", "1234", 2},     {"1234", 2, 0, U"~", "124", 2},
        {"124", 3, 0, U"{<[-", "-124", 1},   {"-124", 1, 0, U"}]~5", "-1245", 5},  {"abcdef", 1, 3, U"X", "aXef", 2},
        {"abcdef", 1, 3, U"<", "aef", 1},    {"abcdef", 4, 2, U"~", "abcd", 4},    {"abcdef", 1, 3, U"[", "abcdef", 1},
        {"abcdef", 1, 3, U"]", "abcdef", 4}, {"", 0, 0, U"añ°σ𝑄z[[<", "añ°𝑄z", 3}, {"añ°𝑄z", 3, 0, U"~~<", "añ", 2},
    };
    for (const Caso& caso : kCasos) {
        app.Despachar([&] {
            F().txt.Text = caso.texto;
            F().txt.Seleccionar(caso.inicio, caso.largo);
        });
        Teclas(caso.teclas);
        EXPECT_EQ(Caja(), std::tuple(caso.queda, caso.cursor, 0));
    }
    F().txt.Locked = true;
    Teclas(U"9<{~");
    EXPECT_EQ(Caja(), std::tuple("añ", 0, 0)) << "in a box of results the cursor moves all the same";
}

// The form may take back what was typed; the cursor stands where the user left it while it does.
TEST_F(ControlesTest, CajaDeTextoAvisaDeCadaCambio) {
    std::string vistos;
    F().txt.Change.Conectar([&] {
        vistos += F().txt.Text() + "@" + std::to_string(F().txt.SelStart()) + " ";
        if (F().txt.Text() == "12x") {
            F().txt.Text = "";
        }
    });
    Teclas(U"12");
    app.Despachar([&] {
        F().txt.Text = "por código";
        F().txt.Text = "por código";
    });
    Teclas(U"}<");
    app.Despachar([&] { F().txt.Text = "12"; });
    Teclas(U"x7");
    EXPECT_EQ(vistos, "1@1 12@2 por código@2 por códig@9 12@2 12x@3 @0 7@1 ");
}

TEST_F(ControlesTest, OpcionesExclusivasEnSuMarcoOFicha) {
    std::string clicks;
    for (OptionButton* opcion : {&F().optA1, &F().optA2}) {
        opcion->Click.Conectar([&clicks, opcion, this] {
            clicks += opcion->Caption();
            EXPECT_NE(F().optA1.Value(), F().optA2.Value()) << "the others are off when Click runs";
        });
    }
    app.Pulsar(F().optA2);
    app.Pulsar(F().optA2);
    app.Despachar([&] { F().optA1.Value = true; });
    app.Despachar([&] { F().optA1.Value = false; });
    EXPECT_FALSE(F().optA2.Value) << "turning one off turns none on";
    Enfocar(F().optA2);
    Teclas(U" ");
    EXPECT_EQ(clicks, "A2A1A2") << "being turned off is no click, nor is being on already";
    app.Despachar([&] { F().optQ1.Value = true; });
    EXPECT_FALSE(F().optQ2.Value);
    EXPECT_TRUE(F().optB2.Value && F().optP1.Value) << "another frame and another page have a choice of their own";
}

TEST_F(ControlesTest, CuadroCombinadoYFichas) {
    ComboBox& combo = F().combo;
    std::string vistos;
    combo.Change.Conectar([&] { vistos += combo.Text() + "@" + std::to_string(combo.ListIndex()) + " "; });
    combo.Click.Conectar([&] { vistos += "click "; });
    EXPECT_EQ(combo.ListIndex(), -1);
    app.Despachar([&] { combo.Elegir(1); });
    EXPECT_EQ(NumeroDeError([&] { combo.Elegir(3); }), kSubindiceFuera);
    EXPECT_EQ(NumeroDeError([&] { combo.Elegir(-1); }), kSubindiceFuera);
    Enfocar(combo);
    Teclas(U"___");
    EXPECT_EQ(vistos, "10@1 click 20@2 click ") << "the last entry stays the last";
    Teclas(U"^^^^5<");
    combo.Editable = false;
    Teclas(U"5<");
    EXPECT_EQ(vistos, "10@1 click 20@2 click 10@1 click 0@0 click 05@-1 0@0 ");
    EXPECT_TRUE(sistema.errores.empty()) << "the first entry stays the first";

    std::string fichas;
    F().SSTab1.Click.Conectar([&] { fichas += std::to_string(F().SSTab1.Tab()); });
    Enfocar(F().optP1);
    app.Despachar([&] { F().SSTab1.Tab = 1; });
    Teclas(U"]]]]][[[[[");
    EXPECT_EQ(fichas, "1210") << "the option's page went back, and left the keys to the tabs";
}

TEST_F(ControlesTest, BotonMenuYBarraDeEstado) {
    int clicks = 0;
    for (Evento<>* evento : {&F().b.Click, &F().entrada.Click, &F().raya.Click}) {
        evento->Conectar([&] { ++clicks; });
    }
    Enfocar(F().b);
    app.PulsarTecla(kTeclaEnter, kTeclaEnter);
    Teclas(U" a_");
    EXPECT_EQ(clicks, 2);
    EXPECT_TRUE(F().entrada.Elegir());
    F().entrada.Enabled = false;
    EXPECT_FALSE(F().entrada.Elegir());
    F().entrada.Enabled = true;
    F().entrada.Visible = false;
    EXPECT_FALSE(F().entrada.Elegir() || F().raya.Elegir());
    EXPECT_EQ(clicks, 3);

    F().barra.PonerPanel(2, "dos");
    EXPECT_EQ(F().barra.Panel(1) + F().barra.Panel(2), "dos");
    EXPECT_EQ(NumeroDeError([&] { return F().barra.Panel(0); }), kSubindiceFuera);
    EXPECT_EQ(NumeroDeError([&] { F().barra.PonerPanel(3, ""); }), kSubindiceFuera);
}

TEST_F(ControlesTest, LoQueEstaEnUnMarcoSigueAlMarco) {
    int clicks = 0;
    F().b.Click.Conectar([&] { ++clicks; });
    for (Propiedad<bool>* propiedad : {&F().FrameB.Visible, &F().FrameB.Enabled}) {
        *propiedad = false;
        EXPECT_EQ(F().b.EsVisible(), F().FrameB.Visible());
        EXPECT_EQ(NumeroDeError([&] { F().b.SetFocus(); }), kArgumentoNoValido);
        app.Pulsar(F().b);
        *propiedad = true;
    }
    EXPECT_EQ(clicks, 0);
    app.Pulsar(F().b);
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(F().Controls("optA2"), &F().optA2);
    EXPECT_EQ(F().Controls("optA9"), nullptr);
}

}  // namespace
}  // namespace cuencalia
