#pragma once

#include "frame/modulo/modulocalculo.h"
#include "modules/precipitacion/intensidaddiseno.h"

namespace cuencalia {

/// The intensity-duration-frequency equation of trios of return period, duration and maximum intensity.
class frmIntensidadMax : public ModuloCalculo {
  public:
    explicit frmIntensidadMax(Aplicacion& app);

    SSTab SSTab1{*this, "SSTab1", {"Ingreso de datos y cálculo ecuación Imax", "Resultados y gráfico Imax-D-T"}};
    Label lblAjuste{*this, "lblAjuste", "Ecuación de ajuste de Imáx:", Papel::Encabezado};
    IntensidadDiseno diseno;
    PuntosIDT trios{1500};

    void GenerarReporte(Reporte& reporte) override;

  protected:
    bool Calcular() override;
    Disposicion Cuerpo() override;
};

}  // namespace cuencalia
