#include "frame/controles/dialogo.h"

#include "frame/controles/aplicacion.h"

namespace cuencalia {

void CommonDialog::Preguntar(ModoArchivo modo) { App().Sistema().ElegirArchivo(modo, DialogTitle, Filter, FileName); }

}  // namespace cuencalia
