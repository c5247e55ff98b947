#pragma once

#include "modules/evapotranspiracion/modulomensual.h"

namespace cuencalia {

/// Potential evapotranspiration by Thornthwaite's method.
class frmThornthwaite : public ModuloMensual {
  public:
    explicit frmThornthwaite(Aplicacion& app);

    Label lbli{*this, "lbli", "Indice térmico anual (I):"}, lbla{*this, "lbla", "exponente (a):"};
    TextBox txti{*this, "txti"}, txta{*this, "txta"};

    ValoresPorLatitud factorF{kTablaF};
    Thornthwaite anual;

    void GenerarReporte(Reporte& reporte) override;

  protected:
    bool Calcular() override;
    std::vector<SerieGrafico> Curvas() const override { return {CurvaMensual(anual.ETrDia)}; }
    Disposicion Contenido() override;
};

}  // namespace cuencalia
