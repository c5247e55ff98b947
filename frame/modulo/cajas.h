#pragma once

#include <functional>
#include <vector>

#include "frame/controles/controles.h"
#include "frame/controles/plataforma.h"

namespace cuencalia {

/// What a box of numbers takes from the keyboard.
enum class Cifras {
    Enteras,        ///< Digits.
    ConUnSoloPunto  ///< Digits, and a point while the text has none.
};

/// Lets only those characters, Backspace and ENTER through to the box.
void SoloNumero(TextBox& caja, Cifras cifras = Cifras::ConUnSoloPunto);

/// ENTER in the box does that instead of being a character.
void AlPulsarEnter(TextBox& caja, std::function<void()> accion);

/// ENTER leads from each box to the next one, and from the last box to `destino`.
void EncadenarEnter(const std::vector<TextBox*>& cajas, Control& destino);

/// Whether the box has a text; without one the user is told and the focus goes there.
bool Exigir(TextBox& caja, const Aviso& aviso);

}  // namespace cuencalia
