#pragma once

#include <QString>

class QPagedPaintDevice;
class QTextDocument;
class QWidget;

namespace cuencalia {

class EditorTextoRico;
class Escritorio;

/// Sends the image of a window to the default printer. The user is told where there is none or it does not answer.
void ImprimirImagen(Escritorio& escritorio, QWidget& ventana);

/// Asks for a printer, or for a PDF file, and prints the text; Cancel prints nothing.
void ImprimirTexto(const EditorTextoRico& texto, bool soloSeleccion, const QString& titulo, const QString& nombre);

/// Whether a line of a table is wider than the upright sheet leaves room for.
bool PideApaisado(const QTextDocument& documento, const QPagedPaintDevice& hoja);
/// Prints the document, smaller where its widest table would not fit the sheet.
void ImprimirAjustado(QTextDocument& documento, QPagedPaintDevice& hoja);

}  // namespace cuencalia
