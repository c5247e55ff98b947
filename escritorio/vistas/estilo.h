#pragma once

#include <QColor>
#include <QIcon>
#include <QSize>
#include <QString>

#include "frame/base/twips.h"

class QApplication;
class QPainter;
class QRectF;

/// The looks of every window in one place: spacing, fonts and colours.
namespace cuencalia::estilo {

inline constexpr int kMargen = 12;        ///< Around the contents of a window, pixels at 100 %.
inline constexpr int kSeparacion = 7;     ///< Between controls.
inline constexpr int kSeparacionMin = 4;  ///< Between a heading and the part below it.
inline constexpr int kIcono = 26;         ///< Side of a button's picture.
inline constexpr int kAnchoBoton = 64;    ///< Minimum width of a button.
inline constexpr int kAireBoton = 9;      ///< Room left and right of a button's text.

enum class Esquema { Claro, Oscuro };

/// Sets style, palette and style sheet; light or dark according to the desktop's colours.
void Aplicar(QApplication& app);
void Aplicar(QApplication& app, Esquema esquema);

QColor FondoAviso();  ///< Of a cell that the user is to look at.
QColor Linea();       ///< Grid lines and borders.
QColor TextoTenue();  ///< Colour of notes.

/// A length in twips as pixels, before the scale of the screen is applied.
int Pixeles(int twips);

/// A picture of the program by its name, sharp at any size; an empty icon for an unknown name.
QIcon Icono(const QString& nombre);
/// Natural size of a picture, null for an unknown name.
QSize TamanoNatural(const QString& nombre);
/// Fills the whole rectangle with a picture, cutting off two of its edges rather than distorting it.
void PintarFondo(QPainter& pintor, const QRectF& donde, const QString& nombre);

}  // namespace cuencalia::estilo
