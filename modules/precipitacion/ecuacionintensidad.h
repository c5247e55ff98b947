#pragma once

#include <optional>
#include <string>

#include "modules/regresion/ecuacionesnormales.h"

namespace cuencalia {

/// Maximum intensities of rain, each for a return period and a duration, numbered from 1.
struct PuntosIDT {
    explicit PuntosIDT(int maximo) : T(1, maximo), D(1, maximo), I(1, maximo) {}

    ArregloBase<Double> T;  ///< Years.
    ArregloBase<Double> D;  ///< Minutes.
    ArregloBase<Double> I;  ///< mm/hr.
    int n = 0;

    /// Error 9 when there is no room for it.
    void Agregar(Double periodo, Double duracion, Double intensidad);
};

/// The intensity-duration-frequency equation Imáx = K·T^m·D^p, T in years, D in minutes, Imáx in mm/hr.
struct EcuacionIntensidad {
    Double K, m, p;

    /// For T, D > 0. Error 6 when the intensity is beyond a Double.
    Double Evaluar(Double T, Double D) const { return K * Elevar(T, m) * Elevar(D, p); }
    /// "Imáx = K*T^(m) *D^(p)", each number written by the pattern.
    std::string Texto(std::string_view patron) const;
};

/// An equation that was fitted, with the regression of the logarithms that it comes from.
struct AjusteIntensidad {
    EcuacionIntensidad ecuacion;
    RegresionMultiple regresion;  ///< Its R² is that of the logarithms.

    /// √(Σ(I - Imáx)² / (n - 3)) in mm/hr, for the points of the fit. For more than 3 points.
    Double Se(const PuntosIDT& puntos) const;
};

/// Least-squares fit of ln I = ln K + m·ln T + p·ln D. Empty when the points do not determine it: there are none, all T
/// are equal or all D are, or the elimination finds no pivot. Equal T or D are looked for themselves, as their rounded
/// logarithms would give pivots near 0 and meaningless exponents. Error 5 for a value of 0 or below.
/// Source: Aparicio Mijares, F. J. (1992), Fundamentos de hidrología de superficie, Limusa, México, chapter 6.
std::optional<AjusteIntensidad> AjustarIntensidad(const PuntosIDT& puntos, BusquedaPivote busqueda);

}  // namespace cuencalia
