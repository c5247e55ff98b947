#include "frame/base/errores.h"

namespace cuencalia {

namespace {

const char* TextoDeError(int numero) {
    switch (numero) {
        case kArgumentoNoValido:
            return "Argumento o llamada a procedimiento no válidos";
        case kDesbordamiento:
            return "Desbordamiento";
        case kMemoriaInsuficiente:
            return "Memoria insuficiente";
        case kSubindiceFuera:
            return "El subíndice está fuera del intervalo";
        case kDivisionPorCero:
            return "División por cero";
        case kTiposNoCoinciden:
            return "No coinciden los tipos";
        case kArchivoNoEncontrado:
            return "No se encontró el archivo";
        case kDiscoLleno:
            return "Disco lleno";
        case kAccesoRuta:
            return "Error de acceso a la ruta o el archivo";
        case kRutaNoEncontrada:
            return "No se encontró la ruta de acceso";
        case kObjetoNoEstablecido:
            return "La variable de tipo Object no está establecida";
        default:
            return "Error definido por la aplicación";
    }
}

}  // namespace

ErrorEjecucion::ErrorEjecucion(int numero) : ErrorEjecucion(numero, TextoDeError(numero)) {}

ErrorEjecucion::ErrorEjecucion(int numero, const std::string& texto) : std::runtime_error(texto), numero_(numero) {}

}  // namespace cuencalia
