#pragma once

#include <string>
#include <vector>

#include "frame/modulo/modulocalculo.h"
#include "frame/reportes/grafico.h"

namespace cuencalia {

/// The data grid and the files of the windows that fit a curve to pairs X, Y.
DescripcionModulo ModuloDePares(std::string titulo);

/// Curves fitted by the least-squares line through pairs of numbers, or through their logarithms.
class MarcoRegreSimple : public ModuloCalculo {
  public:
    /// `rotulos` are those of the rows of the table of equations before anything is fitted.
    MarcoRegreSimple(Aplicacion& app, std::string nombre, const std::string& titulo, int ecuaciones,
                     std::vector<std::string> rotulos = {});

    Tabla grdecua;
    CommandButton bGraficar{*this, "bGraficar", "&Graficar", "Mostrar gráfico"};
    GraficoModulo Graph1{*this, "Graph1", "Gráfico de los pares de datos"};

    Arreglo<Double, 1, 1550> x, y;
    Double a, b;  ///< Coefficients of the last line, unrounded; 0 when there was none.

    void bGraficar_Click();
    /// The pairs and the table of equations.
    void GenerarReporte(Reporte& reporte) override;

  protected:
    /// Fits the curves to the pairs in x and y and fills the table.
    virtual void Ajustar() = 0;

    /// Stores the line in a and b and returns its row of the table. The line is stored before the correlation is
    /// calculated, which may fail.
    std::vector<std::string> AjustarLinea(const char* patron);
    /// A row of the table: name, equation, R and R².
    static std::vector<std::string> FilaDeCurva(const char* nombre, const std::string& ecuacion, Double R);

    bool Calcular() override;
};

}  // namespace cuencalia
