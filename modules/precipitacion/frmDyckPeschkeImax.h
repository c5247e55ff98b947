#pragma once

#include "frame/modulo/modulocalculo.h"
#include "modules/precipitacion/grobe.h"
#include "modules/precipitacion/intensidaddiseno.h"

namespace cuencalia {

/// The intensity-duration-frequency equation of a series of annual maximum rains of a day, by the criterion of Grobe.
class frmDyckPeschkeImax : public ModuloCalculo {
  public:
    explicit frmDyckPeschkeImax(Aplicacion& app);

    SSTab SSTab1{*this,
                 "SSTab1",
                 {"Ingreso de datos y cálculo ecuación Imax", "Lluvias e intensidades de cada año",
                  "Resultados y gráfico Imax-D-T"}};
    Label lblDuracion{*this, "lblDuracion", "Lluvia máxima para diferentes duraciones (mm):", Papel::Encabezado};
    Label lblImax{*this, "lblImax", "Intensidades máximas para diferentes duraciones (mm/hr):", Papel::Encabezado};
    Label lblImaxOrdT{
        *this, "lblImaxOrdT",
        "Intensidades máximas para diferentes duraciones y periodos de retorno (mm/hr):", Papel::Encabezado};
    Label lblAjuste{*this, "lblAjuste", "Ecuación de ajuste de Imáx:", Papel::Encabezado};
    Tabla grdDuracion, grdImax, grdImaxOrdT;
    IntensidadDiseno diseno;

    Serie P24;  ///< Annual maxima of the rain of a day, mm.

    void GenerarReporte(Reporte& reporte) override;

  protected:
    bool Calcular() override;
    Disposicion Cuerpo() override;
};

}  // namespace cuencalia
