#pragma once

#include <QColor>
#include <QTextDocument>
#include <memory>

#include "frame/reportes/textorico.h"

namespace cuencalia {

inline constexpr int kMargenTexto = 6;  ///< Pixels between the edge of the sheet and the text, on the screen.

/// Gives a new document the letter and the tab stops of the reports.
void Preparar(QTextDocument& documento);
/// Changes the document, which shows `antes`, so that it shows `despues` on paper of that colour; only lines that
/// differ are replaced.
void PonerAlDia(QTextDocument& documento, const TextoRico& antes, const TextoRico& despues, const QColor& papel);
TextoRico LeerDocumento(const QTextDocument& documento);

/// Pixels that the widest rules of the reports take in a window, with the indents of a report.
int AnchoDeReglas();

/// The text laid out for paper: with its own colours, as wide as the page.
std::unique_ptr<QTextDocument> DocumentoParaPapel(const TextoRico& texto);

}  // namespace cuencalia
