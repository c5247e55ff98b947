#include "frame/dialogo.h"

#include "frame/aplicacion.h"

namespace cuencalia {

void CommonDialog::Preguntar(ModoArchivo modo) { App().Sistema().ElegirArchivo(modo, DialogTitle, Filter, FileName); }

}  // namespace cuencalia
