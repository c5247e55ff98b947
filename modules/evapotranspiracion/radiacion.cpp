#include "modules/evapotranspiracion/radiacion.h"

namespace cuencalia {

namespace {

/// Cosine of the sunset's hour angle.
Double CosenoDePuesta(Double lat, Double delta) { return -Tan(lat) * Tan(delta); }

Double ArcoCoseno(Double X) { return Atn(-X / Sqr(-X * X + 1)) + 2 * Atn(1); }

Arreglo<SolDelMes, 1, 12> TablaDelSol() {
    Arreglo<SolDelMes, 1, 12> tabla;
    int mes = 0;
    for (const SolDelMes& sol :
         {SolDelMes{-0.3656F, 0.97104F}, SolDelMes{-0.2365F, 0.98136F}, SolDelMes{0.04682F, 0.99653F},
          SolDelMes{0.1607F, 1.01313F}, SolDelMes{0.3247F, 1.02625F}, SolDelMes{0.4017F, 1.03241F},
          SolDelMes{0.3699F, 1.02987F}, SolDelMes{0.236F, 1.01916F}, SolDelMes{0.03995F, 1.00347F},
          SolDelMes{-0.1669F, 0.98693F}, SolDelMes{-0.3291F, 0.97369F}, SolDelMes{-0.4021F, 0.96812F}}) {
        tabla(++mes) = sol;
    }
    return tabla;
}

}  // namespace

SolDelMes SolEn(int mes) {
    static const Arreglo<SolDelMes, 1, 12> kTabla = TablaDelSol();
    return kTabla(mes);
}

Double AnguloDePuesta(Double lat, Double delta) { return ArcoCoseno(CosenoDePuesta(lat, delta)); }

bool SaleYSePone(Double lat, Double delta) { return Abs(CosenoDePuesta(lat, delta)) < 1; }

Double HorasDeSol(Double ws) { return 24 * ws / kPi; }

Double RadiacionExtraterrestre(Double lat, Double delta, Double distancia, Double ws) {
    return ((916.732 * (ws * Sin(lat) * Sin(delta) + Cos(lat) * Cos(delta) * Sin(ws))) / distancia) / 58.98757;
}

Insolacion InsolacionDe(Double lat, int mes) {
    const SolDelMes sol = SolEn(mes);
    const Double ws = AnguloDePuesta(lat, sol.declinacion);
    return {HorasDeSol(ws), RadiacionExtraterrestre(lat, sol.declinacion, sol.distanciaRelativa, ws)};
}

}  // namespace cuencalia
