#pragma once

#include "modules/distribuciones/lognormal3.h"
#include "modules/distribuciones/marcoajuste.h"

namespace cuencalia {

/// Fit of a series of values above 0 to the log-normal distribution of three parameters. There is only one kind of fit;
/// of the result columns, Yord contains the reduced variable Z and Gord its probability F(Z).
class frmDisLogNormal3 : public MarcoAjuste {
  public:
    explicit frmDisLogNormal3(Aplicacion& app);

    LogNormal3 distribucion;
    CampoParametro txtxo{*this, "txtxo", "De posición (xo):", "Parámetro de posición (xo)= ", distribucion.x0};
    CampoParametro txtux{*this, "txtux", "De escala (µy):", "Parámetro de escala (µy)= ", distribucion.uy};
    CampoParametro txtsx{*this, "txtsx", "De forma (Sy):", "Parámetro de forma (Sy)= ", distribucion.sy};

  protected:
    bool AdmiteDatos() override;
    void Ajustar() override;
    DistribucionExacta Exacta() const override { return distribucion.Exacta(); }
    Double Cuantil(Double p) override { return distribucion.Cuantil(p); }
    std::optional<Double> Probabilidad(Double Q, Evaluacion evaluacion) override;
    std::pair<const ArregloBase<Double>&, const ArregloBase<Double>&> Teoricas() const override { return {Yord, Gord}; }
};

}  // namespace cuencalia
