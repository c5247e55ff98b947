#pragma once

#include <map>
#include <string>
#include <utility>
#include <variant>

#include "frame/base/numeros.h"

namespace cuencalia {

/// What a cell of a sheet holds: nothing, a number, or a text (UTF-8).
using ValorCelda = std::variant<std::monostate, Double, std::string>;

/// True for an empty cell and for one that holds the empty text: both end a column of data.
inline bool EsVacia(const ValorCelda& valor) {
    const auto* texto = std::get_if<std::string>(&valor);
    return std::holds_alternative<std::monostate>(valor) || (texto != nullptr && texto->empty());
}

/// The cells of one sheet; rows and columns are numbered from 1.
class Hoja {
  public:
    /// The value of a cell; a cell that nobody wrote is empty.
    const ValorCelda& Cells(int fila, int columna) const {
        static const ValorCelda vacia;
        const auto hallada = celdas_.find({fila, columna});
        return hallada == celdas_.end() ? vacia : hallada->second;
    }

    /// Writes a cell. Error 9 for a row or column below 1.
    void Poner(int fila, int columna, ValorCelda valor) {
        if (fila < 1 || columna < 1) {
            throw ErrorEjecucion(kSubindiceFuera);
        }
        celdas_[{fila, columna}] = std::move(valor);
    }

    /// Number of data rows: those before the first empty cell of column 1.
    int Filas() const {
        int filas = 0;
        while (!EsVacia(Cells(filas + 1, 1))) {
            ++filas;
        }
        return filas;
    }

    /// All written cells by {row, column}, row after row.
    const std::map<std::pair<int, int>, ValorCelda>& Celdas() const { return celdas_; }

  private:
    std::map<std::pair<int, int>, ValorCelda> celdas_;
};

/// Number of the errors of a workbook that cannot be read or written as such; their text says why.
inline constexpr int kErrorLibro = 1004;

/// Access to the cell values of workbooks: all that the program asks of a spreadsheet.
class AccesoHojas {
  public:
    virtual ~AccesoHojas() = default;

    /// The data of the first worksheet of the workbook (.xlsx or .xls, told apart by content): columns 1 to `columnas`
    /// of the rows before the first empty cell of column 1, and at most `filasMax` of them. A caller with room for n
    /// rows asks for n + 1 rows to find out whether the sheet has more.
    ///
    /// A formula is read as its stored value, a date as its stored serial number. A logical value is read as the text
    /// "Verdadero" or "Falso" and an error value as its literal ("#DIV/0!"), so that neither is taken for a number. Of
    /// merged cells only the first has the value.
    ///
    /// Error 53: no such file; 75: it cannot be read; 1004, whose text gives the reason: it is not a workbook, or is
    /// damaged, protected by a password, or too large.
    virtual Hoja LeerPrimeraHoja(const std::string& ruta, int columnas, int filasMax) = 0;

    /// Writes a new workbook (.xlsx) of one sheet with these cells, numbers with 16 significant digits. An existing
    /// file is replaced only once the new one is complete.
    ///
    /// Error 61: disk full; 75: no access; 76: no such folder; 1004: a cell that a workbook cannot hold (beyond row
    /// 1,048,576 or column 16,384, a number of 10^308 or more, a text of more than 32,767 characters or not UTF-8).
    virtual void EscribirLibro(const std::string& ruta, const Hoja& hoja) = 0;
};

}  // namespace cuencalia
