#include "modules/distribuciones/normal.h"

namespace cuencalia {

Double FuncionNormal(Double z) {
    const Double f = 1 / Sqr(2 * kPi) * Exp(-z * z / 2);
    const Double t = 1 / (1 + 0.2316419 * Abs(z));
    const Double q =
        f * (t * (0.31938153 + t * (-0.356563782 + t * (1.781477937 + t * (-1.821255978 + t * 1.330274429)))));
    return z < 0 ? q : 1 - q;
}

Double InversaNormal(Double p) {
    const Double cola = p <= 0.5 ? p : 1 - p;
    const Double w = Sqr(Log(1 / (cola * cola)));
    const Double v =
        w - (2.515517 + w * (0.802853 + w * 0.010328)) / (1 + w * (1.432788 + w * (0.189269 + w * 0.001308)));
    return p <= 0.5 ? -v : v;
}

constinit const DistribucionPosicionEscala kNormal{.deLogaritmos = false,
                                                   .porMomentos =
                                                       [](Double media, Double desviacion) {
                                                           return PosicionEscala{media, desviacion};
                                                       },
                                                   .porMomentosLineales =
                                                       [](Double L1, Double L2) {
                                                           return PosicionEscala{L1, Sqr(kPi) * L2};
                                                       },
                                                   .acumulada = FuncionNormal,
                                                   .cuantil = InversaNormal,
                                                   .exacta = DistribucionExacta::Reducida::Normal};

}  // namespace cuencalia
