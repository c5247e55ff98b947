#pragma once

#include <QColor>
#include <QIcon>
#include <QString>

class QApplication;
class QPainter;
class QRectF;

/// The looks of every window in one place: spacing, fonts and colours.
namespace cuencalia::estilo {

inline constexpr int kMargen = 12;        ///< Around the contents of a window, pixels at 100 %.
inline constexpr int kSeparacion = 7;     ///< Between controls.
inline constexpr int kSeparacionMin = 4;  ///< Between a heading and what it heads.
inline constexpr int kIcono = 26;         ///< Side of a button's picture.
inline constexpr int kAnchoBoton = 64;    ///< Least width of a button.
inline constexpr int kAireBoton = 9;      ///< Left and right of a button's text.

enum class Esquema { Claro, Oscuro };

/// Sets style, palette and style sheet. The scheme follows the desktop's own colours.
void Aplicar(QApplication& app);
void Aplicar(QApplication& app, Esquema esquema);

QColor Linea();       ///< Grid lines and borders.
QColor TextoTenue();  ///< Notes.

inline constexpr double kTwipsPorPixel = 15;  ///< 1440 twips and 96 pixels make an inch.
/// Pixels of a length in twips; the screen's own scale comes on top.
int Pixeles(int twips);

/// A picture of the program by its name, sharp at any size; an empty icon when there is none.
QIcon Icono(const QString& nombre);
/// Paints a picture over the whole rectangle, cut at two edges rather than stretched.
void PintarFondo(QPainter& pintor, const QRectF& donde, const QString& nombre);

}  // namespace cuencalia::estilo
