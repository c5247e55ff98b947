#pragma once

#include <functional>
#include <optional>
#include <string>

#include "frame/base/numeros.h"
#include "frame/controles/controles.h"

namespace cuencalia {

/// The calculator's display takes the keyboard, so that digits can be typed at any time.
class PantallaCalculadora : public PictureBox {
  public:
    using PictureBox::PictureBox;

    bool AceptaFoco() const override { return true; }
};

enum class ModoAngulo { Grados, Radianes };

/// The engine of the pocket calculator: two operands, an operation that waits for its second operand, a memory, and a
/// display. The keys of the form call its methods. An arithmetic error is shown in a message; no method throws it.
///
/// The Tag of PicDisplay contains the text of the number typed or recalled last. It is empty for 0, after an operator
/// and after a result: the next digit then begins a new number.
class BBCalc : public Control {
  public:
    BBCalc(Formulario& forma, const std::string& nombre);

    PantallaCalculadora PicDisplay;
    Label lblDisplay;

    ModoAngulo AngleMode = ModoAngulo::Grados;

    /// What the display shows has changed.
    Evento<> Change;

    /// The number on the display.
    Double Valor() const { return segundo_ ? y_ : x_; }

    /// Calculates the pending operation, if there is one, and makes `codigo` the pending one; codes 5, 7, 9, 10, 12 and
    /// 14 have no second operand and are calculated at once. When the pending operation fails, the new one is ignored.
    void OperationType(int codigo);
    void DoResult();

    /// Appends a digit (0 to 9) to the number being typed; a digit after the 15th is ignored.
    void NumberInput(int digito);
    void DoDecimalPoint();
    /// Removes the last character of the number being typed. Does nothing to a result.
    void DoBackSpace();
    void ChangeSign();

    /// Clears operands and operation; keeps the memory.
    void Clear();
    /// Undoes the last step: clears the second operand, or else the operation, or else the number on the display.
    void ClearOperation();

    /// Handles a key, given by its KeyDown code, the numeric pad included; other keys do nothing.
    void KeyboardInput(int tecla);

    /// Functions of the number on the display: 0 sin, 1 cos, 2 tan, 3 arc sine, 4 arc cosine, 5 arc tangent; and values
    /// that replace it: 6 pi, 7 a random value from 1 to 1001. In degrees, sin, cos and tan use whole degrees without
    /// sign.
    void TrigOp(int codigo);

    /// 0 empties the memory, 1 recalls it, 2 stores the first operand in it, 3 adds the first operand to it.
    void MemFunction(int codigo);
    /// Whether the memory holds anything but 0.
    bool IsMemAvailable() const { return memoria_ != Double(0); }

    /// 0 copies the display's text, 1 pastes a number; a text with anything but digits and points is refused.
    void ClipboardAction(int codigo);
    bool CanPaste() const;

    /// Shows the number on the display and gives the display the focus.
    void ShowBox();

  private:
    /// Besides the keys of KeyboardInput, those of a calculator on the desk: "=", Escape for C, Ctrl+C and Ctrl+V.
    void TeclaDePantalla(int tecla);
    bool Pendiente() const { return codigo_ != 0; }
    /// Makes the value the second operand when an operation is pending, the first one otherwise.
    void PonerOperando(Double valor);
    void Escribir(const std::string& entrada);
    void EmpezarEntrada();
    /// The result of `calculo`, rounded to the 15 digits that the display shows. After an arithmetic error it tells the
    /// user, clears the operation and the operands, and returns nothing.
    std::optional<Double> Calcular(const std::function<Double()>& calculo);
    /// Stores the value as the current operand and shows it; the next digit begins another number.
    void MostrarValor(std::optional<Double> valor);
    bool Resolver();
    Double Operacion() const;
    Double Trigonometrica(int codigo, Double x) const;

    Double x_, y_;
    int codigo_ = 0;         ///< Code of the pending operation; 0 when there is none.
    bool segundo_ = false;   ///< The second operand has been entered, at least in part.
    bool entrando_ = false;  ///< The Tag contains a number being typed.
    Double memoria_;
};

}  // namespace cuencalia
