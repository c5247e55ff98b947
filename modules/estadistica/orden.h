#pragma once

#include "frame/base/numeros.h"

namespace cuencalia {

/// Puts the values x(1) to x(n) in ascending order by selection; the rest of the array stays. Fewer than two values
/// are in order already. Error 9 when the array has no x(1) to x(n).
/// About n²/2 comparisons: half a millisecond for the 1500 values of a Serie.
void OrdenarSerie(ArregloBase<Double>& x, int n);

/// Sorts likewise, with the variant of selection used by the frequency fits: in each round the first candidate is the
/// value after the place to be filled, only a lesser value replaces the candidate, and the swap is always made.
void OrdenarPorSeleccion(ArregloBase<Double>& x, int n);

}  // namespace cuencalia
