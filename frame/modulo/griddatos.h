#pragma once

#include <functional>
#include <string>
#include <vector>

#include "frame/controles/controles.h"
#include "frame/controles/disposicion.h"
#include "frame/controles/flexgrid.h"
#include "frame/modulo/formatoserie.h"

namespace cuencalia {

/// Labels of the data rows, numbered from 1: " 1", " 2", …
std::string EtiquetaNumero(int fila);

/// What tells one module's data grid from another's.
struct DescripcionGrid {
    std::vector<std::string> encabezados;         ///< The row label's first.
    std::vector<int> anchos = {};                 ///< Twips; columns without one have 700 (labels) or 1800.
    std::string patronEdicion = kPatronEdicionA;  ///< How the edit box offers a number: kPatronEdicionA or B.
    std::function<std::string(int)> etiqueta = EtiquetaNumero;  ///< What stands in the first column of a data row.
    int columnaSel = 0;         ///< Last column that a right click selects; 0: the last data column.
    int columnaSelEntrada = 0;  ///< The same on the entry row; 0: as elsewhere.
    std::string titulo = "Ingreso de datos:";
};

/// The grid into which a module's data are typed, with its floating edit box, row menu, heading and note. `grdt` is the
/// master copy of the data.
///
/// The last row of the grid is the entry row: it becomes data when its last column is confirmed.
class GridDatos {
  public:
    /// `estado` tells in its first panel how data are typed.
    GridDatos(Formulario& forma, StatusBar& estado, DescripcionGrid descripcion);
    GridDatos(const GridDatos&) = delete;
    GridDatos& operator=(const GridDatos&) = delete;

    Label lbl1;
    FlexGrid grdt;
    TextBox txtt;
    Label Label2, Label1;
    Menu mnuEdicion, mnuEditInsertar, mnuEditraya1, mnuEditEliminar;

    /// Number of data rows.
    int Filas() const { return grdt.Rows() - 2; }
    int UltimaColumna() const { return static_cast<int>(descripcion_.encabezados.size()) - 1; }

    /// Empties the grid and builds its headings.
    void IniciarGrid();
    /// Opens the edit box over the current cell; a printable character replaces what the cell held.
    void GridEdit(int keyAscii);
    /// Stores the edit box in the cell and moves on, as ENTER does.
    void ConfirmarCelda();
    void MoverCelda();
    void RenumerarGrid();
    void CambioFilaGrid();
    void InsertarFila();
    void EliminarFila();
    void MenorQue2Celdas() { IrACeldaPorLlenar(2); }
    void MenorQue4Celdas() { IrACeldaPorLlenar(4); }
    void MenorQue5Celdas() { IrACeldaPorLlenar(5); }

    /// Makes room for the rows of a load; each is labelled before it is filled.
    void EmpezarCarga(int filas) { grdt.PonerRows(filas + 2); }
    void RotularFila(int fila) { grdt.PonerTextMatrix(fila, 0, descripcion_.etiqueta(fila)); }
    /// Marks the end of a load and leaves the cursor on the entry row.
    void TerminarCarga(int filas);

    /// The grid with its heading and its note.
    Disposicion Zona();

  private:
    int FilaEntrada() const { return grdt.Rows() - 1; }
    bool EnFilaEntrada() const { return grdt.Row() == FilaEntrada(); }
    void Marcar(const char* marca) { grdt.PonerTextMatrix(FilaEntrada(), 0, marca); }
    void VaciarFila(int fila);
    void IrACeldaPorLlenar(int k);

    void grdt_GotFocus();
    void grdt_KeyPress(int& keyAscii);
    void grdt_MouseDown(int boton);
    void OcultarEdicion();
    void txtt_KeyDown(int codigo);

    Aplicacion& app_;
    DescripcionGrid descripcion_;
};

}  // namespace cuencalia
