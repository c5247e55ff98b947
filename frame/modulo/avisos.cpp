#include "frame/modulo/avisos.h"

#include "frame/base/textos.h"

namespace cuencalia {

std::string AvisoDeLectura(const std::string& texto) {
    if (texto.empty() || ValLeeTodo(texto)) {
        return {};
    }
    return "«" + texto + "» se leyó como " + CStr(Val(texto)) +
           (texto.find(',') == std::string::npos ? "" : "; el signo decimal es el punto");
}

std::string AvisoDePegado(const Pegado& pegado, SignoDecimal signo, bool conEncabezado) {
    const auto cuantos = [](std::size_t cuenta, const char* una, const char* varias) {
        return std::to_string(cuenta) + (cuenta == 1 ? una : varias);
    };
    std::string aviso = "Pegado: " + cuantos(pegado.celdas.size(), " fila", " filas");
    aviso += signo == SignoDecimal::Coma ? ", con coma decimal" : "";
    aviso += conEncabezado ? "; el encabezado quedó fuera" : "";
    if (pegado.ajenas > 0) {
        aviso += "; " +
                 cuantos(static_cast<std::size_t>(pegado.ajenas), " celda que no es un número cuenta",
                         " celdas que no son números cuentan") +
                 " como 0";
    }
    if (pegado.sobrantes > 0) {
        aviso += "; " +
                 cuantos(static_cast<std::size_t>(pegado.sobrantes), " celda sin columna quedó",
                         " celdas sin columna quedaron") +
                 " fuera";
    }
    return aviso;
}

}  // namespace cuencalia
