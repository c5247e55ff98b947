#pragma once

#include "modules/distribuciones/exacta.h"

namespace cuencalia {

/// Position and scale of a distribution, in the unit of its variable v.
struct PosicionEscala {
    Double posicion, escala;
};

/// A distribution of two parameters, position and scale. With v = x, or v = ln x for distributions of logarithms, the
/// reduced variable y = (v - posicion) / escala has the same cumulative function for every sample.
struct DistribucionPosicionEscala {
    bool deLogaritmos;
    /// Parameters by the mean and the deviation (divisor n - 1) of v.
    PosicionEscala (*porMomentos)(Double media, Double desviacion);
    /// Parameters by the first two L-moments of v.
    PosicionEscala (*porMomentosLineales)(Double L1, Double L2);
    /// P(Y < y).
    Double (*acumulada)(Double y);
    /// The y of a non-exceedance probability, 0 < p < 1.
    Double (*cuantil)(Double p);
    DistribucionExacta::Reducida exacta;  ///< The distribution that these two functions stand for.

    DistribucionExacta Exacta(PosicionEscala parametros) const {
        return {.reducida = exacta,
                .deLogaritmos = deLogaritmos,
                .posicion = parametros.posicion,
                .escala = parametros.escala};
    }
    /// y = (v - posicion) / escala. Errors: 11 or 6 for a scale of 0; in distributions of logarithms, 5 for x <= 0.
    Double Reducida(PosicionEscala parametros, Double x) const {
        const Double v = deLogaritmos ? Log(x) : x;
        return (v - parametros.posicion) / parametros.escala;
    }
    /// Non-exceedance probability of x; errors as above.
    Double Probabilidad(PosicionEscala parametros, Double x) const { return acumulada(Reducida(parametros, x)); }
    /// The x of a non-exceedance probability, 0 < p < 1; for other p the errors of `cuantil`.
    Double Cuantil(PosicionEscala parametros, Double p) const {
        const Double v = parametros.posicion + parametros.escala * cuantil(p);
        return deLogaritmos ? Exp(v) : v;
    }
};

/// The distribution of values whose natural logarithms have the distribution `base`; the parameters are of ln x.
constexpr DistribucionPosicionEscala DeLogaritmos(DistribucionPosicionEscala base) {
    base.deLogaritmos = true;
    return base;
}

}  // namespace cuencalia
