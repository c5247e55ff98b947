#pragma once

#include "frame/base/numeros.h"

namespace cuencalia {

/// The sun in the middle of a month, by published tables of two short columns. docs/numerics.md compares them with
/// astronomy.
struct SolDelMes {
    Single declinacion;        ///< Radians. That of March is positive.
    Single distanciaRelativa;  ///< Square of the distance to the sun, its mean being 1; radiation is divided by it.
};

/// `mes` is 1 to 12; error 9 for any other.
SolDelMes SolEn(int mes);

/// Hour angle of the sunset in radians, arc cosine of -tan(lat)·tan(delta), both in radians. From 0 (polar night) to π
/// (midnight sun), neither included: error 11 where the sun just touches the horizon, 5 where it does not rise or set.
Double AnguloDePuesta(Double lat, Double delta);

/// Whether the sun rises and sets at that latitude and declination (radians).
bool SaleYSePone(Double lat, Double delta);

/// Length of the day in hours for the hour angle of the sunset in radians.
Double HorasDeSol(Double ws);

/// Radiation at the top of the atmosphere in mm of water a day: 916.732 cal/(cm2·day) is 2 cal/(cm2·min) times 1440/π,
/// and 58.98757 cal evaporate 1 mm from 1 cm2. Angles in radians; `distancia` as in SolDelMes, error 11 or 6 when it
/// is 0.
/// Source: Duffie, J. A. and Beckman, W. A. (1980), Solar Engineering of Thermal Processes, Wiley, New York.
Double RadiacionExtraterrestre(Double lat, Double delta, Double distancia, Double ws);

/// What the sun gives to a latitude (radians, negative in the south) in a month.
struct Insolacion {
    Double N;   ///< Length of the day, hours.
    Double Ra;  ///< Extraterrestrial radiation, mm/day.
};

/// Errors as those of SolEn and AnguloDePuesta.
Insolacion InsolacionDe(Double lat, int mes);

}  // namespace cuencalia
