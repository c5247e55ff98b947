#include "shell/bbcalc.h"

#include <algorithm>

#include "frame/base/textos.h"
#include "frame/controles/aplicacion.h"

namespace cuencalia {

namespace {

constexpr double kPi15Cifras = 3.14159265358979;
constexpr int kDigitosMaximos = 15;  // the digits that a Double holds and Str writes
constexpr const char* kDigitos = "0123456789";

bool EsUnaria(int codigo) {
    return codigo == 5 || codigo == 7 || codigo == 9 || codigo == 10 || codigo == 12 || codigo == 14;
}

bool Contiene(const std::string& texto, const char* alguno) { return texto.find_first_of(alguno) != std::string::npos; }

/// A number as stored in the Tag: empty for 0.
std::string TextoDe(Double valor) { return valor == Double(0) ? std::string() : Trim(Str(valor)); }

/// The Tag's text as shown on the display: always with a point, and with a 0 when it has no digit.
std::string EnPantalla(std::string texto) {
    if (!Contiene(texto, ".")) {
        texto.insert(std::min(texto.find('E'), texto.size()), ".");
    }
    return Contiene(texto, kDigitos) ? texto : texto + "0";
}

Double GradosEnteros(Double x) { return Abs(Mod(CLng(x), 360)); }

}  // namespace

BBCalc::BBCalc(Formulario& forma, const std::string& nombre)
    : Control(forma, nombre),
      PicDisplay(forma, "PicDisplay"),
      lblDisplay(forma, "lblDisplay", EnPantalla(""), Papel::Pantalla) {
    PicDisplay.NombreAccesible = "Pantalla de la calculadora";
    PicDisplay.KeyDown.Conectar(this, &BBCalc::TeclaDePantalla);
}

void BBCalc::ShowBox() {
    const std::string& entrada = PicDisplay.Tag;
    const std::string texto = EnPantalla(entrada.empty() ? TextoDe(Valor()) : entrada);
    if (PicDisplay.PuedeRecibirFoco()) {
        PicDisplay.SetFocus();
    }
    if (lblDisplay.Caption() != texto) {
        lblDisplay.Caption = texto;
        Change();
    }
}

void BBCalc::PonerOperando(Double valor) {
    segundo_ = Pendiente();
    (segundo_ ? y_ : x_) = valor;
}

void BBCalc::Escribir(const std::string& entrada) {
    PicDisplay.Tag = entrada;
    PonerOperando(Val(entrada));
    ShowBox();
}

void BBCalc::EmpezarEntrada() {
    if (!entrando_) {
        PicDisplay.Tag = "";
        entrando_ = true;
    }
}

void BBCalc::NumberInput(int digito) {
    EmpezarEntrada();
    const std::string& entrada = PicDisplay.Tag;
    const bool llena =
        std::count_if(entrada.begin(), entrada.end(), [](char c) { return c >= '0' && c <= '9'; }) >= kDigitosMaximos;
    const bool ceroInicial = entrada.empty() && digito == 0;
    Escribir(llena || ceroInicial ? entrada : entrada + kDigitos[digito]);
}

void BBCalc::DoDecimalPoint() {
    EmpezarEntrada();
    const std::string& entrada = PicDisplay.Tag;
    Escribir(Contiene(entrada, ".") ? entrada : entrada + ".");
}

void BBCalc::DoBackSpace() {
    std::string entrada = PicDisplay.Tag;
    if (entrando_ && !entrada.empty()) {
        entrada.pop_back();
        Escribir(entrada == "-" ? "" : entrada);
    }
    ShowBox();
}

void BBCalc::ChangeSign() {
    const std::string& entrada = PicDisplay.Tag;
    const bool negativo = Valor() < Double(0);
    if (Valor() == Double(0)) {
        ShowBox();
    } else if (entrando_) {
        Escribir(negativo ? entrada.substr(1) : "-" + entrada);
    } else {
        Escribir(TextoDe(-Valor()));
    }
}

std::optional<Double> BBCalc::Calcular(const std::function<Double()>& calculo) {
    try {
        // The largest Double, rounded to 15 digits, is beyond the range of a Double, so Val may fail as well.
        return Val(TextoDe(calculo()));
    } catch (const ErrorEjecucion&) {
        App().MsgBox("No se puede cumplir con su petición.\nEsta operación ha sido cancelada.", kIconoError,
                     "Error en cálculo");
        codigo_ = 0;
        segundo_ = false;
        ClearOperation();
        return std::nullopt;
    }
}

void BBCalc::MostrarValor(std::optional<Double> valor) {
    if (valor) {
        entrando_ = false;
        Escribir(TextoDe(*valor));
    }
}

Double BBCalc::Operacion() const {
    switch (codigo_) {
        case 1:
            return Abs(x_ / y_);
        case 2:
            return y_ * x_;
        case 3:
            return x_ - y_;
        case 4:
            return y_ + x_;
        case 5:
            return Sqr(x_);
        case 6:
            return x_ / y_ * 100;
        case 7:
            return Double(1) / x_;
        case 8:
            return Elevar(x_, y_);
        case 9:
            return x_ * x_ * x_;
        case 10:
            return x_ * x_;
        case 11:
            return Mod(CLng(x_), CLng(y_));
        case 12:
            return Int(x_);
        case 13:
            return Elevar(x_, Double(1) / y_);
        case 14:
            return Elevar(x_, Double(1) / 3);
        default:
            throw ErrorEjecucion(kArgumentoNoValido);
    }
}

bool BBCalc::Resolver() {
    const std::optional<Double> resultado = Calcular([this] { return Operacion(); });
    codigo_ = 0;
    MostrarValor(resultado);
    PicDisplay.Tag = "";
    return resultado.has_value();
}

void BBCalc::DoResult() {
    if (Pendiente()) {
        Resolver();
    }
    ShowBox();
}

void BBCalc::OperationType(int codigo) {
    if (Pendiente() && !Resolver()) {
        return;
    }
    codigo_ = codigo;
    y_ = 0;
    segundo_ = false;
    entrando_ = false;
    PicDisplay.Tag = "";
    if (EsUnaria(codigo)) {
        DoResult();
    } else {
        ShowBox();
    }
}

void BBCalc::Clear() {
    x_ = 0;
    y_ = 0;
    codigo_ = 0;
    segundo_ = false;
    entrando_ = false;
    PicDisplay.Tag = "";
    ShowBox();
}

void BBCalc::ClearOperation() {
    entrando_ = false;
    const bool vacio = PicDisplay.Tag().empty();
    if (Pendiente() && vacio) {
        codigo_ = 0;
        segundo_ = false;
        ShowBox();
    } else {
        Escribir("");
    }
}

void BBCalc::TeclaDePantalla(int tecla) {
    if (App().ConControl()) {
        if (tecla == 'C' || tecla == 'V') {
            ClipboardAction(tecla == 'C' ? 0 : 1);
        }
    } else if (tecla == kTeclaIgual) {
        DoResult();
    } else if (tecla == kTeclaEscape) {
        Clear();
    } else {
        KeyboardInput(tecla);
    }
}

void BBCalc::KeyboardInput(int tecla) {
    constexpr int kPad0 = 96, kPad9 = 105, kPadPor = 106, kPadMas = 107, kPadMenos = 109, kPadPunto = 110,
                  kPadEntre = 111, kPunto = 190;
    if (tecla >= '0' && tecla <= '9') {
        NumberInput(tecla - '0');
    } else if (tecla >= kPad0 && tecla <= kPad9) {
        NumberInput(tecla - kPad0);
    } else if (tecla == kTeclaRetroceso) {
        DoBackSpace();
    } else if (tecla == kTeclaEnter) {
        DoResult();
    } else if (tecla == kPadPor) {
        OperationType(2);
    } else if (tecla == kPadMas) {
        OperationType(4);
    } else if (tecla == kPadMenos) {
        OperationType(3);
    } else if (tecla == kPadPunto || tecla == kPunto) {
        DoDecimalPoint();
    } else if (tecla == kPadEntre) {
        OperationType(1);
    }
}

Double BBCalc::Trigonometrica(int codigo, Double x) const {
    const bool grados = AngleMode == ModoAngulo::Grados;
    const auto angulo = [&] { return grados ? GradosEnteros(x) * kPi15Cifras / 180 : x; };
    const auto enSuUnidad = [&](Double radianes) { return grados ? radianes * 180 / kPi15Cifras : radianes; };
    switch (codigo) {
        case 0:
            return Sin(angulo());
        case 1:
            return Cos(angulo());
        case 2:
            return Tan(angulo());
        case 3:
            return enSuUnidad(Atn(x / Sqr(Double(1) - x * x)));
        case 4:
            return enSuUnidad(Atn(-x / Sqr(Double(1) - x * x)) + Double(2) * Atn(1));
        case 5:
            return enSuUnidad(Atn(x));
        case 6:
            return kPi15Cifras;
        case 7:
            Randomize(Timer());
            return Double(1000) * Rnd() + 1;
        default:
            throw ErrorEjecucion(kArgumentoNoValido);
    }
}

void BBCalc::TrigOp(int codigo) {
    const std::string entrada = PicDisplay.Tag;
    MostrarValor(Calcular([&] { return Trigonometrica(codigo, entrada.empty() ? Valor() : Val(entrada)); }));
}

void BBCalc::MemFunction(int codigo) {
    if (codigo == 0) {
        memoria_ = 0;
    } else if (codigo == 1) {
        MostrarValor(memoria_);
    } else if (codigo == 2) {
        memoria_ = x_;
    } else if (codigo == 3) {
        memoria_ = Calcular([this] { return memoria_ + x_; }).value_or(memoria_);
    }
    // A number stored in the memory is complete: the next digit begins another number.
    entrando_ = false;
    ShowBox();
}

bool BBCalc::CanPaste() const {
    const std::string texto = App().Sistema().TextoDelPortapapeles();
    return !texto.empty() && texto.find_first_not_of("0123456789.") == std::string::npos;
}

void BBCalc::ClipboardAction(int codigo) {
    if (codigo == 0) {
        App().Sistema().PonerEnPortapapeles(lblDisplay.Caption);
    } else if (codigo == 1 && CanPaste()) {
        MostrarValor(Calcular([this] { return Val(App().Sistema().TextoDelPortapapeles()); }));
    }
    ShowBox();
}

}  // namespace cuencalia
