#pragma once

#include <vector>

#include "frame/modulo/campos.h"

namespace cuencalia {

/// The fields one below the other.
inline Disposicion EnColumna(const std::vector<Campo*>& campos) {
    std::vector<Disposicion> celdas;
    for (Campo* campo : campos) {
        celdas.insert(celdas.end(), {campo->rotulo, campo->caja, campo->unidad});
    }
    return Pares(3, std::move(celdas));
}

}  // namespace cuencalia
