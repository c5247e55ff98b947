#include "modules/caudales/macmath.h"

#include <span>

namespace cuencalia {

namespace {

Double DeTexto(std::span<const TerminoTexto> terminos, std::string_view texto) {
    for (const TerminoTexto& termino : terminos) {
        if (texto == termino.texto) {
            return termino.C;
        }
    }
    return 0;
}

Double DePendiente(Double pendiente) {
    if (pendiente < 0) {
        return 0;
    }
    for (const TerminoPendiente& termino : kTerminosPendiente) {
        if (pendiente <= termino.hasta) {
            return termino.C;
        }
    }
    return kTerminoPendienteMayor;
}

}  // namespace

Double CoeficienteMacMath(std::string_view cobertura, std::string_view textura, Double pendiente) {
    return DeTexto(kTerminosCobertura, cobertura) + DeTexto(kTerminosTextura, textura) + DePendiente(pendiente);
}

Double CaudalMacMath(Double C, Double I, Double A, Double S) {
    return 0.0091 * C * I * Elevar(A, Double(4) / 5) * Elevar(S, Double(1) / 5);
}

}  // namespace cuencalia
