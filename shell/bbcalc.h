#pragma once

#include <functional>
#include <optional>
#include <string>

#include "frame/controles/controles.h"
#include "frame/base/numeros.h"

namespace cuencalia {

/// The calculator's display takes the keyboard, so that digits can be typed at any time.
class PantallaCalculadora : public PictureBox {
  public:
    using PictureBox::PictureBox;

    bool AceptaFoco() const override { return true; }
};

enum class ModoAngulo { Grados, Radianes };

/// The engine of the pocket calculator: two operands, an operation that waits for its second operand, a memory, and a
/// display. The form's keys call its methods. A fault of the arithmetic is told by a message; no method lets it out.
///
/// The Tag of PicDisplay holds the text of the number that was typed or fetched last. It is empty for 0, behind an
/// operator and behind a result: the next digit begins a new number there.
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

    /// Calculates the operation that waits, if there is one, and takes the new one; codes 5, 7, 9, 10, 12 and 14 have
    /// no second operand and are done at once. When the waiting one fails, the new one is dropped.
    void OperationType(int codigo);
    void DoResult();

    /// Writes a digit (0 to 9) behind the number being typed; one with 15 digits takes no more.
    void NumberInput(int digito);
    void DoDecimalPoint();
    /// Takes the last character off the number being typed. A result is not touched.
    void DoBackSpace();
    void ChangeSign();

    /// Forgets numbers and operation; the memory stays.
    void Clear();
    /// Takes back the last step: the second operand, or else the operator, or else the number on the display.
    void ClearOperation();

    /// A key by the code that KeyDown tells, the numeric pad included; other keys do nothing.
    void KeyboardInput(int tecla);

    /// 0 sin, 1 cos, 2 tan, 3 arc sine, 4 arc cosine, 5 arc tangent, 6 pi, 7 random value from 1 to 1001, of the number
    /// on the display. sin, cos and tan of degrees take whole degrees without their sign.
    void TrigOp(int codigo);

    /// 0 empties the memory, 1 recalls it, 2 stores the first operand in it, 3 adds the first operand to it.
    void MemFunction(int codigo);
    /// Whether the memory holds anything but 0.
    bool IsMemAvailable() const { return memoria_ != Double(0); }

    /// 0 copies the display's text, 1 pastes a number; a text with anything but digits and points is not taken.
    void ClipboardAction(int codigo);
    bool CanPaste() const;

    /// Writes the number on the display, which keeps the keyboard.
    void ShowBox();

  private:
    bool Pendiente() const { return codigo_ != 0; }
    /// Puts a value where the user is: the second operand while an operation waits for it.
    void PonerOperando(Double valor);
    void Escribir(const std::string& entrada);
    void EmpezarEntrada();
    /// What `calculo` gives, to the 15 digits that the display writes. After a fault it tells the user, forgets the
    /// operation and the operands, and gives nothing.
    std::optional<Double> Calcular(const std::function<Double()>& calculo);
    /// Makes the value the operand in turn; the next digit begins another number.
    void MostrarValor(std::optional<Double> valor);
    bool Resolver();
    Double Operacion() const;
    Double Trigonometrica(int codigo, Double x) const;

    Double x_, y_;
    int codigo_ = 0;         ///< Of the operation that waits; 0 when there is none.
    bool segundo_ = false;   ///< The second operand has been begun.
    bool entrando_ = false;  ///< The Tag is a number being typed.
    Double memoria_;
};

}  // namespace cuencalia
