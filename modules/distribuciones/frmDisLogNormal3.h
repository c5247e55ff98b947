#pragma once

#include "modules/distribuciones/lognormal3.h"
#include "modules/distribuciones/marcoajuste.h"

namespace cuencalia {

/// Fit of a series of values above 0 to the log-normal distribution of three parameters. It has ordinary moments alone:
/// Yord holds Z, Gord F(Z).
class frmDisLogNormal3 : public MarcoAjuste {
  public:
    explicit frmDisLogNormal3(Aplicacion& app);

    LogNormal3 distribucion;
    Double &x0 = distribucion.x0, &uy = distribucion.uy, &sy = distribucion.sy;
    CampoParametro txtxo{*this, "txtxo", "De posición (xo):", "Parámetro de posición (xo)= ", x0};
    CampoParametro txtux{*this, "txtux", "De escala (µy):", "Parámetro de escala (µy)= ", uy};
    CampoParametro txtsx{*this, "txtsx", "De forma (Sy):", "Parámetro de forma (Sy)= ", sy};

    void GenerarReporte(Reporte& reporte) override { ReporteDistriLogNormal3(reporte); }
    void ReporteDistriLogNormal3(Reporte& reporte) { ReportarAjuste(reporte); }

  protected:
    bool AdmiteDatos() override;
    void Ajustar() override;
    Double Cuantil(Double p) override { return distribucion.Cuantil(p); }
    std::optional<Double> Probabilidad(Double Q, Evaluacion evaluacion) override;
    std::pair<const ArregloBase<Double>&, const ArregloBase<Double>&> Teoricas() const override { return {Yord, Gord}; }
};

}  // namespace cuencalia
