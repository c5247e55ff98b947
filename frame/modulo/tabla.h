#pragma once

#include <string>
#include <vector>

#include "frame/controles/flexgrid.h"

namespace cuencalia {

struct ColumnaTabla {
    std::string encabezado;
    int ancho;  ///< Twips.
};

/// The size and headings of a result table, before it is filled.
struct DescripcionTabla {
    int filas;  ///< Rows, headings included.
    std::vector<ColumnaTabla> columnas;
    int columnasFijas = 0;
    std::vector<std::string> unidades = {};  ///< Second line of headings; empty when there is none.
    std::vector<std::string> rotulos = {};   ///< Labels of the first rows, in the first column.
    int altoEncabezado = 340;                ///< Twips.
    int borde = 1;
};

/// A grid of results, its columns centred, built from a description and filled a row or a column at a time.
class Tabla : public FlexGrid {
  public:
    Tabla(Formulario& forma, std::string nombre, std::string nombreAccesible, DescripcionTabla descripcion);

    /// Empties the table and writes its headings.
    void Iniciar() { Iniciar(descripcion_.filas); }
    /// The same with another number of rows than described, headings included.
    void Iniciar(int filas);

    /// Writes the texts into a row, from that column on. Error 9 for a row or column that does not exist.
    void PonerFila(int fila, const std::vector<std::string>& textos, int columna = 0);
    /// Writes the texts downwards from row 1 on.
    void PonerColumna(int columna, const std::vector<std::string>& textos);
    /// Empties the cells of every row from that one on whose first column has a text.
    void VaciarDesde(int fila);

  private:
    DescripcionTabla descripcion_;
};

}  // namespace cuencalia
