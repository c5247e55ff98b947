#include "shell/frmacerc.h"

#include "shell/editor.h"

namespace cuencalia {

frmacerc::frmacerc(Aplicacion& app) : Formulario(app, "frmacerc", "Acerca de Cuencalia para Windows") {
    lblPrograma.Caption =
        "Cuencalia 2: cálculos hidrológicos y estadísticos aplicados a la hidrología. Programa libre y gratuito.";
    lblVersion.Caption = "Versión " CUENCALIA_VERSION;
    lblLicencia.Caption =
        "Licencia Pública General de GNU, versión 3 o posterior; se ofrece sin ninguna garantía. El manual dice más.";
    lblTrabajosDato.Caption = editor::kTrabajos;
    lblConsultasDato.Caption = editor::kConsultas;
    bsalir.Cancel = true;
    bsalir.Click.Conectar([this] { App().ModuloCerrar(*this); });
}

Disposicion frmacerc::Disponer() {
    return Columna({imgLogo, lblPrograma, lblVersion, lblLicencia, lblTrabajos, lblTrabajosDato, lblConsultas,
                    lblConsultasDato, lblSistemas, Fila({Espacio(), bsalir})});
}

}  // namespace cuencalia
