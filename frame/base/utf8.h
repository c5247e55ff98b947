#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace cuencalia {

/// What stands for a character that cannot be told (U+FFFD).
constexpr char32_t kCaracterIlegible = 0xFFFD;

/// A character read from UTF-8 text. A byte that belongs to no character is read alone, as not valid.
struct CaracterUtf8 {
    char32_t codigo = kCaracterIlegible;
    std::size_t bytes = 1;
    bool valido = false;
};

/// The character at byte `lugar` (lugar < texto.size()).
inline CaracterUtf8 LeerUtf8(std::string_view texto, std::size_t lugar) {
    const auto primero = static_cast<unsigned char>(texto[lugar]);
    if (primero < 0x80) {
        return {primero, 1, true};
    }
    if (primero < 0xC2 || primero > 0xF4) {
        return {};
    }
    const std::size_t bytes = primero < 0xE0 ? 2 : primero < 0xF0 ? 3 : 4;
    if (texto.size() - lugar < bytes) {
        return {};
    }
    char32_t codigo = primero & (0x7Fu >> bytes);
    for (std::size_t i = 1; i < bytes; ++i) {
        const auto byte = static_cast<unsigned char>(texto[lugar + i]);
        if ((byte & 0xC0) != 0x80) {
            return {};
        }
        codigo = codigo << 6 | (byte & 0x3Fu);
    }
    const bool largo = (bytes == 3 && codigo < 0x800) || (bytes == 4 && codigo < 0x10000);
    const bool sustituto = codigo >= 0xD800 && codigo <= 0xDFFF;
    if (largo || sustituto || codigo > 0x10FFFF) {
        return {};
    }
    return {codigo, bytes, true};
}

/// Appends the character; U+FFFD in the place of a code that no character has.
inline void AgregarUtf8(std::string& destino, char32_t codigo) {
    if (codigo > 0x10FFFF || (codigo >= 0xD800 && codigo <= 0xDFFF)) {
        codigo = kCaracterIlegible;
    }
    const auto agregar = [&destino](char32_t byte) { destino.push_back(static_cast<char>(byte)); };
    if (codigo < 0x80) {
        agregar(codigo);
        return;
    }
    if (codigo < 0x800) {
        agregar(0xC0 | codigo >> 6);
    } else {
        if (codigo < 0x10000) {
            agregar(0xE0 | codigo >> 12);
        } else {
            agregar(0xF0 | codigo >> 18);
            agregar(0x80 | (codigo >> 12 & 0x3F));
        }
        agregar(0x80 | (codigo >> 6 & 0x3F));
    }
    agregar(0x80 | (codigo & 0x3F));
}

inline bool EsUtf8(std::string_view texto) {
    for (std::size_t i = 0; i < texto.size();) {
        const CaracterUtf8 c = LeerUtf8(texto, i);
        if (!c.valido) {
            return false;
        }
        i += c.bytes;
    }
    return true;
}

/// True for the second and later bytes of a character.
constexpr bool EsContinuacionUtf8(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; }

/// Number of characters (code points) of a valid UTF-8 text.
inline std::size_t ContarUtf8(std::string_view texto) {
    std::size_t cuantos = 0;
    for (const char c : texto) {
        cuantos += EsContinuacionUtf8(c) ? 0 : 1;
    }
    return cuantos;
}

/// The byte where the character number `cuantos`, from 0, of a valid UTF-8 text begins; the text's size when it has no
/// more characters.
inline std::size_t ByteDeCaracter(std::string_view texto, std::size_t cuantos) {
    for (std::size_t i = 0; i < texto.size(); ++i) {
        if (!EsContinuacionUtf8(texto[i]) && cuantos-- == 0) {
            return i;
        }
    }
    return texto.size();
}

}  // namespace cuencalia
