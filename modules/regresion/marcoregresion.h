#pragma once

#include <string>
#include <vector>

#include "frame/modulo/modulocalculo.h"
#include "modules/regresion/ecuacionesnormales.h"

namespace cuencalia {

/// The properties in which the windows of a regression by normal equations differ.
struct DescripcionRegresion {
    int k;                           ///< Number of independent variables, or the degree of the polynomial: 2 or 3.
    std::string rechazo;             ///< Message for fewer than k + 2 rows.
    std::vector<std::string> filas;  ///< Names of the equations.
    std::vector<int> anchos;         ///< Widths of the columns of the table of equations, twips.
    int reglaEcuaciones;             ///< Dashes of a rule of that table in the report.
};

/// A table of a report: its title and its headings.
struct RotulosTabla {
    std::string titulo;
    std::vector<std::string> encabezados;
};

/// Fit by normal equations: the table of equations, each with R, R² and the standard error Se, and its report.
class MarcoRegresion : public ModuloCalculo {
  public:
    MarcoRegresion(Aplicacion& app, std::string nombre, DescripcionModulo modulo, DescripcionRegresion regresion);

    Tabla grdecua;

  protected:
    const DescripcionRegresion& Regresion() const { return regresion_; }
    /// The row of the table of an equation.
    static std::vector<std::string> FilaDeEcuacion(const std::string& nombre, const std::string& ecuacion, Double R,
                                                   Double R2, Double Se);
    /// Fits the equations to the rows read and fills the table; returns whether the normal equations have a solution.
    virtual bool Ajustar() = 0;
    /// Writes the data, between rules of `reglaDatos` dashes, and the table of equations.
    void ReportarTablas(Reporte& reporte, const RotulosTabla& rotulosDatos, int reglaDatos,
                        const RotulosTabla& rotulosEcuaciones);
    bool Calcular() override;
    /// The table of equations, which are long, above all the rest.
    Disposicion Cuerpo() override { return Columna({grdecua, ModuloCalculo::Cuerpo().Estira(1)}); }

  private:
    DescripcionRegresion regresion_;
};

}  // namespace cuencalia
