#include "frame/controles/aplicacion.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <new>

#include "frame/base/textos.h"
#include "guion/plataformaguion.h"
#include "tests/numero_de_error.h"

namespace cuencalia {
namespace {

using Registro = std::vector<std::string>;

/// A form with three boxes and some buttons that writes down what happens to it.
class FormaPrueba : public Formulario {
  public:
    FormaPrueba(Aplicacion& app, std::string nombre, Registro& registro)
        : Formulario(app, std::move(nombre), "De prueba"), registro_(registro) {
        for (TextBox* caja : {&txtA, &txtB, &txtC}) {
            const std::string letra = caja->Nombre().substr(3);
            caja->GotFocus.Conectar([this, letra] { registro_.push_back("+" + letra); });
            caja->LostFocus.Conectar([this, letra] { registro_.push_back("-" + letra); });
        }
        b1.Click.Conectar([this] { registro_.push_back("b1"); });
        bCerrar.Click.Conectar([this] {
            App().ModuloCerrar(*this);
            txtA.Text = "todavía";  // the form outlives the handler that unloads it
            registro_.push_back("cerrada");
        });
    }

    TextBox txtA{*this, "txtA"}, txtB{*this, "txtB"}, txtC{*this, "txtC"};
    CommandButton b1{*this, "b1", "Uno"}, b2{*this, "b2", "Dos"}, bCerrar{*this, "bCerrar", "Cerrar"};

    void Form_Load() override { registro_.push_back("carga " + Nombre()); }
    void Form_Unload() override { registro_.push_back("descarga " + Nombre()); }

  protected:
    Disposicion Disponer() override { return Columna({txtA, txtB, txtC, b1, b2, bCerrar}); }

  private:
    Registro& registro_;
};

class AplicacionTest : public testing::Test {
  protected:
    AplicacionTest() {
        Abrir("frmUna");
        registro.clear();
    }

    TablaFormas Formas() {
        TablaFormas formas;
        for (const std::string nombre : {"frmCuencalia", "frmUna", "frmDos"}) {
            formas[nombre] = [this, nombre](Aplicacion& a) {
                return std::make_unique<FormaPrueba>(a, nombre, registro);
            };
        }
        return formas;
    }
    FormaPrueba& Forma(const std::string& nombre) { return dynamic_cast<FormaPrueba&>(*app.Cargada(nombre)); }
    FormaPrueba& Abrir(const std::string& nombre) {
        app.Despachar([&] { app.ModuloAbrir(nombre); });
        return Forma(nombre);
    }
    FormaPrueba& Una() { return Forma("frmUna"); }
    std::vector<int> Errores() const {
        std::vector<int> numeros;
        for (const ErrorEjecucion& error : sistema.errores) {
            numeros.push_back(error.Numero());
        }
        return numeros;
    }
    auto Veces(const std::string& suceso) { return std::count(registro.begin(), registro.end(), suceso); }

    PlataformaGuion sistema;
    Registro registro;
    Aplicacion app{sistema, Formas()};
};

TEST_F(AplicacionTest, ElFocoEsperaAlFinalDelManejadorOADoEvents) {
    ASSERT_EQ(app.Foco(), &Una().txtA) << "the first control of a form that opens";
    app.Despachar([&] {
        Una().txtB.SetFocus();
        Una().txtC.SetFocus();
        registro.push_back("fin");
    });
    app.Despachar([&] { Una().txtC.SetFocus(); });
    EXPECT_EQ(registro, (Registro{"fin", "-A", "+B", "-B", "+C"})) << "and nothing where it is already";
    registro.clear();
    app.Despachar([&] {
        Una().txtB.SetFocus();
        app.DoEvents();
        registro.push_back("después");
        Una().txtA.SetFocus();
    });
    EXPECT_EQ(registro, (Registro{"-C", "+B", "después", "-B", "+A"}));

    // Hidden while the change waits, it never has the focus.
    registro.clear();
    app.Despachar([&] {
        Una().txtB.SetFocus();
        Una().txtB.Visible = false;
    });
    EXPECT_EQ(app.Foco(), &Una().txtA);
    EXPECT_EQ(registro, Registro{});
    Una().txtA.LostFocus.Conectar([&] {
        Una().b1.SetFocus();
        app.DoEvents();
    });
    app.Despachar([&] { Una().txtC.SetFocus(); });
    EXPECT_EQ(app.Foco(), &Una().b1) << "the lost-focus handler sent it elsewhere";
    EXPECT_EQ(Veces("+C"), 0);
}

TEST_F(AplicacionTest, UnErrorDetieneElManejadorYElProgramaSigue) {
    Una().b2.Click.Conectar([&] {
        Una().txtB.Text = "antes";
        Una().txtC.SetFocus();
        Una().txtB.Text = Str(Double(1) / Double(0));
    });
    app.Pulsar(Una().b2);
    EXPECT_EQ(Una().txtB.Text(), "antes");
    EXPECT_EQ(app.Foco(), &Una().txtC) << "asked for before the fault";
    app.Despachar([] { throw std::bad_alloc(); });
    app.Despachar([] { throw std::out_of_range("at"); });
    app.Despachar([] { throw 7; });
    EXPECT_EQ(Errores(), (std::vector<int>{11, 7, 51, 51})) << "no exception passes";
    EXPECT_EQ(sistema.errores[0].Texto(), "División por cero");
    EXPECT_EQ(sistema.errores[2].Texto(), "Error interno: at");
    app.Pulsar(Una().b1);
    EXPECT_EQ(registro.back(), "b1");

    // A fault in one part of an event does not keep the others from theirs.
    int tecla = 0;
    Una().txtA.KeyDown.Conectar([](int) { throw ErrorEjecucion(kSubindiceFuera); });
    Una().txtA.KeyPress.Conectar([&](int& caracter) { tecla = caracter; });
    Una().txtA.LostFocus.Conectar([] { throw ErrorEjecucion(kDesbordamiento); });
    sistema.errores.clear();
    app.Despachar([&] { Una().txtA.SetFocus(); });
    app.PulsarTecla('7', '7');
    EXPECT_EQ(tecla, '7');
    registro.clear();
    app.Despachar([&] {
        Una().txtB.SetFocus();
        Una().txtC.SetFocus();
    });
    EXPECT_EQ(registro, (Registro{"-A", "+B", "-B", "+C"})) << "the next got-focus comes all the same";
    EXPECT_EQ(Errores(), (std::vector<int>{9, 6}));
}

TEST_F(AplicacionTest, TeclasYPulsaciones) {
    Una().txtA.KeyPress.Conectar([](int& c) { c = c == ',' ? '.' : c == 'x' ? 0 : c; });
    for (const char c : std::string("1x,x5")) {
        app.PulsarTecla(0, c);
    }
    EXPECT_EQ(Una().txtA.Text(), "1.5");
    std::string orden;
    Una().b2.GotFocus.Conectar([&] { orden += "foco "; });
    Una().b2.Click.Conectar([&] { orden += "click"; });
    app.Pulsar(Una().b2);
    EXPECT_EQ(orden, "foco click");
    Una().b1.Enabled = false;
    app.Pulsar(Una().b1);
    Una().b1.Enabled = true;
    Una().b1.Visible = false;
    app.Pulsar(Una().b1);
    EXPECT_EQ(Veces("b1"), 0);
    EXPECT_EQ(app.Foco(), &Una().b2);
}

TEST_F(AplicacionTest, UnaVentanaParaCadaForma) {
    app.PulsarTecla('8', '8');
    FormaPrueba* primera = &Una();
    Abrir("frmDos");
    app.PulsarTecla('9', '9');
    registro.clear();
    EXPECT_EQ(&Abrir("frmUna"), primera);
    EXPECT_EQ(sistema.alFrente, primera);
    EXPECT_EQ(Forma("frmDos").txtA.Text(), "9");
    EXPECT_EQ(Veces("carga frmUna"), 0);
    app.PulsarTecla('1', '1');
    EXPECT_EQ(primera->txtA.Text(), "81") << "the window at the front has the keyboard";
    app.Despachar([&] { app.ModuloAbrir("frmOtra"); });
    EXPECT_EQ(Errores(), std::vector<int>{91});

    app.Pulsar(Una().bCerrar);
    EXPECT_EQ(app.Cargada("frmUna"), nullptr);
    ASSERT_NE(app.Cargada("frmCuencalia"), nullptr) << "created, since nobody had opened it";
    EXPECT_EQ(sistema.alFrente, app.Cargada("frmCuencalia"));
    EXPECT_EQ(&app.Foco()->Forma(), app.Cargada("frmCuencalia"));
    EXPECT_EQ(Veces("descarga frmUna") * 10 + Veces("cerrada"), 11);
    EXPECT_EQ(Abrir("frmUna").txtA.Text(), "") << "a new form, not the one that was closed";
    app.CerrarVentana(Una());
    EXPECT_EQ(app.Cargada("frmUna"), nullptr);
}

TEST_F(AplicacionTest, UnaFormaDescargadaNoRecibeMasTeclasNiFoco) {
    bool llego = false;
    Una().txtA.KeyDown.Conectar([&](int) {
        Una().txtB.SetFocus();
        app.Unload(Una());
    });
    Una().txtA.KeyPress.Conectar([&](int&) { llego = true; });
    app.PulsarTecla('8', '8');
    EXPECT_FALSE(llego);
    EXPECT_EQ(app.Foco(), nullptr);
    EXPECT_EQ(registro, Registro{"descarga frmUna"}) << "the focus that waited for it is forgotten";
    app.PulsarTecla('8', '8');
    EXPECT_TRUE(sistema.errores.empty());
}

TEST_F(AplicacionTest, TerminarNoPreguntaNiDescarga) {
    Abrir("frmDos");
    Forma("frmDos").b2.Click.Conectar([&] { app.Terminar(); });
    app.Pulsar(Forma("frmDos").b2);
    EXPECT_TRUE(app.Terminada() && sistema.terminado);
    EXPECT_EQ(Veces("descarga frmDos") + Veces("descarga frmUna"), 0);
    app.Pulsar(Forma("frmDos").b1);
    EXPECT_EQ(Veces("b1"), 0) << "the program is over";
}

}  // namespace
}  // namespace cuencalia
