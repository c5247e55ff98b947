#pragma once

#include "modules/estadistica/moduloserie.h"
#include "modules/estadistica/tablaparametros.h"

namespace cuencalia {

/// Statistical parameters of a series: sample, population and linear moments side by side, and the sorted series.
class frmParamEsta : public ModuloSerie {
  public:
    explicit frmParamEsta(Aplicacion& app);

    Tabla grdParam{*this, "grdParam", "Parámetros estadísticos",
                   TablaDeParametros({"Muestrales", "Poblacionales", "Momentos Lineales"})};
    Frame Frame8{*this, "Frame8", "Coeficientes Lineales:"};
    Label lblL1{*this, "lblL1", "L1:"}, lblL2{*this, "lblL2", "L2:"};
    Label lblL3{*this, "lblL3", "L3:"}, lblL4{*this, "lblL4", "L4:"};
    TextBox txtL1{*this, "txtL1"}, txtL2{*this, "txtL2"}, txtL3{*this, "txtL3"}, txtL4{*this, "txtL4"};

    void GenerarReporte(Reporte& reporte) override;

  protected:
    bool Calcular() override;
    Disposicion Contenido() override;
};

}  // namespace cuencalia
