#pragma once

#include <optional>
#include <string>
#include <vector>

#include "frame/controles/aplicacion.h"
#include "frame/modulo/avisos.h"
#include "frame/modulo/tabla.h"
#include "frame/reportes/reporte.h"

namespace cuencalia {

/// A button and the name of its pair of pictures.
struct BotonConImagen {
    CommandButton* boton;
    const char* imagen;
};

/// What every module window has, with or without a data grid: the action buttons with their lit pictures, the status
/// bar, the calculation behind its trap, the report and the way back to the main menu. A button that nothing answers is
/// greyed.
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

    bool calculado = false;  ///< Results exist for the commands that need them; each module says when.

    void Form_Load() override;

    /// The calculation; a run-time error in it is told in the module's own words, where it has some.
    void bCalcular_Click();
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
    virtual void LimpiarModulo() { LimpiarResultados(); }
    /// Empties the result tables and boxes, and what else the module clears before a load.
    void LimpiarResultados();

    /// Sets the button's picture at rest (lit false) or lit.
    void EfectoBoton(CommandButton& boton, bool encendido);
    /// All buttons in that container go dark; null: all buttons of the form.
    void ApagarBotones(const Control* contenedor);

  protected:
    virtual void Calcular() = 0;
    /// Clears what is neither a result table nor a result box.
    virtual void LimpiarOtros() {}

    /// The tables that the module fills: built empty at the start, and emptied with the results.
    void DeclararTablas(std::vector<Tabla*> tablas) { tablas_ = std::move(tablas); }
    /// Boxes that show results: not written by the user, and emptied with the results.
    void DeclararResultados(const std::vector<TextBox*>& cajas);
    /// Boxes that the user fills and that are emptied with the results.
    void DeclararEntradas(const std::vector<TextBox*>& cajas);
    /// What a run-time error in Calcular is told as. Without it the error goes on to the program's own handler.
    void AvisarFallos(Aviso aviso) { fallo_ = std::move(aviso); }
    virtual void AlFallar() { App().MsgBox(*fallo_); }

    /// Gives all buttons their pictures: `accion` stand beside Calcular, `otros` elsewhere on the window.
    void DeclararBotones(std::vector<BotonConImagen> accion, const std::vector<BotonConImagen>& otros = {});
    /// The buttons of Frame7, and the order in which they and the calculator's number their pictures.
    virtual std::vector<BotonConImagen> BotonesResultados();

    /// Whether there are results; the user is told when there are none.
    bool ExigirCalculo(const Aviso& aviso = kGraficarSinCalculos);

    /// What stands between the buttons and the status bar.
    virtual Disposicion Cuerpo() = 0;
    Disposicion Disponer() override;
    virtual std::vector<Disposicion> ZonaResultados() { return {bReporte}; }

  private:
    struct BotonNumerado {
        CommandButton* boton;
        int reposo;
    };

    void AgregarBoton(const BotonConImagen& boton);

    std::vector<BotonNumerado> botones_;
    std::vector<Disposicion> botonesAccion_;
    std::vector<Tabla*> tablas_;
    std::vector<TextBox*> cajas_;
    std::optional<Aviso> fallo_;
};

}  // namespace cuencalia
