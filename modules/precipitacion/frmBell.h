#pragma once

#include "modules/precipitacion/intensidaddiseno.h"

namespace cuencalia {

/// The intensity-duration-frequency equation of one rain of a day, that of 10 years, by the formula of Bell.
class frmBell : public MarcoModulo {
  public:
    explicit frmBell(Aplicacion& app);

    SSTab SSTab1{*this, "SSTab1", {"Ingreso de datos", "Cálculo ecuación Imax", "Resultados y gráfico Imax-D-T"}};
    Frame fraDatos{*this, "fraDatos", "Ingreso de datos:"};
    Label lblP2410{*this, "lblP2410", "Pmax para 24hr con T=10 años:"}, lblUnidadP2410{*this, "lblUnidadP2410", "mm"};
    TextBox txtP2410{*this, "txtP2410"};
    CommandButton bContinuar{*this, "bContinuar", "C&ontinuar", "Calcular P6010 y continuar"};
    Label Label13{*this, "Label13",
                  "Este dato, se genera a partir de los datos de Pmax diaria (24 hr), para un T=10 años, con la "
                  "distribución que mejor la ajuste.",
                  Papel::Nota};
    Frame fraP6010{*this, "fraP6010", "Resultado parcial (P6010):"};
    Label lblPD60T10{*this, "lblPD60T10", "P con D=60 min y T=10 años (P6010):"},
        lblUnidadPD60T10{*this, "lblUnidadPD60T10", "mm"};
    TextBox txtPD60T10{*this, "txtPD60T10"};
    Label lblDuracion{*this, "lblDuracion",
                      "Precipitaciones para diferentes duraciones y periodos de retorno, obtenidos con la fórmula de "
                      "Bell :",
                      Papel::Encabezado};
    Label lblImax{*this, "lblImax",
                  "Imax para diferentes duraciones (D) y periodos de retorno (T) :", Papel::Encabezado};
    Label lblAjuste{*this, "lblAjuste", "Ecuación de ajuste de Imáx:", Papel::Encabezado};
    Tabla grdDuracion, grdImax;
    IntensidadDiseno diseno;

    Single P6010;  ///< Rain of an hour with return period 10 years, mm.

    void Form_Load() override;
    void bContinuar_Click();
    void GenerarReporte(Reporte& reporte) override;

  protected:
    bool Calcular() override;
    Disposicion Cuerpo() override;
};

}  // namespace cuencalia
