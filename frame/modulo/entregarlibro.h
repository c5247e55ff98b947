#pragma once

#include <string>

#include "frame/base/hojas.h"
#include "frame/controles/aplicacion.h"

namespace cuencalia {

/// Shows a sheet in the user's spreadsheet program; without one, asks for a file, writes it there and says so.
/// `guardado` begins the message: "La serie generada se guardó en".
void EntregarLibro(Aplicacion& app, const Hoja& hoja, const std::string& guardado);

}  // namespace cuencalia
