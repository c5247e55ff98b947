#include "frame/controles/aplicacion.h"

#include <algorithm>
#include <exception>
#include <new>

namespace cuencalia {

namespace {

constexpr int kErrorInterno = 51;

/// Counts the events being handled, one inside the other: adds one when created and subtracts it when destroyed, also
/// after an exception.
class Profundidad {
  public:
    explicit Profundidad(int& cuenta) : cuenta_(cuenta) { ++cuenta_; }
    ~Profundidad() { --cuenta_; }
    Profundidad(const Profundidad&) = delete;
    Profundidad& operator=(const Profundidad&) = delete;

  private:
    int& cuenta_;
};

}  // namespace

Aplicacion::Aplicacion(Plataforma& plataforma, TablaFormas formas, std::string menuPrincipal)
    : plataforma_(plataforma), formas_(std::move(formas)), menuPrincipal_(std::move(menuPrincipal)) {}

Aplicacion::~Aplicacion() {
    for (const auto& hija : hijas_) {
        plataforma_.DescargarForma(*hija);
    }
    for (const auto& [nombre, forma] : cargadas_) {
        plataforma_.DescargarForma(*forma);
    }
}

void Aplicacion::Proteger(const std::function<void()>& accion) {
    try {
        accion();
    } catch (const ErrorEjecucion& error) {
        plataforma_.MostrarError(error);
    } catch (const std::bad_alloc&) {
        plataforma_.MostrarError(ErrorEjecucion(kMemoriaInsuficiente));
    } catch (const std::exception& fallo) {
        plataforma_.MostrarError(ErrorEjecucion(kErrorInterno, std::string("Error interno: ") + fallo.what()));
    } catch (...) {
        plataforma_.MostrarError(ErrorEjecucion(kErrorInterno, "Error interno"));
    }
}

void Aplicacion::Despachar(const std::function<void()>& accion) {
    if (terminada_ || plataforma_.Bloqueada()) {
        return;
    }
    {
        const Profundidad evento(profundidad_);
        Proteger(accion);
        while (!focosPedidos_.empty()) {
            Proteger([this] { DoEvents(); });
        }
    }
    if (profundidad_ == 0) {
        for (Formulario* forma : Cargadas()) {
            Proteger([forma] { forma->DespuesDeEvento(); });
        }
        Proteger([this] {
            descargadas_.clear();
            plataforma_.DespuesDeDespachar();
        });
    }
}

void Aplicacion::DoEvents() {
    while (!focosPedidos_.empty()) {
        Control* control = focosPedidos_.front();
        focosPedidos_.pop_front();
        if (control != foco_ && control->PuedeRecibirFoco()) {
            EntregarFoco(*control);
        }
    }
}

void Aplicacion::EntregarFoco(Control& control) {
    Control* anterior = foco_;
    foco_ = &control;
    // The new control already has the focus here and keeps it even when the old control's lost-focus handler fails:
    // what the user types next must reach the new control.
    std::exception_ptr fallo;
    if (anterior != nullptr) {
        try {
            anterior->LostFocus();
        } catch (...) {
            fallo = std::current_exception();
        }
        anterior->Notificar();
    }
    // The lost-focus handler may have unloaded the form or sent the focus elsewhere.
    if (foco_ == &control) {
        control.GotFocus();
        control.Notificar();
    }
    if (fallo) {
        std::rethrow_exception(fallo);
    }
}

void Aplicacion::PulsarTecla(int codigo, int caracter, int modificadores) {
    Control* control = foco_;
    if (control == nullptr) {
        return;
    }
    modificadores_ = modificadores;
    // One key of the user is two events of the control, dispatched separately: a fault in KeyDown must not suppress
    // KeyPress.
    Despachar([&] {
        const Formulario& forma = control->Forma();
        Despachar([&] { control->KeyDown(codigo); });
        if (!EstaAbierta(forma)) {
            return;
        }
        int tecla = caracter;
        if (caracter != 0) {
            control->KeyPress(tecla);
        }
        const bool anulada = caracter != 0 && tecla == 0;
        if (!anulada && control->EsVisible()) {
            control->TeclaPorDefecto(codigo, tecla);
        }
    });
    modificadores_ = kSinModificador;
}

void Aplicacion::Pulsar(Control& control) {
    Despachar([&] {
        if (!control.EsVisible() || !control.EsHabilitado()) {
            return;
        }
        control.Forma().AntesDeOrden();
        if (control.AceptaFoco()) {
            control.SetFocus();
            DoEvents();
        }
        if (auto* opcion = dynamic_cast<OptionButton*>(&control)) {
            opcion->Value = true;
        } else {
            control.Click();
        }
    });
}

bool Aplicacion::Elegir(Menu& entrada) {
    bool elegida = false;
    Despachar([&] {
        entrada.Forma().AntesDeOrden();
        elegida = entrada.Elegir();
    });
    return elegida;
}

void Aplicacion::CerrarVentana(Formulario& forma) {
    Despachar([&] {
        if (!forma.PuedeCerrar()) {
            return;
        }
        const bool principal = forma.Nombre() == menuPrincipal_;
        Unload(forma);
        if (principal) {
            plataforma_.MenuPrincipalCerrado();
        }
    });
}

void Aplicacion::PedirFoco(Control& control) {
    control.Forma().PonerControlActivo(&control);
    focosPedidos_.push_back(&control);
}

void Aplicacion::Activar(Formulario& forma) {
    const auto hija =
        std::find_if(hijas_.begin(), hijas_.end(), [&](const auto& otra) { return otra.get() == &forma; });
    if (hija != hijas_.end()) {
        std::rotate(hija, hija + 1, hijas_.end());
    }
    if (Formulario* dentro = HijaActiva(forma)) {
        Activar(*dentro);
        return;
    }
    if (Control* destino = forma.ControlInicial()) {
        PedirFoco(*destino);
    } else {
        foco_ = nullptr;
    }
}

void Aplicacion::Olvidar(const Formulario& forma) {
    std::erase_if(focosPedidos_, [&](const Control* control) { return &control->Forma() == &forma; });
    if (foco_ != nullptr && &foco_->Forma() == &forma) {
        foco_ = nullptr;
    }
}

Formulario* Aplicacion::Cargada(const std::string& forma) const {
    const auto hallada = cargadas_.find(forma);
    return hallada == cargadas_.end() ? nullptr : hallada->second.get();
}

bool Aplicacion::EstaAbierta(const Formulario& forma) const {
    return Cargada(forma.Nombre()) == &forma ||
           std::any_of(hijas_.begin(), hijas_.end(), [&](const auto& hija) { return hija.get() == &forma; });
}

bool Aplicacion::HayTrabajo() const {
    return std::any_of(cargadas_.begin(), cargadas_.end(), [](const auto& par) { return par.second->ConTrabajo(); }) ||
           std::any_of(hijas_.begin(), hijas_.end(), [](const auto& hija) { return hija->ConTrabajo(); });
}

std::vector<Formulario*> Aplicacion::Cargadas() const {
    std::vector<Formulario*> formas;
    for (const auto& [nombre, forma] : cargadas_) {
        formas.push_back(forma.get());
    }
    return formas;
}

Formulario& Aplicacion::ModuloAbrir(const std::string& nombre) {
    Formulario* forma = Cargada(nombre);
    if (forma == nullptr) {
        const auto hacedor = formas_.find(nombre);
        if (hacedor == formas_.end()) {
            throw ErrorEjecucion(kObjetoNoEstablecido);
        }
        std::unique_ptr<Formulario> nueva = hacedor->second(*this);
        forma = nueva.get();
        try {
            forma->Cargar();
        } catch (...) {
            Olvidar(*forma);
            throw;
        }
        cargadas_[nombre] = std::move(nueva);
    }
    plataforma_.MostrarForma(*forma);
    Activar(*forma);
    return *forma;
}

void Aplicacion::ModuloCerrar(Formulario& forma) {
    Unload(forma);
    ModuloAbrir(menuPrincipal_);
}

void Aplicacion::Unload(Formulario& forma) {
    const auto esta = [&](const std::unique_ptr<Formulario>& otra) { return otra.get() == &forma; };
    if (const auto hija = std::find_if(hijas_.begin(), hijas_.end(), esta); hija != hijas_.end()) {
        std::unique_ptr<Formulario> sale = std::move(*hija);
        hijas_.erase(hija);
        Descargar(std::move(sale));
        return;
    }
    const auto hallada = cargadas_.find(forma.Nombre());
    if (hallada == cargadas_.end() || hallada->second.get() != &forma) {
        return;
    }
    while (Formulario* hija = HijaActiva(forma)) {
        Unload(*hija);
    }
    std::unique_ptr<Formulario> sale = std::move(hallada->second);
    cargadas_.erase(hallada);
    Descargar(std::move(sale));
}

void Aplicacion::Descargar(std::unique_ptr<Formulario> forma) {
    Proteger([&] { forma->Form_Unload(); });
    Olvidar(*forma);
    plataforma_.DescargarForma(*forma);
    descargadas_.push_back(std::move(forma));
}

Formulario& Aplicacion::AbrirHija(Formulario& padre, std::unique_ptr<Formulario> hija) {
    Formulario& forma = *hijas_.emplace_back(std::move(hija));
    forma.PonerPadre(padre);
    forma.Cargar();
    plataforma_.MostrarForma(forma);
    Activar(forma);
    return forma;
}

Formulario* Aplicacion::HijaActiva(const Formulario& padre) const {
    const auto ultima = std::find_if(hijas_.rbegin(), hijas_.rend(),
                                     [&](const std::unique_ptr<Formulario>& hija) { return hija->Padre() == &padre; });
    return ultima == hijas_.rend() ? nullptr : ultima->get();
}

void Aplicacion::Terminar() {
    terminada_ = true;
    plataforma_.Terminar();
}

void Aplicacion::AbrirAyuda() { plataforma_.AbrirConShell(plataforma_.CarpetaInstalacion() + "/ayuda/index.html"); }

}  // namespace cuencalia
