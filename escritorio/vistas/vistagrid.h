#pragma once

#include <QAbstractTableModel>
#include <QRect>
#include <QTableView>

#include "escritorio/vistas/vista.h"
#include "frame/controles/anchogrid.h"

class QLabel;

namespace cuencalia {

/// Gives the widget the cells that are not fixed; fixed rows and columns are its headings. The texts are read from the
/// grid, not copied.
class ModeloGrid : public QAbstractTableModel {
  public:
    ModeloGrid(const FlexGrid& grid, QObject* padre);

    int rowCount(const QModelIndex& padre = {}) const override { return padre.isValid() ? 0 : filas_; }
    int columnCount(const QModelIndex& padre = {}) const override { return padre.isValid() ? 0 : columnas_; }
    QVariant data(const QModelIndex& indice, int rol) const override;
    QVariant headerData(int seccion, Qt::Orientation orientacion, int rol) const override;

    /// Takes over the grid's number of rows and columns; returns whether anything but the number of rows changed.
    bool PonerAlDia();
    /// From then on there is nothing to read: a table may be laid out once more after its form has gone.
    void Soltar() { suelto_ = true; }

  private:
    bool suelto_ = false;
    int filas_ = 0, columnas_ = 0, filasFijas_ = 0, columnasFijas_ = 0;
    const FlexGrid& grid_;
};

/// A table widget whose keys and clicks are handled by VistaGrid.
class TablaGrid : public QTableView {
  public:
    explicit TablaGrid(QWidget* padre) : QTableView(padre) {}

    /// Width at which every column is as wide as the grid says.
    int anchoNatural = 0;
    /// Width that it has on the smallest screen.
    int anchoMinimo = 0;
    /// Height at which all rows are shown, or as many as a data grid shows at first.
    int altoNatural = 0;

    QSize sizeHint() const override { return {anchoNatural, altoNatural}; }
    QSize minimumSizeHint() const override;
    /// Updates the positions of headings and cells after a heading changed its size.
    void Recolocar() { updateGeometries(); }

    std::function<void()> alCambiarTamano;
    std::function<bool(QMouseEvent&)> alPresionar;
    std::function<void(QMouseEvent&)> alArrastrar;
    std::function<void()> alPulsarDosVeces;
    std::function<void(QContextMenuEvent&)> alPedirMenu;

  protected:
    void resizeEvent(QResizeEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void mouseDoubleClickEvent(QMouseEvent* evento) override;
    void contextMenuEvent(QContextMenuEvent* evento) override;
};

class VistaGrid : public Vista {
  public:
    VistaGrid(Anfitrion& anfitrion, FlexGrid& grid, QWidget* padre);

    QTableView* Tabla() const { return tabla_; }
    /// Rectangle of the current cell in the table's viewport.
    QRect CeldaActual() const;

  protected:
    void Mostrar() override;
    void AlSoltar() override;
    bool Tecla(QKeyEvent& evento) override;

  private:
    void AjustarColumnas();
    void MedirColumnas();
    void MostrarSeleccion();
    void MostrarDesplazamiento();
    bool Presionar(QMouseEvent& evento);
    void PulsarEncabezado(int columna);
    void Arrastrar(const QMouseEvent& evento);
    void PedirMenu(const QContextMenuEvent& evento);
    void MenuDeCopia(QPoint donde);
    QModelIndex Indice(int fila, int columna) const;

    FlexGrid& grid_;
    TablaGrid* tabla_;
    ModeloGrid* modelo_;
    QLabel* esquina_;
    std::vector<AnchoColumna> columnas_;
    int filaMostrada_ = -1, superiorMostrada_ = -1;
    bool mostrando_ = false;
};

}  // namespace cuencalia
