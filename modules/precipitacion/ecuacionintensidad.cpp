#include "modules/precipitacion/ecuacionintensidad.h"

#include <utility>

#include "frame/base/textos.h"

namespace cuencalia {

namespace {

/// Error 5 for a value without a logarithm, wherever it stands.
bool LogaritmosIguales(const ArregloBase<Double>& x, int n) {
    bool iguales = true;
    Double anterior = n > 0 ? Log(x(1)) : 0;
    for (int i = 2; i <= n; ++i) {
        const Double siguiente = Log(x(i));
        iguales = siguiente == anterior && iguales;
        anterior = siguiente;
    }
    return iguales;
}

}  // namespace

void PuntosIDT::Agregar(Double periodo, Double duracion, Double intensidad) {
    ++n;
    T(n) = periodo;
    D(n) = duracion;
    I(n) = intensidad;
}

std::string EcuacionIntensidad::Texto(std::string_view patron) const {
    return "Imáx = " + Format(K, patron) + "*T^(" + Format(m, patron) + ") *D^(" + Format(p, patron) + ")";
}

Double AjusteIntensidad::Se(const PuntosIDT& puntos) const {
    return ErrorEstandar(EvaluarPotencial, {ecuacion.K, ecuacion.m, ecuacion.p}, {&puntos.T, &puntos.D}, puntos.I,
                         puntos.n);
}

std::optional<AjusteIntensidad> AjustarIntensidad(const PuntosIDT& puntos, BusquedaPivote busqueda) {
    // All three are gone through first: a value without a logarithm is an error also where all periods are equal.
    LogaritmosIguales(puntos.I, puntos.n);
    const bool unPeriodo = LogaritmosIguales(puntos.T, puntos.n);
    const bool unaDuracion = LogaritmosIguales(puntos.D, puntos.n);
    if (unPeriodo || unaDuracion) {
        return std::nullopt;
    }
    auto regresion = AjustarPotencial({&puntos.T, &puntos.D}, puntos.I, puntos.n, busqueda);
    if (!regresion) {
        return std::nullopt;
    }
    const std::vector<Double>& coef = regresion->coef;
    return AjusteIntensidad{{Exp(coef[0]), coef[1], coef[2]}, std::move(*regresion)};
}

}  // namespace cuencalia
