#include "shell/frmCalculadora.h"

namespace cuencalia {

frmCalculadora::frmCalculadora(Aplicacion& app) : Formulario(app, "frmCalculadora", "Calculadora científica") {
    std::vector<Tecla> digitos;
    static constexpr const char* kDigitos[] = {"0", "1", "2", "3", "4", "5", "6", "7", "8", "9"};
    for (int i = 0; i <= 9; ++i) {
        digitos.push_back({i, kDigitos[i], "Entrada numérica"});
    }
    HacerTeclas(cmdNum, "cmdNum", digitos, &BBCalc::NumberInput);
    HacerTeclas(cmdOp, "cmdOp",
                {{1, "÷", "Operación - división"},
                 {2, "×", "Operación - multiplicación"},
                 {3, "−", "Operación - subtracción"},
                 {4, "+", "Operación - adición"},
                 {5, "√", "Operación - raiz cuadrada"},
                 {6, "%", "Operación - porcentaje - 30 (como) % (de) 300 = 10)"},
                 {7, "1/x", "Operación - inversa"},
                 {8, "x^y", "Operación - potencia n"},
                 {9, "x³", "Operación - elevar al cubo"},
                 {10, "x²", "Operación - elevar al cuadrado"},
                 {11, "mod", "Operación - (16 mod 5 = 1),(74  mod 10 = 4)"},
                 {12, "int", "Operación - valor entero"},
                 {13, "ⁿ√", "Operación - raiz n"},
                 {14, "∛", "Operación - raiz cúbica"}},
                &BBCalc::OperationType);
    static constexpr const char* kTrigonometrica = "Operación trigonométrica";
    HacerTeclas(cmdSci, "cmdSci",
                {{0, "sin", kTrigonometrica},
                 {1, "cos", kTrigonometrica},
                 {2, "tan", kTrigonometrica},
                 {3, "sin-1", kTrigonometrica},
                 {4, "cos-1", kTrigonometrica},
                 {5, "tan-1", kTrigonometrica},
                 {6, "pi", "Valor de pi"},
                 {7, "ran", "Número aleatorio"}},
                &BBCalc::TrigOp);
    HacerTeclas(cmdMem, "cmdMem",
                {{0, "MC", "Limpiar memoria"},
                 {1, "MR", "Mostrar contenido memoria"},
                 {2, "MS", "Almacenar valor corriente en la memoria"},
                 {3, "M+", "Adicionar valor corriente a la memoria"}},
                &BBCalc::MemFunction);
    for (CommandButton& tecla : cmdMem) {
        tecla.Click.Conectar([this] { Image1.Visible = BBCalc1.IsMemAvailable(); });
    }

    cmdClear.emplace_back(*this, "cmdClear(0)", "C",
                          "Resets de constante corriente y valores, cancelando toda operación");
    cmdClear[0].Click.Conectar([this] { BBCalc1.Clear(); });
    cmdClear.emplace_back(*this, "cmdClear(1)", "CE", "Limpiar última operación");
    cmdClear[1].Click.Conectar([this] { BBCalc1.ClearOperation(); });
    cmdDecimal.Click.Conectar([this] { BBCalc1.DoDecimalPoint(); });
    cmdValue.Click.Conectar([this] { BBCalc1.ChangeSign(); });
    cmdEquals.Click.Conectar([this] { BBCalc1.DoResult(); });
    cmdBackSpace.Click.Conectar([this] { BBCalc1.DoBackSpace(); });
    OptDegree.Click.Conectar([this] { ElegirModo(); });
    OptRadian.Click.Conectar([this] { ElegirModo(); });
    mnuEditbase.Click.Conectar([this] { mnuEditbase_Click(); });
    mnuEditCopy.Click.Conectar([this] { BBCalc1.ClipboardAction(0); });
    mnuEditPaste.Click.Conectar([this] { BBCalc1.ClipboardAction(1); });
    BBCalc1.Change.Conectar([this] { BBCalc1_Change(); });
    Image1.ToolTipText = "La memoria guarda un valor";
    Image1.Visible = false;
}

void frmCalculadora::HacerTeclas(std::deque<CommandButton>& arreglo, const std::string& nombre,
                                 const std::vector<Tecla>& teclas, Accion accion) {
    for (const Tecla& tecla : teclas) {
        CommandButton& boton = arreglo.emplace_back(*this, nombre + "(" + std::to_string(tecla.codigo) + ")",
                                                    tecla.caption, tecla.toolTip);
        boton.Click.Conectar([this, accion, codigo = tecla.codigo] { (BBCalc1.*accion)(codigo); });
    }
}

void frmCalculadora::Form_Load() { ElegirModo(); }

void frmCalculadora::ElegirModo() {
    BBCalc1.AngleMode = OptDegree.Value ? ModoAngulo::Grados : ModoAngulo::Radianes;
    BBCalc1.ShowBox();
}

/// The keys for arc sine and arc cosine are enabled only while the number on the display is in the domain of the
/// function.
void frmCalculadora::BBCalc1_Change() {
    const Double valor = BBCalc1.Valor();
    const bool enRango = valor >= Double(-1) && valor < Double(1);
    cmdSci[3].Enabled = enRango;
    cmdSci[4].Enabled = enRango;
}

/// The clipboard is checked when the menu opens, since other programs may have changed it.
void frmCalculadora::mnuEditbase_Click() { mnuEditPaste.Enabled = BBCalc1.CanPaste(); }

Disposicion frmCalculadora::Disponer() {
    const auto op = [this](int codigo) -> CommandButton& { return cmdOp[static_cast<std::size_t>(codigo - 1)]; };
    // clang-format off
    Disposicion cientificas = Pares(3, {
        cmdSci[0], cmdSci[1], cmdSci[2],
        cmdSci[3], cmdSci[4], cmdSci[5],
        cmdSci[6], cmdSci[7], op(12),
        op(10),    op(9),     op(8),
        op(5),     op(14),    op(13),
        op(7),     op(6),     op(11),
    });
    Disposicion basicas = Pares(4, {
        cmdMem[0],   cmdMem[1],   cmdMem[2],    cmdMem[3],
        cmdClear[0], cmdClear[1], cmdBackSpace, op(1),
        cmdNum[7],   cmdNum[8],   cmdNum[9],    op(2),
        cmdNum[4],   cmdNum[5],   cmdNum[6],    op(3),
        cmdNum[1],   cmdNum[2],   cmdNum[3],    op(4),
        cmdValue,    cmdNum[0],   cmdDecimal,   cmdEquals,
    });
    // clang-format on
    return Columna({BBCalc1.lblDisplay, BBCalc1.PicDisplay, Fila({OptDegree, OptRadian, Espacio(), Image1}),
                    Fila({std::move(cientificas).Estira(3), std::move(basicas).Estira(4)}), Espacio()});
}

}  // namespace cuencalia
