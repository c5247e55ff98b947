#pragma once

#include "frame/controles/aplicacion.h"

namespace cuencalia {

/// Every form of the program: a new module adds its line here.
TablaFormas FormasDelPrograma();

}  // namespace cuencalia
