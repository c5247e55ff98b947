#pragma once

#include "frame/modulo/modulocalculo.h"
#include "frame/reportes/grafico.h"

namespace cuencalia {

/// Least-squares line through pairs of numbers of any sign; it gives y for an x and x for a y.
class frmRegreLineal : public ModuloCalculo {
  public:
    explicit frmRegreLineal(Aplicacion& app);

    Tabla grdecua{*this,
                  "grdecua",
                  "Ecuación de ajuste",
                  {.filas = 2, .columnas = {{"Correlación", 1050}, {"Ecuación", 3000}, {"R", 1050}, {"R2", 1050}}}};
    CommandButton bGraficar{*this, "bGraficar", "&Graficar", "Mostrar gráfico"};
    Frame Frame4{*this, "Frame4", "Aplicar ecuación lineal:"};
    Label lblCalculoY{*this, "lblCalculoY", "Ingresar el valor conocido:", Papel::Encabezado};
    Label Label6{*this, "Label6", "Valor de X:"}, Label7{*this, "Label7", "Valor de Y:"};
    TextBox txtvxx{*this, "txtvxx"}, txtvyy{*this, "txtvyy"};
    CommandButton bCalY{*this, "bCalY", "Calcular &Y", "Calcular valor de Y"};
    CommandButton bCalX{*this, "bCalX", "Calcular &X", "Calcular valor de X"};
    GraficoModulo Graph1{*this, "Graph1", "Gráfico de los pares de datos"};

    Arreglo<Double, 1, 1550> x, y;
    Double a, b;  ///< Coefficients of the last fit, unrounded; 0 when there was none.

    void bGraficar_Click();
    void bCalY_Click();
    void bCalX_Click();
    void GenerarReporte(Reporte& reporte) override;

  protected:
    void Calcular() override;
    void LimpiarOtros() override;
    Disposicion Contenido() override;

  private:
    /// Empties the result box and returns whether the known value was typed; when not, tells the user and moves the
    /// focus to its box.
    bool PrepararEvaluacion(TextBox& conocido, TextBox& resultado, const std::string& nombreConocido,
                            const std::string& nombreResultado);
};

}  // namespace cuencalia
