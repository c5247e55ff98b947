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
    AplicacionTest() { Abrir("frmUna"); }

    TablaFormas Formas() {
        TablaFormas formas;
        for (const std::string nombre : {"frmCuencalia", "frmUna", "frmDos"}) {
            formas[nombre] = [this, nombre](Aplicacion& a) {
                return std::make_unique<FormaPrueba>(a, nombre, registro);
            };
        }
        return formas;
    }

    FormaPrueba& Abrir(const std::string& nombre) {
        app.Despachar([&] { app.ModuloAbrir(nombre); });
        return dynamic_cast<FormaPrueba&>(*app.Cargada(nombre));
    }

    FormaPrueba& Una() { return dynamic_cast<FormaPrueba&>(*app.Cargada("frmUna")); }
    FormaPrueba& Dos() { return dynamic_cast<FormaPrueba&>(*app.Cargada("frmDos")); }

    PlataformaGuion sistema;
    Registro registro;
    Aplicacion app{sistema, Formas()};
};

TEST_F(AplicacionTest, ElFocoEsperaAlFinalDelManejador) {
    ASSERT_EQ(app.Foco(), &Una().txtA) << "the first control of a form that opens";
    registro.clear();
    app.Despachar([&] {
        Una().txtB.SetFocus();
        Una().txtC.SetFocus();
        registro.push_back("fin");
        EXPECT_EQ(app.Foco(), &Una().txtA);
    });
    EXPECT_EQ(registro, (Registro{"fin", "-A", "+B", "-B", "+C"}));
    EXPECT_EQ(app.Foco(), &Una().txtC);
    EXPECT_TRUE(Una().txtC.TieneFoco());

    registro.clear();
    app.Despachar([&] { Una().txtC.SetFocus(); });
    EXPECT_EQ(registro, Registro{}) << "it has the focus already";
}

TEST_F(AplicacionTest, DoEventsEntregaElFocoAMedioManejador) {
    registro.clear();
    app.Despachar([&] {
        Una().txtB.SetFocus();
        registro.push_back("antes");
        app.DoEvents();
        registro.push_back("después");
        Una().txtA.SetFocus();
    });
    EXPECT_EQ(registro, (Registro{"antes", "-A", "+B", "después", "-B", "+A"}));
}

TEST_F(AplicacionTest, ElFocoSoloVaAUnControlQueLoPuedeRecibir) {
    Una().txtB.Visible = false;
    Una().txtC.Enabled = false;
    EXPECT_EQ(NumeroDeError([&] { return Una().txtB.SetFocus(), 0; }), kArgumentoNoValido);
    EXPECT_EQ(NumeroDeError([&] { return Una().txtC.SetFocus(), 0; }), kArgumentoNoValido);

    Una().txtB.Visible = true;
    registro.clear();
    app.Despachar([&] {
        Una().txtB.SetFocus();
        Una().txtB.Visible = false;  // hidden while the change waits
    });
    EXPECT_EQ(app.Foco(), &Una().txtA);
    EXPECT_EQ(registro, Registro{});
}

TEST_F(AplicacionTest, LostFocusPuedeMandarElFocoAOtraParte) {
    registro.clear();
    Una().txtA.LostFocus.Conectar([&] {
        Una().txtC.SetFocus();
        app.DoEvents();
    });
    app.Despachar([&] { Una().txtB.SetFocus(); });
    EXPECT_EQ(app.Foco(), &Una().txtC);
    EXPECT_EQ(std::count(registro.begin(), registro.end(), "+B"), 0) << "it never came to have the focus";
    EXPECT_EQ(registro.back(), "+C");
}

TEST_F(AplicacionTest, UnErrorDetieneElManejadorYElProgramaSigue) {
    Una().b2.Click.Conectar([&] {
        Una().txtB.Text = "antes";
        Una().txtC.SetFocus();
        Una().txtB.Text = Str(Double(1) / Double(0));
        Una().txtA.Text = "después";
    });
    registro.clear();
    app.Pulsar(Una().b2);
    ASSERT_EQ(sistema.errores.size(), 1U);
    EXPECT_EQ(sistema.errores[0].Numero(), 11);
    EXPECT_EQ(sistema.errores[0].Texto(), "División por cero");
    EXPECT_EQ(Una().txtB.Text(), "antes");
    EXPECT_EQ(Una().txtA.Text(), "");
    EXPECT_EQ(app.Foco(), &Una().txtC) << "asked for before the fault";
    EXPECT_TRUE(sistema.mensajes.empty());
    EXPECT_FALSE(app.Terminada());

    app.Pulsar(Una().b1);
    EXPECT_EQ(registro.back(), "b1");
    EXPECT_EQ(sistema.errores.size(), 1U);
}

TEST_F(AplicacionTest, LaFaltaDeMemoriaEsUnErrorMas) {
    app.Despachar([] { throw std::bad_alloc(); });
    ASSERT_EQ(sistema.errores.size(), 1U);
    EXPECT_EQ(sistema.errores[0].Numero(), 7);
    app.Pulsar(Una().b1);
    EXPECT_EQ(registro.back(), "b1");
}

TEST_F(AplicacionTest, UnErrorAlPerderElFocoNoDetieneLosDemasCambios) {
    Una().txtA.LostFocus.Conectar([] { throw ErrorEjecucion(kDivisionPorCero); });
    app.Despachar([&] {
        Una().txtB.SetFocus();
        Una().txtC.SetFocus();
    });
    EXPECT_EQ(sistema.errores.size(), 1U);
    EXPECT_EQ(app.Foco(), &Una().txtC);
    EXPECT_EQ(registro.back(), "+C");
}

TEST_F(AplicacionTest, UnErrorEnKeyDownNoQuitaElKeyPress) {
    int tecla = 0;
    Una().txtA.KeyDown.Conectar([](int) { throw ErrorEjecucion(kSubindiceFuera); });
    Una().txtA.KeyPress.Conectar([&](int& caracter) { tecla = caracter; });
    app.PulsarTecla('7', '7');
    EXPECT_EQ(sistema.errores.size(), 1U);
    EXPECT_EQ(tecla, '7');
    EXPECT_EQ(Una().txtA.Text(), "7");
}

TEST_F(AplicacionTest, KeyPressCambiaOAnulaElCaracter) {
    Una().txtA.KeyPress.Conectar([](int& caracter) {
        caracter = caracter == ',' ? '.' : caracter;
        caracter = caracter == 'x' ? 0 : caracter;
    });
    for (const char c : std::string("1x,x5")) {
        app.PulsarTecla(0, c);
    }
    EXPECT_EQ(Una().txtA.Text(), "1.5");
}

TEST_F(AplicacionTest, PulsarDaElFocoAntesDelClick) {
    std::string orden;
    Una().b2.GotFocus.Conectar([&] { orden += "foco "; });
    Una().b2.Click.Conectar([&] { orden += "click"; });
    app.Pulsar(Una().b2);
    EXPECT_EQ(orden, "foco click");

    Una().b1.Enabled = false;
    registro.clear();
    app.Pulsar(Una().b1);
    Una().b1.Enabled = true;
    Una().b1.Visible = false;
    app.Pulsar(Una().b1);
    EXPECT_EQ(registro, Registro{});
    EXPECT_EQ(app.Foco(), &Una().b2);
}

TEST_F(AplicacionTest, AbrirDosVecesDejaUnaVentanaConSusDatos) {
    app.PulsarTecla('8', '8');
    FormaPrueba* primera = &Una();
    Abrir("frmDos");
    ASSERT_EQ(sistema.alFrente, &Dos());
    app.PulsarTecla('9', '9');
    registro.clear();

    EXPECT_EQ(&Abrir("frmUna"), primera);
    EXPECT_EQ(sistema.alFrente, primera);
    EXPECT_EQ(primera->txtA.Text(), "8");
    EXPECT_EQ(Dos().txtA.Text(), "9") << "the other module stays open";
    EXPECT_EQ(std::count(registro.begin(), registro.end(), "carga frmUna"), 0);
    app.PulsarTecla('1', '1');
    EXPECT_EQ(primera->txtA.Text(), "81") << "the window at the front has the keyboard";
}

TEST_F(AplicacionTest, UnaFormaQueElProgramaNoTiene) {
    EXPECT_FALSE(app.Existe("frmOtra"));
    app.Despachar([&] { app.ModuloAbrir("frmOtra"); });
    ASSERT_EQ(sistema.errores.size(), 1U);
    EXPECT_EQ(sistema.errores[0].Numero(), 91);
    EXPECT_EQ(app.Cargada("frmOtra"), nullptr);
}

TEST_F(AplicacionTest, CerrarDesdeSuPropioManejadorYVolverAAbrir) {
    app.PulsarTecla('8', '8');
    registro.clear();
    app.Pulsar(Una().bCerrar);
    EXPECT_EQ(app.Cargada("frmUna"), nullptr);
    ASSERT_NE(app.Cargada("frmCuencalia"), nullptr) << "created, since nobody had opened it";
    EXPECT_EQ(sistema.alFrente, app.Cargada("frmCuencalia"));
    EXPECT_EQ(&app.Foco()->Forma(), app.Cargada("frmCuencalia"));
    EXPECT_EQ(std::count(registro.begin(), registro.end(), "descarga frmUna"), 1);
    EXPECT_EQ(std::count(registro.begin(), registro.end(), "cerrada"), 1);
    EXPECT_TRUE(sistema.mensajes.empty());

    registro.clear();
    EXPECT_EQ(Abrir("frmUna").txtA.Text(), "") << "a new form, not the one that was closed";
    EXPECT_EQ(registro.front(), "carga frmUna");
}

TEST_F(AplicacionTest, UnaFormaDescargadaNoRecibeMasTeclasNiFoco) {
    bool llego = false;
    Una().txtA.KeyDown.Conectar([&](int) {
        Una().txtB.SetFocus();
        app.Unload(Una());
    });
    Una().txtA.KeyPress.Conectar([&](int&) { llego = true; });
    registro.clear();
    app.PulsarTecla('8', '8');
    EXPECT_FALSE(llego);
    EXPECT_EQ(app.Foco(), nullptr);
    EXPECT_EQ(registro, Registro{"descarga frmUna"}) << "the focus that waited for it is forgotten";
    app.PulsarTecla('8', '8');
    EXPECT_TRUE(sistema.errores.empty());
}

TEST_F(AplicacionTest, CerrarVentanaDescargaSinAbrirElMenu) {
    Abrir("frmDos");
    app.CerrarVentana(Una());
    EXPECT_EQ(app.Cargada("frmUna"), nullptr);
    EXPECT_NE(app.Cargada("frmDos"), nullptr);
    EXPECT_EQ(app.Cargada("frmCuencalia"), nullptr);
}

TEST_F(AplicacionTest, TerminarNoPreguntaNiDescarga) {
    Abrir("frmDos");
    app.PulsarTecla('8', '8');
    Dos().b2.Click.Conectar([&] { app.Terminar(); });
    registro.clear();
    app.Pulsar(Dos().b2);
    EXPECT_TRUE(app.Terminada());
    EXPECT_TRUE(sistema.terminado);
    EXPECT_TRUE(sistema.mensajes.empty());
    EXPECT_EQ(registro, Registro{"-A"}) << "nothing but the click itself: no form was unloaded";
    EXPECT_EQ(app.Cargadas().size(), 2U);

    app.Pulsar(Dos().b1);
    EXPECT_EQ(registro, Registro{"-A"}) << "the program is over";
}

}  // namespace
}  // namespace cuencalia
