#pragma once

#include "frame/controles/aplicacion.h"

namespace cuencalia {

/// Every form of the program: its own and those of the windows that modules/CMakeLists.txt lists.
TablaFormas FormasDelPrograma();

}  // namespace cuencalia
