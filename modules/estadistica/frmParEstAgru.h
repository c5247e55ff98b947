#pragma once

#include "frame/modulo.h"
#include "modules/estadistica/clases.h"
#include "modules/estadistica/listaordenada.h"

namespace cuencalia {

/// Statistical parameters from the classes of a series instead of from its values.
class frmParEstAgru : public ModuloCalculo {
  public:
    explicit frmParEstAgru(Aplicacion& app);

    FlexGrid grddis{*this, "grddis", "Frecuencias absolutas"};
    FlexGrid grdParam{*this, "grdParam", "Parámetros estadísticos"};
    ListaOrdenada orden{*this};

    Serie x, xo;
    Clases clases;

    void InicializarResultados() override;
    void InicializarDistri();
    void InicializarParam();
    void bCalcular_Click() override;
    void bOrdenar_Click();
    void GenerarReporte(Reporte& reporte) override { ReporteParamEsta(reporte); }
    void ReporteParamEsta(Reporte& reporte);

  protected:
    void LimpiarOtros() override { orden.OcultarGrid(); }
    Disposicion Contenido() override;
    std::vector<Disposicion> BotonesAccion() override;

  private:
    void OrdenarCopia();
};

}  // namespace cuencalia
