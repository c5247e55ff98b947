#pragma once

#include "frame/modulo/formatoserie.h"

namespace cuencalia {

/// Series files of return period, duration and intensity.
inline constexpr FormatoSerie kArchivoTDI{
    .valores = 3, .rotuloCrear = "Trio valores T,D,I", .rotuloAccesar = "Trio valores T,D,I", .extension = "*.TDI"};

}  // namespace cuencalia
