#include "modules/curvas/variacionestacional.h"

#include "modules/distribuciones/normal.h"
#include "modules/estadistica/momentos.h"

namespace cuencalia {

LogNormalMensual AjustarMes(const ArregloBase<Double>& valores, int anos) {
    const ArregloBase<Double> logaritmos = Logaritmos(valores, anos);
    const Double media = Media(logaritmos, anos);
    return {media, Sqr(SumaDeCuadrados(logaritmos, anos, media) / (anos - 1))};
}

Double CalcularQ(Double P, const LogNormalMensual& mes) {
    // P is a probability of exceedance: the value with P above it is the one with P below it on the other side.
    return Exp(mes.media - InversaNormal(P) * mes.desviacion);
}

}  // namespace cuencalia
