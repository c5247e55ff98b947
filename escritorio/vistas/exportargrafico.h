#pragma once

#include <QPixmap>
#include <QString>

namespace cuencalia {

class GraficoModulo;
class LienzoGrafico;

enum class FormatoGrafico { Png, Pdf, Svg };

/// A picture of the part of the chart that `pantalla` shows: dark on white, as large as on the screen but not below a
/// minimum size.
QPixmap FotoDeGrafico(const GraficoModulo& grafico, const LienzoGrafico& pantalla);

/// Writes such a picture to a file, replacing an existing one. Returns an empty text, or the reason of a failure; the
/// old file is then unchanged.
QString GuardarGrafico(const GraficoModulo& grafico, const LienzoGrafico& pantalla, const QString& archivo,
                       FormatoGrafico formato);

}  // namespace cuencalia
