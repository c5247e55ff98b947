#include "modules/regresion/textoecuacion.h"

#include "frame/base/textos.h"

namespace cuencalia {

std::string TextoRecta(Double a, Double b, const char* patron) {
    const std::string textoB = Format(b, patron);
    return "Y = " + Format(a, patron) + (Val(textoB) < 0 ? "  " : " + ") + textoB + " * X";
}

std::string TextoExponencial(Double a, Double b, const char* patron) {
    return "Y = " + Format(a, patron) + " * ( " + Format(b, patron) + " )  ^ X";
}

std::string TextoPotencial(Double a, Double b, const char* patron) {
    return "Y = " + Format(a, patron) + " *  X ^ (" + Format(b, patron) + ")";
}

std::string TextoEcuacion(const std::vector<std::string>& trozos, const std::vector<Double>& a, Signo signo) {
    std::string texto = trozos.at(0);
    for (std::size_t i = 0; i < a.size(); ++i) {
        const bool conMas = i > 0 && signo == Signo::Siempre && a[i] >= 0;
        texto += Format(a[i], conMas ? "+#####0.##00" : kPatronCorrelacion) + trozos.at(i + 1);
    }
    return texto;
}

std::string CeldaDeEcuacion(const std::string& texto, int fila, int columna) {
    if (fila == 1) {
        return texto + "  \t";
    }
    return texto + (columna == 2 ? "     \t" : "\t");
}

}  // namespace cuencalia
