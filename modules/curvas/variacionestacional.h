#pragma once

#include <array>

#include "frame/base/numeros.h"

namespace cuencalia {

/// The values of each month of the year: element m - 1 has those of month m, one for each year.
using Meses = std::array<Serie, 12>;

/// Log-normal distribution of a month: mean and standard deviation of the natural logarithms of its values.
struct LogNormalMensual {
    Double media, desviacion;
};

/// Fits values(1) to values(anos), all above 0, with the divisor anos - 1 in the variance. Equal values have the
/// deviation 0. Error 5 for a value of 0 or less, error 6 for fewer than two years.
/// Source: Aitchison, J. and Brown, J. A. C. (1957), The Lognormal Distribution, Cambridge University Press.
LogNormalMensual AjustarMes(const ArregloBase<Double>& valores, int anos);

/// The value that the month equals or exceeds with the probability P (0 < P < 1), in the unit of the series:
/// exp(media + z·desviacion). Its relative error is that of z, below 4.5e-4 (InversaNormal), times the deviation.
/// Error 6 for a value beyond a Double.
Double CalcularQ(Double P, const LogNormalMensual& mes);

}  // namespace cuencalia
