#pragma once

#include <functional>
#include <string>
#include <vector>

#include "frame/controles/flexgrid.h"

namespace cuencalia {

/// Widths of a column of a grid on the screen, in pixels.
struct AnchoColumna {
    int ancho = 0;   ///< That it is to have: what the grid says, and no less than its heading needs.
    int minimo = 0;  ///< Down to which it gives up room where that is short.
    int falta = 0;   ///< By how much a text of a short grid is wider.

    bool operator==(const AnchoColumna&) const = default;
};

/// Whether the grid shows results, and takes no typing.
bool EsDeLectura(const FlexGrid& grid);

/// The widths of all columns, the fixed ones too. `anchoDeTexto` tells the pixels that a text takes.
std::vector<AnchoColumna> MedirColumnas(const FlexGrid& grid,
                                        const std::function<int(const std::string&)>& anchoDeTexto);

/// Shares out `disponible` pixels among columns: returns the width of each. Spare width goes first to those that cut a
/// text, then to all in equal parts, so that no empty strip is left at the right. Where width is missing, they give up
/// what their texts do not need, in proportion to it; more than that is not taken, and the table is scrolled.
std::vector<int> RepartirAncho(const std::vector<AnchoColumna>& columnas, int disponible);

}  // namespace cuencalia
