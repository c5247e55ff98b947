#pragma once

#include <functional>
#include <string>

#include "frame/base/archivoserie.h"
#include "frame/base/hojas.h"
#include "frame/controles/controles.h"
#include "frame/controles/dialogo.h"
#include "frame/modulo/formatoserie.h"

namespace cuencalia {

class ModuloCalculo;

/// Text of a sheet's cell for a grid or a box: a number is formatted by the pattern, a text is unchanged.
std::string TextoDeCelda(const ValorCelda& valor, const char* patron);

/// The commands by which a module stores its series, reads it back, and imports it from a sheet.
class ComandosArchivo {
  public:
    /// Without a format the three file buttons are greyed.
    ComandosArchivo(ModuloCalculo& modulo, const FormatoSerie* formato);
    ComandosArchivo(const ComandosArchivo&) = delete;
    ComandosArchivo& operator=(const ComandosArchivo&) = delete;

    CommandButton bCrear, bAccesar, bCargarExcel;
    CommonDialog cdCrear, cdAccesar, cdCargarExcel;

    /// Stores the grid's columns as Single records; overwrites an existing file without asking.
    void bCrear_Click();
    /// Reads a series file into the grid.
    void bAccesar_Click();
    /// Reads the first sheet of a workbook, from A1 to the first empty cell of column A, into the grid and the arrays.
    void bCargarExcel_Click();

  private:
    /// Runs a file command with the error handling common to the three: a cancelled dialog shows the message with the
    /// name of the file; any other error ends the command, keeps what it has done so far and is told in the status bar.
    void ConTrampa(const char* mensaje, const std::function<void()>& orden);
    void Terminar(int filas);
    void Avisar(const std::string& aviso);

    ModuloCalculo& modulo_;
    const FormatoSerie* formato_;
};

}  // namespace cuencalia
