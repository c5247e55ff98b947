#include "modules/distribuciones/ajusteposicionescala.h"

#include "modules/estadistica/momentos.h"

namespace cuencalia {

AjustePosicionEscala::AjustePosicionEscala(Aplicacion& app, std::string nombre, DescripcionAjuste descripcion,
                                           const DistribucionPosicionEscala& distribucion)
    : MarcoAjuste(app, std::move(nombre), std::move(descripcion)), distribucion_(distribucion) {}

bool AjustePosicionEscala::AdmiteSerie() {
    if (!distribucion_.deLogaritmos) {
        return true;
    }
    for (int i = 1; i <= n; ++i) {
        if (xo(i) <= 0) {
            App().MsgBox(
                "Para esta distribución, los valores de la serie no pueden ser iguales a 0, ¡Corregir valores¡",
                Ajuste().iconoNoPositivos, "Mensaje de error");
            return false;
        }
        ylog(i) = Log(xo(i));
    }
    return true;
}

void AjustePosicionEscala::Ajustar() {
    const ArregloBase<Double>& v = distribucion_.deLogaritmos ? ylog : xo;
    const ParametrosEstadisticos m = ParametrosMuestrales(v, n);
    const MomentosLineales l = CalcularMomentosLineales(v, n);
    const PosicionEscala ord = distribucion_.porMomentos(m.media, m.desviacion);
    const PosicionEscala lin = distribucion_.porMomentosLineales(l.L1, l.L2);
    for (int i = 1; i <= n; ++i) {
        Yord(i) = distribucion_.Reducida(ord, xo(i));
        Ylin(i) = distribucion_.Reducida(lin, xo(i));
        Gord(i) = distribucion_.acumulada(Yord(i));
        Glin(i) = distribucion_.acumulada(Ylin(i));
    }
    // The parameters are stored only here: when the fit of a series fails above, those of the last successful fit can
    // still be evaluated.
    ordinarios = ord;
    lineales = lin;
}

}  // namespace cuencalia
