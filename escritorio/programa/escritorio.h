#pragma once

#include <QString>
#include <map>
#include <memory>

#include "escritorio/servicios/dialogoarchivo.h"
#include "escritorio/servicios/librosensegundoplano.h"
#include "escritorio/servicios/segundoplano.h"
#include "escritorio/vistas/anfitrion.h"
#include "frame/controles/aplicacion.h"
#include "frame/controles/plataforma.h"

namespace cuencalia {

class Ventana;

/// The platform for a desktop: windows, dialogs, printer and shell.
class Escritorio : public Plataforma {
  public:
    explicit Escritorio(TablaFormas formas);
    ~Escritorio() override;

    Aplicacion& App() { return *app_; }

    void MsgBox(const std::string& texto, Icono icono, const std::string& titulo) override;
    bool Preguntar(const std::string& texto, const std::string& titulo, bool porOmision) override;
    std::optional<bool> PreguntarOCancelar(const std::string& texto, const std::string& titulo) override;
    bool Bloqueada() const override { return cajas_ > 0; }
    void MostrarError(const ErrorEjecucion& error) override;
    void MostrarForma(Formulario& forma) override;
    void DescargarForma(Formulario& forma) override;
    void MenuEmergente(Menu& menu) override;
    void ImprimirForma(Formulario& forma) override;
    void ImprimirDocumento(Formulario& documento, bool soloSeleccion, const std::string& titulo) override;
    AccesoHojas& Hojas() override { return libros_; }
    bool MostrarLibro(const Hoja& hoja) override;
    void EnSegundoPlano(TrabajoLargo trabajo) override { segundoPlano_.Empezar(*app_, std::move(trabajo)); }
    void Terminar() override;
    void MenuPrincipalCerrado() override { app_->Terminar(); }
    void DespuesDeDespachar() override { anfitrion_.Pintar(); }
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
    /// Asks with those buttons of a message box, and returns the one pressed.
    int Contestar(const std::string& texto, const std::string& titulo, int botones, int porOmision);
    /// The window of a form; it is created if there is none yet.
    Ventana& VentanaPara(Formulario& forma);

    std::unique_ptr<Aplicacion> app_;
    Anfitrion anfitrion_{*app_};
    std::map<const Formulario*, Ventana*> ventanas_;
    DialogoArchivo dialogoArchivo_;
    int cajas_ = 0;  ///< Message boxes and dialogs that wait for the user, workbooks being written.
    LibrosEnSegundoPlano libros_{cajas_};
    SegundoPlano segundoPlano_;
};

}  // namespace cuencalia
