#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "frame/controles/controles.h"
#include "frame/controles/disposicion.h"
#include "frame/controles/flexgrid.h"
#include "frame/modulo/avisos.h"
#include "frame/modulo/formatoserie.h"
#include "frame/modulo/historiagrid.h"

namespace cuencalia {

/// Labels of the data rows, numbered from 1: " 1", " 2", …
std::string EtiquetaNumero(int fila);

/// The properties in which the data grids of the modules differ.
struct DescripcionGrid {
    std::vector<std::string> encabezados;  ///< Headings of the columns; the first is that of the row labels.
    std::vector<int> anchos = {};          ///< Column widths in twips; a column without one has 700 (labels) or 1800.
    std::string patronEdicion = kPatronEdicionA;  ///< Pattern of the number in the edit box: kPatronEdicionA or B.
    std::function<std::string(int)> etiqueta = EtiquetaNumero;  ///< Label of a data row, shown in its first column.
    int columnaSel = 0;         ///< Last column selected by a right click; 0: the last data column.
    int columnaSelEntrada = 0;  ///< As columnaSel, for the entry row; 0: the same column as there.
    std::string titulo = "Ingreso de datos:";
};

/// The grid into which a module's data are typed, with its floating edit box, row menu, heading and note. The texts in
/// `grdt` are the data themselves: the modules' arrays are filled from them.
///
/// The last row of the grid is the entry row: it becomes data when its last column is confirmed.
class GridDatos {
  public:
    /// Shows in the first panel of `estado` how data are typed.
    GridDatos(Formulario& forma, StatusBar& estado, DescripcionGrid descripcion);
    GridDatos(const GridDatos&) = delete;
    GridDatos& operator=(const GridDatos&) = delete;

    Label lbl1;
    FlexGrid grdt;
    TextBox txtt;
    Label Label2, Label1;
    Menu mnuEdicion, mnuEditInsertar, mnuEditraya1, mnuEditEliminar;
    Menu mnuEditraya2, mnuEditDeshacer, mnuEditRehacer, mnuEditCopiar, mnuEditPegar;

    /// Number of data rows.
    int Filas() const { return grdt.Rows() - 2; }
    int UltimaColumna() const { return static_cast<int>(descripcion_.encabezados.size()) - 1; }

    /// Empties the grid and builds its headings.
    void IniciarGrid();
    /// Opens the edit box over the current cell; a printable character replaces the old contents of the cell.
    void GridEdit(int keyAscii);
    /// Stores the text of the edit box in the cell and moves to the next cell, as ENTER does.
    void ConfirmarCelda();
    void MoverCelda();
    void RenumerarGrid();
    void CambioFilaGrid();
    void InsertarFila();
    void EliminarFila();
    void MenorQue2Celdas() { IrACeldaPorLlenar(2); }
    void MenorQue4Celdas() { IrACeldaPorLlenar(4); }
    void MenorQue5Celdas() { IrACeldaPorLlenar(5); }

    /// Undoes or redoes the last act on the data.
    void Deshacer() { Aplicar(historia_->Deshacer()); }
    void Rehacer() { Aplicar(historia_->Rehacer()); }
    /// Writes cells copied from a sheet, from the current cell on; rows beyond the data are committed as typing does.
    void Pegar(const std::string& texto);
    /// Stores the text of the edit box in its cell, as it was typed.
    void GuardarEdicion();
    /// Called when an event has ended: its changes of the data become one step of the history.
    void Anotar();
    /// Whether something is typed in the edit box or the entry row that is not among the data yet.
    bool EntradaAMedias() const;
    /// The first value at which a logarithm or a quotient may fail, as the end of a sentence: a text that is no number,
    /// or a value that is not positive; empty when there is none.
    std::string DatoDudoso() const;
    /// Grows with each change of the data.
    int Version() const { return version_; }

    /// Gives the grid as many data rows as are to be loaded; the loader labels each row before it fills it.
    void EmpezarCarga(int filas) { grdt.PonerRows(filas + 2); }
    void RotularFila(int fila) { grdt.PonerTextMatrix(fila, 0, descripcion_.etiqueta(fila)); }
    /// Ends a load: marks the entry row and makes it current.
    void TerminarCarga(int filas);

    /// Layout of the grid with its heading and its note.
    Disposicion Zona();

  private:
    int FilaEntrada() const { return grdt.Rows() - 1; }
    bool EnFilaEntrada() const { return grdt.Row() == FilaEntrada(); }
    void Marcar(const char* marca) { grdt.PonerTextMatrix(FilaEntrada(), 0, marca); }
    void VaciarFila(int fila);
    void IrACeldaPorLlenar(int k);

    void grdt_GotFocus();
    void grdt_KeyDown(int codigo);
    void grdt_KeyPress(int& keyAscii);
    void grdt_MouseDown(int boton);
    void OcultarEdicion();
    void txtt_KeyDown(int codigo);
    void Aplicar(const std::optional<HistoriaGrid::Paso>& paso);
    void VaciarSeleccion();
    /// Says so where Val does not read the whole of what was typed.
    void DecirLectura(const std::string& texto);
    void AvanzarPorTabulador();
    void Avisar(const std::string& aviso) { estado_.PonerPanel(kPanelAvisos, aviso); }

    Aplicacion& app_;
    StatusBar& estado_;
    DescripcionGrid descripcion_;
    std::shared_ptr<HistoriaGrid> historia_;
    int version_ = 0;
};

}  // namespace cuencalia
