#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "frame/controles/flexgrid.h"
#include "frame/reportes/textorico.h"

namespace cuencalia {

/// Writes a module's report at the insertion point of a document. Numbers are the texts that the module's grids and
/// boxes show.
class Reporte {
  public:
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
    /// The table of a data or sorted grid: title, rule, headings (two tabs behind each), rule, the rows 1 to `hasta`
    /// with two tabs behind each cell, rule, blank line. The grid's cursor moves through the cells.
    void TablaDeSerie(std::string_view titulo, const std::vector<std::string>& encabezados, FlexGrid& grid, int hasta,
                      int guiones);
    /// A text centred by blanks in `ancho` characters, with so many blanks more before it.
    void CeldaCentrada(std::string_view texto, int ancho, int extra = 0);

  private:
    EditorTextoRico& documento_;
};

/// Blanks on each side that centre a text in so many characters: (width - length) / 2, a half going to the even number;
/// none for a text that is too long.
std::string Relleno(std::string_view texto, int ancho);

}  // namespace cuencalia
