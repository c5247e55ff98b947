#pragma once

#include <string>

#include "frame/base/bloque.h"
#include "frame/controles/plataforma.h"

namespace cuencalia {

/// Panels of a module's status bar: how data are typed, what happened, how many data there are.
enum PanelModulo : int { kPanelDigitar = 1, kPanelAvisos = 2, kPanelDatos = 3 };

/// What the status bar says of a typed text that Val does not read whole; empty for a text that it does.
std::string AvisoDeLectura(const std::string& texto);

/// What the status bar says of cells that were pasted.
std::string AvisoDePegado(const Pegado& pegado, SignoDecimal signo, bool conEncabezado);

/// Messages that several modules give.
inline const Aviso kGraficarSinCalculos{"Efectuar cálculos antes de graficar", kIconoError, "Mensaje de Error"};
inline const Aviso kGraficarSinPuntos{"Para graficar se requiere por lo menos dos puntos", kIconoError, "Error"};
inline const Aviso kDatosInadecuados{"Ingresar datos adecuadamente ", kIconoInformacion, "Mensaje de error"};
inline const Aviso kInfinitasSoluciones{"El sistema que se origina tiene infinitas soluciones", kIconoError};

}  // namespace cuencalia
