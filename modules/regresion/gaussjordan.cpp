#include "modules/regresion/gaussjordan.h"

#include <utility>

namespace cuencalia {

std::optional<std::vector<Double>> GaussJordan(MatrizAmpliada a, BusquedaPivote busqueda) {
    const int m = a.Ecuaciones();
    const int columnas = a.Columnas();
    for (int p = 1; p <= m; ++p) {
        int r = p;
        while (r <= m && (busqueda == BusquedaPivote::EnFila ? a(p, r) : a(r, p)) == 0) {
            ++r;
        }
        if (r > m) {
            return std::nullopt;
        }
        for (int c = 1; c <= columnas; ++c) {
            std::swap(a(p, c), a(r, c));
        }
        const Double inverso = 1 / a(p, p);
        for (int c = 1; c <= columnas; ++c) {
            a(p, c) *= inverso;
        }
        for (int f = 1; f <= m; ++f) {
            if (f != p) {
                const Double factor = -a(f, p);
                for (int c = 1; c <= columnas; ++c) {
                    a(f, c) += factor * a(p, c);
                }
            }
        }
    }
    std::vector<Double> solucion;
    for (int f = 1; f <= m; ++f) {
        solucion.push_back(a(f, columnas));
    }
    return solucion;
}

}  // namespace cuencalia
