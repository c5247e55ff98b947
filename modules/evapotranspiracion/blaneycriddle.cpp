#include "modules/evapotranspiracion/blaneycriddle.h"

namespace cuencalia {

Clase ClaseDe(Double valor, Double desde, Double hasta) {
    return valor < desde ? Clase::Baja : valor > hasta ? Clase::Alta : Clase::Media;
}

Clase ClaseDeInsolacion(Double relativa) { return ClaseDe(relativa, 0.6, 0.8); }
Clase ClaseDeHumedad(Double minima) { return ClaseDe(minima, 20, 50); }
Clase ClaseDeViento(Double velocidad) { return ClaseDe(velocidad, 7.2, 18); }

RectaFao RectaDelClima(Clase insolacion, Clase humedad, Clase viento) {
    // By sunshine, humidity and wind, each from low to high.
    static constexpr RectaFao kRectas[3][3][3] = {
        {{{-2.0F, 1.15F}, {-1.8F, 1.28F}, {-1.6F, 1.4F}},
         {{-2.0F, 1.05F}, {-1.85F, 1.15F}, {-1.7F, 1.25F}},
         {{-1.45F, 0.8F}, {-1.55F, 0.88F}, {-1.65F, 0.98F}}},
        {{{-2.3F, 1.35F}, {-2.05F, 1.55F}, {-1.8F, 1.73F}},
         {{-2.2F, 1.2F}, {-2.15F, 1.38F}, {-2.1F, 1.52F}},
         {{-1.8F, 0.97F}, {-1.75F, 1.06F}, {-1.7F, 1.16F}}},
        {{{-2.6F, 1.55F}, {-2.3F, 1.12F}, {-2.0F, 2.03F}},
         {{-2.4F, 1.37F}, {-2.5F, 1.61F}, {-2.55F, 1.82F}},
         {{-2.15F, 1.14F}, {-1.95F, 1.22F}, {-1.7F, 1.31F}}},
    };
    return kRectas[static_cast<int>(insolacion)][static_cast<int>(humedad)][static_cast<int>(viento)];
}

Single EToBlaneyCriddle(Single T, Single p, const RectaFao& recta) {
    const Double f = (Double(T) * 0.46 + 8.13) * p;
    return CSng(recta.a + recta.b * f);
}

}  // namespace cuencalia
