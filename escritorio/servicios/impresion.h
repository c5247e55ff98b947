#pragma once

#include <QString>

class QPagedPaintDevice;
class QTextDocument;
class QWidget;

namespace cuencalia {

class EditorTextoRico;
class Plataforma;

/// Prints an image of the window on the default printer. Tells the user when there is no printer or it does not answer.
void ImprimirImagen(Plataforma& sistema, QWidget& ventana);

/// Lets the user choose a printer or a PDF file and prints the text; Cancel prints nothing.
void ImprimirTexto(const EditorTextoRico& texto, bool soloSeleccion, const QString& titulo, const QString& nombre);

/// True when some table line is too wide for the sheet in portrait orientation.
bool PideApaisado(const QTextDocument& documento, const QPagedPaintDevice& hoja);
/// Prints the document, scaled down when its widest table does not fit the sheet.
void ImprimirAjustado(QTextDocument& documento, QPagedPaintDevice& hoja);

}  // namespace cuencalia
