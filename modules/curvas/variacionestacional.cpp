#include "modules/curvas/variacionestacional.h"

#include "modules/distribuciones/normal.h"

namespace cuencalia {

LogNormalMensual AjustarMes(const ArregloBase<Double>& valores, int anos) {
    Double suma;
    for (int i = 1; i <= anos; ++i) {
        suma += Log(valores(i));
    }
    const Double media = suma / anos;
    Double cuadrados;
    for (int i = 1; i <= anos; ++i) {
        const Double desvio = Log(valores(i)) - media;
        cuadrados += desvio * desvio;
    }
    return {media, Sqr(cuadrados / (anos - 1))};
}

Double CalcularQ(Double P, const LogNormalMensual& mes) {
    // P is a probability of exceedance: the value with P above it is the one with P below it on the other side.
    return Exp(mes.media - InversaNormal(P) * mes.desviacion);
}

}  // namespace cuencalia
