#pragma once

#include "frame/base/numeros.h"

namespace cuencalia {

/// How much of it there is: sunshine, humidity, wind.
enum class Clase { Baja, Media, Alta };

/// The class of a value: media from `desde` to `hasta`, both included.
Clase ClaseDe(Double valor, Double desde, Double hasta);
Clase ClaseDeInsolacion(Double relativa);  ///< Actual to possible sunshine hours.
Clase ClaseDeHumedad(Double minima);       ///< Minimum relative humidity, percent.
Clase ClaseDeViento(Double velocidad);     ///< km/h.

/// A line of the FAO's diagrams: ETo = a + b·f.
struct RectaFao {
    Single a, b;
};

/// The line of a climate. The b of much sunshine, low humidity and moderate wind is 1.12, between neighbours of 1.55
/// and 2.03, as in the table that the method is worked with; docs/numerics.md tells what it costs. Source: Doorenbos,
/// J. and Pruitt, W. O. (1977), Guidelines for predicting crop water requirements, FAO Irrigation and Drainage Paper
/// 24, figure 1, rounded.
RectaFao RectaDelClima(Clase insolacion, Clase humedad, Clase viento);

/// Reference evapotranspiration, mm a day: a + b·f with f = p·(0.46·T + 8.13), for the mean temperature T (ºC) and the
/// percentage p of the year's daytime hours in a day of the month.
/// Source: the same, section 1.1, with 8.13 for 8.
Single EToBlaneyCriddle(Single T, Single p, const RectaFao& recta);

}  // namespace cuencalia
