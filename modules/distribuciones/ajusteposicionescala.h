#pragma once

#include "modules/distribuciones/marcoajuste.h"
#include "modules/distribuciones/posicionescala.h"

namespace cuencalia {

/// Fit to a distribution with a position and a scale parameter, of the values or of their logarithms.
class AjustePosicionEscala : public MarcoAjuste {
  public:
    Serie ylog;  ///< Logarithms of xo, for the distributions of logarithms.

  protected:
    AjustePosicionEscala(Aplicacion& app, std::string nombre, DescripcionAjuste descripcion,
                         const DistribucionPosicionEscala& distribucion);

    PosicionEscala ordinarios, lineales;

    bool AdmiteSerie() override;
    void Ajustar() override;
    std::optional<Double> Delta5() const override {
        return DeltaConParametrosAjustados(distribucion_.exacta, !Ordinario(), n);
    }
    DistribucionExacta Exacta() const override { return distribucion_.Exacta(Elegidos()); }
    Double Cuantil(Double p) override { return distribucion_.Cuantil(Elegidos(), p); }
    std::optional<Double> Probabilidad(Double Q, Evaluacion) override {
        return distribucion_.Probabilidad(Elegidos(), Q);
    }

  private:
    const PosicionEscala& Elegidos() const { return Ordinario() ? ordinarios : lineales; }

    const DistribucionPosicionEscala& distribucion_;
};

}  // namespace cuencalia
