#include "frame/base/utf8.h"

namespace cuencalia {

CaracterUtf8 LeerUtf8(std::string_view texto, std::size_t lugar) {
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
    if (largo || !EsCodigoDeCaracter(codigo)) {
        return {};
    }
    return {codigo, bytes, true};
}

void AgregarUtf8(std::string& destino, char32_t codigo) {
    if (!EsCodigoDeCaracter(codigo)) {
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

bool EsUtf8(std::string_view texto) {
    for (std::size_t i = 0; i < texto.size();) {
        const CaracterUtf8 c = LeerUtf8(texto, i);
        if (!c.valido) {
            return false;
        }
        i += c.bytes;
    }
    return true;
}

bool EsUtf8SinNulos(std::string_view texto) { return texto.find('\0') == std::string_view::npos && EsUtf8(texto); }

std::size_t ContarUtf8(std::string_view texto) {
    std::size_t cuantos = 0;
    for (std::size_t i = 0; i < texto.size(); ++cuantos) {
        i += LeerUtf8(texto, i).bytes;
    }
    return cuantos;
}

std::size_t ByteDeCaracter(std::string_view texto, std::size_t cuantos) {
    std::size_t byte = 0;
    for (; byte < texto.size() && cuantos > 0; --cuantos) {
        byte += LeerUtf8(texto, byte).bytes;
    }
    return byte;
}

}  // namespace cuencalia
