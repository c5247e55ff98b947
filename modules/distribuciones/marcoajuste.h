#pragma once

#include <functional>
#include <optional>
#include <string>

#include "frame/modulo/modulocalculo.h"
#include "frame/reportes/grafico.h"
#include "modules/distribuciones/descripcionajuste.h"
#include "modules/distribuciones/exacta.h"
#include "modules/distribuciones/smirnovkolmogorov.h"

namespace cuencalia {

/// The controls by which the user chooses between ordinary and linear moments.
struct TipoDeAjuste {
    TipoDeAjuste(Formulario& forma, const DescripcionAjuste& descripcion);

    Frame marco;
    OptionButton optOrdinario, optMomentoLi;
    Label lblOrdinarios, lblLineales;
};

/// Fit of a series of annual values to a probability distribution: parameters by ordinary and by linear moments,
/// Smirnov-Kolmogorov test, chart, report, and evaluation of the fitted distribution at a return period (years) or at a
/// discharge (m3/s). Each derived class adds the parameters, probabilities and quantile of its distribution.
class MarcoAjuste : public ModuloCalculo {
  public:
    MarcoAjuste(Aplicacion& app, std::string nombre, DescripcionAjuste descripcion);

    std::optional<TipoDeAjuste> tipo;  ///< Empty for a distribution with only one kind of fit.
    Frame fraNivel{*this, "fraNivel", "Nivel significación:"};
    OptionButton opt020{*this, "opt020", "0.20"}, opt010{*this, "opt010", "0.10"};
    OptionButton opt005{*this, "opt005", "0.05", true}, opt001{*this, "opt001", "0.01"};
    Frame fraParametros;
    Frame fraDiseno{*this, "fraDiseno", "Caudal de diseño:"};
    Label lblT{*this, "lblT", "Período de retorno (T):"}, lblUnidadT{*this, "lblUnidadT", "años"};
    Label lblQ{*this, "lblQ", "Caudal (Q):"}, lblUnidadQ{*this, "lblUnidadQ", "m3/s"};
    Label lblP{*this, "lblP", "Probabilidad (P):"}, lblUnidadP{*this, "lblUnidadP", "%"};
    TextBox txtxt{*this, "txtxt"}, txtxq{*this, "txtxq"}, txtxp{*this, "txtxp"};
    CommandButton bQ{*this, "bQ", "Q=f(T)", "Caudal de diseño"};
    CommandButton bT{*this, "bT", "T=f(Q)", "Periodo de retorno"};
    CommandButton bPmayor{*this, "bPmayor", "P(Q>q)", "Probabilidad de excedencia"};
    CommandButton bPmenor{*this, "bPmenor", "P(Q<q)", "Probabilidad de no excedencia"};
    Tabla grddis;
    Label lblAjuste{*this, "lblAjuste", "Ajuste:", Papel::Encabezado};
    Label lblmensaje{*this, "lblmensaje", {}, Papel::Resultado};
    /// What the verdict is worth, as the parameters come from the series itself.
    Label lblDelta5{*this, "lblDelta5", {}, Papel::Nota};
    CommandButton bGraficar{*this, "bGraficar", "&Graficar", "Mostrar gráfico"};
    CommandButton bComparar{*this, "bComparar", "C&omparar", "Comparar los ajustes de todas las distribuciones"};
    Label lblEjeY{*this, "lblEjeY", "Probabilidad de no excedencia"}, lblEjeX{*this, "lblEjeX", "X"};
    GraficoModulo Graph1{*this, "Graph1", "Probabilidades empíricas y teóricas"};

    using Probabilidades = Arreglo<Double, 0, 1500>;  ///< Element 0 is the chart's first point.

    Serie x;
    Serie xo;                   ///< x in ascending order.
    Probabilidades PX;          ///< Empirical probability of xo.
    Probabilidades Gord, Glin;  ///< Theoretical probability of xo by ordinary and by linear moments.
    Serie Yord, Ylin;           ///< Reduced variable of xo by ordinary and by linear moments.
    Serie Delta;

    void bGraficar_Click();
    /// Opens the comparison of fits with the series as the grid has it.
    void bComparar_Click();
    void bQ_Click();
    void bT_Click();
    void bPmayor_Click();
    void bPmenor_Click();
    /// The series, the test table, the verdict, the parameters and the design discharge.
    void GenerarReporte(Reporte& reporte) override;

  protected:
    enum class Evaluacion { PeriodoRetorno, Excedencia, NoExcedencia };

    /// Sets the parameters shown on the window and in the report, in that order; `lineales` is empty for a distribution
    /// with only one kind of moments.
    void DeclararParametros(ParametrosDeAjuste ordinarios, ParametrosDeAjuste lineales = {});

    const DescripcionAjuste& Ajuste() const { return ajuste_; }
    /// Whether the ordinary moments are chosen.
    bool Ordinario() const { return !tipo || tipo->optOrdinario.Value; }

    /// Returns whether the values in x can be fitted at all; when not, tells the user why.
    virtual bool AdmiteDatos() { return true; }
    /// The difference that 5 % of the series of a true distribution exceed, when the parameters come from the same
    /// series; nothing where it depends on more than n.
    virtual std::optional<Double> Delta5() const { return std::nullopt; }
    /// As AdmiteDatos, for conditions on the sorted series in xo.
    virtual bool AdmiteSerie() { return true; }
    /// Calculates parameters, reduced variables and theoretical probabilities of xo(1) to xo(n); an error ends the
    /// calculation.
    virtual void Ajustar() = 0;
    /// Returns whether the test can go on with these parameters; when not, tells the user why.
    virtual bool AdmiteParametros() { return true; }
    /// Returns whether the chosen parameters can be evaluated; when not, tells the user why.
    virtual bool PuedeEvaluar() { return true; }
    /// The distribution that the chosen method fits to the series, as its source defines it.
    virtual DistribucionExacta Exacta() const = 0;
    /// Why the chosen parameters are not those of Exacta; empty when they are.
    virtual std::string CausaDeDiferencia() const { return {}; }
    /// The discharge with that non-exceedance probability, by the chosen parameters.
    virtual Double Cuantil(Double p) = 0;
    /// Non-exceedance probability of a discharge by the chosen parameters; nothing when it does not exist, after
    /// telling the user so.
    virtual std::optional<Double> Probabilidad(Double Q, Evaluacion evaluacion) = 0;
    /// The two theoretical columns of the test table.
    virtual std::pair<const ArregloBase<Double>&, const ArregloBase<Double>&> Teoricas() const { return {Gord, Glin}; }
    virtual void EscribirVeredicto(Double deltaTeorico, Double deltaTabular, const char* nivel);

    bool Calcular() override;
    Disposicion Contenido() override;

  private:
    void MostrarParametros();
    void LlenarTabla();
    const NivelSignificacion& Nivel() const;
    /// Returns whether there is a fit and a value at which to evaluate it; when not, tells the user what is missing.
    bool Preparado(const std::string& magnitud, const TextBox& entrada, const char* falta);
    /// Says in the status bar how far the value that `caja` now shows is from the exact one; a warning is kept for the
    /// report. `T` is the return period in question.
    void Comprobado(const TextBox& entrada, const TextBox& caja, Double valor, const std::function<Double()>& exacto,
                    const char* patron, Double T);
    void Decir(const TextBox& entrada, const std::string& texto);
    void MostrarDelta5();
    void EvaluarProbabilidad(Evaluacion evaluacion, const char* magnitud);
    Disposicion ZonaParametros();
    Disposicion ZonaDiseno();

    DescripcionAjuste ajuste_;
    ParametrosDeAjuste ordinarios_, lineales_;
    int datosAjustados_ = 0;  ///< The n of the last fit.
    std::string avisoPuntos_;
    /// A warning about the design discharge, and the contents of the boxes to which it belongs.
    std::string advertencia_, advertidaT_, advertidaQ_;
};

}  // namespace cuencalia
