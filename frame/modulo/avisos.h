#pragma once

#include "frame/controles/plataforma.h"

namespace cuencalia {

/// Messages that several modules give.
inline const Aviso kGraficarSinCalculos{"Efectuar cálculos antes de graficar", kIconoError, "Mensaje de Error"};
inline const Aviso kGraficarSinPuntos{"Para graficar se requiere por lo menos dos puntos", kIconoError, "Error"};
inline const Aviso kDatosInadecuados{"Ingresar datos adecuadamente ", kIconoInformacion, "Mensaje de error"};

}  // namespace cuencalia
