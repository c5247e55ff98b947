#include "frame/modulo/historiagrid.h"

#include <algorithm>
#include <utility>

namespace cuencalia {

namespace {

constexpr std::size_t kMaxPasos = 20000;  // some hours of typing

HistoriaGrid::Fila FilaDe(const FlexGrid& grid, int fila) {
    HistoriaGrid::Fila textos;
    for (int c = grid.FixedCols(); c < grid.Cols(); ++c) {
        textos.push_back(grid.TextMatrix(fila, c));
    }
    return textos;
}

bool Igual(const FlexGrid& grid, int fila, const HistoriaGrid::Fila& textos) {
    if (static_cast<int>(textos.size()) != grid.Cols() - grid.FixedCols()) {
        return false;
    }
    for (int c = grid.FixedCols(); c < grid.Cols(); ++c) {
        if (grid.TextMatrix(fila, c) != textos[static_cast<std::size_t>(c - grid.FixedCols())]) {
            return false;
        }
    }
    return true;
}

}  // namespace

bool HistoriaGrid::Anotar(const FlexGrid& grid) {
    const int fijas = grid.FixedRows();
    const int antes = static_cast<int>(filas_.size());
    const int ahora = grid.Rows() - fijas;
    const int comunes = std::min(antes, ahora);
    int iguales = 0;
    while (iguales < comunes && Igual(grid, fijas + iguales, filas_[static_cast<std::size_t>(iguales)])) {
        ++iguales;
    }
    int finales = 0;
    while (finales < comunes - iguales &&
           Igual(grid, fijas + ahora - 1 - finales, filas_[static_cast<std::size_t>(antes - 1 - finales)])) {
        ++finales;
    }
    const bool cambio = iguales + finales < std::max(antes, ahora);
    if (cambio) {
        Paso paso{fijas + iguales, {}, {}, fila_, columna_, grid.Row(), grid.Col()};
        const auto desde = filas_.begin() + iguales, hasta = filas_.begin() + (antes - finales);
        paso.antes.assign(std::make_move_iterator(desde), std::make_move_iterator(hasta));
        for (int f = iguales; f < ahora - finales; ++f) {
            paso.despues.push_back(FilaDe(grid, fijas + f));
        }
        filas_.insert(filas_.erase(desde, hasta), paso.despues.begin(), paso.despues.end());
        // The first filling of a window's grid is no act of the user.
        if (antes > 0) {
            hechos_.push_back(std::move(paso));
            deshechos_.clear();
        }
        if (hechos_.size() > kMaxPasos) {
            hechos_.erase(hechos_.begin(), hechos_.begin() + kMaxPasos / 4);
        }
    }
    fila_ = grid.Row();
    columna_ = grid.Col();
    return cambio && (antes != ahora || iguales < ahora - 1);
}

void HistoriaGrid::Acordar(const FlexGrid& grid) {
    std::vector<Paso> hechos = std::move(hechos_), deshechos = std::move(deshechos_);
    Anotar(grid);
    hechos_ = std::move(hechos);
    deshechos_ = std::move(deshechos);
}

std::optional<HistoriaGrid::Paso> HistoriaGrid::Deshacer() {
    if (hechos_.empty()) {
        return std::nullopt;
    }
    Paso paso = std::move(hechos_.back());
    hechos_.pop_back();
    deshechos_.push_back(paso);
    std::swap(paso.antes, paso.despues);
    std::swap(paso.filaAntes, paso.filaDespues);
    std::swap(paso.columnaAntes, paso.columnaDespues);
    return paso;
}

std::optional<HistoriaGrid::Paso> HistoriaGrid::Rehacer() {
    if (deshechos_.empty()) {
        return std::nullopt;
    }
    hechos_.push_back(std::move(deshechos_.back()));
    deshechos_.pop_back();
    return hechos_.back();
}

}  // namespace cuencalia
