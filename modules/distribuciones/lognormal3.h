#pragma once

#include "modules/distribuciones/exacta.h"

namespace cuencalia {

/// Log-normal distribution of three parameters: ln(x - x0) is normal with mean uy and deviation sy. x0 has the unit of
/// x; uy and sy are of logarithms.
struct LogNormal3 {
    Double x0, uy, sy;

    /// (ln(x - x0) - uy) / sy. Errors: 5 for x <= x0; 11 or 6 for sy = 0.
    Double Reducida(Double x) const { return (Log(x - x0) - uy) / sy; }
    /// Non-exceedance probability of an x above x0.
    Double Probabilidad(Double x) const;
    /// The x of a non-exceedance probability, 0 < p < 1.
    Double Cuantil(Double p) const;
    DistribucionExacta Exacta() const {
        return {.reducida = DistribucionExacta::Reducida::Normal,
                .deLogaritmos = true,
                .posicion = uy,
                .escala = sy,
                .umbral = x0};
    }
};

/// Fits x(1) to x(n), in ascending order, by the quantile method: x0 makes the logarithms of least value, median and
/// greatest value equally spaced; uy and sy are the mean and the deviation, of divisor n, of the logarithms of |x -
/// x0|. Where the sum of the extremes is less than twice the median, x0 lies above the sample, whose probabilities then
/// do not exist. Error 11 or 6 for a sample whose median is half-way between its extremes.
/// Source of x0: Stedinger, J. R. (1980), Fitting log normal distributions to hydrologic data, Water Resources Research
/// 16(3), 481-490.
LogNormal3 AjustarLogNormal3(const ArregloBase<Double>& ordenada, int n);

}  // namespace cuencalia
