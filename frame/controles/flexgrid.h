#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "frame/base/bloque.h"
#include "frame/controles/control.h"

namespace cuencalia {

/// Horizontal alignment of a column's texts.
enum AlineacionColumna : int { kAlinearIzquierda = 1, kAlinearCentro = 4, kAlinearDerecha = 7 };

/// A grid of texts with fixed rows and columns at its edges and one current cell. Rows and columns are numbered from 0,
/// lengths are twips (1/1440 inch). A row or column that does not exist raises error 9.
///
/// Moving the current cell fires LeaveCell before the move and RowColChange after it, also when the program moves it.
class FlexGrid : public Control {
  public:
    FlexGrid(Formulario& forma, std::string nombre, std::string nombreAccesible = {});

    Propiedad<int> BorderStyle{*this, 1};  ///< 0: no border around the grid.

    Evento<> LeaveCell;
    Evento<> RowColChange;
    Evento<> Scroll;
    Evento<> DblClick;
    Evento<int> PulsarEncabezado;  ///< A heading was pressed with the left button: its column.

    int Rows() const { return filas_; }
    int Cols() const { return columnas_; }
    int FixedRows() const { return filasFijas_; }
    int FixedCols() const { return columnasFijas_; }
    /// Sets the number of rows. Added rows are empty; the contents of removed rows are lost. A current cell that no
    /// longer exists moves to the last row or column.
    void PonerRows(int filas);
    void PonerCols(int columnas);
    void PonerFixedRows(int filas);
    void PonerFixedCols(int columnas);

    int Row() const { return fila_; }
    int Col() const { return columna_; }
    int RowSel() const { return filaSel_; }
    int ColSel() const { return columnaSel_; }
    /// Moves the current cell to that row; the selection becomes the current cell alone.
    void PonerRow(int fila);
    void PonerCol(int columna);
    void PonerCelda(int fila, int columna);
    /// Extends the selection from the current cell to that one; a row or column beyond the grid means the last one.
    void Seleccionar(int filaSel, int columnaSel);

    /// First row shown below the fixed ones. Scroll fires when it changes.
    int TopRow() const { return filaSuperior_; }
    void PonerTopRow(int fila);
    /// Data rows that fit on the screen below the fixed rows; the screen sets it.
    int FilasVisibles() const { return filasVisibles_; }
    void PonerFilasVisibles(int filas) { filasVisibles_ = filas < 1 ? 1 : filas; }

    const std::string& TextMatrix(int fila, int columna) const;
    void PonerTextMatrix(int fila, int columna, const std::string& texto);
    const std::string& Text() const { return TextMatrix(fila_, columna_); }
    void PonerText(const std::string& texto) { PonerTextMatrix(fila_, columna_, texto); }

    int ColWidth(int columna) const;
    void PonerColWidth(int columna, int twips);
    int ColAlignment(int columna) const;
    void PonerColAlignment(int columna, int alineacion);
    int RowHeight(int fila) const;
    void PonerRowHeight(int fila, int twips);

    /// Empties every cell; the number of rows and columns stays.
    void Clear();
    /// Adds a row at the end, with that text in its first column.
    void AddItem(const std::string& texto);
    void RemoveItem(int fila);

    /// Writes the headings of row 0 from the first column on.
    void PonerEncabezados(const std::vector<std::string>& encabezados);

    /// The selected cells as text, tabs between them; with their headings and row labels if asked for.
    std::string TextoSeleccionado(bool conEncabezados = false) const;
    /// All cells, headings and labels included or not.
    std::string TextoCompleto(bool conEncabezados) const;
    void SeleccionarTodo();

    /// Which texts of the cells the user is to look at: the screen shows them marked.
    void MarcarTextos(std::function<bool(const std::string&)> cuales) { marcar_ = std::move(cuales); }
    bool EstaMarcada(int fila, int columna) const;
    int Marcadas() const;

    bool Describir(EscritorJson& json) override;
    void DescribirEstado(EscritorJson& json) override;
    bool AceptaFoco() const override { return true; }
    /// Arrows, page keys, Home and End move the current cell, with Control to the end of the data; with the capitals
    /// key they take the selection along. Control with A selects all, with C copies.
    void TeclaPorDefecto(int codigo, int caracter) override;
    /// A press of a mouse button on a cell. In this order: the grid gets the focus, the cell becomes current, MouseDown
    /// fires. On a fixed column only the row of the current cell changes; on a heading the current cell stays.
    void Presionar(BotonRaton boton, int fila, int columna);
    /// The user scrolled: `fila` is the first row shown below the fixed ones.
    void DesplazadoPorUsuario(int fila) { PonerTopRow(fila); }

  private:
    struct Columna {
        int ancho = 960;
        int alineacion = kAlinearIzquierda;
    };

    std::size_t Celda(int fila, int columna) const;
    void ValidarFila(int fila) const;
    void ValidarColumna(int columna) const;
    void Mover(int fila, int columna);
    /// The cell to which the key moves from the given cell.
    std::pair<int, int> Destino(int codigo, int fila, int columna) const;
    /// The last cell with text of the run that begins beyond this cell, or the first cell with text, or the edge.
    std::pair<int, int> FinDeDatos(int fila, int columna, int pasoFila, int pasoColumna) const;
    Bloque Celdas(int fila0, int columna0, int fila1, int columna1, bool conEncabezados) const;
    /// Moves the current cell to the nearest cell that may be current, after the grid's size or fixed cells changed.
    void Recolocar();
    void HacerVisible(int fila);

    int filas_ = 2, columnas_ = 2, filasFijas_ = 1, columnasFijas_ = 1;
    int fila_ = 1, columna_ = 1, filaSel_ = 1, columnaSel_ = 1, filaSuperior_ = 1, filasVisibles_ = 14;
    std::vector<std::string> textos_;
    std::function<bool(const std::string&)> marcar_;
    std::vector<int> altos_;
    std::vector<Columna> datosColumna_;
};

}  // namespace cuencalia
