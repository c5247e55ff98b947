#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "frame/base/hojas.h"

namespace cuencalia {

/// Gathers the cells of a sheet while a reader walks through it. Both formats keep most texts in a table apart: a cell
/// is noted with its index there and the text is filled in when the table is read, so that of the table only the texts
/// in use are kept.
class ArmadorHoja {
  public:
    ArmadorHoja(int columnas, int filasMax) : columnas_(columnas), filasMax_(filasMax) {}

    int FilasMax() const { return filasMax_; }
    /// True when the cell is among those asked for; the others are passed over.
    bool Interesa(int fila, int columna) const { return fila <= filasMax_ && columna <= columnas_; }

    /// Error 1004 when the texts of the sheet add up to more than a data sheet can mean. A number must be finite.
    void Poner(int fila, int columna, ValorCelda valor);
    /// Notes a cell whose text is number `indice`, from 0, of the table of texts.
    void PonerCompartido(int fila, int columna, std::uint32_t indice);

    bool FaltanTextos() const { return !pendientes_.empty(); }
    bool FaltaTexto(std::uint32_t indice) const { return pendientes_.contains(indice); }
    /// Fills in the text in every cell that uses it.
    void DarTexto(std::uint32_t indice, const std::string& texto);

    /// The sheet, without what stands below its data rows. Error 1004 when the table lacked a text in use.
    Hoja Terminar() const;

  private:
    int columnas_;
    int filasMax_;
    std::size_t bytesDeTexto_ = 0;
    Hoja hoja_;
    std::map<std::uint32_t, std::vector<std::pair<int, int>>> pendientes_;
};

/// The text that stands for a logical value.
inline std::string TextoLogico(bool valor) { return valor ? "Verdadero" : "Falso"; }

}  // namespace cuencalia
