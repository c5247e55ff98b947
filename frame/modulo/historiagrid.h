#pragma once

#include <optional>
#include <string>
#include <vector>

#include "frame/controles/flexgrid.h"

namespace cuencalia {

/// What the user did to the data of a grid, act by act, so that each can be taken back. The data are the rows below the
/// heading without their labels, the entry row last.
class HistoriaGrid {
  public:
    using Fila = std::vector<std::string>;

    /// Rows `antes` that became rows `despues` at one place, and where the cursor stood.
    struct Paso {
        int fila;  ///< First row of the grid that changed.
        std::vector<Fila> antes, despues;
        int filaAntes, columnaAntes, filaDespues, columnaDespues;
    };

    /// Records how the grid differs from what it was at the last call; what was undone can then no longer be redone.
    /// Returns whether data changed: anything but the entry row.
    bool Anotar(const FlexGrid& grid);
    /// The same change is no act of the user: it can be neither taken back nor done again by itself.
    void Acordar(const FlexGrid& grid);

    /// The step to take back, or to do again; nothing when there is none.
    std::optional<Paso> Deshacer();
    std::optional<Paso> Rehacer();

  private:
    std::vector<Fila> filas_;
    int fila_ = 1, columna_ = 1;
    std::vector<Paso> hechos_, deshechos_;
};

}  // namespace cuencalia
