#pragma once

#include <string>

#include "frame/controles/control.h"
#include "frame/controles/plataforma.h"

namespace cuencalia {

/// Number of the error of a dialog whose Cancel counts as one.
inline constexpr int kDialogoCancelado = 32755;

/// A file dialog of a form. It remembers the name of its last use for as long as the form is loaded; Cancel leaves that
/// name as it was.
class CommonDialog : public Control {
  public:
    CommonDialog(Formulario& forma, std::string nombre) : Control(forma, std::move(nombre)) { Visible = false; }

    std::string DialogTitle;
    std::string Filter;  ///< Labels and patterns joined by bars.
    std::string FileName;

    void ShowOpen() { Preguntar(ModoArchivo::Abrir); }
    void ShowSave() { Preguntar(ModoArchivo::Guardar); }

  private:
    void Preguntar(ModoArchivo modo);
};

}  // namespace cuencalia
