#include "modules/caudales/racional.h"

namespace cuencalia {

Double CoeficienteRural(std::string_view cobertura, std::string_view textura, Double pendiente) {
    for (const EscorrentiaRural& renglon : kEscorrentiaRural) {
        if (cobertura != renglon.cobertura || textura != renglon.textura) {
            continue;
        }
        if (pendiente >= 0 && pendiente <= 5) {
            return renglon.hasta5;
        }
        return pendiente > 5 && pendiente <= 10 ? renglon.hasta10 : renglon.otras;
    }
    return 0;
}

Double CoeficienteUrbano(std::string_view clase) {
    for (const EscorrentiaUrbana& renglon : kEscorrentiaUrbana) {
        if (clase == renglon.clase) {
            return renglon.C;
        }
    }
    return 0;
}

Double CaudalRacional(Double C, Double I, Double A) { return C * I * A / 360; }

}  // namespace cuencalia
