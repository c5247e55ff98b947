#pragma once

#include <functional>
#include <vector>

#include "frame/controles/controles.h"
#include "frame/controles/plataforma.h"

namespace cuencalia {

/// Characters that a box for numbers accepts from the keyboard.
enum class Cifras {
    Enteras,        ///< Digits.
    ConUnSoloPunto  ///< Digits, and one point.
};

/// Makes the box accept only those characters, Backspace and ENTER.
void SoloNumero(TextBox& caja, Cifras cifras = Cifras::ConUnSoloPunto);

/// Runs `accion` when ENTER is pressed in the text or combo box; ENTER is then not treated as a character.
void AlPulsarEnter(Control& caja, std::function<void()> accion);

/// Makes ENTER move the focus from each box to the next one, and from the last box to `destino`.
void EncadenarEnter(const std::vector<Control*>& cajas, Control& destino);

/// Returns whether the box has a text; when it has none, shows `aviso` and moves the focus to the box.
bool Exigir(TextBox& caja, const Aviso& aviso);
/// The same for a list of which an entry must be chosen: a text that is no entry is none.
bool Exigir(ComboBox& lista, const Aviso& aviso);

}  // namespace cuencalia
