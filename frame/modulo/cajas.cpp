#include "frame/modulo/cajas.h"

#include "frame/controles/aplicacion.h"

namespace cuencalia {

void SoloNumero(TextBox& caja, Cifras cifras) {
    caja.KeyPress.Conectar([&caja, cifras](int& caracter) {
        const bool deMando = caracter == kTeclaRetroceso || caracter == kTeclaEnter;
        const bool cifra = caracter >= '0' && caracter <= '9';
        const bool punto =
            caracter == '.' && cifras == Cifras::ConUnSoloPunto && caja.Text().find('.') == std::string::npos;
        if (!deMando && !cifra && !punto) {
            caracter = 0;
        }
    });
}

void AlPulsarEnter(Control& caja, std::function<void()> accion) {
    caja.KeyPress.Conectar([accion = std::move(accion)](int& caracter) {
        if (caracter == kTeclaEnter) {
            caracter = 0;
            accion();
        }
    });
}

void EncadenarEnter(const std::vector<Control*>& cajas, Control& destino) {
    for (std::size_t i = 0; i < cajas.size(); ++i) {
        Control* siguiente = i + 1 < cajas.size() ? cajas[i + 1] : &destino;
        AlPulsarEnter(*cajas[i], [siguiente] { siguiente->SetFocus(); });
    }
}

namespace {

bool Exigir(bool cumplido, Control& control, const Aviso& aviso) {
    if (!cumplido) {
        control.App().MsgBox(aviso);
        control.SetFocus();
    }
    return cumplido;
}

}  // namespace

bool Exigir(TextBox& caja, const Aviso& aviso) { return Exigir(!caja.Text().empty(), caja, aviso); }

bool Exigir(ComboBox& lista, const Aviso& aviso) { return Exigir(lista.ListIndex() >= 0, lista, aviso); }

}  // namespace cuencalia
