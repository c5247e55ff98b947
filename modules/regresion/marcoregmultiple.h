#pragma once

#include <string>
#include <vector>

#include "modules/regresion/aplicarecuacion.h"
#include "modules/regresion/marcoregresion.h"
#include "modules/regresion/textoecuacion.h"

namespace cuencalia {

/// The properties in which the windows of a multiple regression differ.
struct DescripcionRegMultiple {
    DescripcionModulo modulo;
    DescripcionRegresion regresion;
    std::string faltaX;                       ///< Message when a box with a known value is empty.
    std::string fallo;                        ///< Message for a run-time error in the calculation.
    std::vector<std::string> ecuacionLineal;  ///< What stands around the coefficients.
    std::vector<std::string> ecuacionPotencial;
    Signo signoPotencial;       ///< Of the exponents.
    RotulosTabla reporteDatos;  ///< The data in the report,
    int reglaDatos;             ///< the dashes of their rules,
    std::string tituloY;        ///< and the title of the equation applied.
};

/// Multiple regression on k variables above 0: Y = a0 + a1·X1 + … and Y = a0·X1^a1…, the second one fitted to the
/// logarithms.
class MarcoRegMultiple : public MarcoRegresion {
  public:
    MarcoRegMultiple(Aplicacion& app, std::string nombre, DescripcionRegMultiple descripcion);

    AplicarEcuacion aplicar;

    std::vector<Serie> x;
    Serie y;
    std::vector<Double> aL;  ///< Coefficients of the last linear fit; 0 when there was none.
    std::vector<Double> aP;  ///< Factor and exponents of the last power fit, alike.

    void GenerarReporte(Reporte& reporte) override;

  protected:
    bool Ajustar() override;
    Disposicion Contenido() override;

  private:
    DescripcionRegMultiple descripcion_;
};

}  // namespace cuencalia
