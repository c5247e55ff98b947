#pragma once

#include <QString>
#include <functional>

#include "frame/controles/plataforma.h"

namespace cuencalia {

/// The dialogs that ask for a file. They open in the folder of the file chosen last, for as long as the program runs.
class DialogoArchivo {
  public:
    /// The file that the user chose, or an empty text. `filtro` is labels and patterns separated by bars; `propuesto`
    /// is the name with which the dialog opens. A name to save gets the extension of its pattern unless it ends so;
    /// `reemplazar` is asked whether an existing file that the name then means may be replaced.
    QString Elegir(ModoArchivo modo, const QString& titulo, const QString& filtro, const QString& propuesto,
                   const std::function<bool(const QString&)>& reemplazar);

  private:
    QString Preguntar(ModoArchivo modo, const QString& titulo, const QString& filtro, const QString& propuesto);
    QString ConExtension(const QString& archivo) const;

    QString carpeta_;
    QString patron_;  ///< The pattern chosen in the last dialog.
};

}  // namespace cuencalia
