#pragma once

#include "frame/base/numeros.h"

namespace cuencalia {

/// A storm, interval by interval.
struct Tormenta {
    Serie Tacum;  ///< Time to the end of the interval, minutes.
    Serie Pacum;  ///< Rain to the end of the interval, mm.
    Serie I;      ///< Mean intensity of the interval, mm/hr.
    Single Imax;  ///< The greatest of them; 0 when none is above 0.
    Single Dmax;  ///< Length of its interval, minutes; of intensities equal as Singles that of the first.
};

/// The storm of n intervals of Tpar(i) minutes and Ppar(i) mm each: I = 60·Ppar/Tpar. Error 9 for more than 1500
/// intervals, 11 for an interval of no length with rain and 6 for one without.
/// Source: Chow, V. T., Maidment, D. R. and Mays, L. W. (1988), Applied Hydrology, McGraw-Hill, New York, section 3.4.
Tormenta AnalizarTormenta(const ArregloBase<Double>& Tpar, const ArregloBase<Double>& Ppar, int n);

}  // namespace cuencalia
