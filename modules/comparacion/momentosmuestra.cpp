#include "modules/comparacion/momentosmuestra.h"

#include <cmath>

namespace cuencalia {

MomentosMuestra CalcularMomentosMuestra(std::span<const double> v) {
    const double n = static_cast<double>(v.size());
    double suma = 0;
    for (const double vi : v) {
        suma += vi;
    }
    const double media = suma / n;
    double cuadrados = 0;
    double cubos = 0;
    for (const double vi : v) {
        const double d = vi - media;
        cuadrados += d * d;
        cubos += d * d * d;
    }
    const double s = std::sqrt(cuadrados / (n - 1));
    return {media, s, n * cubos / ((n - 1) * (n - 2) * s * s * s)};
}

MomentosL CalcularMomentosL(std::span<const double> ordenada) {
    // Probability-weighted moments of the differences from the middle value, which keeps their digits: b_r is the mean
    // of x(i) times the share of the r-tuples of the other values that lie all below it.
    const double n = static_cast<double>(ordenada.size());
    const double centro = ordenada[ordenada.size() / 2];
    double b0 = 0;
    double b1 = 0;
    double b2 = 0;
    double b3 = 0;
    double i = 0;
    for (const double xi : ordenada) {
        const double x = xi - centro;
        const double x1 = x * i;
        const double x2 = x1 * (i - 1);
        b0 += x;
        b1 += x1;
        b2 += x2;
        b3 += x2 * (i - 2);
        ++i;
    }
    b0 /= n;
    b1 /= n * (n - 1);
    b2 /= n * (n - 1) * (n - 2);
    b3 /= n * (n - 1) * (n - 2) * (n - 3);
    const double L2 = 2 * b1 - b0;
    return {centro + b0, L2, (6 * b2 - 6 * b1 + b0) / L2, (20 * b3 - 30 * b2 + 12 * b1 - b0) / L2};
}

}  // namespace cuencalia
