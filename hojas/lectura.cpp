#include <string_view>

#include "frame/base/archivos.h"
#include "hojas/biff.h"
#include "hojas/errores_libro.h"
#include "hojas/libros.h"
#include "hojas/xlsx.h"

namespace cuencalia {

namespace {

using namespace std::string_view_literals;

constexpr std::size_t kMaxArchivo = std::size_t{96} << 20;

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
    const std::string contenido = LeerArchivo(ruta, kMaxArchivo + 1);
    if (contenido.size() > kMaxArchivo) {
        FallarDemasiadoGrande();
    }
    return LeerLibro(std::as_bytes(std::span(contenido)), columnas, filasMax);
}

}  // namespace cuencalia
