#pragma once

#include <optional>
#include <vector>

#include "frame/base/numeros.h"
#include "modules/regresion/gaussjordan.h"

namespace cuencalia {

/// The independent variables of a regression, one series for each.
using Independientes = std::vector<const ArregloBase<Double>*>;

/// The normal equations of v = a0 + a1·u1 + … + ak·uk. Each sum is formed in the order of the rows.
struct EcuacionesNormales {
    int n;                  ///< Number of rows of data.
    MatrizAmpliada matriz;  ///< Row 1: n, Σuj, Σv; row i + 1: Σui, Σui·uj, Σui·v.
    Double Sv2;             ///< Σv².

    int K() const { return matriz.Ecuaciones() - 1; }
    /// Σv for i = 0, Σui·v for i = 1 to k.
    Double Sv(int i) const { return matriz(i + 1, matriz.Columnas()); }
};

EcuacionesNormales FormarEcuacionesNormales(const Independientes& u, const ArregloBase<Double>& v, int n);

/// Normal equations with their solution.
struct RegresionMultiple {
    EcuacionesNormales ecuaciones;
    std::vector<Double> coef;  ///< a0 to ak.

    /// R² = (a0·Σv + a1·Σu1·v + … - n·vm²) / (Σv² - n·vm²). Rounding may leave it a little outside 0 to 1. Error 6 or
    /// 11 when all v are equal.
    Double R2() const;
    /// Σv² - a0·Σv - a1·Σu1·v - …, the sum of squared residuals; it cancels where the fit is close, and may then come
    /// out a little below 0.
    Double SumaResiduos() const;
};

/// Least-squares fit of v = a0 + a1·u1 + … + ak·uk. Empty when the normal equations have no single solution
/// (GaussJordan tells when that goes unnoticed, and its errors). Source: Draper, N. R. and Smith, H. (1966), Applied
/// Regression Analysis, Wiley, New York, chapter 2.
std::optional<RegresionMultiple> AjustarRegresion(const Independientes& u, const ArregloBase<Double>& v, int n,
                                                  BusquedaPivote busqueda);

/// Least-squares fit of the logarithms, ln y = ln a0 + a1·ln x1 + … + ak·ln xk. `coef` holds ln a0 in the first place.
/// Error 5 for a value of 0 or below.
std::optional<RegresionMultiple> AjustarPotencial(const Independientes& x, const ArregloBase<Double>& y, int n,
                                                  BusquedaPivote busqueda);

/// The equation with the coefficients a0 to ak at the values x1 to xk: a0 + x1·a1 + …
Double EvaluarLineal(const std::vector<Double>& a, const std::vector<Double>& x);
/// a0·x1^a1·x2^a2 … Error 5 where a power has no real value.
Double EvaluarPotencial(const std::vector<Double>& a, const std::vector<Double>& x);

/// Standard error of the estimate, in the unit of y: √(Σ(y - yc)² / (n - k - 1)), where yc is that equation at the
/// values of the row. For n > k + 1.
Double ErrorEstandar(Double (*ecuacion)(const std::vector<Double>&, const std::vector<Double>&),
                     const std::vector<Double>& a, const Independientes& x, const ArregloBase<Double>& y, int n);

}  // namespace cuencalia
