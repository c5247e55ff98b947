#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "frame/base/hojas.h"

namespace cuencalia {

/// Collects the cells of a sheet while a reader goes through the file. Both file formats keep most texts in a separate
/// table of shared texts. A cell with such a text is stored with its index in that table first; the text is filled in
/// when the table is read, so that only the texts in use are kept.
class ArmadorHoja {
  public:
    ArmadorHoja(int columnas, int filasMax) : columnas_(columnas), filasMax_(filasMax) {}

    int FilasMax() const { return filasMax_; }
    /// True when the cell is among those the caller asked for; readers skip the others.
    bool Interesa(int fila, int columna) const { return fila <= filasMax_ && columna <= columnas_; }

    /// Writes a cell. Error 1004 when the texts of the sheet together exceed the limit, and for a number that is not
    /// finite.
    void Poner(int fila, int columna, ValorCelda valor);
    /// Stores a cell whose text is number `indice` (from 0) of the table of shared texts.
    void PonerCompartido(int fila, int columna, std::uint32_t indice);

    bool FaltanTextos() const { return !pendientes_.empty(); }
    bool FaltaTexto(std::uint32_t indice) const { return pendientes_.contains(indice); }
    /// Fills in text number `indice` in every cell that uses it.
    void DarTexto(std::uint32_t indice, const std::string& texto);

    /// The sheet without the cells below its data rows. Error 1004 when the table lacked a text that some cell uses.
    Hoja Terminar() const;

  private:
    int columnas_;
    int filasMax_;
    std::size_t bytesDeTexto_ = 0;
    Hoja hoja_;
    std::map<std::uint32_t, std::vector<std::pair<int, int>>> pendientes_;
};

/// The text by which a logical value is read.
inline std::string TextoLogico(bool valor) { return valor ? "Verdadero" : "Falso"; }

}  // namespace cuencalia
