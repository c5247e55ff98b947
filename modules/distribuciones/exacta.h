#pragma once

#include "frame/base/numeros.h"

namespace cuencalia {

/// A fitted distribution whose probabilities and quantiles are worked out to full precision, to say what those of the
/// windows are worth. The reduced variable y = (v - posicion) / escala is standard normal, standard Gumbel, or gamma of
/// the shape `forma`, where v = x, or v = ln(x - umbral) when `deLogaritmos`. A negative scale mirrors the
/// distribution: it then has an upper end in place of a lower one, and a negative skew.
struct DistribucionExacta {
    enum class Reducida { Normal, Gumbel, Gamma };

    Reducida reducida;
    bool deLogaritmos = false;
    Double posicion, escala;
    Double forma = 0;   ///< Of the gamma distribution alone.
    Double umbral = 0;  ///< Of the log-normal distribution of three parameters alone; unit of x.

    /// Probability that x is not exceeded, and that it is exceeded: each with a relative error near the machine's, also
    /// where it is small. 0 or 1 beyond an end of the distribution. Error 11 or 6 for a scale of 0.
    Double NoExcedencia(Double x) const { return Cola(x, escala < 0); }
    Double Excedencia(Double x) const { return Cola(x, escala > 0); }
    /// The x of a non-exceedance probability 0 < p < 1; error 5 outside, 6 beyond a Double.
    Double Cuantil(Double p) const;

  private:
    /// The upper or the lower tail of the reduced variable at x.
    Double Cola(Double x, bool superior) const;
};

}  // namespace cuencalia
