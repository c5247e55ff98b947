#pragma once

#include <string>
#include <vector>

#include "frame/controles/flexgrid.h"

namespace cuencalia {

struct ColumnaTabla {
    std::string encabezado;
    int ancho;  ///< Twips.
};

/// What a result table looks like while it is empty.
struct DescripcionTabla {
    int filas;  ///< Headings included.
    std::vector<ColumnaTabla> columnas;
    int columnasFijas = 0;
    std::vector<std::string> unidades = {};  ///< A second line of headings; empty for a table without one.
    int altoEncabezado = 340;                ///< Twips.
    int borde = 1;
};

/// A grid of results, its columns centred, built from a description and filled a row or a column at a time.
class Tabla : public FlexGrid {
  public:
    Tabla(Formulario& forma, std::string nombre, std::string nombreAccesible, DescripcionTabla descripcion);

    /// Empties the table and writes its headings.
    void Iniciar() { Iniciar(descripcion_.filas); }
    /// The same with another number of rows, headings included.
    void Iniciar(int filas);

    /// Writes the texts from that column on. Error 9 for a row or column that is not there.
    void PonerFila(int fila, const std::vector<std::string>& textos, int columna = 0);
    /// Writes the texts downwards from row 1 on.
    void PonerColumna(int columna, const std::vector<std::string>& textos);
    /// Empties the cells of the rows from that one on that have a text in their first column.
    void VaciarDesde(int fila);

  private:
    DescripcionTabla descripcion_;
};

}  // namespace cuencalia
