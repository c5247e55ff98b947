#pragma once

#include <vector>

#include "modules/precipitacion/grobe.h"

namespace cuencalia {

/// Rain of an hour with return period 10 years, in mm, that goes with the rain of a day of that period, in mm:
/// P24·(1/24)^0.25, the relation of Grobe.
Double LluviaDeUnaHora(Double P24);

/// Rain of d minutes with return period T years, in mm, where P is that of an hour and 10 years, in mm:
/// (0.54·d^0.25 - 0.5)·(0.21·ln T + 0.52)·P. For d of 5 to 120 minutes and T of 2 to 100 years.
/// Source: Bell, F. C. (1969), Generalized rainfall-duration-frequency relationships, Journal of the Hydraulics
/// Division, ASCE, 95 (HY1), 311-327.
Double LluviaBell(Double d, Double T, Double P);

/// Rains and intensities of those durations (minutes) and return periods (years).
struct IntensidadesBell {
    ColumnasDuracion P;  ///< A column for each duration, with the rain of each period, mm.
    ColumnasDuracion I;  ///< Likewise the intensities, mm/hr.
    PuntosIDT puntos;    ///< Duration by duration, and period by period for each.
};

/// P6010 is the rain of an hour and 10 years, in mm.
IntensidadesBell CalcularBell(Double P6010, const std::vector<int>& duraciones, const std::vector<int>& periodos);

}  // namespace cuencalia
