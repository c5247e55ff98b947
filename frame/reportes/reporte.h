#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "frame/controles/flexgrid.h"
#include "frame/reportes/editortextorico.h"

namespace cuencalia {

/// Writes a module's report at the insertion point of a document. Numbers are the texts that the module's grids and
/// boxes show.
class Reporte {
  public:
    /// How the cell of a row and a column is written, given its text: with the blanks and tabs around it.
    using Celda = std::function<std::string(const std::string& texto, int fila, int columna)>;

    /// A table of a report: title, rule, heading, rule, rows, rule, blank line.
    struct Tabla {
        std::string titulo;
        int regla;               ///< Dashes of a rule.
        std::string encabezado;  ///< With its blanks and tabs, and without its line end.
        Celda celda;
        int primeraFila = 1, primeraColumna = 0;
        int columnas = 0;        ///< How many are written; 0: all to the last one.
        int reglaFinal = 0;      ///< Dashes below the rows; 0: as the others.
        bool conCursor = false;  ///< Whether the grid's cursor moves through the cells.
    };

    explicit Reporte(EditorTextoRico& documento) : documento_(documento) {}

    /// Margin of a report, and centred from here on.
    void ReporteAbrir();
    /// 0 left, 2 centred, from here on.
    void ReporteAlinear(int alineacion) { documento_.SelAlignment(alineacion); }
    void ReporteTexto(std::string_view texto) { documento_.SelRTF(texto); }
    void ReporteLinea(std::string_view texto) { ReporteTexto(std::string(texto) + "\n"); }
    void ReporteBlanco() { ReporteTexto("\n"); }
    /// So many dashes, without a line end.
    void ReporteRegla(int guiones);
    /// The same with its line end.
    void LineaDeGuiones(int guiones);

    /// "Resultados" and the title, centred; then left alignment and a blank line.
    void Cabecera(std::string_view titulo);
    /// The title of a block, its line end and a blank line.
    void Titulo(std::string_view titulo);
    /// The grid's rows from the table's first one to `hasta`.
    void EscribirTabla(const Tabla& tabla, FlexGrid& grid, int hasta);

  private:
    EditorTextoRico& documento_;
};

/// The table of a data or a sorted grid: two tabs behind each heading and each cell.
Reporte::Tabla TablaDeSerie(std::string titulo, const std::vector<std::string>& encabezados, int regla);

/// The headings joined, each with that behind it.
std::string UnirEncabezados(const std::vector<std::string>& encabezados, std::string_view tras);
/// A cell with that behind it.
Reporte::Celda CeldaSeguidaDe(std::string tras);
/// A cell centred by blanks in `ancho` characters, with so many blanks more before it as `extra` says.
Reporte::Celda CeldaCentrada(int ancho, std::function<int(int fila, int columna)> extra = {});

/// Blanks on each side that centre a text in so many characters: (width - length) / 2, a half going to the even number;
/// none for a text that is too long.
std::string Relleno(std::string_view texto, int ancho);

}  // namespace cuencalia
