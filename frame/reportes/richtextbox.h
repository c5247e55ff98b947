#pragma once

#include <functional>
#include <string>

#include "frame/controles/control.h"
#include "frame/reportes/editortextorico.h"

namespace cuencalia {

/// A box of formatted text. The program reads it through Leer and writes it through Editor. On a screen the user types
/// into the view, and the user's changes are fetched from the view before the program accesses the text.
class RichTextBox : public Control {
  public:
    RichTextBox(Formulario& forma, std::string nombre) : Control(forma, std::move(nombre)) {}

    Propiedad<int> Left{*this}, Top{*this}, Width{*this}, Height{*this};

    /// The current text, for reading.
    const EditorTextoRico& Leer();
    /// The current text, for writing; the view shows it again afterwards.
    EditorTextoRico& Editor();

    bool Describir(EscritorJson& json) override;
    bool AceptaFoco() const override { return true; }
    void TeclaPorDefecto(int codigo, int caracter) override;

    /// For the view: sets the function that brings the user's changes into the text before the program accesses it.
    void AlConsultar(std::function<void(EditorTextoRico&)> traer) { traer_ = std::move(traer); }
    /// Increases with each change made by the program.
    int Version() const { return version_; }
    /// The text is now that of a file.
    void AnotarGuardado() {
        ++guardados_;
        Notificar();
    }
    /// Counts the calls of AnotarGuardado.
    int Guardados() const { return guardados_; }
    /// The text without fetching the user's latest changes from the view.
    const EditorTextoRico& SinTraer() const { return editor_; }

  private:
    void Traer();

    EditorTextoRico editor_;
    std::function<void(EditorTextoRico&)> traer_;
    int version_ = 0;
    int guardados_ = 0;
};

}  // namespace cuencalia
