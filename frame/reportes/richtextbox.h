#pragma once

#include <functional>
#include <string>

#include "frame/controles/control.h"
#include "frame/reportes/editortextorico.h"

namespace cuencalia {

/// A box of formatted text. The program reads and writes it through Editor; on a screen the user writes in the view, and
/// what he wrote is fetched before the program looks.
class RichTextBox : public Control {
  public:
    RichTextBox(Formulario& forma, std::string nombre) : Control(forma, std::move(nombre)) {}

    Propiedad<int> Left{*this}, Top{*this}, Width{*this}, Height{*this};

    /// The text as it is now, to look at.
    const EditorTextoRico& Leer();
    /// The text, to change; the view shows it anew.
    EditorTextoRico& Editor();

    bool AceptaFoco() const override { return true; }
    void TeclaPorDefecto(int codigo, int caracter) override;

    /// For the view: runs before the program looks at the text, and brings over what the user did.
    void AlConsultar(std::function<void(EditorTextoRico&)> traer) { traer_ = std::move(traer); }
    /// Grows with each change that the program made.
    int Version() const { return version_; }
    /// The text that the view last took over or handed over.
    const EditorTextoRico& SinTraer() const { return editor_; }

  private:
    void Traer();

    EditorTextoRico editor_;
    std::function<void(EditorTextoRico&)> traer_;
    int version_ = 0;
};

}  // namespace cuencalia
