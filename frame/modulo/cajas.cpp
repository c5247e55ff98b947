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

void AlPulsarEnter(TextBox& caja, std::function<void()> accion) {
    caja.KeyPress.Conectar([accion = std::move(accion)](int& caracter) {
        if (caracter == kTeclaEnter) {
            caracter = 0;
            accion();
        }
    });
}

void EncadenarEnter(const std::vector<TextBox*>& cajas, Control& destino) {
    for (std::size_t i = 0; i < cajas.size(); ++i) {
        Control* siguiente = i + 1 < cajas.size() ? cajas[i + 1] : &destino;
        AlPulsarEnter(*cajas[i], [siguiente] { siguiente->SetFocus(); });
    }
}

bool Exigir(TextBox& caja, const Aviso& aviso) {
    if (!caja.Text().empty()) {
        return true;
    }
    caja.App().MsgBox(aviso);
    caja.SetFocus();
    return false;
}

}  // namespace cuencalia
