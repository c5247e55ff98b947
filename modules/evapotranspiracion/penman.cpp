#include "modules/evapotranspiracion/penman.h"

#include "modules/evapotranspiracion/radiacion.h"

namespace cuencalia {

namespace {

/// f(u) for km/day at 2 m.
Double FuncionDelViento(Double Ud) { return 0.27 * (1 + Ud / 100); }

}  // namespace

Double FactorDeAltura(Double z) {
    const Double fz = 4.87 / Log(67.8 * z - 5.42);
    return z > 2 ? fz + 0.01 : fz;
}

Double PresionDeSaturacion(Double T) { return 6.108 * Exp(17.27 * T / (T + 237.3)); }

Double FactorDePonderacion(Double T, Double h) {
    const Double delta = 4098 * PresionDeSaturacion(T) / Elevar(T + 237.3, 2);  // its slope: 4098 = 17.27·237.3
    // 101.3 kPa and 293 K at the sea, 0.0065 K less each metre.
    const Double P = 101.3 * Elevar((293 - 0.0065 * h) / 293, 5.296);
    const Double lambda = 2.501 - T * 0.002361;
    const Double gamma = 0.016286 * P / lambda;
    return delta / (delta + gamma);
}

Double FactorDeAjuste(Single Um, Double Rs, Double HRmax, Double R) {
    const Double U = Um;  // the products are those of Doubles
    return 0.00219 * U * Rs + (-0.0781 * U + 0.892) + 0.000402 * HRmax * Rs + 0.000196 * R * U * HRmax +
           0.0000198 * R * U * HRmax * Rs + 0.00000236 * U * U * HRmax * Rs - 0.0000086 * Elevar(R, 2) * U * HRmax -
           0.0000000292 * R * U * U * HRmax * HRmax * Rs - 0.0000161 * HRmax * Rs;
}

ResultadoPenman EToPenman(const DatosPenman& d) {
    ResultadoPenman r;
    const Insolacion sol = InsolacionDe(d.lat, d.mes);
    r.N = sol.N;
    r.Ra = sol.Ra;
    r.n_N = d.n / r.N;
    if (r.n_N > 1) {
        r.n_N = 1;
    }

    r.fz = FactorDeAltura(d.z);
    r.U2 = r.fz * d.Uz;
    const Single Um = CSng(r.U2 * 10 / 36);  // m/s
    const Double Ud = r.U2 * 24;             // km/day

    r.ea = PresionDeSaturacion(d.T);
    r.ed = r.ea * d.HRmed / 100;
    r.deficit = r.ea - r.ed;
    r.W = FactorDePonderacion(d.T, d.h);
    r.W1 = 1 - r.W;

    r.fu = FuncionDelViento(Ud);
    r.Rs = (0.25 + 0.5 * r.n_N) * r.Ra;
    r.Rns = r.Rs * 0.75;
    // Stefan and Boltzmann's 4.9e-9 MJ/(m2·K4) a day, of which 2.47 MJ evaporate a millimetre.
    r.fT = (Elevar(10, -9) * (4.9 / 2.47)) * Elevar(d.T + 273.16, 4);
    r.fed = 0.34 - Sqr(r.ed) * 0.044;
    r.fnN = 0.9 * r.n_N + 0.1;
    r.Rn1 = r.fT * r.fed * r.fnN;
    r.Rn = CSng(r.Rns - r.Rn1);

    r.c = FactorDeAjuste(Um, r.Rs, d.HRmax, d.R);
    r.radiacion = r.W * r.Rn;
    r.adveccion = r.W1 * r.fu * r.deficit;
    r.ETo = r.c * (r.radiacion + r.adveccion);
    return r;
}

}  // namespace cuencalia
