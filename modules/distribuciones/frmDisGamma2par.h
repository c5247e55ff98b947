#pragma once

#include "modules/distribuciones/gamma2.h"
#include "modules/distribuciones/marcoajuste.h"

namespace cuencalia {

/// Fit of a series of values above 0 to the gamma distribution of two parameters.
class frmDisGamma2par : public MarcoAjuste {
  public:
    explicit frmDisGamma2par(Aplicacion& app);

    Gamma2 ordinarios, lineales;
    Double &gammao = ordinarios.gamma, &betao = ordinarios.beta;
    Double &gammal = lineales.gamma, &betal = lineales.beta;
    CampoParametro txtgamma{*this, "txtgamma", "De forma (gamma):", "Parámetro de forma (gamma)= ", gammao};
    CampoParametro txtbeta{*this, "txtbeta", "De escala (beta):", "Parámetro de escala (beta)= ", betao};
    CampoParametro txtgammal{*this, "txtgammal", "De forma (gammal):", "Parámetro de forma (gammal)= ", gammal};
    CampoParametro txtbetal{*this, "txtbetal", "De escala (betal):", "Parámetro de escala (betal)= ", betal};

    void GenerarReporte(Reporte& reporte) override { ReporteDistriGamma2(reporte); }
    void ReporteDistriGamma2(Reporte& reporte) { ReportarAjuste(reporte); }

  protected:
    void Ajustar() override;
    bool AdmiteParametros() override;
    Double Cuantil(Double p) override { return Elegidos().Cuantil(p, n); }
    std::optional<Double> Probabilidad(Double Q, Evaluacion) override { return Elegidos().Probabilidad(Q); }

  private:
    const Gamma2& Elegidos() const { return Ordinario() ? ordinarios : lineales; }
};

}  // namespace cuencalia
