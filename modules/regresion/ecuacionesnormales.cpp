#include "modules/regresion/ecuacionesnormales.h"

#include <algorithm>
#include <utility>

#include "modules/estadistica/momentos.h"

namespace cuencalia {

namespace {

std::vector<Double> ValoresDeFila(const Independientes& x, int fila) {
    std::vector<Double> valores;
    std::transform(x.begin(), x.end(), std::back_inserter(valores), [fila](const auto* xj) { return (*xj)(fila); });
    return valores;
}

}  // namespace

EcuacionesNormales FormarEcuacionesNormales(const Independientes& u, const ArregloBase<Double>& v, int n) {
    const int m = static_cast<int>(u.size()) + 1;
    EcuacionesNormales ecuaciones{n, MatrizAmpliada(m), 0};
    MatrizAmpliada& a = ecuaciones.matriz;
    for (int fila = 1; fila <= n; ++fila) {
        // The constant takes part as a variable of value 1, so that every element is a sum of products.
        std::vector<Double> z = ValoresDeFila(u, fila);
        z.insert(z.begin(), 1);
        z.push_back(v(fila));
        for (int i = 1; i <= m; ++i) {
            for (int j = i; j <= m + 1; ++j) {
                a(i, j) += z[static_cast<std::size_t>(i - 1)] * z[static_cast<std::size_t>(j - 1)];
            }
        }
        ecuaciones.Sv2 += v(fila) * v(fila);
    }
    for (int i = 2; i <= m; ++i) {
        for (int j = 1; j < i; ++j) {
            a(i, j) = a(j, i);
        }
    }
    return ecuaciones;
}

Double RegresionMultiple::R2() const {
    const Double vm = ecuaciones.Sv(0) / ecuaciones.n;
    Double explicada;
    for (int i = 0; i <= ecuaciones.K(); ++i) {
        explicada += coef[static_cast<std::size_t>(i)] * ecuaciones.Sv(i);
    }
    return (explicada - vm * vm * ecuaciones.n) / (ecuaciones.Sv2 - vm * vm * ecuaciones.n);
}

Double RegresionMultiple::SumaResiduos() const {
    Double suma = ecuaciones.Sv2;
    for (int i = 0; i <= ecuaciones.K(); ++i) {
        suma -= coef[static_cast<std::size_t>(i)] * ecuaciones.Sv(i);
    }
    return suma;
}

std::optional<RegresionMultiple> AjustarRegresion(const Independientes& u, const ArregloBase<Double>& v, int n,
                                                  BusquedaPivote busqueda) {
    EcuacionesNormales ecuaciones = FormarEcuacionesNormales(u, v, n);
    std::optional<std::vector<Double>> coef = GaussJordan(ecuaciones.matriz, busqueda);
    if (!coef) {
        return std::nullopt;
    }
    return RegresionMultiple{std::move(ecuaciones), std::move(*coef)};
}

std::optional<RegresionMultiple> AjustarPotencial(const Independientes& x, const ArregloBase<Double>& y, int n,
                                                  BusquedaPivote busqueda) {
    std::vector<ArregloBase<Double>> u;
    Independientes columnas;
    u.reserve(x.size());
    for (const auto* xj : x) {
        columnas.push_back(&u.emplace_back(Logaritmos(*xj, n)));
    }
    return AjustarRegresion(columnas, Logaritmos(y, n), n, busqueda);
}

Double EvaluarLineal(const std::vector<Double>& a, const std::vector<Double>& x) {
    Double y = a.at(0);
    for (std::size_t j = 0; j < x.size(); ++j) {
        y += x[j] * a.at(j + 1);
    }
    return y;
}

Double EvaluarPotencial(const std::vector<Double>& a, const std::vector<Double>& x) {
    Double y = a.at(0);
    for (std::size_t j = 0; j < x.size(); ++j) {
        y *= Elevar(x[j], a.at(j + 1));
    }
    return y;
}

Double ErrorEstandar(Double (*ecuacion)(const std::vector<Double>&, const std::vector<Double>&),
                     const std::vector<Double>& a, const Independientes& x, const ArregloBase<Double>& y, int n) {
    Double suma;
    for (int i = 1; i <= n; ++i) {
        const Double residuo = y(i) - ecuacion(a, ValoresDeFila(x, i));
        suma += residuo * residuo;
    }
    return Sqr(suma / (n - static_cast<int>(x.size()) - 1));
}

}  // namespace cuencalia
