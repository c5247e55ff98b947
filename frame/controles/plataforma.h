#pragma once

#include <functional>
#include <optional>
#include <string>

#include "frame/base/numeros.h"

namespace cuencalia {

class AccesoHojas;
class Formulario;
class Hoja;
class Menu;

/// Icon of a message box.
enum Icono : int {
    kSinIcono = 0,
    kIconoError = 16,
    kIconoPregunta = 32,
    kIconoAdvertencia = 48,
    kIconoInformacion = 64
};

/// What a message box says.
struct Aviso {
    std::string texto;
    Icono icono = kSinIcono;
    std::string titulo = {};  ///< Empty: the program's own title.
};

/// What a file dialog is for.
enum class ModoArchivo { Abrir, Guardar };

/// A long calculation on data of its own, which touches no control.
struct TrabajoLargo {
    /// Calls its argument now and then with the part that is done, 0 to 1, and ends early when that returns false.
    std::function<void(const std::function<bool(double)>& avanzar)> trabajo;
    std::function<void(double parte)> alAvanzar;  ///< As an event of the program, from time to time.
    std::function<void()> alTerminar;             ///< As an event, once.
};

/// What the program needs from the system on which it runs. The desktop implements it with windows and dialogs; tests
/// and scripts have an implementation without a screen.
class Plataforma {
  public:
    virtual ~Plataforma() = default;

    /// Shows a message and returns when the user has closed it. An empty title means the program's own title.
    virtual void MsgBox(const std::string& texto, Icono icono, const std::string& titulo) = 0;
    /// Asks a question that is answered by yes or no; ENTER answers `porOmision`.
    virtual bool Preguntar(const std::string& texto, const std::string& titulo, bool porOmision) = 0;
    /// The same of a question that may be left unanswered: empty when it was. ENTER answers yes.
    virtual std::optional<bool> PreguntarOCancelar(const std::string& texto, const std::string& titulo) = 0;
    /// Shows the number and text of a run-time error that no handler caught.
    virtual void MostrarError(const ErrorEjecucion& error) = 0;

    /// Shows the window of a loaded form, or brings it to the front if it is shown already.
    virtual void MostrarForma(Formulario& forma) = 0;
    /// Closes the window of a form that is about to be destroyed.
    virtual void DescargarForma(Formulario& forma) = 0;
    /// Opens a menu at the pointer; the entry that the user picks fires its Click before this returns.
    virtual void MenuEmergente(Menu& menu) = 0;
    /// Prints an image of the form on the default printer, with no dialog; tells the user when there is no printer.
    virtual void ImprimirForma(Formulario& forma) = 0;
    /// Lets the user choose a printer, in a dialog with that title, and prints the document, or only its selection.
    /// Cancel prints nothing.
    virtual void ImprimirDocumento(Formulario& documento, bool soloSeleccion, const std::string& titulo) = 0;
    /// Ends the program's message loop.
    virtual void Terminar() = 0;
    /// Called when the user has closed the window of the main menu.
    virtual void MenuPrincipalCerrado() {}
    /// Whether a message box or a dialog is open: until it is closed no other command runs.
    virtual bool Bloqueada() const { return false; }
    /// Called after an event and everything that it caused have been handled: time to repaint.
    virtual void DespuesDeDespachar() {}

    /// Asks the desktop shell to open a file with the user's program for that type. A missing file is no error; a shell
    /// that cannot be called raises ErrorEjecucion.
    virtual void AbrirConShell(const std::string& ruta) = 0;

    /// Folder of the installed program, which contains the help and the correction tables.
    virtual std::string CarpetaInstalacion() const = 0;

    /// Makes the program's folder the current one: file dialogs start there until the user has chosen a file.
    virtual void IrACarpetaDelPrograma() {}
    /// Lets the user choose a file to open or to save. `nombre` holds the name of the last use on entry and the choice
    /// on return; on Cancel it is unchanged. The filter is labels and patterns separated by bars: "Valores X|*.X".
    virtual void ElegirArchivo(ModoArchivo modo, const std::string& titulo, const std::string& filtro,
                               std::string& nombre) = 0;

    /// Reading and writing of workbooks.
    virtual AccesoHojas& Hojas() = 0;
    /// Shows a new workbook with these cells in the user's spreadsheet program; false when the user has none.
    virtual bool MostrarLibro(const Hoja& hoja) = 0;

    /// Does the work while the windows go on, where there are windows; here before it returns.
    // Who goes on takes the work over.  NOLINTNEXTLINE(performance-unnecessary-value-param)
    virtual void EnSegundoPlano(TrabajoLargo trabajo) {
        trabajo.trabajo([](double) { return true; });
        trabajo.alTerminar();
    }

    /// Seconds since midnight, local time, with fractions.
    virtual Double Reloj() const { return Timer(); }

    /// The text on the system's clipboard; empty when there is none.
    virtual std::string TextoDelPortapapeles() const = 0;
    virtual void PonerEnPortapapeles(const std::string& texto) = 0;

    /// A setting of this user, kept between runs of the program, or `porOmision` when it was never stored.
    virtual std::string LeerAjuste(const std::string& clave, const std::string& porOmision) const = 0;
    virtual void GuardarAjuste(const std::string& clave, const std::string& valor) = 0;
};

}  // namespace cuencalia
