#pragma once

#include "frame/base/numeros.h"

namespace cuencalia {

/// Time of concentration of a basin, in minutes: 0.0195·(L³/H)^0.385, where L is the way of the water to its farthest
/// point and H the drop along it, both in metres. For L > 0 and H > 0; error 11 for H = 0 (6 if L is 0 too), 5 where
/// L and H have different signs.
/// Source: Kirpich, Z. P. (1940), Time of concentration of small agricultural watersheds, Civil Engineering 10(6), 362.
Double TiempoKirpich(Single L, Single H);

/// The part of a basin that has one cover, soil and slope.
struct GrupoSuelo {
    Single area;  ///< Hectares.
    Single C;     ///< Runoff coefficient.
};

struct Ponderacion {
    Double C;     ///< Mean of the coefficients, weighted by area.
    Double area;  ///< Sum, hectares.
};

/// Of groups 1 to n. Error 6 when the areas add up to 0, as those of no group do; 9 when there are not so many.
Ponderacion PonderarC(const ArregloBase<GrupoSuelo>& grupos, int n);

}  // namespace cuencalia
