#pragma once

#include "frame/base/numeros.h"

namespace cuencalia {

/// Least height in m, not included, at which the profile of the wind has a logarithm.
inline constexpr double kAlturaMinima = 5.42 / 67.8;

/// Factor that takes a wind speed from height z (m) to 2 m: 4.87 / ln(67.8·z - 5.42), and 0.01 more above 2 m. For
/// z > kAlturaMinima; error 5 below, and 11 at the height (0.0947 m) where the logarithm is 0.
/// Source of the quotient: Allen, R. G. et al. (1998), Crop evapotranspiration, FAO Irrigation and Drainage Paper 56,
/// eq. 47.
Double FactorDeAltura(Double z);

/// Saturation vapour pressure in mbar at T ºC. For T > -237.3. Source: FAO 56, eq. 11.
Double PresionDeSaturacion(Double T);

/// Weight W of the radiation term, Δ/(Δ + γ), at T ºC and h m above the sea; that of the wind's term is 1 - W. Δ and
/// γ = 0.016286·P/λ are in mbar/ºC, P in kPa, λ in MJ/kg. For T > -237.3 and h < 45077 m, error 5 above.
/// Source: Jensen, M. E., Burman, R. D. and Allen, R. G. (1990), Evapotranspiration and Irrigation Water Requirements,
/// ASCE Manual 70.
Double FactorDePonderacion(Double T, Double h);

/// Adjustment c for weather that differs between day and night: wind Um in m/s, radiation Rs in mm/day, greatest
/// relative humidity in %, ratio R of the day's wind to the night's. A polynomial that stands for table 16 of
/// Doorenbos, J. and Pruitt, W. O. (1977), Guidelines for predicting crop water requirements, FAO 24;
/// docs/numerics.md tells how near it comes.
Double FactorDeAjuste(Single Um, Double Rs, Double HRmax, Double R);

/// Climate of a place in a month.
struct DatosPenman {
    Double lat;    ///< Radians, negative in the south.
    int mes = 1;   ///< 1 to 12.
    Double h;      ///< m above the sea.
    Double T;      ///< Mean temperature, ºC.
    Double HRmed;  ///< Mean relative humidity, %.
    Double HRmax;  ///< Greatest relative humidity, %.
    Double Uz;     ///< Wind at height z, km/h.
    Double z;      ///< m
    Double R;      ///< Wind of the day divided by that of the night.
    Double n;      ///< Hours of bright sunshine a day.
};

/// Every step of the calculation, in its order. Radiation in mm of water a day, pressures in mbar.
struct ResultadoPenman {
    Double N;    ///< Greatest hours of sunshine.
    Double Ra;   ///< Extraterrestrial radiation.
    Double n_N;  ///< Relative sunshine, 1 at most.
    Double fz;   ///< FactorDeAltura.
    Double U2;   ///< Wind at 2 m, km/h.
    Double ea, ed, deficit;
    Double W, W1;                 ///< Weights of radiation and wind; they add up to 1.
    Double fu, fT, fed, fnN;      ///< Functions of wind, temperature, vapour pressure and sunshine.
    Double Rs, Rns, Rn1;          ///< Solar, net short-wave and net long-wave radiation.
    Single Rn;                    ///< Net radiation.
    Double radiacion, adveccion;  ///< The two terms, mm/day.
    Double c;
    Double ETo;  ///< Reference evapotranspiration, mm/day.
};

/// Reference evapotranspiration by Penman's method as FAO modified it. Errors as those of the functions above and of
/// InsolacionDe; 5 for HRmed below 0. Source: Doorenbos and Pruitt (1977), FAO 24.
ResultadoPenman EToPenman(const DatosPenman& d);

}  // namespace cuencalia
