#pragma once

#include <vector>

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

inline std::vector<int> NumerosDe(const std::vector<ErrorEjecucion>& errores) {
    std::vector<int> numeros;
    for (const ErrorEjecucion& error : errores) {
        numeros.push_back(error.Numero());
    }
    return numeros;
}

}  // namespace cuencalia
