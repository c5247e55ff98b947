#pragma once

#include "modules/distribuciones/marcoajuste.h"
#include "modules/distribuciones/pearson3.h"

namespace cuencalia {

/// Fit to the Pearson type III distribution, of the values or of their logarithms. When the parameters by one kind of
/// moments leave some values below x0, these values have no probability: the flag for that kind of moments is set, the
/// verdict says that its parameters are incorrect, and they are not evaluated.
class AjustePearson3 : public MarcoAjuste {
  public:
    Pearson3 ordinarios, lineales;
    CampoParametro txtxo{*this, "txtxo", "De posición (x0):", "Parámetro de localización (Xo)= ", ordinarios.x0};
    CampoParametro txtgamma{*this, "txtgamma", "De forma (gamma):", "Parámetro de forma (gamma)= ", ordinarios.gamma};
    CampoParametro txtbeta{*this, "txtbeta", "De escala (beta):", "Parámetro de escala (beta)= ", ordinarios.beta};
    CampoParametro txtxol{*this, "txtxol", "De posición (x0l):", "Parámetro de localización (Xol)= ", lineales.x0};
    CampoParametro txtgammal{*this, "txtgammal", "De forma (gammal):", "Parámetro de forma (gammal)= ", lineales.gamma};
    CampoParametro txtbetal{*this, "txtbetal", "De escala (betal):", "Parámetro de escala (betal)= ", lineales.beta};
    bool paramMalOrd = false, paramMalLin = false;

  protected:
    /// `enVeredicto` is the name of the distribution in the verdict that the parameters are incorrect.
    AjustePearson3(Aplicacion& app, std::string nombre, DescripcionAjuste descripcion,
                   const DistribucionPearson3& distribucion, const char* enVeredicto);

    void Ajustar() override;
    void EscribirVeredicto(Double deltaTeorico, Double deltaTabular, const char* nivel) override;
    bool PuedeEvaluar() override;
    DistribucionExacta Exacta() const override;
    std::string CausaDeDiferencia() const override;
    std::string Consejo(const ErrorEjecucion& error) const override;
    Double Cuantil(Double p) override;
    std::optional<Double> Probabilidad(Double Q, Evaluacion evaluacion) override;

  private:
    /// Calculates the reduced variables of xo; returns whether one of them is negative.
    bool Reducir(const Pearson3& d, Serie& Y) const;
    const Pearson3& Elegidos() const { return Ordinario() ? ordinarios : lineales; }
    bool Incorrectos() const { return Ordinario() ? paramMalOrd : paramMalLin; }
    std::string Momentos() const { return Ordinario() ? "momentos ordinarios" : "momentos lineales"; }

    const DistribucionPearson3& distribucion_;
    const char* enVeredicto_;
    /// With beta and x0 as the sign of tau asks for, which `lineales` leaves out.
    Pearson3 linealesConSigno_;
};

}  // namespace cuencalia
