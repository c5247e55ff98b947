#pragma once

#include "frame/reportes/grafico.h"
#include "modules/estadistica/clases.h"
#include "modules/estadistica/moduloserie.h"
#include "modules/estadistica/tablaparametros.h"

namespace cuencalia {

/// Frequency distribution of a series: classes, frequencies, and the polygon or the cumulative curve.
class frmDistriFre : public ModuloSerie {
  public:
    explicit frmDistriFre(Aplicacion& app);

    Tabla grddis{*this, "grddis", "Distribución de frecuencias",
                 TablaDeClases({"LCI", "MCL", "LCS", "FreAbsoluta", "FreRelativa", "FunDensidad", "FunAcumulada"})};
    CommandButton bGraficar{*this, "bGraficar", "&Graficar", "Mostrar gráfico"};
    Frame fraTipoGrafico{*this, "fraTipoGrafico", "Tipo de gráfico:"};
    OptionButton optDensidad{*this, "optDensidad", "F. Densidad"};
    OptionButton optAcumulada{*this, "optAcumulada", "F. Acumulada"};
    GraficoModulo Graph1{*this, "Graph1", "Gráfico de la distribución de frecuencia"};
    Label lblPorcentaje{*this, "lblPorcentaje", "(%)"};
    Label lblFuncion{*this, "lblFuncion", "Fx"};
    Label lblMarcaClase{*this, "lblMarcaClase", "Marca de clase"};

    Clases clases;
    Clases::Columna FR;   ///< Relative frequency, percent.
    Clases::Columna FD;   ///< Density, percent by unit of the series.
    Clases::Columna FAc;  ///< Cumulative frequency, percent.

    void bGraficar_Click();
    void optDensidad_Click();
    void optAcumulada_Click();
    void GenerarReporte(Reporte& reporte) override;

  protected:
    bool Calcular() override;
    Disposicion Contenido() override;

  private:
    void Dibujar(const char* funcion, const Clases::Columna& ordenadas);
};

}  // namespace cuencalia
