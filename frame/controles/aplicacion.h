#pragma once

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "frame/base/numeros.h"
#include "frame/controles/formulario.h"
#include "frame/controles/plataforma.h"

namespace cuencalia {

/// How to make each form of the program, by its name.
using TablaFormas = std::map<std::string, std::function<std::unique_ptr<Formulario>(Aplicacion&)>>;

/// Values that all forms share. Handlers run one after the other to their end, so the values need no locking.
struct Variables {
    std::string NombreArchivo;  ///< Name chosen in the last file dialog of a module.
    Integer NRegistros;         ///< Records of the file or sheet read last.
    int documentos = 0;         ///< Report documents made since the program started.
    /// What a form keeps beyond its own life, by its name.
    std::map<std::string, std::shared_ptr<void>> recuerdos;
};

/// The running program: its forms, the keyboard focus, and Despachar, through which every event comes in.
class Aplicacion {
  public:
    /// `menuPrincipal` is the name of the form that ModuloCerrar shows.
    Aplicacion(Plataforma& plataforma, TablaFormas formas, std::string menuPrincipal = "frmCuencalia");
    ~Aplicacion();
    Aplicacion(const Aplicacion&) = delete;
    Aplicacion& operator=(const Aplicacion&) = delete;

    Plataforma& Sistema() { return plataforma_; }

    /// Runs `accion`, the response to an event from outside (a key, a click, a window). A run-time error that no
    /// handler caught ends the handler at the failing statement and is shown to the user; the program goes on. Any
    /// other exception is treated likewise. Pending focus changes are delivered at the end. An event that arrives while
    /// a message box or a dialog is open is ignored.
    void Despachar(const std::function<void()>& accion);
    /// Delivers the pending focus changes in order: lost-focus of the old control, got-focus of the new one.
    void DoEvents();

    /// A key pressed on the control that has the focus: fires KeyDown, then KeyPress where the key has a character (0:
    /// none), then runs the control's own response to the key. `modificadores` is a sum of Modificador values.
    void PulsarTecla(int codigo, int caracter, int modificadores = kSinModificador);
    /// Whether Shift or Ctrl is held down in the current event.
    bool ConMayusculas() const { return (modificadores_ & kMayusculas) != 0; }
    bool ConControl() const { return (modificadores_ & kControl) != 0; }
    /// Presses the control for the user: moves the focus to it, then fires its Click.
    void Pulsar(Control& control);
    /// The same of a menu entry; says whether it could be chosen.
    bool Elegir(Menu& entrada);
    /// The user closed the window of the form.
    void CerrarVentana(Formulario& forma);
    /// The window of the form came to the front: the form's active control gets the focus.
    void Activar(Formulario& forma);

    Control* Foco() const { return foco_; }
    void PedirFoco(Control& control);
    /// Drops the focus and the pending focus changes that belong to a form about to be destroyed.
    void Olvidar(const Formulario& forma);

    /// Whether the program has a form of this name.
    bool Existe(const std::string& forma) const { return formas_.contains(forma); }
    /// Whether any open form or report document holds work that no file has.
    bool HayTrabajo() const;
    /// The loaded default instance of that form, or null.
    Formulario* Cargada(const std::string& forma) const;
    std::vector<Formulario*> Cargadas() const;
    /// Whether the form is loaded, as a default instance or inside another one's window.
    bool EstaAbierta(const Formulario& forma) const;

    /// Creates the form's default instance if it is not loaded, then shows it modeless.
    Formulario& ModuloAbrir(const std::string& forma);
    /// Unloads the form and shows the main menu.
    void ModuloCerrar(Formulario& forma);
    void Unload(Formulario& forma);
    /// Loads and shows the form `hija` inside the window of `padre`; several of them may have the same name.
    Formulario& AbrirHija(Formulario& padre, std::unique_ptr<Formulario> hija);
    /// The form inside `padre` that was active last, or null.
    Formulario* HijaActiva(const Formulario& padre) const;

    Variables& Globales() { return variables_; }

    /// Ends the program at once, without asking the user and without unloading the forms.
    void Terminar();
    bool Terminada() const { return terminada_; }

    void MsgBox(const std::string& texto, Icono icono = kSinIcono, const std::string& titulo = {}) {
        plataforma_.MsgBox(texto, icono, titulo);
    }
    void MsgBox(const Aviso& aviso) { MsgBox(aviso.texto, aviso.icono, aviso.titulo); }
    /// Opens the user's manual.
    void AbrirAyuda();

  private:
    void Descargar(std::unique_ptr<Formulario> forma);
    void Proteger(const std::function<void()>& accion);
    void EntregarFoco(Control& control);

    Plataforma& plataforma_;
    TablaFormas formas_;
    std::string menuPrincipal_;
    std::map<std::string, std::unique_ptr<Formulario>> cargadas_;
    /// Forms shown inside other forms' windows; the last element is the one active last.
    std::vector<std::unique_ptr<Formulario>> hijas_;
    Variables variables_;
    /// Forms that were unloaded inside one of their own handlers; they are destroyed when that handler has ended.
    std::vector<std::unique_ptr<Formulario>> descargadas_;
    std::deque<Control*> focosPedidos_;
    Control* foco_ = nullptr;
    int profundidad_ = 0;
    int modificadores_ = kSinModificador;
    bool terminada_ = false;
};

}  // namespace cuencalia
