#pragma once

#include <string_view>

#include "frame/base/numeros.h"

namespace cuencalia {

/// A term of the runoff coefficient of Mac Math.
struct TerminoTexto {
    const char* texto;
    Double C;
};
struct TerminoPendiente {
    Double hasta;  ///< Greatest slope of the range, in percent; the ranges begin at 0.
    Double C;
};

/// The coefficient of a ground is the sum of one term for its plant cover in percent, one for the texture of its soil
/// and one for its slope.
/// Source: McMath, R. E. (1887), Determination of the size of sewers, Transactions ASCE 16, 179-190.
inline constexpr TerminoTexto kTerminosCobertura[] = {
    {"100", 0.08}, {"80 - 100", 0.12}, {"50 - 80", 0.16}, {"20 - 50", 0.22}, {"0 - 20", 0.30},
};
inline constexpr TerminoTexto kTerminosTextura[] = {
    {"Arenosa", 0.08}, {"Ligera", 0.12}, {"Media", 0.16}, {"Fina", 0.22}, {"Rocosa", 0.30},
};
inline constexpr TerminoPendiente kTerminosPendiente[] = {{0.2, 0.04}, {0.5, 0.06}, {2, 0.06}, {5, 0.10}};
inline constexpr Double kTerminoPendienteMayor = 0.15;

/// Sum of the three terms for a slope in percent. A text that is not in its table and a slope below 0 add nothing.
Double CoeficienteMacMath(std::string_view cobertura, std::string_view textura, Double pendiente);

/// Q = 0.0091·C·I·A^(4/5)·S^(1/5) in m3/s, for an intensity in mm/hr, an area in hectares and a slope of the channel in
/// parts per thousand. For A, S >= 0; error 5 below. The formula of the source, in cubic feet per second, inches per
/// hour, acres and parts per thousand, would have the metric coefficient 0.0023.
Double CaudalMacMath(Double C, Double I, Double A, Double S);

}  // namespace cuencalia
