#include "frame/controles/aplicacion.h"

#include <gtest/gtest.h>

#include <new>

#include "frame/base/textos.h"
#include "guion/plataformaguion.h"
#include "tests/numero_de_error.h"

namespace cuencalia {
namespace {

/// A form with three boxes and some buttons that writes down what happens to it.
class FormaPrueba : public Formulario {
  public:
    FormaPrueba(Aplicacion& app, std::string nombre, std::string& registro)
        : Formulario(app, std::move(nombre), "De prueba"), registro_(registro) {
        for (TextBox* caja : {&txtA, &txtB, &txtC}) {
            const std::string letra = caja->Nombre().substr(3);
            caja->GotFocus.Conectar([this, letra] { registro_ += "+" + letra + " "; });
            caja->LostFocus.Conectar([this, letra] { registro_ += "-" + letra + " "; });
        }
        b1.Click.Conectar([this] { registro_ += "b1 "; });
        bCerrar.Click.Conectar([this] {
            App().ModuloCerrar(*this);
            txtA.Text = "todavía";  // the form outlives the handler that unloads it
            registro_ += "cerrada ";
        });
    }

    TextBox txtA{*this, "txtA"}, txtB{*this, "txtB"}, txtC{*this, "txtC"};
    CommandButton b1{*this, "b1", "Uno"}, b2{*this, "b2", "Dos"}, bCerrar{*this, "bCerrar", "Cerrar"};

    void Form_Load() override { registro_ += "carga:" + Nombre() + " "; }
    void Form_Unload() override { registro_ += "descarga:" + Nombre() + " "; }

  protected:
    Disposicion Disponer() override { return Columna({txtA, txtB, txtC, b1, b2, bCerrar}); }

  private:
    std::string& registro_;
};

class AplicacionTest : public testing::Test {
  protected:
    AplicacionTest() {
        Abrir("frmUna");
        Tomar();
    }

    TablaFormas Formas() {
        TablaFormas formas;
        for (const std::string nombre : {"frmCuencalia", "frmUna", "frmDos"}) {
            formas[nombre] = [&, nombre](Aplicacion& a) { return std::make_unique<FormaPrueba>(a, nombre, registro); };
        }
        return formas;
    }
    FormaPrueba& Forma(const std::string& nombre) { return dynamic_cast<FormaPrueba&>(*app.Cargada(nombre)); }
    FormaPrueba& Abrir(const std::string& nombre) {
        app.Despachar([&] { app.ModuloAbrir(nombre); });
        return Forma(nombre);
    }
    FormaPrueba& Una() { return Forma("frmUna"); }
    void Enfocar(Control& control) {
        app.Despachar([&] { control.SetFocus(); });
    }
    /// What happened since the last time.
    std::string Tomar() { return std::exchange(registro, ""); }

    PlataformaGuion sistema;
    std::string registro;
    Aplicacion app{sistema, Formas()};
};

TEST_F(AplicacionTest, ElFocoEsperaAlFinalDelManejadorOADoEvents) {
    ASSERT_EQ(app.Foco(), &Una().txtA) << "the first control of a form that opens";
    app.Despachar([&] {
        Una().txtB.SetFocus();
        Una().txtC.SetFocus();
        registro += "fin ";
    });
    Enfocar(Una().txtC);
    EXPECT_EQ(Tomar(), "fin -A +B -B +C ") << "and nothing where it is already";
    app.Despachar([&] {
        Una().txtB.SetFocus();
        app.DoEvents();
        registro += "después ";
        Una().txtA.SetFocus();
    });
    EXPECT_EQ(Tomar(), "-C +B después -B +A ");

    // Hidden while the change waits, it never has the focus.
    app.Despachar([&] {
        Una().txtB.SetFocus();
        Una().txtB.Visible = false;
    });
    EXPECT_EQ(app.Foco(), &Una().txtA);
    Una().txtA.LostFocus.Conectar([&] {
        Una().b1.SetFocus();
        app.DoEvents();
    });
    Enfocar(Una().txtC);
    EXPECT_EQ(app.Foco(), &Una().b1);
    EXPECT_EQ(Tomar().find("+C"), std::string::npos) << "the lost-focus handler sent it elsewhere";
}

TEST_F(AplicacionTest, UnErrorDetieneElManejadorYElProgramaSigue) {
    Una().b2.Click.Conectar([&] {
        Una().txtB.Text = "antes";
        Una().txtC.SetFocus();
        Una().txtB.Text = Str(Double(1) / Double(0));
    });
    app.Pulsar(Una().b2);
    EXPECT_EQ(Una().txtB.Text(), "antes");
    app.Despachar([] { throw std::bad_alloc(); });
    app.Despachar([] { throw std::out_of_range("at"); });
    app.Despachar([] { throw 7; });
    EXPECT_EQ(NumerosDe(sistema.errores), (std::vector<int>{11, 7, 51, 51})) << "no exception passes";
    EXPECT_EQ(sistema.errores[0].Texto() + sistema.errores[2].Texto(), "División por ceroError interno: at");
    app.Pulsar(Una().b1);
    EXPECT_EQ(Tomar(), "-A +C -C b1 ") << "the focus was asked for before the fault";

    // A fault in one part of an event does not keep the others from theirs.
    int tecla = 0;
    Una().txtA.KeyDown.Conectar([](int) { throw ErrorEjecucion(kSubindiceFuera); });
    Una().txtA.KeyPress.Conectar([&](int& caracter) { tecla = caracter; });
    Una().txtA.LostFocus.Conectar([] { throw ErrorEjecucion(kDesbordamiento); });
    sistema.errores.clear();
    Enfocar(Una().txtA);
    app.PulsarTecla('7', '7');
    EXPECT_EQ(tecla, '7');
    app.Despachar([&] {
        Una().txtB.SetFocus();
        Una().txtC.SetFocus();
    });
    EXPECT_EQ(Tomar(), "+A -A +B -B +C ") << "the next got-focus comes all the same";
    EXPECT_EQ(NumerosDe(sistema.errores), (std::vector<int>{9, 6}));
}

TEST_F(AplicacionTest, TeclasYPulsaciones) {
    Una().txtA.KeyPress.Conectar([](int& c) { c = c == ',' ? '.' : c == 'x' ? 0 : c; });
    for (const char c : std::string("1x,x5")) {
        app.PulsarTecla(0, c);
    }
    EXPECT_EQ(Una().txtA.Text(), "1.5");
    Una().b2.GotFocus.Conectar([&] { registro += "foco "; });
    Una().b2.Click.Conectar([&] { registro += "click "; });
    app.Pulsar(Una().b2);
    for (Propiedad<bool>* propiedad : {&Una().b1.Enabled, &Una().b1.Visible}) {
        *propiedad = false;
        app.Pulsar(Una().b1);
        *propiedad = true;
    }
    EXPECT_EQ(Tomar(), "-A foco click ");
    EXPECT_EQ(app.Foco(), &Una().b2);
}

TEST_F(AplicacionTest, UnaVentanaParaCadaForma) {
    app.PulsarTecla('8', '8');
    FormaPrueba* primera = &Una();
    Abrir("frmDos");
    app.PulsarTecla('9', '9');
    EXPECT_EQ(&Abrir("frmUna"), primera);
    EXPECT_EQ(sistema.alFrente, primera);
    EXPECT_EQ(Tomar().find("carga:frmUna"), std::string::npos);
    app.PulsarTecla('1', '1');
    EXPECT_EQ(primera->txtA.Text() + " " + Forma("frmDos").txtA.Text(), "81 9") << "the one at the front has the keys";
    app.Despachar([&] { app.ModuloAbrir("frmOtra"); });
    EXPECT_EQ(NumerosDe(sistema.errores), std::vector<int>{91});

    app.Pulsar(Una().bCerrar);
    EXPECT_EQ(app.Cargada("frmUna"), nullptr);
    EXPECT_EQ(Tomar(), "-A descarga:frmUna carga:frmCuencalia cerrada +A ") << "created, since nobody had opened it";
    EXPECT_EQ(sistema.alFrente, app.Cargada("frmCuencalia"));
    EXPECT_EQ(&app.Foco()->Forma(), app.Cargada("frmCuencalia"));
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
    EXPECT_EQ(Tomar(), "descarga:frmUna ") << "the focus that waited for it is forgotten";
    app.PulsarTecla('8', '8');
    EXPECT_TRUE(sistema.errores.empty());
}

}  // namespace
}  // namespace cuencalia
