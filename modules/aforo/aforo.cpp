#include "modules/aforo/aforo.h"

namespace cuencalia {

AforoTramo AforarTramo(Double L, const Vertical& desde, const Vertical& hasta) {
    AforoTramo tramo;
    const Double hm = (desde.h + hasta.h) / 2;
    tramo.area = hm * L;
    tramo.velocidad = (desde.v + hasta.v) / 2;
    tramo.caudal = tramo.velocidad * tramo.area;
    return tramo;
}

Double VelocidadMolinete(Double NR, Double t, Double a, Double b) { return (a * NR) / t + b; }

Perfil PerfilSeccion(const ArregloBase<Double>& L, const ArregloBase<Double>& h, int n, Double ho) {
    Perfil perfil;
    Double s;
    const auto agregar = [&](Double profundidad) {
        perfil.x.push_back(s);
        perfil.y.push_back(0 - profundidad);  // no minus sign on a depth of 0
    };
    if (ho != 0) {
        agregar(0);
    }
    agregar(ho);
    for (int i = 1; i <= n; ++i) {
        s += L(i);
        agregar(h(i));
    }
    if (h(n) != 0) {
        agregar(0);
    }
    return perfil;
}

}  // namespace cuencalia
