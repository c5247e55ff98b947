#pragma once

#include <array>

#include "frame/modulo/modulocalculo.h"
#include "frame/reportes/grafico.h"
#include "modules/curvas/variacionestacional.h"

namespace cuencalia {

/// Seasonal variation curve: for each month of the year the value that it equals or exceeds with given probabilities.
class frmVariacionEsta : public ModuloCalculo {
  public:
    explicit frmVariacionEsta(Aplicacion& app);

    CommandButton bGraficar{*this, "bGraficar", "&Graficar", "Mostrar gráfico"};
    Label Label4{*this, "Label4", "Nº años:"};
    TextBox txtnanos{*this, "txtnanos"};
    Label Label3{*this, "Label3", "Probabilidad de ocurrencia de eventos mensuales", Papel::Encabezado};
    Tabla grddis{*this,
                 "grddis",
                 "Valores mensuales por probabilidad",
                 {.filas = 13,
                  .columnas = {{"Meses", 700},
                               {" 70 %", 900},
                               {" 75 %", 900},
                               {"80 %", 900},
                               {"85 %", 900},
                               {"90 %", 900},
                               {"95 %", 900}}}};
    Label lblEjeY{*this, "lblEjeY", "X"}, lblEjeX{*this, "lblEjeX", "Mes"};
    GraficoModulo Graph1{*this, "Graph1", "Curvas de variación estacional"};

    static constexpr int kNiveles = 6;

    Serie serie;    ///< The monthly values in the order of the grid.
    int nAnos = 0;  ///< Years of the last series that was complete.
    Meses meses;    ///< Its values by months; in ascending order once they were calculated with.
    Meses copia;    ///< The same in the order of the years.
    std::array<std::array<Double, 12>, kNiveles> niveles;  ///< The values of the table, unrounded, level by level.

    /// Reads the grid. A series that is not of whole years is refused with a message, and the months of the last
    /// complete one stay.
    void CargarMatrices() override;
    void bGraficar_Click();
    void GenerarReporte(Reporte& reporte) override;

  protected:
    bool Calcular() override;
    Disposicion Contenido() override;

  private:
    bool TodosPositivos() const;
};

}  // namespace cuencalia
