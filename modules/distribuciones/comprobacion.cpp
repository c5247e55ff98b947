#include "modules/distribuciones/comprobacion.h"

#include "frame/base/textos.h"

namespace cuencalia {

namespace {

constexpr Double kToleranciaAviso = 0.01;
constexpr Double kPeriodoDeLaTolerancia = 20000;  // 1/T below the tolerance of Gammainversa from here on

/// With the typographic minus sign, as a hyphen is easily overlooked.
std::string Porcentaje(Double fraccion) {
    const std::string cifras = Format(Abs(fraccion) * 100, "0.00");
    return (fraccion < 0 && cifras != "0.00" ? "−" : "") + cifras + " %";
}

std::string Causa(const ValorEvaluado& v) {
    if (!v.causa.empty()) {
        return v.causa;
    }
    if (v.sinAsentar) {
        return "la búsqueda terminó sin asentarse";
    }
    return v.T > kPeriodoDeLaTolerancia ? "T mayor que 20000 está fuera del alcance de la aproximación"
                                        : "error de la aproximación";
}

}  // namespace

Comprobacion Comprobar(const ValorEvaluado& v) {
    Double diferencia;
    std::string valorExacto;
    try {
        const Double correcto = v.exacto();
        valorExacto = Format(correcto, v.patron);
        // Equal figures may have a great relative difference where they are all 0.
        diferencia = valorExacto == v.mostrado || correcto == 0 ? Double(0) : (v.valor - correcto) / Abs(correcto);
    } catch (const ErrorEjecucion&) {
        return {.texto = "El valor exacto no existe para estos parámetros", .existe = false};
    }
    const bool advierte = Abs(diferencia) > kToleranciaAviso || v.sinAsentar;
    return {.texto = (advierte ? "Atención: valor exacto " : "Comprobado: valor exacto ") + valorExacto +
                     ", diferencia " + Porcentaje(diferencia) + (advierte ? " (" + Causa(v) + ")" : ""),
            .advierte = advierte};
}

}  // namespace cuencalia
