#include <regex>
#include <sstream>

#include "frame/base/textos.h"
#include "shell/frmCalculadora.h"
#include "tests/forma_en_uso.h"

namespace cuencalia {
namespace {

const std::string kFlecha = " → ";

std::vector<std::string> Partes(const std::string& lista) {
    static const std::regex kSeparador("; *");
    return {std::sregex_token_iterator(lista.begin(), lista.end(), kSeparador, -1), {}};
}

class CalculadoraTest : public pruebas::FormaEnUso<frmCalculadora> {
  protected:
    CalculadoraTest() : FormaEnUso("frmCalculadora") {}

    std::string Pantalla() { return F().BBCalc1.lblDisplay.Caption; }
    CommandButton* Tecla(const std::string& caption) {
        for (Control* control : F().Controles()) {
            if (auto* tecla = dynamic_cast<CommandButton*>(control); tecla != nullptr && tecla->Caption() == caption) {
                return tecla;
            }
        }
        return nullptr;
    }
    /// Presses keys: a word is what stands on one, or a number, whose sign is typed last.
    void Marcar(const std::string& teclas) {
        std::istringstream palabras(teclas);
        for (std::string palabra; palabras >> palabra;) {
            if (Tecla(palabra) != nullptr) {
                app.Pulsar(*Tecla(palabra));
            } else if (palabra.starts_with('-')) {
                Marcar(palabra.substr(1) + " ±");
            } else {
                for (const char c : palabra) {
                    app.Pulsar(*Tecla(std::string(1, c)));
                }
            }
        }
    }
    std::string Tras(const std::string& teclas) {
        Marcar("C " + teclas);
        EsperarSilencio();
        return Pantalla();
    }
    /// Keys and what the display shows then: to the letter, or as a number within a tolerance.
    void Comprobar(const std::string& cuentas, double tolerancia = 0) {
        for (const std::string& cuenta : Partes(cuentas)) {
            const std::size_t flecha = cuenta.find(kFlecha);
            const std::string esperada = cuenta.substr(flecha + kFlecha.size()),
                              pantalla = Tras(cuenta.substr(0, flecha));
            const double valor = Val(esperada).valor(), error = std::abs(Val(pantalla).valor() - valor);
            EXPECT_TRUE(pantalla == esperada || error < tolerancia * std::max(1.0, std::abs(valor)))
                << cuenta << ", not " << pantalla;
        }
    }
};

TEST_F(CalculadoraTest, Operaciones) {
    // The quotient loses its sign, the percentage does not. mod rounds its operands, a half to the even number.
    Comprobar(
        "7 ÷ 2 = → 3.5; 6 ÷ -3 = → 2.; -6 ÷ 3 = → 2.; 2.5 × -4 = → -10.; 3 − 5 = → -2.; 1.5 + 1.5 = → 3.;"
        "30 % 300 = → 10.; -30 % 300 = → -10.; 2 x^y 10 = → 1024.; -2 x^y 3 = → -8.; 32 ⁿ√ 5 = → 2.; 4 ⁿ√ -2 = → 0.5;"
        "16 mod 5 = → 1.; -16 mod 5 = → -1.; 16.5 mod 5 = → 1.; 17.5 mod 5 = → 3.; 2.7 int → 2.; -2.5 int → -3.;"
        "2 √ → 1.4142135623731; -8 1/x → -0.125; -3 x³ → -27.; 1.5 x² → 2.25; 3 x² x² → 81.; 27 ∛ → 3.");
    // In a chain. The root waits for the sum; the second operand is 0 until it is typed; the sign key takes what is on
    // the display, 6 - (-6). What is reckoned on with is the 15 digits shown, 3 × 0.333333333333333.
    Comprobar(
        "2 + 3 × → 5.; 2 + 3 × 4 = → 20.; 7 + 2 √ → 3.; 2 + 3 = × 4 = → 20.; 2 + 3 = 7 × 2 = → 14.; 2 + 3 = = → 5.;"
        "9 √ = → 3.; 5 + = → 5.; 5 + 7 + = → 12.; 5 + 7 = × = → .0; 6 − ± = → 12.; 2 + 30 sin = → 2.5;"
        "1 ÷ 2 = sin-1 → 30.; 30 sin 7 → 7.; pi × 2 = → 6.28318530717958; 1 ÷ 3 = × 3 = → 0.999999999999999");
}

TEST_F(CalculadoraTest, EntradaYLimpieza) {
    EXPECT_EQ(Pantalla(), ".0");
    Comprobar(
        "007 → 7.; . → .0; .05 → .05; 2.50 → 2.50; 1.5.2 → 1.52; 1234567890123456 → 123456789012345.;"
        "2.50 ± → -2.50; 2.50 ± ± → 2.50; 0 ± → .0; 2 ± 5 → -25.; 2 + 3 = ± → -5.; 10 x^y 20 = × 2 = → 2.E+20;"
        "12.3 ← → 12.; 12.3 ← ← 4 → 124.; -5 ← → .0; ← → .0; 2 + 3 = ← → 5.; pi ← → 3.14159265358979");
    // CE takes back the number typed last, then the operation.
    Comprobar(
        "2 + 3 C 7 = → 7.; 2 + 7 CE → .0; 2 + 7 CE 3 = → 5.; 2 + 7 CE CE → 2.; 2 + 7 CE CE 9 = → 9.; 2 + CE = → 2.;"
        "5 CE → .0; 2 + 3 = CE → .0; 5 C → .0; 2 + 3 C → .0");
    for (const auto& [teclas, tag] : {std::pair{"5.", "5."}, {"0", ""}, {"2 + 3", "3"}, {"2 +", ""}, {"2 + 3 =", ""}}) {
        Tras(teclas);
        EXPECT_EQ(F().BBCalc1.PicDisplay.Tag(), tag) << teclas;
    }
}

TEST_F(CalculadoraTest, Fallos) {
    // The last key brings exactly one message, the calculator's own; afterwards the calculator adds as ever.
    // Divisions by 0 (0.4 rounds to it), powers that are not real, numbers beyond a Long or a Double, or written in 15
    // digits as one beyond it (1.7976931348623156E+308 as …232E+308); the fault of an operation that waited cancels the
    // new one as well.
    for (const std::string& teclas :
         Partes("5 ÷ 0 =; 5 ÷ =; 0 ÷ 0 =; 5 % 0 =; 0 1/x; 2 ⁿ√ 0 =; 5 mod 0.4 =; -1 √; -8 ∛; -2 x^y 0.5 =; -8 ⁿ√ 3 =;"
                "0 x^y -1 =; -1 sin-1; -1 cos-1; 3000000000 mod 7 =; 3000000000 sin; 10 x^y 400 =; 10 x^y 308 × 10 =;"
                "10 x^y 306 × 9.98718408256842 × 18 =; 5 ÷ 0 +; 5 ÷ 0 1/x; 10 x^y 308 = × 0.9 = MS M+")) {
        const std::size_t ultima = teclas.rfind(' ');
        Tras(teclas.substr(0, ultima));
        EsperarMensaje(*Tecla(teclas.substr(ultima + 1)),
                       "No se puede cumplir con su petición.\nEsta operación ha sido cancelada.", kIconoError,
                       "Error en cálculo");
        EXPECT_EQ(Pantalla(), ".0") << teclas;
        Marcar("2 + 3 =");
        EXPECT_EQ(Pantalla(), "5.") << teclas;
    }
    // 9E+307 fits in a Double; twice as much is above its largest, 1.7977E+308. The memory stays as it was.
    EXPECT_EQ(Tras("MR"), "9.E+307");
}

TEST_F(CalculadoraTest, Trigonometria) {
    // Some functions miss a unit or two of the 15th digit, which is that of the degrees' pi, too.
    constexpr double kTolerancia = 5e-15;
    // Degrees lose their sign, go round after 360 and become whole: sin 31°, and the even 30 for 30.5.
    Comprobar(
        "-30 sin → 0.5; 570 sin → -0.5; 30.7 sin → 0.515038074910054; 30.5 sin → 0.5; 60 cos → 0.5; -120 cos → -0.5;"
        "-45 tan → 1; -0.5 sin-1 → -30; 0.5 cos-1 → 60; -0.5 cos-1 → 120; -1 tan-1 → -45",
        kTolerancia);
    // The degrees' pi is 3.2E-15 short, so cos 90° is half of it rather than 0 (and not the 6.1E-17 of a full pi).
    EXPECT_NEAR(Val(Tras("90 cos")).valor(), 1.62e-15, 0.12e-15);
    app.Pulsar(F().OptRadian);  // -30 rad keep their sign; pi / 6, 2 pi / 3, pi / 4
    Comprobar(
        "-30 sin → 0.988031624092862; 30.7 sin → -0.656316756177790; 1 cos → 0.540302305868140;"
        "1 tan → 1.557407724654902; 0.5 sin-1 → 0.523598775598299; -0.5 cos-1 → 2.094395102393195;"
        "1 tan-1 → 0.785398163397448",
        kTolerancia);
    app.Pulsar(F().OptDegree);
    EXPECT_EQ(Tras("30 sin"), "0.5");
    for (int i = 0; i < 20; ++i) {
        const Double azar = Val(Tras("ran"));
        EXPECT_TRUE(azar >= 1 && azar < 1001 && azar != Int(azar)) << Pantalla();
    }
}

// From -1 to below 1, whatever put the number on the display.
TEST_F(CalculadoraTest, ArcosSoloEnSuRango) {
    for (const auto& [numeros, habilitadas] :
         {std::pair{"C; 0.99; -1; 5 1/x; 2 + 0; 5 CE", true}, {"1; -1.01; 5; 2 − 4 =; 0 cos", false}}) {
        for (const std::string& teclas : Partes(numeros)) {
            Tras(teclas);
            EXPECT_TRUE(Tecla("sin-1")->Enabled() == habilitadas && Tecla("cos-1")->Enabled() == habilitadas) << teclas;
        }
    }
}

// C leaves the memory, a number that was stored is finished, and it is the first operand that is stored.
TEST_F(CalculadoraTest, MemoriaYSuSenal) {
    Comprobar(
        "5 MS → 5.; MR → 5.; 2 + MR = → 7.; MR × MR = → 25.; 1.5 M+ C MR → 6.5; 9 MS 4 → 4.; 2 + 3 MS = → 5.; MR → 2.;"
        "-7 M+ C MR → -5.; MC MR → .0");
    // A sum of 0 leaves nothing in it.
    for (const auto& [teclas, senal] :
         {std::pair{"C", false}, {"5 ± M+", true}, {"C 5 M+", false}, {"MS", true}, {"MC", false}}) {
        Marcar(teclas);
        EXPECT_EQ(F().Image1.Visible, senal) << teclas;
    }
}

TEST_F(CalculadoraTest, Portapapeles) {
    const auto elegir = [&](Menu& entrada) { app.Despachar([&] { entrada.Elegir(); }); };
    Marcar("3 − 5.5 =");
    elegir(F().mnuEditCopy);
    EXPECT_EQ(sistema.portapapeles, "-2.5");
    const auto pegar = [&](const std::string& texto) {
        sistema.portapapeles = texto;
        Marcar("C 100 −");
        F().BBCalc1.ClipboardAction(1);
        Marcar("=");
        app.Despachar([&] { F().mnuEditbase.Click(); });
        return Pantalla() + (F().mnuEditPaste.Enabled() ? "" : " greyed");
    };
    EXPECT_EQ(pegar("7.25"), "92.75");
    EXPECT_EQ(pegar(".5"), "99.5");
    for (const char* texto : {"12a", "-3", "1,5", " 1", ""}) {
        EXPECT_EQ(pegar(texto), "100. greyed") << texto;
    }
    pegar("12.");
    elegir(F().mnuEditPaste);
    EXPECT_EQ(Pantalla(), "12.");
    sistema.portapapeles = std::string(400, '9');
    elegir(F().mnuEditPaste);
    EXPECT_EQ(sistema.mensajes.size(), 1U) << "a number beyond a Double";
}

TEST_F(CalculadoraTest, Teclado) {
    for (const std::string& caso : Partes("49 50 57 48 → 1290.; 97 98 105 96 → 1290.; 54 8 55 → 7.; 51 190 53 → 3.5;"
                                          "51 110 53 → 3.5; 54 106 55 13 → 42.; 54 107 55 13 → 13.; 54 109 55 13 → -1.;"
                                          "54 111 56 13 → 0.75; 54 65 108 188 32 55 → 67.;"  // other keys do nothing
                                          "54 107 55 187 → 13.; 54 107 27 55 13 → 7.")) {
        Marcar("C");
        std::istringstream codigos(caso);
        for (int codigo = 0; codigos >> codigo;) {
            app.PulsarTecla(codigo, 0);
        }
        EXPECT_TRUE(caso.ends_with(kFlecha + Pantalla())) << caso << ", not " << Pantalla();
    }
    app.PulsarTecla('C', 0, kControl);
    app.PulsarTecla(kTeclaEscape, 0);
    EXPECT_EQ(Pantalla() + sistema.portapapeles, ".07.");
    app.PulsarTecla('V', 0, kControl);
    EXPECT_EQ(Pantalla(), "7.");
    // Whatever was clicked, the keyboard goes on writing on the display.
    for (const std::string& tecla : Partes("7; ×; =; MS; MC; pi; ±; ←; CE; C")) {
        Marcar(tecla);
        EXPECT_TRUE(F().BBCalc1.PicDisplay.TieneFoco()) << tecla;
    }
    app.Pulsar(F().OptRadian);
    EXPECT_TRUE(F().BBCalc1.PicDisplay.TieneFoco());
}

}  // namespace
}  // namespace cuencalia
