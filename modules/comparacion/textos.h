#pragma once

#include "frame/base/bloque.h"
#include "frame/reportes/reporte.h"
#include "modules/comparacion/candidatos.h"

namespace cuencalia {

/// A number by its pattern; nothing where it does not exist, and "∞".
std::string Numero(double valor, const char* patron);
/// Whether a cell of the tables is a number.
bool EsNumero(const std::string& texto);

/// "Gumbel, Momentos lineales".
std::string NombreDe(const Ajuste& a);
/// "µ = 1.919; alfa = 1.0066".
std::string TextoParametros(const Distribucion& d);

/// The columns of a grid from `desde` to before `hasta`, with their headings.
Bloque Columnas(const FlexGrid& grid, int desde, int hasta);
/// A table of the report, its columns as wide as their widest text, those of numbers set to the right.
void ReportarFilas(Reporte& reporte, const char* titulo, const Bloque& filas);

}  // namespace cuencalia
