#pragma once

#include "frame/base/numeros.h"

namespace cuencalia {

/// The twelve months of a year.
using DocePorMes = Arreglo<Double, 1, 12>;
using DoceSingle = Arreglo<Single, 1, 12>;

/// Potential evapotranspiration of a year.
struct Thornthwaite {
    DocePorMes iMes;    ///< Heat index of each month.
    Double I, a;        ///< Annual heat index, exponent.
    DoceSingle ETo;     ///< Of months of 30 days of 12 hours, mm.
    DoceSingle ETrMes;  ///< Of the months as they are, mm.
    DoceSingle ETrDia;  ///< The same of a day, mm.
};

/// (T/5)^1.514 for the mean temperature T of a month, ºC. Error 5 for T < 0.
Double IndiceMensual(Single T);

/// The exponent for the annual heat index: a polynomial of third degree.
Double ExponenteThornthwaite(Double I);

/// 16·(10·T/I)^a, mm in 30 days of 12 hours. Error 6 for I = 0, error 5 for T < 0.
Single EToThornthwaite(Single T, Double I, Double a);

/// The year with the mean monthly temperatures T (ºC, 0 or more, not all 0) and the correction factors f of its
/// latitude. Error 5 for a temperature below 0, error 6 when all are 0.
/// Source: Thornthwaite, C. W. (1948), An approach toward a rational classification of climate, Geographical Review
/// 38(1), pp. 55-94; the coefficient of I³ is 0.6751e-6, which he rounds to 0.675e-6. From 26.5 ºC on he takes a table
/// in place of the formula.
Thornthwaite CalcularThornthwaite(const DoceSingle& T, const DoceSingle& f);

}  // namespace cuencalia
