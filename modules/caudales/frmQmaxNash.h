#pragma once

#include <vector>

#include "modules/caudales/marcomaximas.h"

namespace cuencalia {

/// Design discharge by Nash's line through the ranked maxima, with the sums and the ranks that give it.
class frmQmaxNash : public MarcoMaximas {
  public:
    explicit frmQmaxNash(Aplicacion& app);

    Frame fraSumatorias{*this, "fraSumatorias", "Sumatorias:"};
    Label lblSQ{*this, "lblSQ", "Q:"}, lblSX{*this, "lblSX", "X:"}, lblSQX{*this, "lblSQX", "Q*X:"};
    Label lblSQ2{*this, "lblSQ2", "Q^2:"}, lblSX2{*this, "lblSX2", "X^2:"};
    TextBox txtSQ{*this, "txtSQ"}, txtSX{*this, "txtSX"}, txtSQX{*this, "txtSQX"};
    TextBox txtSQ2{*this, "txtSQ2"}, txtSX2{*this, "txtSX2"};
    Tabla grdTablaQX{
        *this,
        "grdTablaQX",
        "Caudales por rango",
        {.filas = 2,
         .columnas = {{"m", 700}, {"Q", 1300}, {"T", 1100}, {"X", 1100}, {"Q*X", 1500}, {"Q^2", 1700}, {"X^2", 1100}}}};

  protected:
    Estimacion Estimar(Double T) override;
    std::vector<Disposicion> Detalles() override;
};

}  // namespace cuencalia
