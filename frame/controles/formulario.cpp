#include "frame/controles/formulario.h"

#include <algorithm>

namespace cuencalia {

Formulario::Formulario(Aplicacion& app, std::string nombre, std::string caption)
    : Control(this, std::move(nombre)), Caption(*this, std::move(caption)), app_(app) {}

Formulario::~Formulario() = default;

Control* Formulario::Controls(const std::string& nombre) {
    if (nombre == Nombre()) {
        return this;
    }
    const auto hallado = std::find_if(controles_.begin(), controles_.end(),
                                      [&](const Control* control) { return control->Nombre() == nombre; });
    return hallado == controles_.end() ? nullptr : *hallado;
}

void Formulario::Cargar() {
    disposicion_ = Disponer();
    Colocar(disposicion_);
    Form_Load();
}

Control* Formulario::ControlInicial() const {
    if (activo_ != nullptr && activo_->PuedeRecibirFoco()) {
        return activo_;
    }
    for (Control* control : EnOrden(disposicion_)) {
        if (control->PuedeRecibirFoco()) {
            return control;
        }
    }
    return nullptr;
}

}  // namespace cuencalia
