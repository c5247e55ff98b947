#pragma once

#include "frame/controles/aplicacion.h"

namespace cuencalia {

/// The About box.
class frmacerc : public Formulario {
  public:
    explicit frmacerc(Aplicacion& app);

    PictureBox imgLogo{*this, "imgLogo", "acerca"};
    Label lblPrograma{*this, "lblPrograma", {}, Papel::Nota};
    Label lblVersion{*this, "lblVersion"};
    Label lblLicencia{*this, "lblLicencia", {}, Papel::Nota};
    Label lblTrabajos{*this, "lblTrabajos", "Para otros trabajos consultar:", Papel::Encabezado};
    Label lblTrabajosDato{*this, "lblTrabajosDato"};
    Label lblConsultas{*this, "lblConsultas", "Consultas y sugerencias :", Papel::Encabezado};
    Label lblConsultasDato{*this, "lblConsultasDato"};
    Label lblSistemas{*this, "lblSistemas", "El programa funciona en Windows XP, Vista, 7 y 8, en 32 y 64 bits.",
                      Papel::Nota};
    CommandButton bsalir{*this, "bsalir", "&Cerrar", "Retornar menú principal"};

  protected:
    Disposicion Disponer() override;
};

}  // namespace cuencalia
