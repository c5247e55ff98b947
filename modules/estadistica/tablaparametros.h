#pragma once

#include <array>
#include <string>
#include <vector>

#include "frame/controles/flexgrid.h"

namespace cuencalia {

/// The texts of mean, variance, standard deviation and coefficients of variation, skewness and kurtosis, in that order.
using ColumnaParametros = std::array<std::string, 6>;

/// The empty table of the six parameters, one column of figures for each heading but the first.
void IniciarTablaParametros(FlexGrid& grid, const std::vector<std::string>& encabezados);
/// Names the rows of the table.
void RotularParametros(FlexGrid& grid);
void MostrarParametros(FlexGrid& grid, int columna, const ColumnaParametros& textos);

/// An empty table with centred columns of the same width.
void IniciarTabla(FlexGrid& grid, int filas, const std::vector<std::string>& encabezados, int ancho);

}  // namespace cuencalia
