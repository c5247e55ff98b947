#pragma once

#include "frame/modulo/modulocalculo.h"
#include "frame/reportes/grafico.h"
#include "modules/curvas/curvaduracion.h"

namespace cuencalia {

/// Duration curve of daily flows, absolute or by the mean flow, and the flow that is reached in a given part of the
/// days.
class frmCurvaDuracion : public ModuloCalculo {
  public:
    explicit frmCurvaDuracion(Aplicacion& app);

    CommandButton bGraficar{*this, "bGraficar", "&Graficar", "Mostrar gráfico"};
    Tabla grddis{*this,
                 "grddis",
                 "Curva de duración",
                 {.filas = 500,
                  .columnas = {{"Nº", 800},
                               {"Q ordenado (m3/s)", 1450},
                               {"Q considerado", 1450},
                               {"Q adimensional", 1450},
                               {"Probabilidad Q >=", 1450}}}};
    Frame Frame8{*this, "Frame8", "Caudal de diseño:"};
    Label Label15{*this, "Label15", "Probabilidad de ser excedido o igualado (P):"}, Label14{*this, "Label14", "%"};
    TextBox txtxp{*this, "txtxp"};
    CommandButton bQ{*this, "bQ", "Q=f(P)", "Caudal de diseño"};
    Label Label8{*this, "Label8", "Caudal (Q):"}, Label12{*this, "Label12", "m3/s"};
    TextBox txtxq{*this, "txtxq"};
    Frame fraTipoGrafico{*this, "fraTipoGrafico", "Gráfico curva duración:"};
    OptionButton OptNormal{*this, "OptNormal", "Curva duración normal"};
    OptionButton OptAdimensional{*this, "OptAdimensional", "Curva duración adimensional"};
    Label lblQ{*this, "lblQ", "Q (m3/s)"}, lblQQm{*this, "lblQQm", "Q/Qm"};
    Label lblPorcentaje{*this, "lblPorcentaje", "% de días en que Q es mayor o igual al límite inferior"};
    GraficoModulo Graph1{*this, "Graph1", "Curva de duración"};

    ColumnaDuracion Q;     ///< The flows as entered, m³/s.
    ColumnaDuracion Qord;  ///< The flows in descending order.
    CurvaDuracion curva;
    ColumnaDuracion Qadi;  ///< The flows of the curve divided by the mean of the series.

    void bGraficar_Click();
    void bQ_Click();
    void GenerarReporte(Reporte& reporte) override;

  protected:
    bool Calcular() override;
    Disposicion Contenido() override;

  private:
    void LimpiarEtiqueta();
    void Dibujar(const std::string& titulo, Label& etiqueta, const ColumnaDuracion& caudales);
};

}  // namespace cuencalia
