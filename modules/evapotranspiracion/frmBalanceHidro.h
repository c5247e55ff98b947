#pragma once

#include "modules/evapotranspiracion/modulomensual.h"

namespace cuencalia {

/// Monthly precipitation against the evapotranspiration by Thornthwaite's method, and the first month that has more of
/// the former.
class frmBalanceHidro : public ModuloMensual {
  public:
    explicit frmBalanceHidro(Aplicacion& app);

    Label lbla{*this, "lbla", "exponente (a):"}, lblMesIni{*this, "lblMesIni", "Mes de inicio que P > ETo:"};
    TextBox txta{*this, "txta"}, txtMesIni{*this, "txtMesIni"};

    DocePorMes P;  ///< mm
    ValoresPorLatitud factorF{kTablaF};
    Thornthwaite anual;
    DoceSingle PmenosE;  ///< mm

    void GenerarReporte(Reporte& reporte) override;

  protected:
    bool Calcular() override;
    std::vector<SerieGrafico> Curvas() const override;
    std::string RotuloDeMes(int mes) const override { return std::to_string(mes); }
    Disposicion Contenido() override;
};

}  // namespace cuencalia
