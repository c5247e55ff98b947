#pragma once

#include "escritorio/exportargrafico.h"
#include "escritorio/vista.h"

namespace cuencalia {

class GraficoModulo;
class LienzoGrafico;

/// Shows a chart. The pointer or the arrow keys tell the values of a point; wheel, plus and minus zoom; dragging moves;
/// a double click, 0 or Home show all again. The context menu copies and saves the chart.
class VistaGrafico : public Vista {
  public:
    VistaGrafico(Escritorio& escritorio, GraficoModulo& grafico, QWidget* padre);

  protected:
    void Mostrar() override;
    bool Tecla(QKeyEvent& evento) override;
    bool eventFilter(QObject* objeto, QEvent* evento) override;

  private:
    void HacerMenu();
    /// Asks for the name of a file and writes the chart there. When that fails a message says why.
    void Guardar(const char* filtro, FormatoGrafico formato);
    QString Descripcion() const;

    GraficoModulo& grafico_;
    LienzoGrafico* lienzo_;
};

}  // namespace cuencalia
