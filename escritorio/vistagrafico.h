#pragma once

#include <QString>

#include "escritorio/vista.h"
#include "frame/reportes/grafico.h"

class QAction;

namespace cuencalia {

class LienzoGrafico;

/// Shows a chart. The pointer or the arrow keys tell the values of a point; wheel, plus and minus zoom; dragging moves;
/// a double click, 0 or Home show all again. The context menu copies and saves the chart.
class VistaGrafico : public Vista {
  public:
    enum class Formato { Png, Pdf, Svg };

    VistaGrafico(Escritorio& escritorio, GraficoModulo& grafico, QWidget* padre);

    /// Writes what the chart shows, dark on white, in place of the file. When that fails a message says why, the file
    /// stays as it was and the answer is false.
    bool Guardar(const QString& archivo, Formato formato);
    /// Puts a picture of what the chart shows, dark on white, on the clipboard.
    void Copiar() const;

  protected:
    void Mostrar() override;
    bool Tecla(QKeyEvent& evento) override;
    bool eventFilter(QObject* objeto, QEvent* evento) override;

  private:
    void HacerMenu();
    void PedirArchivo(const char* filtro, Formato formato);
    /// Draws the chart on white, as large as on the screen and never cramped.
    void PonerEnPapel(LienzoGrafico& papel) const;
    QString Descripcion() const;

    GraficoModulo& grafico_;
    LienzoGrafico* lienzo_;
};

}  // namespace cuencalia
