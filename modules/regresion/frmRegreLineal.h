#pragma once

#include "frame/reportes/grafico.h"
#include "frame/modulo/modulo.h"

namespace cuencalia {

/// Straight line through pairs of numbers of any sign, applied in both directions.
class frmRegreLineal : public ModuloCalculo {
  public:
    explicit frmRegreLineal(Aplicacion& app);

    FlexGrid grdecua{*this, "grdecua", "Ecuación de ajuste"};
    CommandButton bGraficar{*this, "bGraficar", "&Graficar", "Mostrar gráfico"};
    Frame Frame4{*this, "Frame4", "Aplicar ecuación lineal:"};
    Label lblCalculoY{*this, "lblCalculoY", "Ingresar el valor conocido:", Papel::Encabezado};
    Label Label6{*this, "Label6", "Valor de X:"}, Label7{*this, "Label7", "Valor de Y:"};
    TextBox txtvxx{*this, "txtvxx"}, txtvyy{*this, "txtvyy"};
    CommandButton bCalY{*this, "bCalY", "Calcular &Y", "Calcular valor de Y"};
    CommandButton bCalX{*this, "bCalX", "Calcular &X", "Calcular valor de X"};
    GraficoModulo Graph1{*this, "Graph1", "Gráfico de los pares de datos"};

    Arreglo<Double, 1, 1550> x, y;
    Double a, b;  ///< Of the last fit, unrounded; 0 as long as there was none.
    bool calculado = false;

    void InicializarResultados() override { InicializarEcua(); }
    void InicializarEcua();
    void bCalcular_Click() override;
    void bGraficar_Click();
    void bCalY_Click();
    void bCalX_Click();
    void GenerarReporte(Reporte& reporte) override { cargarRegreSimple(reporte); }
    void cargarRegreSimple(Reporte& reporte);

  protected:
    void LimpiarOtros() override;
    Disposicion Contenido() override;
    std::vector<Disposicion> BotonesAccion() override;

  private:
    /// Empties the result box; says whether the known value was given, with the message and the focus if it was not.
    bool PrepararEvaluacion(TextBox& conocido, TextBox& resultado, const char* nombreConocido,
                            const char* nombreResultado);
};

}  // namespace cuencalia
