#include "modules/distribuciones/gumbel.h"

namespace cuencalia {

namespace {

constexpr Double kEuler = 0.5772156649;

PosicionEscala ConEscala(Double media, Double alfa) { return {media - alfa * kEuler, alfa}; }

}  // namespace

Double FuncionGumbel(Double y) { return Exp(-Exp(-y)); }

Double InversaGumbel(Double p) { return -Log(-Log(p)); }

constinit const DistribucionPosicionEscala kGumbel{
    .deLogaritmos = false,
    .porMomentos = [](Double media, Double desviacion) { return ConEscala(media, Sqr(6) * desviacion / kPi); },
    .porMomentosLineales = [](Double L1, Double L2) { return ConEscala(L1, L2 / Log(2)); },
    .acumulada = FuncionGumbel,
    .cuantil = InversaGumbel,
    .exacta = DistribucionExacta::Reducida::Gumbel};

}  // namespace cuencalia
