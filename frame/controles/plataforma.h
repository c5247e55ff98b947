#pragma once

#include <string>

#include "frame/base/errores.h"

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
    std::string titulo = {};  ///< Empty: the program's own.
};

/// What a file dialog is for.
enum class ModoArchivo { Abrir, Guardar };

/// What the program asks of the system that it runs on. The desktop answers with windows and dialogs, tests and scripts
/// with a platform of their own.
class Plataforma {
  public:
    virtual ~Plataforma() = default;

    /// Shows a message and returns when it was read. An empty title means the program's own.
    virtual void MsgBox(const std::string& texto, Icono icono, const std::string& titulo) = 0;
    /// Shows the number and text of a run-time error that no handler caught.
    virtual void MostrarError(const ErrorEjecucion& error) = 0;

    /// A form was loaded and is to be shown, or is shown already: its window comes to the front.
    virtual void MostrarForma(Formulario& forma) = 0;
    /// The form is about to go: its window closes.
    virtual void DescargarForma(Formulario& forma) = 0;
    /// Opens a menu at the pointer; the entry that the user picks fires its Click before this returns.
    virtual void MenuEmergente(Menu& menu) = 0;
    /// Sends the form's image to the default printer, with no dialog; tells the user where there is no printer.
    virtual void ImprimirForma(Formulario& forma) = 0;
    /// Asks for a printer under that title and prints the document, or what is selected in it. Cancel prints nothing.
    virtual void ImprimirDocumento(Formulario& documento, bool soloSeleccion, const std::string& titulo) = 0;
    /// Ends the program's message loop.
    virtual void Terminar() = 0;
    /// Runs after each event and all that came of it: the moment to paint.
    virtual void DespuesDeDespachar() {}

    /// Asks the shell to open a file with the program that the user has for it. A missing file is no error; a shell
    /// that cannot be called is (ErrorEjecucion).
    virtual void AbrirConShell(const std::string& ruta) = 0;

    /// Folder of the installed program: help and correction tables stand below it.
    virtual std::string CarpetaInstalacion() const = 0;

    /// Makes the program's folder the current one, where file dialogs without an earlier choice begin.
    virtual void IrACarpetaDelPrograma() {}
    /// Asks for a file to open or to save. `nombre` comes in as the name of the last use and goes out as the choice;
    /// on Cancel it stays as it was. The filter joins labels and patterns by bars: "Valores X|*.X".
    virtual void ElegirArchivo(ModoArchivo modo, const std::string& titulo, const std::string& filtro,
                               std::string& nombre) = 0;

    /// Reading and writing of workbooks.
    virtual AccesoHojas& Hojas() = 0;
    /// Shows a new workbook with these cells in the user's spreadsheet program.
    virtual void MostrarLibro(const Hoja& hoja) = 0;

    /// The text on the system's clipboard; empty when there is none.
    virtual std::string TextoDelPortapapeles() const = 0;
    virtual void PonerEnPortapapeles(const std::string& texto) = 0;

    /// A setting of this user, kept between runs, or `porOmision`.
    virtual std::string LeerAjuste(const std::string& clave, const std::string& porOmision) const = 0;
    virtual void GuardarAjuste(const std::string& clave, const std::string& valor) = 0;
};

}  // namespace cuencalia
