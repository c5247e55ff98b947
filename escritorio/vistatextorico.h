#pragma once

#include <QTextEdit>
#include <functional>
#include <memory>

#include "escritorio/vista.h"
#include "frame/reportes/richtextbox.h"

namespace cuencalia {

/// A text editor whose clipboard speaks RTF.
class CajaTextoRico : public QTextEdit {
    Q_OBJECT

  public:
    explicit CajaTextoRico(QWidget* padre) : QTextEdit(padre) {}

    /// The selection as RTF source.
    std::function<std::string()> alCopiar;
    /// Takes RTF source, or a plain text, in place of the selection.
    std::function<void(const std::string&)> alPegar;

  protected:
    void keyPressEvent(QKeyEvent* evento) override;
    QMimeData* createMimeDataFromSelection() const override;
    bool canInsertFromMimeData(const QMimeData* datos) const override;
    void insertFromMimeData(const QMimeData* datos) override;
};

/// Shows a box of formatted text. The user writes in the widget; the control fetches what he wrote when the program
/// looks. A change of the program replaces only the lines that differ and can be undone like one of the user.
class VistaTextoRico : public Vista {
  public:
    VistaTextoRico(Escritorio& escritorio, RichTextBox& caja, QWidget* padre);

  protected:
    void Mostrar() override;

  private:
    void Traer(EditorTextoRico& editor);
    void TraerSeleccion(EditorTextoRico& editor);
    void MostrarSeleccion(const EditorTextoRico& editor);

    RichTextBox& caja_;
    CajaTextoRico* texto_;
    TextoRico mostrado_;        ///< What the widget held when text last went one way or the other.
    int version_ = -1;          ///< Of the control's text shown.
    bool editado_ = false;      ///< The user changed the widget since.
    int inicio_ = 0, fin_ = 0;  ///< Selection of the widget when it last went one way or the other.
};

/// The text laid out for paper: true colours, as wide as the page is made.
std::unique_ptr<QTextDocument> DocumentoParaPapel(const TextoRico& texto);

}  // namespace cuencalia
