#pragma once

#include "frame/base/errores.h"

namespace cuencalia {

/// Number of the run-time error that stops `accion`, 0 when nothing stops it.
template <typename F>
int NumeroDeError(F accion) {
    try {
        static_cast<void>(accion());
    } catch (const ErrorEjecucion& error) {
        return error.Numero();
    }
    return 0;
}

}  // namespace cuencalia
