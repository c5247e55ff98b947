#pragma once

#include <string>
#include <vector>

#include "frame/reportes/grafico.h"
#include "modules/regresion/marcoregresion.h"

namespace cuencalia {

/// The properties in which the windows of a polynomial regression differ.
struct DescripcionRegPolinomial {
    std::string titulo;
    DescripcionRegresion regresion;
    std::vector<std::string> ecuacion;  ///< What stands around the coefficients.
};

/// Polynomial regression Y = a0 + a1·X + a2·X² …, the powers of X being its independent variables.
class MarcoRegPolinomial : public MarcoRegresion {
  public:
    MarcoRegPolinomial(Aplicacion& app, std::string nombre, DescripcionRegPolinomial descripcion);

    Frame Frame4{*this, "Frame4", "Aplicar ecuación polinomial:"};
    Label lblCalculoY{*this, "lblCalculoY", "Ingresar:", Papel::Encabezado};
    Label Label6{*this, "Label6", "Valor de X:"}, Label7{*this, "Label7", "Valor de Y:"};
    TextBox txtvxx1{*this, "txtvxx1"}, txtvyy{*this, "txtvyy"};
    CommandButton bCalY{*this, "bCalY", "Calcular &Y", "Calcular valor de Y"};
    CommandButton bGraficar{*this, "bGraficar", "&Graficar", "Graficar pares datos"};
    GraficoModulo Graph1{*this, "Graph1", "Pares de datos y valores de la ecuación"};

    std::vector<Serie> x;  ///< X and its powers: x[0] to x[k - 1].
    Serie y;
    std::vector<Double> a;  ///< Coefficients of the last fit; 0 when there was none.
    Serie yc;               ///< Value of the polynomial at each row of the last fit; 0 where no fit came.

    void CargarMatrices() override;
    void bCalY_Click();
    void bGraficar_Click();
    void GenerarReporte(Reporte& reporte) override;

  protected:
    bool Ajustar() override;
    Disposicion Contenido() override;

  private:
    std::vector<Double> Potencias(Double valor) const;

    std::vector<std::string> ecuacion_;
};

}  // namespace cuencalia
