#pragma once

#include <string>

#include "frame/base/numeros.h"

namespace cuencalia {

/// Maximum intensity of rain at a place, I = (a - b·ln D)·ln T + (c - d·ln D) in mm/hr, for a duration D in minutes and
/// a return period T in years. With `logDeLog` the first bracket has ln(ln D) in place of ln D.
struct EcuacionRegional {
    const char* opcion;  ///< Name of the option button by which it is chosen.
    const char* lugar;
    Double a, b, c, d;
    bool logDeLog = false;

    /// For D > 0, or D > 1 with `logDeLog`, and T > 0; error 5 elsewhere.
    Double Evaluar(Double T, Double D) const;
    std::string Texto() const;
};

/// Greatest return period of the equations, in years.
inline constexpr int kTMaximoRegional = 200;

/// Source: Vahrson, W.-G. and Alfaro, M. (1992), Intensidad, duración y frecuencia de lluvias para las ciudades de
/// Alajuela, Cartago, Liberia, Puntarenas, San José y Limón, Costa Rica.
inline constexpr EcuacionRegional kEcuacionesRegionales[] = {
    {"optAlajuela", "Alajuela", 42.614, 24.6041, 209.844, 38.7305, true},
    {"optCartago", "Cartago", 42.2027, 8.0731, 156.892, 28.4612},
    {"optLiberia", "Liberia", 44.1334, 7.49972, 200.556, 35.9234},
    {"optLimon", "Limón", 21.7857, 3.13747, 155.052, 25.8865},
    {"optPuntarenas", "Puntarenas", 43.0524, 5.32126, 175.645, 29.5811},
    {"optSanJose", "San José", 20.3018, 2.79158, 166.097, 29.6018},
};

}  // namespace cuencalia
