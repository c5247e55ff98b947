#pragma once

#include <QString>
#include <map>
#include <memory>
#include <vector>

#include "frame/controles/aplicacion.h"
#include "frame/controles/plataforma.h"
#include "hojas/libros.h"

namespace cuencalia {

class Ventana;
class Vista;

/// The program on a desktop: windows, dialogs, printer and shell.
class Escritorio : public Plataforma {
  public:
    explicit Escritorio(TablaFormas formas);
    ~Escritorio() override;

    Aplicacion& App() { return *app_; }

    /// A view to bring up to date when the event that changed its control has ended.
    void Ensuciar(Vista* vista);
    void Olvidar(Vista* vista);
    /// Whether the views are being brought up to date: what the widgets tell meanwhile is no act of the user.
    bool Pintando() const { return pintando_; }
    void Pintar();

    void MsgBox(const std::string& texto, Icono icono, const std::string& titulo) override;
    void MostrarError(const ErrorEjecucion& error) override;
    void MostrarForma(Formulario& forma) override;
    void DescargarForma(Formulario& forma) override;
    void MenuEmergente(Menu& menu) override;
    void ImprimirForma(Formulario& forma) override;
    void ImprimirDocumento(Formulario& documento, bool soloSeleccion, const std::string& titulo) override;
    AccesoHojas& Hojas() override { return libros_; }
    void MostrarLibro(const Hoja& hoja) override;
    void Terminar() override;
    void DespuesDeDespachar() override { Pintar(); }
    void AbrirConShell(const std::string& ruta) override;
    std::string CarpetaInstalacion() const override;
    void IrACarpetaDelPrograma() override;
    void ElegirArchivo(ModoArchivo modo, const std::string& titulo, const std::string& filtro,
                       std::string& nombre) override;
    std::string TextoDelPortapapeles() const override;
    void PonerEnPortapapeles(const std::string& texto) override;
    std::string LeerAjuste(const std::string& clave, const std::string& porOmision) const override;
    void GuardarAjuste(const std::string& clave, const std::string& valor) override;

  private:
    void DarFoco();
    /// The window of a form, made if there is none yet.
    Ventana& VentanaPara(Formulario& forma);

    std::unique_ptr<Aplicacion> app_;
    std::map<const Formulario*, Ventana*> ventanas_;
    std::vector<Vista*> sucias_;
    LibrosDeCalculo libros_;
    bool pintando_ = false;
};

}  // namespace cuencalia
