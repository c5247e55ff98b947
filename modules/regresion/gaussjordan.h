#pragma once

#include <optional>
#include <vector>

#include "frame/base/numeros.h"

namespace cuencalia {

/// A system of linear equations: a row of coefficients for each, with its right-hand side in the last column. Rows and
/// columns count from 1.
class MatrizAmpliada {
  public:
    explicit MatrizAmpliada(int ecuaciones) : ecuaciones_(ecuaciones), celdas_(1, ecuaciones * Columnas()) {}  // all 0

    int Ecuaciones() const { return ecuaciones_; }
    int Columnas() const { return ecuaciones_ + 1; }

    Double& operator()(int fila, int columna) { return celdas_((fila - 1) * Columnas() + columna); }
    Double operator()(int fila, int columna) const { return celdas_((fila - 1) * Columnas() + columna); }

  private:
    int ecuaciones_;
    ArregloBase<Double> celdas_;
};

/// Where the elimination looks for a number other than 0 once it has come to row and column p. The number of the first
/// one found, from p on, is the row that changes places with row p.
enum class BusquedaPivote {
    EnFila,     ///< Along row p. While the matrix is symmetric it finds the same row as a search down the column.
    EnColumna,  ///< Down column p.
};

/// Solves the system by Gauss-Jordan elimination. A pivot is tested against exact 0 and not chosen by its size, so
/// equations that depend on each other but for rounding are solved all the same, with meaningless results. Empty when
/// there is no pivot: the system has no single solution. Error 11 when the search along the row brings up a row with a
/// 0 in column p; 6 for numbers beyond a Double.
/// Source: Gerald, C. F. (1978), Applied Numerical Analysis, Addison-Wesley, chapter 2.
std::optional<std::vector<Double>> GaussJordan(MatrizAmpliada a, BusquedaPivote busqueda);

}  // namespace cuencalia
