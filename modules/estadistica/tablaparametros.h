#pragma once

#include <string>
#include <vector>

#include "frame/modulo/tabla.h"

namespace cuencalia {

/// The table of mean, variance, standard deviation and coefficients of variation, skewness and kurtosis, a column of
/// figures for each heading.
DescripcionTabla TablaDeParametros(const std::vector<std::string>& encabezados);
/// Names the rows of the table.
void RotularParametros(Tabla& tabla);

/// The table of the classes of a series, one column for each heading.
DescripcionTabla TablaDeClases(const std::vector<std::string>& encabezados);

}  // namespace cuencalia
