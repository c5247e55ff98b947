#pragma once

#include "frame/base/numeros.h"

namespace cuencalia {

/// A column of the duration curve: flows in m³/s or percentages.
using ColumnaDuracion = Arreglo<Double, 1, 3000>;

/// Duration curve of a series of flows: its m different flows in descending order and, for each, the percentage of all
/// values that reach it. The last point has 100 percent.
struct CurvaDuracion {
    ColumnaDuracion Q;     ///< m³/s
    ColumnaDuracion Prob;  ///< Percent.
    int m = 0;
};

/// Puts Q(1) to Q(n) in descending order, n >= 1. About n²/2 comparisons.
void OrdenarDescendente(ColumnaDuracion& Q, int n);

/// The curve of the flows Q(1) to Q(n), which must be in descending order. Of equal flows only the last is a point,
/// with its own rank i: its percentage 100·(i/n) counts all of them. Error 9 for n above 3000.
/// Source: Searcy, J. K. (1959), Flow-Duration Curves, Water-Supply Paper 1542-A, U.S. Geological Survey.
CurvaDuracion FormarCurva(const ColumnaDuracion& Q, int n);

/// The flows of the curve by the mean flow Qm, without unit. Error 11 or 6 for a mean of 0.
void DividirEntre(Double Qm, const CurvaDuracion& curva, ColumnaDuracion& Qadi);

/// The flow (m³/s) that is reached in P percent of the days, 0 < P <= 100: that of the point with this percentage, or
/// interpolated between the two points around it. The curve must have a point; error 9 for a P below the percentage of
/// its first one, where the series has no flow.
Double CaudalDeDuracion(const CurvaDuracion& curva, Double P);

}  // namespace cuencalia
