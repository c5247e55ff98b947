#pragma once

#include <vector>

#include "frame/base/numeros.h"

namespace cuencalia {

/// What is measured at a vertical of the section.
struct Vertical {
    Double h;  ///< Depth, m.
    Double v;  ///< Mean velocity, m/s.
};

/// The part of a section between two verticals.
struct AforoTramo {
    Double area;       ///< m²
    Double velocidad;  ///< Mean velocity, m/s.
    Double caudal;     ///< m³/s
};

/// Area, mean velocity and discharge between two verticals L metres apart: the mean-section method, in which depth and
/// velocity change evenly from one to the other.
/// Source: ISO 748:2007, Hydrometry – Measurement of liquid flow in open channels using current-meters or floats.
AforoTramo AforarTramo(Double L, const Vertical& desde, const Vertical& hasta);

/// Velocity (m/s) of a current meter with the rating v = a·n + b (a in m, b in m/s) that makes NR revolutions in t
/// seconds, n = NR/t. Error 11 for t = 0 (6 if no revolution was counted either).
Double VelocidadMolinete(Double NR, Double t, Double a, Double b);

/// Points of the outline of a section, from the water surface of one margin to that of the other.
struct Perfil {
    std::vector<Double> x;  ///< Distance from the starting margin, m.
    std::vector<Double> y;  ///< Minus the depth, m.
};

/// The outline of a section with the depth ho at its starting margin and h(i) at the end of each of its n tramos, which
/// are L(i) long. A margin with a depth other than 0 is an upright wall.
Perfil PerfilSeccion(const ArregloBase<Double>& L, const ArregloBase<Double>& h, int n, Double ho);

}  // namespace cuencalia
