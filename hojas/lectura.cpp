#include <array>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <vector>

#include "hojas/biff.h"
#include "hojas/errores_libro.h"
#include "hojas/libros.h"
#include "hojas/xlsx.h"

namespace cuencalia {

namespace {

using namespace std::string_view_literals;

constexpr std::size_t kMaxArchivo = std::size_t{256} << 20;

std::vector<std::byte> LeerArchivo(const std::string& ruta) {
    std::error_code error;
    const auto estado = std::filesystem::status(ruta, error);
    if (estado.type() == std::filesystem::file_type::not_found) {
        throw ErrorEjecucion(kArchivoNoEncontrado);
    }
    std::ifstream archivo;
    if (std::filesystem::is_regular_file(estado)) {
        archivo.open(ruta, std::ios::binary);
    }
    if (!archivo.is_open()) {
        throw ErrorEjecucion(kAccesoRuta);
    }
    std::vector<std::byte> contenido;
    std::array<char, 65536> trozo;
    while (archivo.read(trozo.data(), trozo.size()) || archivo.gcount() > 0) {
        const auto leidos = std::as_bytes(std::span(trozo)).first(static_cast<std::size_t>(archivo.gcount()));
        if (contenido.size() + leidos.size() > kMaxArchivo) {
            FallarDemasiadoGrande();
        }
        contenido.insert(contenido.end(), leidos.begin(), leidos.end());
    }
    if (archivo.bad()) {
        throw ErrorEjecucion(kAccesoRuta);
    }
    return contenido;
}

}  // namespace

Hoja LeerLibro(std::span<const std::byte> contenido, int columnas, int filasMax) {
    ArmadorHoja armador(columnas, filasMax);
    const std::string_view inicio(reinterpret_cast<const char*>(contenido.data()), contenido.size());
    if (inicio.starts_with("PK\x03\x04"sv)) {
        LeerXlsx(contenido, armador);
    } else if (inicio.starts_with("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1"sv)) {
        LeerXls(contenido, armador);
    } else if (inicio.starts_with("\x09\x08"sv)) {
        LeerBiff(contenido, armador);
    } else {
        FallarNoEsLibro();
    }
    return armador.Terminar();
}

Hoja LibrosDeCalculo::LeerPrimeraHoja(const std::string& ruta, int columnas, int filasMax) {
    return LeerLibro(LeerArchivo(ruta), columnas, filasMax);
}

}  // namespace cuencalia
