#pragma once

#include <string>

#include "frame/controles/control.h"
#include "frame/controles/plataforma.h"

namespace cuencalia {

/// Error number that a file dialog raises on Cancel, where Cancel is to raise an error.
inline constexpr int kDialogoCancelado = 32755;

/// A file dialog of a form. While the form is loaded it remembers the file name chosen last; Cancel leaves that name
/// unchanged.
class CommonDialog : public Control {
  public:
    CommonDialog(Formulario& forma, std::string nombre) : Control(forma, std::move(nombre)) { Visible = false; }

    std::string DialogTitle;
    std::string Filter;  ///< Labels and patterns separated by bars: "Valores X|*.X".
    std::string FileName;

    void ShowOpen() { Preguntar(ModoArchivo::Abrir); }
    void ShowSave() { Preguntar(ModoArchivo::Guardar); }

  private:
    void Preguntar(ModoArchivo modo);
};

}  // namespace cuencalia
