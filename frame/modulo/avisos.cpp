#include "frame/modulo/avisos.h"

#include "frame/base/bloque.h"
#include "frame/base/textos.h"

namespace cuencalia {

std::string AvisoDeLectura(const std::string& texto) {
    if (texto.empty() || ValLeeTodo(texto)) {
        return {};
    }
    return "«" + texto + "» se leyó como " + CStr(Val(texto)) +
           (texto.find(',') == std::string::npos ? "" : "; el signo decimal es el punto");
}

}  // namespace cuencalia
