#pragma once

#include <string>
#include <string_view>

namespace cuencalia {

/// The upper half of a code page: bytes 0x80 to 0xFF. The lower half is ASCII.
struct PaginaCodigo {
    int numero;
    std::u16string_view mitadAlta;
};

/// The code page with this number; Windows-1252 for an unknown number.
const PaginaCodigo* BuscarPagina(int numero);

/// The code page of a Windows character set, by its number in RTF font tables; null for the set that means the
/// document's own code page.
const PaginaCodigo* PaginaDeJuego(int juego);

char32_t Descodificar(const PaginaCodigo& pagina, unsigned char byte);

/// Text in Windows-1252 as UTF-8.
std::string DeWindows1252(std::string_view bytes);

}  // namespace cuencalia
