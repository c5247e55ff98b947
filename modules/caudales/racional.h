#pragma once

#include <string_view>

#include "frame/base/numeros.h"

namespace cuencalia {

/// Runoff coefficients of a cover on a soil texture, by the slope of the ground.
struct EscorrentiaRural {
    const char *cobertura, *textura;
    Double hasta5;   ///< From 0 to 5 %.
    Double hasta10;  ///< From 5 to 10 %.
    Double otras;    ///< Any other slope, those below 0 too.
};

/// Source: Schwab, G. O., Frevert, R. K., Edminster, T. W. and Barnes, K. K. (1966), Soil and Water Conservation
/// Engineering, Wiley, New York.
inline constexpr EscorrentiaRural kEscorrentiaRural[] = {
    {"Forestal", "Franco arenosa", 0.10, 0.25, 0.30},
    {"Forestal", "Franco arcillolimosa", 0.30, 0.35, 0.50},
    {"Forestal", "Franco limosa", 0.30, 0.35, 0.50},
    {"Forestal", "Arcillosa", 0.40, 0.50, 0.60},
    {"Praderas", "Franco arenosa", 0.10, 0.15, 0.20},
    {"Praderas", "Franco arcillolimosa", 0.30, 0.35, 0.40},
    {"Praderas", "Franco limosa", 0.30, 0.35, 0.40},
    {"Praderas", "Arcillosa", 0.40, 0.55, 0.60},
    {"Terrenos cultivados", "Franco arenosa", 0.30, 0.40, 0.50},
    {"Terrenos cultivados", "Franco arcillolimosa", 0.50, 0.60, 0.70},
    {"Terrenos cultivados", "Franco limosa", 0.50, 0.60, 0.70},
    {"Terrenos cultivados", "Arcillosa", 0.60, 0.70, 0.80},
};

/// Runoff coefficient of an urban class of ground.
struct EscorrentiaUrbana {
    const char* clase;
    Double C;
};

/// For most classes the upper end of the range of American Society of Civil Engineers and Water Pollution Control
/// Federation (1969), Design and Construction of Sanitary and Storm Sewers, ASCE Manual 37, New York.
inline constexpr EscorrentiaUrbana kEscorrentiaUrbana[] = {
    {"áreas comerciales céntricas", 0.95},
    {"áreas comerciales con vecindarios", 0.70},
    {"residenciales familiares simples", 0.50},
    {"multifamiliares separadas", 0.60},
    {"multifamiliares concentradas", 0.75},
    {"áreas semi-urbanas", 0.40},
    {"casas de habitación", 0.70},
    {"áreas industriales densas", 0.90},
    {"áreas industriales espaciadas", 0.80},
    {"parques, cementerios", 0.25},
    {"campos de juego", 0.35},
    {"patios de ferrocarril", 0.40},
    {"zonas suburbanas", 0.30},
    {"calles asfaltadas", 0.95},
    {"calles de concreto hidráulico", 0.95},
    {"calles adoquinadas", 0.85},
    {"estacionamientos", 0.85},
    {"techados", 0.95},
};

/// Runoff coefficient for a slope in percent; 0 for a text that the table does not have.
Double CoeficienteRural(std::string_view cobertura, std::string_view textura, Double pendiente);
Double CoeficienteUrbano(std::string_view clase);

/// Rational formula, Q = C·I·A/360 in m3/s, for an intensity in mm/hr and an area in hectares: 1 mm/hr on a hectare is
/// 10 m3 in 3600 s.
/// Source: Kuichling, E. (1889), The relation between the rainfall and the discharge of sewers in populous districts,
/// Transactions ASCE 20, 1-56.
Double CaudalRacional(Double C, Double I, Double A);

}  // namespace cuencalia
