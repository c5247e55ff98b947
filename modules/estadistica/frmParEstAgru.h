#pragma once

#include "modules/estadistica/clases.h"
#include "modules/estadistica/moduloserie.h"
#include "modules/estadistica/tablaparametros.h"

namespace cuencalia {

/// Statistical parameters from the classes of a series instead of from its values.
class frmParEstAgru : public ModuloSerie {
  public:
    explicit frmParEstAgru(Aplicacion& app);

    Tabla grddis{*this, "grddis", "Frecuencias absolutas", TablaDeClases({"LCI", "MCL", "LCS", "Fab"})};
    Tabla grdParam{*this, "grdParam", "Parámetros estadísticos", TablaDeParametros({"Resultados"})};

    Clases clases;

    void GenerarReporte(Reporte& reporte) override;

  protected:
    bool Calcular() override;
    Disposicion Contenido() override;
};

}  // namespace cuencalia
