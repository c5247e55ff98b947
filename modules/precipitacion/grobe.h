#pragma once

#include <vector>

#include "modules/precipitacion/ecuacionintensidad.h"

namespace cuencalia {

/// Rain of duration d minutes, in mm, that goes with the rain P24 of a day, in mm: P24·(d/1440)^0.25.
/// Source: criterion of Grobe, known by Dyck, S. and Peschke, G. (1978), Grundlagen der Hydrologie, Verlag für
/// Bauwesen, Berlin.
Double LluviaGrobe(Double P24, Double d);

/// Mean intensity, in mm/hr, of P mm of rain in d minutes.
Double IntensidadMedia(Double P, Double d);

/// Return period, in years, of the value of that rank, 1 being the greatest, among n annual maxima: (n + 1) / rank.
Double PeriodoDeRango(int n, int rango);

/// A column for each duration, each with a value for each year or rank from 1 to n.
using ColumnasDuracion = std::vector<ArregloBase<Double>>;

/// Rains and intensities of short durations of a series of annual maxima.
struct IntensidadesGrobe {
    ColumnasDuracion P;     ///< Rain of each year, mm.
    ColumnasDuracion I;     ///< Intensity of each year, mm/hr.
    ColumnasDuracion Iord;  ///< Each column of I by itself in descending order: one value for each rank.
    PuntosIDT puntos;       ///< Duration by duration, and rank by rank for each.
};

/// The durations in minutes; P24(1) to P24(n) in mm.
IntensidadesGrobe CalcularGrobe(const ArregloBase<Double>& P24, int n, const std::vector<int>& duraciones);

}  // namespace cuencalia
