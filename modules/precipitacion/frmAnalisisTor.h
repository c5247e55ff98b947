#pragma once

#include "frame/modulo/modulocalculo.h"
#include "frame/reportes/grafico.h"
#include "modules/precipitacion/tormenta.h"

namespace cuencalia {

/// Intensities of a storm that was measured by intervals, with its hyetograph and its mass curve.
class frmAnalisisTor : public ModuloCalculo {
  public:
    explicit frmAnalisisTor(Aplicacion& app);

    Tabla grdecua{
        *this,
        "grdecua",
        "Resultados parciales e intensidades",
        {.filas = 200,
         .columnas =
             {{"N°", 700}, {"T parcial", 1000}, {"T acum.", 1000}, {"P parcial", 1000}, {"P acum.", 1000}, {"I", 1000}},
         .columnasFijas = 1,
         .unidades = {"", "(min)", "(min)", "(mm)", "(mm)", "(mm/hr)"}}};
    CommandButton bGraficar{*this, "bGraficar", "&Graficar", "Graficar pares datos"};
    Frame Frame4{*this, "Frame4", "Intensidad máxima:"};
    Label Label6{*this, "Label6", "I máxima:"}, Label3{*this, "Label3", "mm/hr"};
    Label Label7{*this, "Label7", "Duración:"}, Label4{*this, "Label4", "min"};
    TextBox txtvI{*this, "txtvI"}, txtvD{*this, "txtvD"};
    Frame fraTipoGra{*this, "fraTipoGra", "Tipo de gráfico:"};
    OptionButton optHistograma{*this, "optHistograma", "Histograma"}, optCurvamasa{*this, "optCurvamasa", "Curva masa"};
    Label lblPrecipitacion{*this, "lblPrecipitacion", "Precipitación (mm)"};
    Label lblIntensidad{*this, "lblIntensidad", "Intensidad (mm/hr)"};
    Label lblTiempo{*this, "lblTiempo", "Tiempo acumulado (min)"};
    GraficoModulo Graph1{*this, "Graph1", "Gráfico de la tormenta"};

    Arreglo<Double, 1, 1550> Tpar;  ///< Length of each interval, minutes.
    Arreglo<Double, 1, 1550> Ppar;  ///< Rain of each interval, mm.
    Tormenta tormenta;

    /// Analyses the storm too: every command that reads the grid fails where an interval has no length.
    void CargarMatrices() override;
    void bGraficar_Click();
    void optHistograma_Click();
    void optCurvamasa_Click();
    void GenerarReporte(Reporte& reporte) override;

  protected:
    bool Calcular() override;
    Disposicion Contenido() override;

  private:
    /// Shows the legend of that axis, reads the grid and returns whether there is something to draw; when not, tells
    /// the user why.
    bool PrepararGrafico(Label& ordenada, Label& otra);
};

}  // namespace cuencalia
