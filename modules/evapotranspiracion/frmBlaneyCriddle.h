#pragma once

#include "modules/evapotranspiracion/blaneycriddle.h"
#include "modules/evapotranspiracion/modulomensual.h"

namespace cuencalia {

/// Reference and crop evapotranspiration by the method of Blaney and Criddle as the FAO modified it.
class frmBlaneyCriddle : public ModuloMensual {
  public:
    explicit frmBlaneyCriddle(Aplicacion& app);

    Frame fraClima{*this, "fraClima", "Datos climáticos:"};
    OptionButton OptEstimado{*this, "OptEstimado", "Estimados", true}, OptMedido{*this, "OptMedido", "Medidos"};
    Frame fraClimaEstimado{*this, "fraClimaEstimado"}, fraClimaMedido{*this, "fraClimaMedido"};
    Label lblInsolacion{*this, "lblInsolacion", "Insolación relativa (n/N):"};
    ComboBox cobInsolacion{
        *this,
        "cobInsolacion",
        {"Despejado (0.85-0.95)", "Nublado parcial (0.65-0.85)", "Nublado (0.30-0.60)", "Cubierto (0.15-0.25)"}};
    Label lblHumedad{*this, "lblHumedad", "Humedad relativa mínima (%):"};
    ComboBox cobHumedad{*this, "cobHumedad", {"Baja (< 20)", "Media (20-50)", "Alta (>50)"}};
    Label lblViento{*this, "lblViento", "Velocidad del viento (Km/hr):"};
    ComboBox cobViento{*this, "cobViento", {"Débil (< 7.2)", "Moderado (7.2-18)", "Fuerte ( >18)"}};
    Label lblcn{*this, "lblcn", "Número de horas de insolación real (n):"};
    TextBox txtcn{*this, "txtcn"};
    Label lblchrmin{*this, "lblchrmin", "Humedad relativa mínima (HRmin) (%):"};
    TextBox txtchrmin{*this, "txtchrmin"};
    Label lblcv{*this, "lblcv", "Velocidad del viento  (Km/hr):"};
    TextBox txtcv{*this, "txtcv"};

    Frame fraKc{*this, "fraKc", "Datos Kc cultivo:"};
    OptionButton optKcEstimado{*this, "optKcEstimado", "Estimado", true}, optKcTabla{*this, "optKcTabla", "Tabla"};
    Frame fraKcEstimado{*this, "fraKcEstimado"}, fraKcTabla{*this, "fraKcTabla"};
    ComboBox cobKc;
    Label lblKcTabla{*this, "lblKcTabla", "Kc:"};
    TextBox txtKcTabla{*this, "txtKcTabla"};

    ValoresPorLatitud pMes{kTablaP};  ///< Percentage of the year's daytime hours in a day of the month.
    ValoresPorLatitud Nmax{kTablaN};  ///< Maximum sunshine hours of a day.
    DoceSingle ETo;                   ///< mm a day
    DoceSingle ETr;                   ///< The same of the crop.
    DoceSingle ETrMes;                ///< The same of the month, mm.
    Double Kc;

    void GenerarReporte(Reporte& reporte) override;

  protected:
    bool Calcular() override;
    std::vector<SerieGrafico> Curvas() const override { return {CurvaMensual(ETr)}; }
    Disposicion Contenido() override;

  private:
    /// Makes an option show its frame in place of the other's.
    void Alternar(OptionButton& opcion, Frame& marco, Frame& otro, Control& primero);
    bool LeerClima();
    bool LeerKc();
    RectaFao RectaDelMes(int mes) const;
    bool Estimado() const { return OptEstimado.Value; }

    Clase insolacion_ = Clase::Baja, humedad_ = Clase::Baja, viento_ = Clase::Baja;
    Double horas_;  ///< Measured hours of sunshine in a day.
};

}  // namespace cuencalia
