#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "frame/controles/flexgrid.h"
#include "frame/reportes/editortextorico.h"

namespace cuencalia {

inline constexpr int kMargenReporte = 200;  ///< Twips left and right of the text of a report.

/// Writes a module's report at the insertion point of a document. Numbers are written as the module's grids and boxes
/// show them.
class Reporte {
  public:
    /// Returns the text of a cell as the report writes it, with the blanks and tabs around it.
    using Celda = std::function<std::string(const std::string& texto, int fila, int columna)>;

    /// A table of a report: title, rule, heading, rule, rows, rule, blank line.
    struct Tabla {
        std::string titulo;
        int regla;               ///< Number of dashes of a rule.
        std::string encabezado;  ///< Heading with its blanks and tabs, without its line end.
        Celda celda;
        int primeraFila = 1, primeraColumna = 0;
        int columnas = 0;        ///< Number of columns written; 0: all up to the last one.
        int reglaFinal = 0;      ///< Dashes of the rule below the rows; 0: as many as in `regla`.
        bool conCursor = false;  ///< Whether each cell written becomes the grid's current cell.
        /// Tab stops of the rows, in characters; none: those of the document, which cells may outgrow.
        std::vector<int> paradas = {};
    };

    explicit Reporte(EditorTextoRico& documento) : documento_(documento) {}

    /// Sets the margin of a report; text is centred from here on.
    void ReporteAbrir();
    /// Alignment of the text from here on: 0 left, 2 centred.
    void ReporteAlinear(int alineacion) { documento_.SelAlignment(alineacion); }
    void ReporteTexto(std::string_view texto) { documento_.SelRTF(texto); }
    void ReporteLinea(std::string_view texto) { ReporteTexto(std::string(texto) + "\n"); }
    void ReporteBlanco() { ReporteTexto("\n"); }
    /// A rule of that many dashes, without a line end.
    void ReporteRegla(int guiones);
    /// A rule of that many dashes, with its line end.
    void LineaDeGuiones(int guiones);

    /// "Resultados" and the title, centred; then left alignment and a blank line.
    void Cabecera(std::string_view titulo);
    /// The title of a block, its line end and a blank line.
    void Titulo(std::string_view titulo);
    /// Writes the table from its first row to row `hasta` of the grid.
    void EscribirTabla(const Tabla& tabla, FlexGrid& grid, int hasta);

  private:
    void PonerParadas(const std::vector<int>& caracteres);

    EditorTextoRico& documento_;
};

/// Description of the table of a data grid or a sorted list: two tabs after each heading and each cell.
Reporte::Tabla TablaDeSerie(std::string titulo, const std::vector<std::string>& encabezados, int regla);

/// The headings joined, each followed by `tras`.
std::string UnirEncabezados(const std::vector<std::string>& encabezados, std::string_view tras);
/// Where the words of each heading but the first begin, in characters, when the headings stand one behind the other.
std::vector<int> ParadasBajo(const std::vector<std::string>& encabezados);
/// Writes each cell followed by `tras`.
Reporte::Celda CeldaSeguidaDe(std::string tras);
/// Writes each cell centred by blanks in `ancho` characters, preceded by `extra` more blanks.
Reporte::Celda CeldaCentrada(int ancho, std::function<int(int fila, int columna)> extra = {});

/// Writes each cell centred under the words of its heading, in as many characters as the heading has.
Reporte::Celda CeldaBajo(std::vector<std::string> encabezados);

/// The blanks to put on each side of a text to centre it in `ancho` characters: (width - length) / 2, a half being
/// rounded to the even number; none for a text that is too long.
std::string Relleno(std::string_view texto, int ancho);

}  // namespace cuencalia
