#pragma once

#include <QPixmap>
#include <QString>

namespace cuencalia {

class GraficoModulo;
class LienzoGrafico;

enum class FormatoGrafico { Png, Pdf, Svg };

/// A picture of the part of the chart that `pantalla` shows: dark on white, as large as there and never cramped.
QPixmap FotoDeGrafico(const GraficoModulo& grafico, const LienzoGrafico& pantalla);

/// Writes the same in place of a file. The answer is empty, or says why that failed; the file then stays as it was.
QString GuardarGrafico(const GraficoModulo& grafico, const LienzoGrafico& pantalla, const QString& archivo,
                       FormatoGrafico formato);

}  // namespace cuencalia
