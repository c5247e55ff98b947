#include "frame/controles/control.h"

#include "frame/base/json.h"
#include "frame/controles/aplicacion.h"
#include "frame/controles/controles.h"
#include "frame/controles/formulario.h"

namespace cuencalia {

Control::Control(Formulario& forma, std::string nombre) : forma_(&forma), nombre_(std::move(nombre)) {
    forma_->Registrar(*this);
}

Control::~Control() = default;

Aplicacion& Control::App() const { return forma_->App(); }

void Control::SetFocus() {
    if (!AceptaFoco() || !EsMostrable() || !EsHabilitado()) {
        throw ErrorEjecucion(kArgumentoNoValido);
    }
    TraerAlFrente();
    App().PedirFoco(*this);
}

void Control::DescribirEstado(EscritorJson& json) { json.Clave("foco").Logico(TieneFoco()); }

bool Control::DescribirTexto(EscritorJson& json, const std::string& texto) {
    json.Clave("texto").Texto(texto);
    return true;
}

std::function<void()> Control::Recordar() {
    return [this, visible = Visible()] { Visible = visible; };
}

bool Control::TieneFoco() const { return App().Foco() == this; }

bool Control::EsVisible() const {
    return Visible && (contenedor_ == nullptr || (contenedor_->MuestraPagina(pagina_) && contenedor_->EsVisible()));
}

bool Control::EsMostrable() const { return Visible && (contenedor_ == nullptr || contenedor_->EsMostrable()); }

void Control::TraerAlFrente() {
    if (contenedor_ != nullptr) {
        contenedor_->TraerAlFrente();
        contenedor_->MostrarPagina(pagina_);
    }
}

bool Control::EsHabilitado() const { return Enabled && (contenedor_ == nullptr || contenedor_->EsHabilitado()); }

void Control::TeclaPorDefecto(int, int) {}

void Control::PonerEn(Control* contenedor, int pagina) {
    contenedor_ = contenedor;
    pagina_ = pagina;
}

void Control::Notificar() const {
    if (vista_ != nullptr) {
        vista_->ModeloCambio();
    }
}

}  // namespace cuencalia
