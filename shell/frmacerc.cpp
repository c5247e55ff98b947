#include "shell/frmacerc.h"

#include "shell/editor.h"

namespace cuencalia {

frmacerc::frmacerc(Aplicacion& app) : Formulario(app, "frmacerc", "Acerca de Cuencalia para Windows") {
    lblPrograma.Caption =
        "Cuencalia 2: cálculos hidrológicos y estadísticos aplicados a la hidrología. Programa libre y gratuito.";
    lblTrabajosDato.Caption = editor::kTrabajos;
    lblConsultasDato.Caption = editor::kConsultas;
    bsalir.Click.Conectar([this] { App().ModuloCerrar(*this); });
}

Disposicion frmacerc::Disponer() {
    return Columna({imgLogo, lblPrograma, lblTrabajos, lblTrabajosDato, lblConsultas, lblConsultasDato, lblSistemas,
                    Fila({Espacio(), bsalir})});
}

}  // namespace cuencalia
