#pragma once

#include <string>
#include <string_view>

namespace cuencalia {

/// The upper half of a code page: bytes 0x80 to 0xFF. The lower one is ASCII.
struct PaginaCodigo {
    int numero;
    std::u16string_view mitadAlta;
};

/// The code page of this number; Windows-1252 stands for one that is not known.
const PaginaCodigo* BuscarPagina(int numero);

/// The code page of a Windows character set, by the number that font tables give it; none for the set that stands for
/// the document's own.
const PaginaCodigo* PaginaDeJuego(int juego);

char32_t Descodificar(const PaginaCodigo& pagina, unsigned char byte);

/// Text in Windows-1252 as UTF-8.
std::string DeWindows1252(std::string_view bytes);

}  // namespace cuencalia
