#pragma once

#include "modules/distribuciones/gamma2.h"
#include "modules/distribuciones/marcoajuste.h"

namespace cuencalia {

/// Fit of a series of values above 0 to the gamma distribution of two parameters.
class frmDisGamma2par : public MarcoAjuste {
  public:
    explicit frmDisGamma2par(Aplicacion& app);

    Gamma2 ordinarios, lineales;
    CampoParametro txtgamma{*this, "txtgamma", "De forma (gamma):", "Parámetro de forma (gamma)= ", ordinarios.gamma};
    CampoParametro txtbeta{*this, "txtbeta", "De escala (beta):", "Parámetro de escala (beta)= ", ordinarios.beta};
    CampoParametro txtgammal{*this, "txtgammal", "De forma (gammal):", "Parámetro de forma (gammal)= ", lineales.gamma};
    CampoParametro txtbetal{*this, "txtbetal", "De escala (betal):", "Parámetro de escala (betal)= ", lineales.beta};

  protected:
    void Ajustar() override;
    bool AdmiteParametros() override;
    DistribucionExacta Exacta() const override { return Ordinario() ? ordinarios.Exacta() : linealesExactos_.Exacta(); }
    std::string CausaDeDiferencia() const override;
    Double Cuantil(Double p) override { return Elegidos().Cuantil(p, n); }
    std::optional<Double> Probabilidad(Double Q, Evaluacion) override { return Elegidos().Probabilidad(Q); }

  private:
    const Gamma2& Elegidos() const { return Ordinario() ? ordinarios : lineales; }

    Gamma2 linealesExactos_;  ///< The shape of `lineales` by the published formula.
};

}  // namespace cuencalia
