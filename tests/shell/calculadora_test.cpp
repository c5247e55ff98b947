#include <gtest/gtest.h>

#include <sstream>

#include "frame/base/textos.h"
#include "shell/formas.h"
#include "shell/frmCalculadora.h"
#include "guion/plataformaguion.h"

namespace cuencalia {
namespace {

struct Caso {
    const char* teclas;
    const char* pantalla;
};

class CalculadoraTest : public testing::Test {
  protected:
    CalculadoraTest() : app(sistema, FormasDelPrograma()) { Abrir(); }

    void Abrir() {
        app.Despachar([&] { app.ModuloAbrir("frmCalculadora"); });
    }
    frmCalculadora& F() { return dynamic_cast<frmCalculadora&>(*app.Cargada("frmCalculadora")); }
    std::string Pantalla() { return F().BBCalc1.lblDisplay.Caption; }
    std::string Tag() { return F().BBCalc1.PicDisplay.Tag; }

    void Pulsar(const std::string& nombre) {
        Control* tecla = F().Controls(nombre);
        ASSERT_NE(tecla, nullptr) << nombre;
        app.Pulsar(*tecla);
    }

    /// Presses keys of the pad. A word is a number, typed with its sign last; "op4", "sci0" or "mem2" for an element of
    /// an array; or a key by the short name below.
    void Marcar(const std::string& teclas) {
        std::istringstream palabras(teclas);
        for (std::string p; palabras >> p;) {
            const std::string codigo = "(" + p.substr(p.find_last_not_of("0123456789") + 1) + ")";
            if (p == "=" || p == "back" || p == "neg" || p == "C" || p == "CE") {
                Pulsar(p == "="      ? "cmdEquals"
                       : p == "back" ? "cmdBackSpace"
                       : p == "neg"  ? "cmdValue"
                       : p == "C"    ? "cmdClear(0)"
                                     : "cmdClear(1)");
            } else if (p.starts_with("op")) {
                Pulsar("cmdOp" + codigo);
            } else if (p.starts_with("sci")) {
                Pulsar("cmdSci" + codigo);
            } else if (p.starts_with("mem")) {
                Pulsar("cmdMem" + codigo);
            } else {
                MarcarNumero(p);
            }
        }
    }
    void MarcarNumero(const std::string& numero) {
        for (const char c : numero) {
            if (c != '-') {
                Pulsar(c == '.' ? std::string("cmdDecimal") : std::string("cmdNum(") + c + ")");
            }
        }
        if (numero.starts_with('-')) {
            Pulsar("cmdValue");
        }
    }

    void Comprobar(const std::vector<Caso>& casos) {
        for (const Caso& caso : casos) {
            Pulsar("cmdClear(0)");
            Marcar(caso.teclas);
            EXPECT_EQ(Pantalla(), caso.pantalla) << caso.teclas;
        }
        EXPECT_TRUE(sistema.mensajes.empty());
        EXPECT_TRUE(sistema.errores.empty());
    }

    /// Exactly one message, and it is the calculator's own; afterwards the calculator adds as ever.
    void ComprobarFallo(const std::string& que) {
        ASSERT_EQ(sistema.mensajes.size(), 1U) << que;
        EXPECT_EQ(sistema.mensajes[0].texto, "No se puede cumplir con su petición.\nEsta operación ha sido cancelada.");
        EXPECT_EQ(sistema.mensajes[0].icono, 16);
        EXPECT_EQ(sistema.mensajes[0].titulo, "Error en cálculo");
        sistema.mensajes.clear();
        EXPECT_EQ(Pantalla(), ".0") << que;
        Marcar("2 op4 3 =");
        EXPECT_EQ(Pantalla(), "5.") << que;
        EXPECT_TRUE(sistema.mensajes.empty()) << que;
        EXPECT_TRUE(sistema.errores.empty()) << que;
    }

    PlataformaGuion sistema;
    Aplicacion app;
};

TEST_F(CalculadoraTest, OperacionesBinarias) {
    Comprobar({
        {"7 op1 2 =", "3.5"},
        {"6 op1 -3 =", "2."},  // the quotient loses its sign
        {"-6 op1 3 =", "2."},
        {"2.5 op2 -4 =", "-10."},
        {"3 op3 5 =", "-2."},
        {"1.5 op4 1.5 =", "3."},
        {"30 op6 300 =", "10."},
        {"-30 op6 300 =", "-10."},  // only the division loses it
        {"2 op8 10 =", "1024."},
        {"2 op8 -1 =", "0.5"},
        {"-2 op8 3 =", "-8."},
        {"16 op11 5 =", "1."},
        {"74 op11 10 =", "4."},
        {"-16 op11 5 =", "-1."},
        {"16.5 op11 5 =", "1."},  // 16.5 rounds to the even 16
        {"17.5 op11 5 =", "3."},  // 17.5 rounds to the even 18
        {"32 op13 5 =", "2."},
        {"4 op13 -2 =", "0.5"},
    });
}

TEST_F(CalculadoraTest, OperacionesUnarias) {
    Comprobar({
        {"2 op5", "1.4142135623731"},  // 1.41421356237310 in 15 digits
        {"8 op7", "0.125"},
        {"-8 op7", "-0.125"},
        {"-3 op9", "-27."},
        {"1.5 op10", "2.25"},
        {"2.7 op12", "2."},
        {"-2.5 op12", "-3."},
        {"27 op14", "3."},
        {"0 op5", ".0"},
        {"3 op10 op10", "81."},
    });
}

TEST_F(CalculadoraTest, Cadenas) {
    Comprobar({
        {"2 op4 3 op2", "5."},
        {"2 op4 3 op2 4 =", "20."},
        {"7 op4 2 op5", "3."},  // the sum first, then the root of 9
        {"2 op4 3 = op2 4 =", "20."},
        {"2 op4 3 = 7 op2 2 =", "14."},  // a digit behind a result begins a new number
        {"2 op4 3 = =", "5."},           // nothing waits any more
        {"5 =", "5."},
        {"9 op5 =", "3."},
        {"5 op4 =", "5."},  // the second operand is 0 until it is typed
        {"5 op2 =", ".0"},
        {"6 op3 neg =", "12."},  // the sign key takes the number on the display: 6 - (-6)
    });
}

TEST_F(CalculadoraTest, Fallos) {
    for (const char* teclas : {
             "5 op1 0 =",
             "5 op1 =",
             "0 op1 0 =",
             "-1 op5",
             "5 op6 0 =",
             "0 op7",
             "-8 op14",
             "-2 op8 0.5 =",
             "0 op8 -1 =",
             "-8 op13 3 =",
             "2 op13 0 =",
             "5 op11 0.4 =",         // the divisor rounds to 0
             "3000000000 op11 7 =",  // beyond a Long
             "10 op8 400 =",         // beyond a Double
             "10 op8 308 op2 10 =",
             "10 op8 308 = op9",
             "5 op1 0 op4",
             "5 op1 0 op7",      // the fault of the operation that waited cancels the new one as well
             "3000000000 sci0",  // beyond a Long of whole degrees
             "-1 sci3",
             "-1 sci4",  // the formula divides by Sqr(1 - 1)
         }) {
        Marcar("C");
        Marcar(teclas);
        ComprobarFallo(teclas);
    }
}

TEST_F(CalculadoraTest, LaMemoriaSobreviveAlFallo) {
    // 9E+307 fits in a Double; twice as much is above its largest, 1.7977E+308.
    Marcar("10 op8 308 = op2 0.9 = mem2");
    EXPECT_TRUE(sistema.mensajes.empty());
    Marcar("mem3");
    ComprobarFallo("M+");
    Marcar("mem1");
    EXPECT_EQ(Pantalla(), "9.E+307");
}

struct CasoTrig {
    const char* teclas;
    double valor;
};

class TrigonometriaTest : public CalculadoraTest {
  protected:
    /// The display shows 15 digits, and the degrees' pi has 15: a few units of the last one.
    void ComprobarCerca(const std::vector<CasoTrig>& casos) {
        for (const CasoTrig& caso : casos) {
            Pulsar("cmdClear(0)");
            Marcar(caso.teclas);
            const double tolerancia = 5e-15 * std::max(1.0, std::abs(caso.valor));
            EXPECT_NEAR(Val(Pantalla()).valor(), caso.valor, tolerancia) << caso.teclas;
        }
        EXPECT_TRUE(sistema.mensajes.empty());
    }
};

TEST_F(TrigonometriaTest, Grados) {
    EXPECT_TRUE(F().OptDegree.Value);
    ComprobarCerca({
        {"30 sci0", 0.5},
        {"-30 sci0", 0.5},                 // the sign of the angle is lost
        {"390 sci0", 0.5},                 // 390 mod 360 = 30
        {"30.7 sci0", 0.515038074910054},  // sin 31°
        {"30.5 sci0", 0.5},                // rounds to the even 30
        {"60 sci1", 0.5},
        {"-120 sci1", -0.5},
        {"45 sci2", 1},
        {"-45 sci2", 1},
        {"0.5 sci3", 30},
        {"-0.5 sci3", -30},
        {"0.5 sci4", 60},
        {"-0.5 sci4", 120},
        {"0 sci4", 90},
        {"1 sci5", 45},
        {"-1 sci5", -45},
    });
    Marcar("C 30 sci0");
    EXPECT_EQ(Pantalla(), "0.5");
    // The degrees' pi is 3.2E-15 short, so cos 90° is half of it rather than 0 (and not the 6.1E-17 of a full pi).
    Marcar("C 90 sci1");
    EXPECT_NEAR(Val(Pantalla()).valor(), 1.62e-15, 0.12e-15);
}

TEST_F(TrigonometriaTest, Radianes) {
    Pulsar("OptRadian");
    ComprobarCerca({
        {"1 sci0", 0.841470984807897},
        {"-30 sci0", 0.988031624092862},  // of -30 rad: here the sign counts
        {"30.7 sci0", -0.656316756177790},
        {"1 sci1", 0.540302305868140},
        {"1 sci2", 1.557407724654902},
        {"0.5 sci3", 0.523598775598299},   // pi / 6
        {"0.5 sci4", 1.047197551196598},   // pi / 3
        {"-0.5 sci4", 2.094395102393195},  // 2 pi / 3
        {"1 sci5", 0.785398163397448},     // pi / 4
    });
    Pulsar("OptDegree");
    Marcar("C 30 sci0");
    EXPECT_EQ(Pantalla(), "0.5");
}

TEST_F(TrigonometriaTest, PiYAleatorio) {
    for (const char* modo : {"OptDegree", "OptRadian"}) {
        Pulsar(modo);
        Marcar("C sci6");
        EXPECT_EQ(Pantalla(), "3.14159265358979") << modo;
    }
    bool conFraccion = false;
    for (int i = 0; i < 20; ++i) {
        Marcar("sci7");
        const Double valor = F().BBCalc1.Valor();
        EXPECT_TRUE(valor >= Double(1) && valor < Double(1001)) << Pantalla();
        conFraccion = conFraccion || valor != Int(valor);
    }
    EXPECT_TRUE(conFraccion) << "it is not rounded";
}

TEST_F(TrigonometriaTest, EnUnaCadena) {
    Comprobar({
        {"2 op4 30 sci0 =", "2.5"},  // the sine is the second operand
        {"1 op1 2 = sci3", "30."},   // of the result on the display
        {"30 sci0 7", "7."},         // a digit begins a new number
        {"30 sci0 sci3", "30."},
        {"sci6 op2 2 =", "6.28318530717958"},
    });
}

TEST_F(TrigonometriaTest, ArcosSoloEnSuRango) {
    const std::vector<std::pair<const char*, bool>> casos = {
        {"C", true},      {"1", false},   {"0.99", true},    {"-1", true},           {"-1.01", false},
        {"5 op7", true},  {"5", false},   {"2 op4 0", true}, {"2 op4 0 back", true}, {"2 op3 4 =", false},
        {"1 op4", false}, {"5 CE", true}, {"0 sci1", false},
    };
    for (const auto& [teclas, habilitadas] : casos) {
        Marcar("C");
        Marcar(teclas);
        EXPECT_EQ(F().Controls("cmdSci(3)")->Enabled(), habilitadas) << teclas;
        EXPECT_EQ(F().Controls("cmdSci(4)")->Enabled(), habilitadas) << teclas;
    }
    EXPECT_TRUE(F().Controls("cmdSci(5)")->Enabled());
}

TEST_F(CalculadoraTest, Entrada) {
    EXPECT_EQ(Pantalla(), ".0");
    Comprobar({
        {"1234567890", "1234567890."},
        {"007", "7."},
        {".", ".0"},
        {".05", ".05"},
        {"2.50", "2.50"},
        {"1.5.2", "1.52"},
        {"1234567890123456", "123456789012345."},  // 15 digits
        {"2.50 neg", "-2.50"},
        {"2.50 neg neg", "2.50"},
        {"0 neg", ".0"},
        {"2 neg 5", "-25."},
        {"12.3 back", "12."},
        {"12.3 back back 4", "124."},
        {"-5 back", ".0"},
        {"back", ".0"},
        {"2 op4 3 = back", "5."},  // a result is not typed: it stays
        {"sci6 back", "3.14159265358979"},
        {"2 op4 3 = neg", "-5."},
        {"10 op8 20 =", "1.E+20"},
        {"10 op8 20 = op2 2 =", "2.E+20"},
    });
}

TEST_F(CalculadoraTest, TextoDeLaEntradaEnTag) {
    const std::vector<Caso> casos = {
        {"1.5", "1.5"},   {"5.", "5."},           {"0", ""},
        {"C", ""},        {"2 op4 3 =", ""},      {"2 op4", ""},
        {"2 op4 3", "3"}, {"7 mem2 C mem1", "7"}, {"sci6", "3.14159265358979"},
    };
    for (const Caso& caso : casos) {
        Marcar("C");
        Marcar(caso.teclas);
        EXPECT_EQ(Tag(), caso.pantalla) << caso.teclas;
    }
}

TEST_F(CalculadoraTest, Limpiar) {
    Comprobar({
        {"2 op4 3 C", ".0"},
        {"2 op4 3 C 7 =", "7."},
        {"2 op4 7 CE", ".0"},
        {"2 op4 7 CE 3 =", "5."},  // only the number typed last goes
        {"2 op4 7 CE CE", "2."},   // then the operation
        {"2 op4 7 CE CE 9 =", "9."},
        {"2 op4 CE =", "2."},
        {"5 CE", ".0"},
        {"2 op4 3 = CE", ".0"},
    });
}

TEST_F(CalculadoraTest, Memoria) {
    EXPECT_FALSE(F().Image1.Visible);
    Marcar("5 mem2");
    EXPECT_TRUE(F().Image1.Visible);
    Comprobar({
        {"mem1", "5."},  // C leaves it
        {"2 op4 mem1 =", "7."},
        {"mem1 op2 mem1 =", "25."},
        {"1.5 mem3 C mem1", "6.5"},
        {"9 mem2 4", "4."},  // a number that was stored is finished
        {"2 op4 3 mem2 =", "5."},
    });
    Marcar("C mem1");
    EXPECT_EQ(Pantalla(), "2.") << "what is stored is the first operand";
    Marcar("mem0");
    EXPECT_FALSE(F().Image1.Visible);
    EXPECT_EQ(Pantalla(), "2.");
    Marcar("mem1");
    EXPECT_EQ(Pantalla(), ".0");
    Marcar("3 mem3 mem3 2 neg mem3 C mem1");
    EXPECT_EQ(Pantalla(), "4.");
    Marcar("neg mem3");
    EXPECT_FALSE(F().Image1.Visible) << "a sum of 0 leaves nothing in it";
}

TEST_F(CalculadoraTest, Portapapeles) {
    Menu& copiar = F().mnuEditCopy;
    Menu& pegar = F().mnuEditPaste;
    EXPECT_EQ(F().Controls("mnuEdit(0)"), &copiar);
    EXPECT_EQ(F().Controls("mnuEdit(1)"), &pegar);
    const auto elegir = [&](Menu& entrada) { app.Despachar([&] { entrada.Elegir(); }); };

    Marcar("3 op3 5.5 =");
    elegir(copiar);
    EXPECT_EQ(sistema.portapapeles, "-2.5");
    Marcar("C 12");
    elegir(copiar);
    EXPECT_EQ(sistema.portapapeles, "12.");

    Marcar("C 100 op3");
    elegir(pegar);
    EXPECT_EQ(Pantalla(), "12.");
    Marcar("=");
    EXPECT_EQ(Pantalla(), "88.");

    for (const auto& [texto, vale] : std::vector<std::pair<std::string, bool>>{
             {"7.25", true}, {"12a", false}, {"-3", false}, {"1,5", false}, {" 1", false}, {"", false}, {".5", true}}) {
        sistema.portapapeles = texto;
        EXPECT_EQ(F().BBCalc1.CanPaste(), vale) << texto;
        app.Despachar([&] { F().mnuEditbase.Click(); });
        EXPECT_EQ(pegar.Enabled(), vale) << texto;
        Marcar("C 1");
        F().BBCalc1.ClipboardAction(1);
        EXPECT_EQ(F().BBCalc1.Valor(), vale ? Val(texto) : Double(1)) << texto;
    }
    sistema.portapapeles = std::string(400, '9');
    elegir(pegar);
    ComprobarFallo("a number beyond a Double");
}

TEST_F(CalculadoraTest, Teclado) {
    const auto teclear = [&](std::initializer_list<int> codigos) {
        for (const int codigo : codigos) {
            app.PulsarTecla(codigo, 0);
        }
    };
    EXPECT_TRUE(F().BBCalc1.PicDisplay.TieneFoco());
    const struct {
        std::vector<int> codigos;
        const char* pantalla;
    } casos[] = {
        {{49, 50, 57, 48}, "1290."}, {{97, 98, 105, 96}, "1290."},
        {{54, 8, 55}, "7."},         {{51, 190, 53}, "3.5"},
        {{51, 110, 53}, "3.5"},      {{54, 106, 55, 13}, "42."},
        {{54, 107, 55, 13}, "13."},  {{54, 109, 55, 13}, "-1."},
        {{54, 111, 56, 13}, "0.75"}, {{54, 65, 108, 187, 32, 55}, "67."},  // the other keys do nothing
    };
    for (const auto& caso : casos) {
        Marcar("C");
        for (const int codigo : caso.codigos) {
            teclear({codigo});
        }
        EXPECT_EQ(Pantalla(), caso.pantalla);
    }
    // Whatever key of the pad was clicked, the keyboard goes on writing on the display.
    for (const char* tecla : {"cmdNum(7)", "cmdOp(2)", "cmdEquals", "cmdMem(2)", "cmdMem(0)", "cmdSci(6)", "cmdValue",
                              "cmdBackSpace", "cmdClear(1)", "cmdClear(0)", "OptRadian", "OptDegree"}) {
        Pulsar(tecla);
        EXPECT_TRUE(F().BBCalc1.PicDisplay.TieneFoco()) << tecla;
    }
}

TEST_F(CalculadoraTest, UnaParaTodosLosModulos) {
    EXPECT_EQ(F().Caption(), "Calculadora científica");
    frmCalculadora* primera = &F();
    Marcar("5 mem2 op4 3");
    Abrir();
    EXPECT_EQ(&F(), primera);
    EXPECT_EQ(Pantalla(), "3.");
    EXPECT_TRUE(F().Image1.Visible);
    Marcar("=");
    EXPECT_EQ(Pantalla(), "8.");

    app.CerrarVentana(F());
    Abrir();
    EXPECT_EQ(Pantalla(), ".0");
    EXPECT_FALSE(F().Image1.Visible);
}

TEST_F(CalculadoraTest, AyudasDeLasTeclas) {
    const std::map<std::string, std::string> ayudas = {
        {"cmdNum(0)", "Entrada numérica"},
        {"cmdOp(3)", "Operación - subtracción"},
        {"cmdOp(6)", "Operación - porcentaje - 30 (como) % (de) 300 = 10)"},
        {"cmdOp(11)", "Operación - (16 mod 5 = 1),(74  mod 10 = 4)"},
        {"cmdOp(14)", "Operación - raiz cúbica"},
        {"cmdSci(5)", "Operación trigonométrica"},
        {"cmdSci(7)", "Número aleatorio"},
        {"cmdMem(0)", "Limpiar memoria"},
        {"cmdMem(3)", "Adicionar valor corriente a la memoria"},
        {"cmdClear(0)", "Resets de constante corriente y valores, cancelando toda operación"},
        {"cmdEquals", ""},
    };
    for (const auto& [nombre, ayuda] : ayudas) {
        ASSERT_NE(F().Controls(nombre), nullptr) << nombre;
        EXPECT_EQ(F().Controls(nombre)->ToolTipText(), ayuda) << nombre;
    }
}

}  // namespace
}  // namespace cuencalia
