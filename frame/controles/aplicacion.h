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

/// Values that all forms share; each handler runs to its end, so they need no protection.
struct Variables {
    std::string NombreArchivo;  ///< Name chosen in the last file dialog of a module.
    Integer NRegistros;         ///< Records of the file or sheet read last.
    int documentos = 0;         ///< Report documents made since the program started.
};

/// The running program: its forms, the keyboard focus and the one door by which events come in.
class Aplicacion {
  public:
    /// `menuPrincipal` names the form to which ModuloCerrar goes back.
    Aplicacion(Plataforma& plataforma, TablaFormas formas, std::string menuPrincipal = "frmCuencalia");
    ~Aplicacion();
    Aplicacion(const Aplicacion&) = delete;
    Aplicacion& operator=(const Aplicacion&) = delete;

    Plataforma& Sistema() { return plataforma_; }

    /// Runs what an event of the outside world starts. A run-time error that no handler trapped stops the handler at
    /// the failing statement, is shown, and the program goes on; so does any other exception. Focus changes still
    /// waiting are delivered at the end.
    void Despachar(const std::function<void()>& accion);
    /// Delivers the focus changes that wait, in order: lost-focus of the old control, got-focus of the new one.
    void DoEvents();

    /// A key on the control that has the focus: KeyDown, then KeyPress where the key has a character (0: none), then
    /// what the control does with it.
    void PulsarTecla(int codigo, int caracter);
    /// Turns an entry of the outside world into the control's Click: the focus moves to it first.
    void Pulsar(Control& control);
    /// The user closed the window of the form.
    void CerrarVentana(Formulario& forma);
    /// The window of the form came to the front: its control gets the focus.
    void Activar(Formulario& forma);

    Control* Foco() const { return foco_; }
    void PedirFoco(Control& control);
    /// Gives up a control that is about to go.
    void Olvidar(const Formulario& forma);

    /// Whether the program has a form of this name.
    bool Existe(const std::string& forma) const { return formas_.contains(forma); }
    /// The loaded default instance, or null.
    Formulario* Cargada(const std::string& forma) const;
    std::vector<Formulario*> Cargadas() const;
    /// Whether the form is loaded, as a default instance or inside another one's window.
    bool EstaAbierta(const Formulario& forma) const;

    /// Creates the form if its reference is empty, then shows it modeless.
    Formulario& ModuloAbrir(const std::string& forma);
    /// Unloads the form and shows the main menu.
    void ModuloCerrar(Formulario& forma);
    void Unload(Formulario& forma);
    /// Loads and shows a window inside the window of `padre`; there may be several of one name.
    Formulario& AbrirHija(Formulario& padre, std::unique_ptr<Formulario> hija);
    /// The window inside `padre` that was active last, or null.
    Formulario* HijaActiva(const Formulario& padre) const;

    Variables& Globales() { return variables_; }

    /// Ends the program at once, with no question and no unloading.
    void Terminar();
    bool Terminada() const { return terminada_; }

    void MsgBox(const std::string& texto, Icono icono = kSinIcono, const std::string& titulo = {}) {
        plataforma_.MsgBox(texto, icono, titulo);
    }
    void MsgBox(const Aviso& aviso) { plataforma_.MsgBox(aviso.texto, aviso.icono, aviso.titulo); }
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
    /// Windows inside others, the one active last at the end.
    std::vector<std::unique_ptr<Formulario>> hijas_;
    Variables variables_;
    /// Unloaded inside a handler of their own; they go when the handler has ended.
    std::vector<std::unique_ptr<Formulario>> descargadas_;
    std::deque<Control*> focosPedidos_;
    Control* foco_ = nullptr;
    int profundidad_ = 0;
    bool terminada_ = false;
};

}  // namespace cuencalia
