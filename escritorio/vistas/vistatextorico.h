#pragma once

#include <QTextEdit>
#include <functional>

#include "escritorio/vistas/vista.h"
#include "frame/reportes/richtextbox.h"

namespace cuencalia {

/// A text editor that copies and pastes RTF.
class CajaTextoRico : public QTextEdit {
    Q_OBJECT

  public:
    explicit CajaTextoRico(QWidget* padre) : QTextEdit(padre) {}

    /// The selection as RTF source.
    std::function<std::string()> alCopiar;
    /// Replaces the selection by RTF source or plain text.
    std::function<void(const std::string&)> alPegar;

  protected:
    void keyPressEvent(QKeyEvent* evento) override;
    QMimeData* createMimeDataFromSelection() const override;
    bool canInsertFromMimeData(const QMimeData* datos) const override;
    void insertFromMimeData(const QMimeData* datos) override;
};

/// Shows a box of formatted text. The user writes in the widget; the control fetches the changes when the program
/// accesses the text. A change made by the program replaces only the lines that differ, and the user can undo it.
class VistaTextoRico : public Vista {
  public:
    VistaTextoRico(Anfitrion& anfitrion, RichTextBox& caja, QWidget* padre);

  protected:
    void Mostrar() override;

  private:
    void Traer(EditorTextoRico& editor);
    void TraerSeleccion(EditorTextoRico& editor);
    void MostrarSeleccion(const EditorTextoRico& editor);
    void MostrarTexto();

    RichTextBox& caja_;
    CajaTextoRico* texto_;
    TextoRico mostrado_;        ///< The text of the widget when it was last synchronised with the control.
    int version_ = -1;          ///< Version of the control's text that the widget shows.
    int guardados_ = 0;         ///< How often the text had become that of a file.
    bool editado_ = false;      ///< The user has changed the widget's text since then.
    int inicio_ = 0, fin_ = 0;  ///< Selection of the widget at the last synchronisation.
};

}  // namespace cuencalia
