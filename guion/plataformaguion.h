#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "frame/base/hojas.h"
#include "frame/controles/plataforma.h"
#include "hojas/libros.h"

namespace cuencalia {

struct Mensaje {
    std::string texto;
    Icono icono;
    std::string titulo;
};

/// A platform without a screen: the script or test sets the answers of the user in advance and reads what the program
/// showed.
class PlataformaGuion : public Plataforma {
  public:
    void MsgBox(const std::string& texto, Icono icono, const std::string& titulo) override;
    /// The question counts as a message; the answer is yes.
    bool Preguntar(const std::string& texto, const std::string& titulo, bool porOmision) override;
    std::optional<bool> PreguntarOCancelar(const std::string& texto, const std::string& titulo) override {
        return Preguntar(texto, titulo, true);
    }
    void MostrarError(const ErrorEjecucion& error) override;
    void MostrarForma(Formulario& forma) override;
    void DescargarForma(Formulario& forma) override;
    void MenuEmergente(Menu& menu) override;
    void ImprimirForma(Formulario& forma) override;
    void ImprimirDocumento(Formulario& documento, bool soloSeleccion, const std::string& titulo) override;
    AccesoHojas& Hojas() override { return libros_; }
    bool MostrarLibro(const Hoja& hoja) override {
        libro = hoja;
        return false;
    }
    Double Reloj() const override { return reloj ? *reloj : Timer(); }
    void Terminar() override { terminado = true; }
    void AbrirConShell(const std::string& ruta) override;
    std::string CarpetaInstalacion() const override { return carpeta ? *carpeta : CarpetaCompartida(); }
    void ElegirArchivo(ModoArchivo modo, const std::string& titulo, const std::string& filtro,
                       std::string& nombre) override;
    std::string TextoDelPortapapeles() const override { return portapapeles; }
    void PonerEnPortapapeles(const std::string& texto) override { portapapeles = texto; }
    std::string LeerAjuste(const std::string& clave, const std::string& porOmision) const override;
    void GuardarAjuste(const std::string& clave, const std::string& valor) override { ajustes[clave] = valor; }

    std::vector<Mensaje> mensajes;
    std::vector<ErrorEjecucion> errores;
    std::vector<std::string> impresas;  ///< Names of the forms and documents sent to the printer.
    Hoja libro;                         ///< The workbook that the program was to show last; there is no program for it.
    std::optional<std::string> carpeta;  ///< Folder of the installed program; none: that of the build folder.
    std::optional<Double> reloj;         ///< Where the clock stands; none: the clock of the machine.
    std::vector<std::string> abiertos;   ///< Paths of the files that the shell was asked to open.
    std::string portapapeles;
    std::map<std::string, std::string> ajustes;
    /// Answer to the next file dialog; none means Cancel.
    std::optional<std::string> archivo;
    /// Title and filter of the last file dialog.
    std::string tituloDialogo, filtroDialogo;
    /// The form that was shown last, or null.
    Formulario* alFrente = nullptr;
    /// Entry to pick in the next pop-up menu; none closes the menu without a choice.
    std::optional<std::string> entradaEmergente;
    /// Whether the entry to pick existed and was not greyed.
    bool entradaElegida = false;
    /// True makes every call of the shell fail.
    bool shellFalla = false;
    bool terminado = false;

  private:
    static std::string CarpetaCompartida();

    LibrosDeCalculo libros_;
};

}  // namespace cuencalia
