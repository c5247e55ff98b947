#pragma once

#include <string>
#include <vector>

#include "modules/evapotranspiracion/marcoradiacion.h"
#include "modules/evapotranspiracion/penman.h"

namespace cuencalia {

/// Reference evapotranspiration by Penman's method as FAO modified it, with every step of the calculation.
class frmPenman : public MarcoRadiacion {
  public:
    explicit frmPenman(Aplicacion& app);

    Campos entradas;
    Frame fraRadiacion{*this, "fraRadiacion", "Radiación:"};
    CamposDe<ResultadoPenman> radiacion;
    Frame fraViento{*this, "fraViento", "Viento:"};
    CamposDe<ResultadoPenman> viento;
    Frame fraVapor{*this, "fraVapor", "Presión de vapor:"};
    CamposDe<ResultadoPenman> vapor;
    Frame fraPonderacion{*this, "fraPonderacion", "Ponderación:"};
    CamposDe<ResultadoPenman> ponderacion;
    Frame fraResultado{*this, "fraResultado", "Evapotranspiración:"};
    CamposDe<ResultadoPenman> resultado;

    void GenerarReporte(Reporte& reporte) override;

  protected:
    bool Calcular() override;
    std::string Consejo(const ErrorEjecucion& error) const override;
    Disposicion Cuerpo() override;

  private:
    /// Reads all boxes and tells the user which of them are empty, one after the other. An empty box is a 0; without a
    /// temperature the one that was read last stays.
    void LeerDatos();

    DatosPenman datos_;
    const std::vector<CamposDe<ResultadoPenman>*> resultados_{&radiacion, &viento, &vapor, &ponderacion, &resultado};
};

}  // namespace cuencalia
