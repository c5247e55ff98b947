#pragma once

#include "frame/base/hojas.h"

namespace cuencalia {

[[noreturn]] inline void FallarNoEsLibro() {
    throw ErrorEjecucion(kErrorLibro, "El archivo no es un libro de Excel (.xls o .xlsx)");
}
[[noreturn]] inline void FallarDanado() {
    throw ErrorEjecucion(kErrorLibro, "El libro de Excel está dañado o incompleto");
}
[[noreturn]] inline void FallarProtegido() {
    throw ErrorEjecucion(kErrorLibro, "El libro de Excel está protegido con contraseña");
}
[[noreturn]] inline void FallarDemasiadoGrande() {
    throw ErrorEjecucion(kErrorLibro, "El libro de Excel es demasiado grande");
}
[[noreturn]] inline void FallarSinHojas() {
    throw ErrorEjecucion(kErrorLibro, "El libro de Excel no tiene ninguna hoja de cálculo");
}
[[noreturn]] inline void FallarFormatoNoLeido() {
    throw ErrorEjecucion(kErrorLibro, "Formato de libro que no se lee; guárdelo como .xlsx o .xls (97-2003)");
}

}  // namespace cuencalia
