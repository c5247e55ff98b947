#pragma once

#include <string>
#include <vector>

#include "frame/controles/disposicion.h"

namespace cuencalia {

/// A box with its label before it and its unit behind it.
struct Campo {
    Campo(Formulario& forma, const std::string& nombre, const char* titulo, const char* deUnidad = "")
        : rotulo(forma, "lbl" + nombre, titulo), caja(forma, nombre), unidad(forma, "u" + nombre, deUnidad) {
        rotulo.Nombra(caja);
    }

    Label rotulo;
    TextBox caja;
    Label unidad;
};

/// The fields one below the other.
inline Disposicion EnColumna(const std::vector<Campo*>& campos) {
    std::vector<Disposicion> celdas;
    for (Campo* campo : campos) {
        celdas.insert(celdas.end(), {campo->rotulo, campo->caja, campo->unidad});
    }
    return Pares(3, std::move(celdas));
}

}  // namespace cuencalia
