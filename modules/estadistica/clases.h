#pragma once

#include "frame/base/numeros.h"

namespace cuencalia {

/// Classes of a frequency table.
struct Clases {
    using Columna = Arreglo<Double, 1, 50>;

    Integer NC;             ///< Number of classes.
    Double ancho;           ///< Width of a class; it has the sign of the range.
    Columna LCI, MCL, LCS;  ///< Lower limit, class mark, upper limit, in the units of the series.
    Columna FA;             ///< Absolute frequency.
};

/// Classes of the n values of a series in ascending order, by a rule of the form of Sturges (1926, J. Am. Stat. Assoc.
/// 21, p. 65): K = 1 + 1.33 ln n classes, rounded half up, centred on the least and the greatest value. Where the data
/// are not negative but the first class would begin below zero, the classes begin at zero instead.
///
/// A value on a limit belongs to the lower class; values above the last limit belong to no class, so the frequencies
/// may add up to less than n. When all values are equal, the classes have the width 0. Error 5 for n = 0, error 6 for n
/// = 1 (0 / 0).
Clases FormarClases(const ArregloBase<Double>& ordenada, int n);

}  // namespace cuencalia
