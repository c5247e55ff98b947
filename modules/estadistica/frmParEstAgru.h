#pragma once

#include "modules/estadistica/clases.h"
#include "modules/estadistica/moduloserie.h"

namespace cuencalia {

/// Statistical parameters from the classes of a series instead of from its values.
class frmParEstAgru : public ModuloSerie {
  public:
    explicit frmParEstAgru(Aplicacion& app);

    FlexGrid grddis{*this, "grddis", "Frecuencias absolutas"};
    FlexGrid grdParam{*this, "grdParam", "Parámetros estadísticos"};

    Clases clases;

    void InicializarResultados() override;
    void InicializarDistri();
    void InicializarParam();
    void bCalcular_Click() override;
    void GenerarReporte(Reporte& reporte) override { ReporteParamEsta(reporte); }
    void ReporteParamEsta(Reporte& reporte);

  protected:
    Disposicion Contenido() override;
};

}  // namespace cuencalia
