#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace cuencalia {

/// The character shown in place of bytes that are not valid UTF-8 (U+FFFD, replacement character).
constexpr char32_t kCaracterIlegible = 0xFFFD;

/// True for a valid code point: up to U+10FFFF, without the surrogates of UTF-16.
constexpr bool EsCodigoDeCaracter(char32_t codigo) {
    return codigo <= 0x10FFFF && !(codigo >= 0xD800 && codigo <= 0xDFFF);
}

/// A character read from UTF-8 text. A byte that belongs to no character is read alone, as not valid.
struct CaracterUtf8 {
    char32_t codigo = kCaracterIlegible;
    std::size_t bytes = 1;
    bool valido = false;
};

/// The character at byte `lugar` (lugar < texto.size()).
CaracterUtf8 LeerUtf8(std::string_view texto, std::size_t lugar);

/// Appends the character; U+FFFD in the place of a code that no character has.
void AgregarUtf8(std::string& destino, char32_t codigo);

bool EsUtf8(std::string_view texto);
/// True for UTF-8 without the character NUL, which would end the text for a C library.
bool EsUtf8SinNulos(std::string_view texto);

/// Number of characters (code points); a byte that belongs to no character counts as one.
std::size_t ContarUtf8(std::string_view texto);
/// The byte where the character number `cuantos`, from 0, begins; the text's size when it has no more characters.
std::size_t ByteDeCaracter(std::string_view texto, std::size_t cuantos);

}  // namespace cuencalia
