#pragma once

#include <QPalette>
#include <tuple>
#include <vector>

#include "escritorio/vistas/exportargrafico.h"
#include "escritorio/vistas/vista.h"
#include "frame/reportes/grafico.h"

namespace cuencalia {

class LienzoGrafico;

/// Shows a chart. The pointer or the arrow keys select a point, whose values are shown; wheel, plus and minus zoom;
/// dragging moves the chart; a double click, 0 or Home show all of it again. The context menu copies and saves the
/// chart.
class VistaGrafico : public Vista {
  public:
    VistaGrafico(Anfitrion& anfitrion, GraficoModulo& grafico, QWidget* padre);

  protected:
    void Mostrar() override;
    bool Tecla(QKeyEvent& evento) override;
    bool eventFilter(QObject* objeto, QEvent* evento) override;

  private:
    /// Everything that a drawing is made of.
    using Dibujo =
        std::tuple<std::vector<GraficoModulo::Conjunto>, int, int, int, int, int, int, std::string, QPalette>;

    Dibujo Actual() const;
    void HacerMenu();
    /// Lets the user choose a file name and writes the chart to that file. A failure is shown in a message with its
    /// reason.
    void Guardar(const char* filtro, FormatoGrafico formato);
    QString Descripcion() const;

    GraficoModulo& grafico_;
    LienzoGrafico* lienzo_;
    Dibujo dibujado_;  ///< What the widget shows.
};

}  // namespace cuencalia
