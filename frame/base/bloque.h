#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace cuencalia {

/// Cells copied from a sheet, row by row.
using Bloque = std::vector<std::vector<std::string>>;

/// The cells of a text whose rows end in a line end and whose cells are parted by tabs, each without the blanks around
/// it. Empty lines at the end are left out.
Bloque SepararBloque(std::string_view texto);
/// Such a text of the cells.
std::string UnirBloque(const Bloque& bloque);

/// Whether Val reads the whole of a text that is not empty, but for blanks around it.
bool ValLeeTodo(std::string_view texto);

enum class SignoDecimal { Punto, Coma };

/// The number as it is typed, with a point for its decimal mark and nothing between thousands ("1.234,5" with a decimal
/// comma is "1234.5"); nothing for a text that is no number when read so. The other sign parts thousands, as may a
/// blank, in groups of three digits.
std::optional<std::string> LeerNumero(std::string_view celda, SignoDecimal signo);

/// How the numbers of a block are to be read.
struct LecturaBloque {
    std::size_t encabezados = 0;        ///< First rows without a number, above rows that have some.
    std::optional<SignoDecimal> signo;  ///< Missing when both are possible and give other numbers.
    std::string dudoso;                 ///< A cell that both readings take for other numbers.
};
LecturaBloque LeerBloque(const Bloque& bloque);

/// The cells of a block as they go into a grid.
struct Pegado {
    Bloque celdas;      ///< Below the headings, as Val reads them, as many in a row as the grid has columns for.
    int ajenas = 0;     ///< Texts among them that are no number and no blank.
    int sobrantes = 0;  ///< Cells with a text for which there is no column.
};
/// Reads the block for that many columns.
Pegado LeerPegado(const Bloque& bloque, std::size_t encabezados, SignoDecimal signo, std::size_t columnas);

}  // namespace cuencalia
