#pragma once

#include <cmath>
#include <vector>

namespace cuencalia {

/// The families of distributions that are compared: those of the eight windows and five more.
enum class Familia {
    Normal,
    LogNormal2,
    LogNormal3,
    Gamma2,
    Gamma3,
    LogPearson3,
    Gumbel,
    LogGumbel,
    ValorExtremo,
    Logistica,
    Pareto,
    Exponencial,
    Weibull
};
inline constexpr int kFamilias = 13;

/// "Log-Pearson tipo 3".
const char* NombreFamilia(Familia familia);
/// Whether the logarithms of the values have the distribution, all values being above 0.
bool DeLogaritmos(Familia familia);
/// Number of parameters that are estimated.
int NumeroDeParametros(Familia familia);

/// A parameter as it is shown.
struct ParametroMostrado {
    const char* nombre;
    double valor;
};

/// A distribution of the variable v, which is x or, for a family of logarithms, ln x. Parameters, in the unit of v but
/// for the third:
///   Normal, LogNormal2           mean, deviation
///   Gumbel, LogGumbel            mode, scale
///   Gamma2, Gamma3, LogPearson3  mean, deviation, skew: of any sign, and 0 for the normal distribution
///   LogNormal3, ValorExtremo, Logistica, Pareto, Exponencial
///                                xi, alpha, k of Hosking and Wallis (1997, appendix): a negative k is a long upper
///                                tail, with a positive one (LogNormal3, ValorExtremo, Logistica, Pareto) there is an
///                                upper end
///   Weibull                      lower end, scale, exponent
/// Plain numbers: of what does not exist the result is a NaN or an infinity.
class Distribucion {
  public:
    Distribucion(Familia familia, double posicion, double escala, double forma = 0);

    Familia DeFamilia() const { return familia_; }
    double Posicion() const { return posicion_; }
    double Escala() const { return escala_; }
    double Forma() const { return forma_; }

    /// v of a value, NaN when it has none, and back.
    double Variable(double x) const;
    double Valor(double v) const;

    /// Probability that v is not exceeded (or is, when superior); each is right where it is small.
    double Cola(double v, bool superior) const;
    /// Logarithm of the density of v; -infinity where there is none.
    double LogDensidad(double v) const;
    /// The v of a non-exceedance probability 0 < p < 1.
    double Cuantil(double p) const;

    /// The discharge of a return period of T years, T > 1.
    double Caudal(double T) const { return Valor(Cuantil(1 - 1 / T)); }

    /// The parameters as the windows of the distributions name them.
    std::vector<ParametroMostrado> Parametros() const;

  private:
    bool SinAsimetria() const { return gamma_ == HUGE_VAL; }
    /// k → y: -ln(1 - k(v - xi)/alpha)/k, and (v - xi)/alpha for k = 0. NaN beyond the end.
    double Reducida(double v) const;
    double DeReducida(double y) const;

    Familia familia_;
    double posicion_, escala_, forma_;
    double gamma_ = HUGE_VAL;       ///< Shape of Pearson III, infinite without a skew.
    double inicio_ = 0, beta_ = 0;  ///< Its end and its scale, of the sign of the skew.
};

}  // namespace cuencalia
