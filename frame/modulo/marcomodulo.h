#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "frame/controles/aplicacion.h"
#include "frame/modulo/avisos.h"
#include "frame/modulo/tabla.h"
#include "frame/reportes/grafico.h"
#include "frame/reportes/reporte.h"

namespace cuencalia {

/// A button and the name of its two pictures, normal and lit.
struct BotonConImagen {
    CommandButton* boton;
    const char* imagen;
};

/// What every module window has, with or without a data grid: the action buttons with their lit pictures, the status
/// bar, the calculation with its error handling, the report and the way back to the main menu. A button whose Click has
/// no handler is greyed.
class MarcoModulo : public Formulario {
  public:
    MarcoModulo(Aplicacion& app, std::string nombre, const std::string& titulo);

    Frame Frame6{*this, "Frame6"};
    Frame Frame7{*this, "Frame7", "Archivos y resultados:"};
    Frame fraCalculadora{*this, "fraCalculadora"};
    ImageList ImageList1{*this, "ImageList1"};
    StatusBar StatusBar1{*this, "StatusBar1", 3};
    CommandButton bCalcular{*this, "bCalcular", "Calc&ular", "Efectuar cálculos"};
    CommandButton bLimpiar{*this, "bLimpiar", "&Limpiar", "Limpiar pantalla"};
    CommandButton bImprimir{*this, "bImprimir", "&Imprimir", "Imprimir pantalla"};
    CommandButton bMenu{*this, "bMenu", "&Menú Principal", "Retornar menú principal"};
    CommandButton bReporte{*this, "bReporte", "&Reporte", "Generar reporte"};
    CommandButton bCalculadora{*this, "bCalculadora", "Calculadora", "Calculadora científica"};

    /// Whether results exist for the commands that need them: set by a calculation that succeeded, gone with the
    /// results.
    bool calculado = false;

    void Form_Load() override;

    /// Runs Calcular; a run-time error shows the module's own message, if it has declared one.
    void bCalcular_Click();
    void bLimpiar_Click() { LimpiarModulo(); }
    virtual void bImprimir_Click();
    void bMenu_Click();
    /// Opens the pocket calculator.
    void bCalculadora_Click();
    /// Shows the report window and writes the module's report into its active document.
    void bReporte_Click();

    /// Writes the module's report from its heading on.
    virtual void GenerarReporte(Reporte& reporte) = 0;

    /// When something that was declared is emptied.
    enum class Momento {
        Siempre,    ///< With the results.
        AlLimpiar,  ///< When the user empties the window, but not when data are loaded.
        AlCargar    ///< When data are loaded, but not when the user empties the window.
    };

    /// Empties the window for the user, and its results before data are loaded: all that the window and its groups of
    /// controls have declared below, in the order in which they did.
    virtual void LimpiarModulo() { Vaciar(Momento::AlLimpiar); }
    virtual void LimpiarResultados() { Vaciar(Momento::AlCargar); }

    /// Declares result tables: their headings are built when the form loads, and they are emptied with the results.
    void DeclararTablas(const std::vector<Tabla*>& tablas);
    /// Declares charts: they are hidden with the results, on a background of that colour.
    void DeclararGraficos(const std::vector<GraficoModulo*>& graficos, int fondo = kFondoPapel);
    /// Declares boxes that show results: the user cannot edit them, and they are emptied with the results.
    void DeclararResultados(const std::vector<TextBox*>& cajas);
    /// Declares boxes that the user fills.
    void DeclararEntradas(const std::vector<TextBox*>& cajas, Momento momento = Momento::Siempre);
    /// Declares what goes back with the results to how it stands now: controls, or a variable of the module.
    void DeclararInicio(const std::vector<Control*>& controles);
    template <typename T>
    void DeclararInicio(T& variable) {
        DeclararLimpieza([&variable, inicio = variable] { variable = inicio; });
    }
    /// Declares anything else that is done then.
    void DeclararLimpieza(std::function<void()> accion, Momento momento = Momento::Siempre);

    /// Shows the lit picture of the button, or the normal one.
    void EfectoBoton(CommandButton& boton, bool encendido);
    /// Shows the normal picture of all buttons in that container; null: of all buttons of the form.
    void ApagarBotones(const Control* contenedor);

  protected:
    /// Says in the status bar which box holds a text that is not read whole.
    void AntesDeOrden() override;

    /// Calculates and shows the results. Returns whether they are those of the data on the window: false when the data
    /// were refused, after the user was told why.
    virtual bool Calcular() = 0;
    /// Runs Calcular, and sets `calculado` when it succeeds.
    void EfectuarCalculo();
    /// Called when Calcular has succeeded.
    virtual void AlCalcular() {}
    /// What the user can do about a run-time error that stopped Calcular; empty when nothing is known.
    virtual std::string Consejo(const ErrorEjecucion& /*error*/) const { return {}; }
    /// Sets the message shown for a run-time error in Calcular. Without it the error goes on to the program's own
    /// handler.
    void AvisarFallos(Aviso aviso) { fallo_ = std::move(aviso); }
    virtual void AlFallar() { App().MsgBox(*fallo_); }

    /// Gives all buttons their pictures: the buttons in `accion` are placed beside Calcular, those in `otros`
    /// elsewhere.
    void DeclararBotones(std::vector<BotonConImagen> accion, const std::vector<BotonConImagen>& otros = {});
    /// The buttons of Frame7 and of the calculator, in the order in which their pictures are numbered.
    virtual std::vector<BotonConImagen> BotonesResultados();

    /// Returns whether there are results; when there are none, shows `aviso`.
    bool ExigirCalculo(const Aviso& aviso = kGraficarSinCalculos);

    /// Layout of the part between the buttons and the status bar.
    virtual Disposicion Cuerpo() = 0;
    Disposicion Disponer() override;
    virtual std::vector<Disposicion> ZonaResultados() { return {bReporte}; }

  private:
    /// Says in the status bar what was read of the box, when it is not the whole text.
    void DecirLectura(const TextBox& caja);
    struct BotonNumerado {
        CommandButton* boton;
        int reposo;
    };

    void AgregarBoton(const BotonConImagen& boton);
    void Vaciar(Momento momento);

    std::vector<BotonNumerado> botones_;
    std::vector<Disposicion> botonesAccion_;
    std::vector<Tabla*> tablas_;
    struct Limpieza {
        Momento momento;
        std::function<void()> accion;
    };
    std::vector<Limpieza> limpiezas_;
    std::optional<Aviso> fallo_;
};

}  // namespace cuencalia
