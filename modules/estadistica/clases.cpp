#include "modules/estadistica/clases.h"

#include <algorithm>

namespace cuencalia {

Clases FormarClases(const ArregloBase<Double>& ordenada, int n) {
    const Double K = 1 + Double(1.33) * Log(n);
    Clases clases;
    clases.NC = CInt(Int((10 * K + 5) / 10));
    const Double primero = ordenada(1);
    const Double ultimo = ordenada(n);
    const Double minimo = std::min(primero, ultimo);
    Double dx = (ultimo - primero) / Double(clases.NC - 1);
    Double LI = primero - dx / 2;
    if (minimo - Abs(dx / 2) < 0 && minimo >= 0) {
        const Double rango = ultimo - primero;
        const Double sentido = rango / Abs(rango);
        const Double k = minimo == 0 ? 1 : 0;
        // The width is calculated from the sum of the extremes, not from their difference, so that classes which begin
        // at zero reach the greatest value when the least one is small.
        dx = sentido * (primero + ultimo + k * Abs(dx) / 2) / Double(clases.NC);
        LI = primero - minimo * sentido;
    }
    clases.ancho = dx;
    int p = 0;
    for (int i = 1; i <= clases.NC.valor(); ++i) {
        clases.LCI(i) = dx * (i - 1) + LI;
        clases.MCL(i) = clases.LCI(i) + dx / 2;
        clases.LCS(i) = clases.LCI(i) + dx;
        clases.FA(i) = 0;
        while (p < n && ordenada(p + 1) <= clases.LCS(i)) {
            ++p;
            clases.FA(i) += 1;
        }
    }
    return clases;
}

}  // namespace cuencalia
