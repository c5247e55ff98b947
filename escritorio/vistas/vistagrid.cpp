#include "escritorio/vistas/vistagrid.h"

#include <QAbstractButton>
#include <QApplication>
#include <QBoxLayout>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <algorithm>

#include "escritorio/vistas/estilo.h"

namespace cuencalia {

namespace {

constexpr int kFilasNaturales = 14;
constexpr int kFilasMinimas = 4;
constexpr int kMinimoDatos = 180, kMinimoResultados = 440;  // a wider table is scrolled on a small screen

Qt::Alignment AlineacionDe(int codigo) {
    if (codigo == kAlinearCentro) {
        return Qt::AlignCenter;
    }
    return (codigo == kAlinearDerecha ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
}

}  // namespace

ModeloGrid::ModeloGrid(const FlexGrid& grid, QObject* padre) : QAbstractTableModel(padre), grid_(grid) {}

bool ModeloGrid::PonerAlDia() {
    const int filas = grid_.Rows() - grid_.FixedRows();
    const int columnas = grid_.Cols() - grid_.FixedCols();
    if (columnas != columnas_ || grid_.FixedRows() != filasFijas_ || grid_.FixedCols() != columnasFijas_) {
        beginResetModel();
        filas_ = filas;
        columnas_ = columnas;
        filasFijas_ = grid_.FixedRows();
        columnasFijas_ = grid_.FixedCols();
        endResetModel();
        return true;
    }
    if (filas > filas_) {
        beginInsertRows({}, filas_, filas - 1);
        filas_ = filas;
        endInsertRows();
    } else if (filas < filas_) {
        beginRemoveRows({}, filas, filas_ - 1);
        filas_ = filas;
        endRemoveRows();
    }
    return false;
}

QVariant ModeloGrid::data(const QModelIndex& indice, int rol) const {
    const int fila = indice.row() + filasFijas_;
    const int columna = indice.column() + columnasFijas_;
    if (suelto_ || fila >= grid_.Rows() || columna >= grid_.Cols()) {
        return {};
    }
    switch (rol) {
        case Qt::DisplayRole:
            return Q(grid_.TextMatrix(fila, columna));
        case Qt::TextAlignmentRole:
            return QVariant(AlineacionDe(grid_.ColAlignment(columna)));
        case Qt::BackgroundRole:
            return grid_.EstaMarcada(fila, columna) ? QVariant(estilo::FondoAviso()) : QVariant();
        case Qt::ToolTipRole:
            return grid_.EstaMarcada(fila, columna)
                       ? QVariant(QStringLiteral("No es un número: cuenta hasta donde se lee, o como 0"))
                       : QVariant();
        default:
            return {};
    }
}

QVariant ModeloGrid::headerData(int seccion, Qt::Orientation orientacion, int rol) const {
    if (suelto_) {
        return {};
    }
    if (orientacion == Qt::Horizontal) {
        const int columna = seccion + columnasFijas_;
        if (rol != Qt::DisplayRole || columna >= grid_.Cols()) {
            return {};
        }
        QStringList renglones;
        for (int f = 0; f < filasFijas_; ++f) {
            renglones << Q(grid_.TextMatrix(f, columna));
        }
        return renglones.join(QLatin1Char('\n'));
    }
    const int fila = seccion + filasFijas_;
    if (columnasFijas_ == 0 || fila >= grid_.Rows()) {
        return {};
    }
    if (rol == Qt::DisplayRole) {
        return Q(grid_.TextMatrix(fila, 0)).trimmed();
    }
    if (rol == Qt::TextAlignmentRole) {
        return QVariant(AlineacionDe(grid_.ColAlignment(0)));
    }
    return {};
}

QSize TablaGrid::minimumSizeHint() const {
    const int fila = verticalHeader()->defaultSectionSize();
    const int filas = model() == nullptr ? kFilasMinimas : std::min(kFilasMinimas, model()->rowCount());
    return {anchoMinimo, horizontalHeader()->height() + filas * fila + 2 * frameWidth()};
}

void TablaGrid::resizeEvent(QResizeEvent* evento) {
    QTableView::resizeEvent(evento);
    if (alCambiarTamano) {
        alCambiarTamano();
    }
}

void TablaGrid::mousePressEvent(QMouseEvent* evento) {
    if (!alPresionar || !alPresionar(*evento)) {
        QTableView::mousePressEvent(evento);
    }
}

void TablaGrid::mouseMoveEvent(QMouseEvent* evento) {
    if (alArrastrar && (evento->buttons() & Qt::LeftButton)) {
        alArrastrar(*evento);
    }
}

void TablaGrid::mouseDoubleClickEvent(QMouseEvent* evento) {
    mousePressEvent(evento);
    if (alPulsarDosVeces && evento->button() == Qt::LeftButton && indexAt(evento->position().toPoint()).isValid()) {
        alPulsarDosVeces();
    }
}

void TablaGrid::contextMenuEvent(QContextMenuEvent* evento) {
    if (alPedirMenu) {
        alPedirMenu(*evento);
    }
    evento->accept();
}

VistaGrid::VistaGrid(Anfitrion& anfitrion, FlexGrid& grid, QWidget* padre)
    : Vista(anfitrion, grid, new TablaGrid(padre)),
      grid_(grid),
      tabla_(static_cast<TablaGrid*>(Widget())),
      modelo_(new ModeloGrid(grid, this)),
      esquina_(nullptr) {
    tabla_->setModel(modelo_);
    tabla_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tabla_->setTabKeyNavigation(false);
    tabla_->setSelectionMode(QAbstractItemView::ContiguousSelection);
    tabla_->setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    tabla_->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    tabla_->setWordWrap(false);
    tabla_->viewport()->setMouseTracking(true);
    // A grid that takes no typing does not show its current cell while another control has the focus.
    tabla_->setProperty("lectura", EsDeLectura(grid));
    tabla_->setProperty("varias", false);
    tabla_->setProperty("marco", grid.BorderStyle());

    const int alto = std::max(estilo::Pixeles(grid.RowHeight(grid.Rows() - 1)), tabla_->fontMetrics().height() + 6);
    tabla_->verticalHeader()->setDefaultSectionSize(alto);
    tabla_->verticalHeader()->setMinimumSectionSize(alto);
    tabla_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    tabla_->verticalHeader()->setHighlightSections(false);
    tabla_->horizontalHeader()->setHighlightSections(false);
    tabla_->horizontalHeader()->setSectionsClickable(grid.PulsarEncabezado.Atendido());
    tabla_->horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);

    // The heading of the label column is shown in the corner, which the toolkit's table leaves blank.
    if (auto* boton = tabla_->findChild<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly)) {
        boton->setAttribute(Qt::WA_TransparentForMouseEvents, !grid.PulsarEncabezado.Atendido());
        boton->disconnect(tabla_);  // it stands for a heading, not for the whole table
        connect(boton, &QAbstractButton::clicked, this, [this] { PulsarEncabezado(0); });
        esquina_ = new QLabel(boton);
        esquina_->setAlignment(Qt::AlignCenter);
        esquina_->setAttribute(Qt::WA_TransparentForMouseEvents);
        auto* caja = new QVBoxLayout(boton);
        caja->setContentsMargins(0, 0, 0, 0);
        caja->addWidget(esquina_);
    }

    tabla_->alCambiarTamano = [this] { AjustarColumnas(); };
    tabla_->alPresionar = [this](QMouseEvent& evento) { return Presionar(evento); };
    tabla_->alArrastrar = [this](QMouseEvent& evento) { Arrastrar(evento); };
    tabla_->alPulsarDosVeces = [this] { anfitrion_.App().Despachar([this] { grid_.DblClick(); }); };
    tabla_->alPedirMenu = [this](const QContextMenuEvent& evento) { PedirMenu(evento); };
    connect(tabla_->verticalScrollBar(), &QScrollBar::valueChanged, this, [this](int valor) {
        const int superior = valor + grid_.FixedRows();
        if (!mostrando_ && superior != grid_.TopRow()) {
            anfitrion_.App().Despachar([&] { grid_.DesplazadoPorUsuario(superior); });
        }
    });
    // A press on a row's label is passed to the grid as a press on that row, in place of the widget's own selection of
    // the row.
    disconnect(tabla_->verticalHeader(), SIGNAL(sectionPressed(int)), tabla_, nullptr);
    disconnect(tabla_->verticalHeader(), SIGNAL(sectionEntered(int)), tabla_, nullptr);
    connect(tabla_->verticalHeader(), &QHeaderView::sectionPressed, this, [this](int seccion) {
        anfitrion_.App().Despachar([&] { grid_.Presionar(kBotonIzquierdo, seccion + grid_.FixedRows(), 0); });
    });
    disconnect(tabla_->horizontalHeader(), SIGNAL(sectionPressed(int)), tabla_, nullptr);
    disconnect(tabla_->horizontalHeader(), SIGNAL(sectionEntered(int)), tabla_, nullptr);
    connect(tabla_->horizontalHeader(), &QHeaderView::sectionClicked, this,
            [this](int seccion) { PulsarEncabezado(seccion + grid_.FixedCols()); });
}

void VistaGrid::PulsarEncabezado(int columna) {
    anfitrion_.App().Despachar([&] { grid_.Presionar(kBotonIzquierdo, 0, columna); });
}

void VistaGrid::AlSoltar() {
    modelo_->Soltar();
    tabla_->alCambiarTamano = nullptr;
    tabla_->alPresionar = nullptr;
    tabla_->alArrastrar = nullptr;
    tabla_->alPulsarDosVeces = nullptr;
}

QModelIndex VistaGrid::Indice(int fila, int columna) const {
    return modelo_->index(fila - grid_.FixedRows(), columna - grid_.FixedCols());
}

QRect VistaGrid::CeldaActual() const { return tabla_->visualRect(Indice(grid_.Row(), grid_.Col())); }

void VistaGrid::MedirColumnas() {
    tabla_->ensurePolished();  // sets the font of the style, also before the window is first shown
    const QFontMetrics letra = tabla_->fontMetrics();
    std::vector<AnchoColumna> columnas = cuencalia::MedirColumnas(
        grid_, [&letra](const std::string& texto) { return letra.horizontalAdvance(Q(texto).trimmed()); });
    if (columnas == columnas_) {
        return;
    }
    columnas_ = std::move(columnas);
    tabla_->anchoNatural = tabla_->anchoMinimo =
        tabla_->style()->pixelMetric(QStyle::PM_ScrollBarExtent) + 2 * tabla_->frameWidth() + 2;
    for (const AnchoColumna& columna : columnas_) {
        tabla_->anchoNatural += columna.ancho;
        tabla_->anchoMinimo += columna.minimo;
    }
    tabla_->anchoMinimo = std::min(tabla_->anchoMinimo, EsDeLectura(grid_) ? kMinimoResultados : kMinimoDatos);
    const bool conEtiquetas = grid_.FixedCols() > 0;
    tabla_->verticalHeader()->setVisible(conEtiquetas);
    if (conEtiquetas && !columnas_.empty()) {
        tabla_->verticalHeader()->setFixedWidth(columnas_[0].ancho);
    }
    tabla_->Recolocar();
    tabla_->updateGeometry();
    AjustarColumnas();
}

void VistaGrid::AjustarColumnas() {
    if (columnas_.size() <= static_cast<std::size_t>(grid_.FixedCols())) {
        return;
    }
    int columna = 0;
    for (const int ancho :
         RepartirAncho({columnas_.begin() + grid_.FixedCols(), columnas_.end()}, tabla_->viewport()->width())) {
        tabla_->setColumnWidth(columna++, ancho);
    }
    const int alto = tabla_->verticalHeader()->defaultSectionSize();
    grid_.PonerFilasVisibles(tabla_->viewport()->height() / std::max(1, alto));
}

void VistaGrid::MostrarSeleccion() {
    QItemSelectionModel* seleccion = tabla_->selectionModel();
    const QModelIndex actual = Indice(grid_.Row(), grid_.Col());
    if (!actual.isValid()) {
        seleccion->clear();
        return;
    }
    if (tabla_->currentIndex() != actual) {
        seleccion->setCurrentIndex(actual, QItemSelectionModel::NoUpdate);
    }
    const QModelIndex desde = Indice(std::min(grid_.Row(), grid_.RowSel()), std::min(grid_.Col(), grid_.ColSel()));
    const QModelIndex hasta = Indice(std::max(grid_.Row(), grid_.RowSel()), std::max(grid_.Col(), grid_.ColSel()));
    if (desde.isValid() && hasta.isValid()) {
        seleccion->select(QItemSelection(desde, hasta), QItemSelectionModel::ClearAndSelect);
    }
    if (tabla_->property("varias").toBool() != (desde != hasta)) {
        tabla_->setProperty("varias", desde != hasta);
        tabla_->style()->polish(tabla_);
    }
}

void VistaGrid::MostrarDesplazamiento() {
    if (grid_.TopRow() != superiorMostrada_) {
        tabla_->verticalScrollBar()->setValue(grid_.TopRow() - grid_.FixedRows());
    }
    if (grid_.Row() != filaMostrada_) {
        filaMostrada_ = grid_.Row();
        tabla_->scrollTo(Indice(grid_.Row(), grid_.Col()), QAbstractItemView::EnsureVisible);
    }
    superiorMostrada_ = grid_.TopRow();
}

void VistaGrid::Mostrar() {
    const QScopedValueRollback<bool> mostrando(mostrando_, true);
    const bool reiniciado = modelo_->PonerAlDia();
    if (reiniciado) {
        columnas_.clear();
        filaMostrada_ = superiorMostrada_ = -1;
    }
    MedirColumnas();
    const int alto = estilo::Pixeles(grid_.Rows() > 0 ? grid_.RowHeight(0) : 340);
    const int renglon = tabla_->fontMetrics().height();
    tabla_->horizontalHeader()->setVisible(grid_.FixedRows() > 0);
    tabla_->horizontalHeader()->setFixedHeight(std::max(alto, grid_.FixedRows() * renglon + 6));
    const int filas = std::clamp(grid_.Rows() - grid_.FixedRows(), 1, kFilasNaturales);
    const int natural = tabla_->horizontalHeader()->height() + filas * tabla_->verticalHeader()->defaultSectionSize() +
                        2 * tabla_->frameWidth() + 2;
    if (natural != tabla_->altoNatural) {
        tabla_->altoNatural = natural;
        tabla_->updateGeometry();
    }
    if (esquina_ != nullptr && grid_.FixedCols() > 0 && grid_.Rows() > 0) {
        esquina_->setText(Q(grid_.TextMatrix(0, 0)));
    }
    MostrarSeleccion();
    MostrarDesplazamiento();
    tabla_->viewport()->update();
    tabla_->verticalHeader()->viewport()->update();
    tabla_->horizontalHeader()->viewport()->update();
}

bool VistaGrid::Tecla(QKeyEvent& evento) {
    if (evento.key() == Qt::Key_Tab || evento.key() == Qt::Key_Backtab) {
        return false;
    }
    const int codigo = CodigoDeTecla(evento);
    if (EsOrden(evento)) {
        static constexpr int kConControl[] = {
            kTeclaArriba, kTeclaAbajo, kTeclaIzquierda, kTeclaDerecha, kTeclaInicio, kTeclaFin, 'A', 'C', 'V',
            'Y',          'Z'};
        const bool nuestra = (evento.modifiers() & Qt::ControlModifier) &&
                             std::find(std::begin(kConControl), std::end(kConControl), codigo) != std::end(kConControl);
        if (nuestra) {
            anfitrion_.App().PulsarTecla(codigo, 0, ModificadoresDe(evento));
        }
        return nuestra;
    }
    const int caracter = CaracterDe(evento);
    if (codigo == 0 && caracter == 0) {
        return false;
    }
    anfitrion_.App().PulsarTecla(codigo, caracter, caracter == 0 ? ModificadoresDe(evento) : kSinModificador);
    return true;
}

bool VistaGrid::Presionar(QMouseEvent& evento) {
    const QModelIndex indice = tabla_->indexAt(evento.position().toPoint());
    const bool conocido = evento.button() == Qt::LeftButton || evento.button() == Qt::RightButton;
    if (!indice.isValid() || !conocido) {
        return true;
    }
    if (evento.button() == Qt::RightButton && !grid_.MouseDown.Atendido() &&
        tabla_->selectionModel()->isSelected(indice)) {
        anfitrion_.App().Despachar([this] { grid_.SetFocus(); });
        return true;  // the selection is what the menu copies
    }
    const BotonRaton boton = evento.button() == Qt::RightButton ? kBotonDerecho : kBotonIzquierdo;
    anfitrion_.App().Despachar(
        [&] { grid_.Presionar(boton, indice.row() + grid_.FixedRows(), indice.column() + grid_.FixedCols()); });
    return true;
}

void VistaGrid::Arrastrar(const QMouseEvent& evento) {
    const QModelIndex indice = tabla_->indexAt(evento.position().toPoint());
    if (indice.isValid()) {
        anfitrion_.App().Despachar(
            [&] { grid_.Seleccionar(indice.row() + grid_.FixedRows(), indice.column() + grid_.FixedCols()); });
    }
}

/// A grid that handles the right button itself, the data grid, has a menu of its own.
void VistaGrid::PedirMenu(const QContextMenuEvent& evento) {
    const bool deTeclado = evento.reason() == QContextMenuEvent::Keyboard;
    if (!grid_.MouseDown.Atendido()) {
        MenuDeCopia(deTeclado ? tabla_->viewport()->mapToGlobal(CeldaActual().center()) : evento.globalPos());
    } else if (deTeclado && grid_.Row() < grid_.Rows()) {
        anfitrion_.App().Despachar([&] { grid_.Presionar(kBotonDerecho, grid_.Row(), grid_.Col()); });
    }
}

void VistaGrid::MenuDeCopia(QPoint donde) {
    auto* menu = new QMenu(tabla_);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto agregar = [&](const char* texto, std::string (FlexGrid::*que)(bool) const, bool conEncabezados) {
        connect(menu->addAction(QString::fromUtf8(texto)), &QAction::triggered, this, [this, que, conEncabezados] {
            anfitrion_.App().Despachar(
                [&] { anfitrion_.App().Sistema().PonerEnPortapapeles((grid_.*que)(conEncabezados)); });
        });
    };
    agregar("&Copiar", &FlexGrid::TextoSeleccionado, false);
    agregar("Copiar con &encabezados", &FlexGrid::TextoSeleccionado, true);
    menu->addSeparator();
    agregar("Copiar la &tabla", &FlexGrid::TextoCompleto, false);
    agregar("Copiar la tabla con e&ncabezados", &FlexGrid::TextoCompleto, true);
    menu->popup(donde);
}

}  // namespace cuencalia
