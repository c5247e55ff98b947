#pragma once

#include <string>
#include <utility>
#include <vector>

#include "frame/controles/aplicacion.h"
#include "frame/base/archivoserie.h"
#include "frame/controles/controles.h"
#include "frame/controles/dialogo.h"
#include "frame/controles/flexgrid.h"
#include "frame/base/numeros.h"
#include "frame/reportes/reporte.h"

namespace cuencalia {

/// How the edit box offers the number that a cell holds already.
inline constexpr const char* kPatronEdicionA = "#0.0#######";
inline constexpr const char* kPatronEdicionB = "0.0#######";

/// What stands in the first column of a data row.
enum class EtiquetaFila {
    Numero,  ///< " 1", " 2", …
    Mes,     ///< "Ene" … "Dic", from January again after each December
};

/// What tells one calculation module from another in the frame that they share.
struct DescripcionModulo {
    std::string titulo;
    std::vector<std::string> encabezados;         ///< Of the data grid, the row label's first.
    std::vector<int> anchos = {};                 ///< Twips; columns without one have 700 (labels) or 1800.
    std::string patronEdicion = kPatronEdicionA;  ///< kPatronEdicionA or kPatronEdicionB.
    EtiquetaFila etiquetas = EtiquetaFila::Numero;
    int columnaSel = 0;         ///< Last column that a right click selects; 0: the last data column.
    int columnaSelEntrada = 0;  ///< The same on the entry row; 0: as elsewhere.
    std::string tituloDatos = "Ingreso de datos:";
    const TipoArchivo* archivo = nullptr;  ///< Of the module's series files; null for a module without files.
};

/// What every module window has, with or without a data grid: the action buttons with their lit pictures, the status
/// bar and the way back to the main menu. A button that nothing answers is greyed.
class MarcoModulo : public Formulario {
  public:
    MarcoModulo(Aplicacion& app, std::string nombre, const std::string& titulo);

    Frame Frame6{*this, "Frame6"};
    Frame Frame7{*this, "Frame7", "Archivos y resultados:"};
    Frame fraCalculadora{*this, "fraCalculadora"};
    ImageList ImageList1{*this, "ImageList1"};
    StatusBar StatusBar1{*this, "StatusBar1", 1};
    CommandButton bCalcular{*this, "bCalcular", "Calc&ular", "Efectuar cálculos"};
    CommandButton bLimpiar{*this, "bLimpiar", "&Limpiar", "Limpiar pantalla"};
    CommandButton bImprimir{*this, "bImprimir", "&Imprimir", "Imprimir pantalla"};
    CommandButton bMenu{*this, "bMenu", "&Menú Principal", "Retornar menú principal"};
    CommandButton bReporte{*this, "bReporte", "&Reporte", "Generar reporte"};
    CommandButton bCalculadora{*this, "bCalculadora", "Calculadora", "Calculadora científica"};

    void Form_Load() override;

    virtual void bCalcular_Click() = 0;
    void bLimpiar_Click() { LimpiarModulo(); }
    virtual void bImprimir_Click();
    void bMenu_Click();
    /// Opens the pocket calculator.
    void bCalculadora_Click();
    /// Shows the report window and writes the module's report into its active document.
    void bReporte_Click();

    /// The module's report, from the head on.
    virtual void GenerarReporte(Reporte& reporte) = 0;

    /// Empties the window as if it had just been opened.
    virtual void LimpiarModulo() = 0;

    /// Sets the button's picture at rest (lit false) or lit.
    void EfectoBoton(CommandButton& boton, bool encendido);
    /// All buttons in that container go dark; null: all buttons of the form.
    void ApagarBotones(const Control* contenedor);

  protected:
    /// Gives the button its pair of pictures and its hover effect. The order of the calls numbers the pictures.
    void AgregarBoton(CommandButton& boton, const std::string& imagen);

  private:
    struct BotonConImagen {
        CommandButton* boton;
        int reposo;
    };

    std::vector<BotonConImagen> botones_;
};

/// A module whose data are typed into a grid: the frame of nearly all calculation windows. `grdt` is the master copy of
/// the data; a module reads it into its arrays by CargarMatrices before each use.
///
/// The last row of the grid is the entry row: it becomes data when its last column is confirmed.
class ModuloCalculo : public MarcoModulo {
  public:
    ModuloCalculo(Aplicacion& app, std::string nombre, DescripcionModulo descripcion);

    Label lbl1{*this, "lbl1", {}, Papel::Encabezado};
    FlexGrid grdt{*this, "grdt"};
    TextBox txtt{*this, "txtt", "Dato de la celda"};
    Label Label2{*this, "Label2", "Nota:", Papel::Nota};
    Label Label1{*this, "Label1", "Una vez que digite el dato, presionar ENTER", Papel::Nota};
    Menu mnuEdicion{*this, "mnuEdicion", "Edición", false};
    Menu mnuEditInsertar{mnuEdicion, "mnuEditInsertar", "Insertar Fila"};
    Menu mnuEditraya1{mnuEdicion, "mnuEditraya1", "-"};
    Menu mnuEditEliminar{mnuEdicion, "mnuEditEliminar", "Eliminar Fila"};
    CommandButton bCrear{*this, "bCrear", "&Crear", "Crear archivo"};
    CommandButton bAccesar{*this, "bAccesar", "&Accesar", "Cargar archivo"};
    CommandButton bCargarExcel{*this, "bCargarExcel", "&Excel", "Cargar archivo desde Excel"};
    CommonDialog cdCrear{*this, "cdCrear"}, cdAccesar{*this, "cdAccesar"}, cdCargarExcel{*this, "cdCargarExcel"};

    /// Number of data rows at the last CargarMatrices; stale after any edit of the grid.
    int n = 0;

    const DescripcionModulo& Descripcion() const { return descripcion_; }

    void Form_Load() override;

    /// Empties the data grid and builds its headings.
    void IniciarGrid();
    /// Builds the module's empty result grids.
    virtual void InicializarResultados() {}
    /// Reads the grid into the module's arrays and sets `n`. Error 9 when the rows exceed an array.
    virtual void CargarMatrices();
    /// Opens the edit box over the current cell; a printable character replaces what the cell held.
    void GridEdit(int keyAscii);
    /// Stores the edit box in the cell and moves on, as ENTER does.
    void ConfirmarCelda();
    void MoverCelda();
    void RenumerarGrid();
    void CambioFilaGrid();
    void InsertarFila();
    void EliminarFila();
    void LimpiarModulo() override;
    void MenorQue2Celdas() { IrACeldaPorLlenar(2); }
    void MenorQue4Celdas() { IrACeldaPorLlenar(4); }
    void MenorQue5Celdas() { IrACeldaPorLlenar(5); }

    /// Stores the grid's columns as Single records; an older file of that name goes without a question.
    void bCrear_Click();
    /// Reads a series file into the grid.
    void bAccesar_Click();
    /// Reads the first sheet of a workbook, from A1 to the first empty cell of column A, into the grid.
    void bCargarExcel_Click();

    /// Label of data row i (from 1).
    std::string Etiqueta(int i) const;

  protected:
    /// Gives all buttons of the frame their pictures, with the module's own ones after Calcular.
    void AgregarBotones(const std::vector<std::pair<CommandButton*, const char*>>& propios);
    /// The arrays that CargarMatrices fills, one for each data column.
    void LeerEn(std::vector<ArregloBase<Double>*> columnas) { columnas_ = std::move(columnas); }
    /// Records that a module's files hold besides those of the data rows, written after them.
    virtual std::vector<Registro> RegistrosDeCola() { return {}; }
    /// Clears the module's other results; part of LimpiarModulo and of each load.
    virtual void LimpiarOtros() {}

    /// What the module shows beside the data grid.
    virtual Disposicion Contenido() = 0;
    /// The grid with its heading and its note.
    Disposicion ZonaDatos();
    /// The action buttons with the module's own ones among them, and the group of files and results.
    virtual Disposicion ZonaBotones();
    /// Buttons of Frame6, in order; a module with more of them gives its own list.
    virtual std::vector<Disposicion> BotonesAccion();
    Disposicion Disponer() override;

  private:
    int UltimaColumna() const { return static_cast<int>(descripcion_.encabezados.size()) - 1; }
    int FilaEntrada() const { return grdt.Rows() - 1; }
    bool EnFilaEntrada() const { return grdt.Row() == FilaEntrada(); }
    void Marcar(const char* marca) { grdt.PonerTextMatrix(FilaEntrada(), 0, marca); }
    void VaciarFila(int fila);
    void IrACeldaPorLlenar(int k);

    /// Runs a file command under the trap that all three share: a cancelled dialog gives the message with the file's
    /// name, any other error ends the command in silence with what was done so far.
    void ConTrampa(const char* mensaje, const std::function<void()>& orden);
    void LimpiarResultados();
    /// Marks the end of a load and leaves the cursor on the entry row.
    void TerminarCarga(int filas);

    void grdt_GotFocus();
    void grdt_KeyDown(int codigo);
    void grdt_KeyPress(int& keyAscii);
    void grdt_MouseDown(int boton);
    void OcultarEdicion();
    void txtt_KeyDown(int codigo);

    DescripcionModulo descripcion_;
    std::vector<ArregloBase<Double>*> columnas_;
};

}  // namespace cuencalia
