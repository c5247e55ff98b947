#include "modules/comparacion/pruebasserie.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <numbers>

#include "frame/base/textos.h"
#include "modules/distribuciones/leyes.h"
#include "modules/estadistica/momentos.h"

namespace cuencalia {

namespace {

constexpr double kNivel = 0.05;
constexpr double kNada = std::numeric_limits<double>::quiet_NaN();

constexpr const char* kFueraDeAlcance = "No se puede efectuar: los valores son demasiado grandes o pequeños";

double DosLados(double z) { return 2 * ProbabilidadNormal(-std::fabs(z)); }

/// What p means.
std::string Sentencia(double p, const std::string& siSeRechaza, const std::string& siNo) {
    if (!std::isfinite(p)) {
        return kFueraDeAlcance;
    }
    return p < kNivel ? siSeRechaza : siNo;
}

int Signo(double d) { return d > 0 ? 1 : d < 0 ? -1 : 0; }

std::vector<double> Diferencias(std::span<const double> x) {
    const double media = Media(x);
    std::vector<double> d;
    d.reserve(x.size());
    for (const double xi : x) {
        d.push_back(xi - media);
    }
    return d;
}

}  // namespace

PruebaSerie WaldWolfowitz(std::span<const double> x) {
    const std::vector<double> d = Diferencias(x);
    const auto n = static_cast<double>(x.size());
    double R = 0;
    double s2 = 0;
    double s4 = 0;
    for (std::size_t i = 0; i < d.size(); ++i) {
        R += d[i] * d[(i + 1) % d.size()];
        s2 += d[i] * d[i];
        s4 += d[i] * d[i] * d[i] * d[i];
    }
    // The published moments, without the terms in the sum of the values: that of differences from the mean is 0.
    const double media = -s2 / (n - 1);
    const double varianza = (s2 * s2 - s4) / (n - 1) + (s2 * s2 - 2 * s4) / ((n - 1) * (n - 2)) - media * media;
    const double u = (R - media) / std::sqrt(varianza);
    const double p = DosLados(u);
    return {"Independencia (Wald-Wolfowitz)", u, p,
            Sentencia(p, "Los valores sucesivos dependen unos de otros", "No hay indicios contra la independencia")};
}

PruebaSerie AutocorrelacionUno(std::span<const double> x) {
    const std::vector<double> d = Diferencias(x);
    const auto n = static_cast<double>(x.size());
    double cruzada = 0;
    double cuadrados = 0;
    for (std::size_t i = 0; i < d.size(); ++i) {
        cuadrados += d[i] * d[i];
        cruzada += i + 1 < d.size() ? d[i] * d[i + 1] : 0;
    }
    const double r1 = cruzada / cuadrados;
    const double p = DosLados((r1 + 1 / (n - 1)) * (n - 1) / std::sqrt(n - 2));
    return {"Autocorrelación de retardo 1", r1, p,
            Sentencia(p, "Cada valor está correlacionado con el anterior", "No hay indicios de correlación")};
}

PruebaSerie MannKendall(std::span<const double> x) {
    const auto n = static_cast<double>(x.size());
    double S = 0;
    std::map<double, int> repetidos;
    for (std::size_t i = 0; i < x.size(); ++i) {
        ++repetidos[x[i]];
        for (std::size_t j = i + 1; j < x.size(); ++j) {
            S += Signo(x[j] - x[i]);
        }
    }
    double varianza = n * (n - 1) * (2 * n + 5);
    for (const auto& [valor, veces] : repetidos) {
        const double t = veces;
        varianza -= t * (t - 1) * (2 * t + 5);
    }
    const double z = (S - Signo(S)) / std::sqrt(varianza / 18);
    const double p = DosLados(z);
    return {"Tendencia (Mann-Kendall)", z, p,
            Sentencia(p, S > 0 ? "Los valores tienden a crecer" : "Los valores tienden a decrecer",
                      "No hay indicios de tendencia")};
}

PruebaSerie Pettitt(std::span<const double> x, int& cambio) {
    const auto n = static_cast<double>(x.size());
    double U = 0;
    double K = 0;
    cambio = 0;
    for (std::size_t t = 0; t + 1 < x.size(); ++t) {
        for (const double xj : x) {
            U += Signo(x[t] - xj);  // pairs within the first part cancel out
        }
        if (std::fabs(U) > K) {
            K = std::fabs(U);
            cambio = static_cast<int>(t + 1);
        }
    }
    const double p = std::min(1.0, 2 * std::exp(-6 * K * K / (n * n * n + n * n)));
    return {"Cambio de nivel (Pettitt)", K, p,
            Sentencia(p, "El nivel cambia después del dato " + std::to_string(cambio),
                      "No hay indicios de un cambio de nivel")};
}

double ColaStudent(double t, int grados) {
    const double angulo = std::atan(t / std::sqrt(grados));
    const double coseno2 = std::cos(angulo) * std::cos(angulo);
    const bool impar = grados % 2 != 0;
    double termino = impar ? std::sin(angulo) * std::cos(angulo) : std::sin(angulo);
    double suma = 0;
    for (int k = impar ? 3 : 2; k <= grados; k += 2) {
        suma += termino;
        termino *= coseno2 * (k - 1) / k;
    }
    const double dentro = impar ? 2 / std::numbers::pi * (angulo + suma) : suma;
    return (1 - dentro) / 2;
}

Atipicos GrubbsBeck(std::span<const double> x) {
    Atipicos a{.inferior = kNada, .superior = kNada, .prueba = {"Valores atípicos (Grubbs-Beck)", kNada, kNada, {}}};
    if (*std::min_element(x.begin(), x.end()) <= 0) {
        a.prueba.sentencia = "No se puede efectuar: hay valores que no son mayores que 0";
        return a;
    }
    std::vector<double> y(x.size());
    std::transform(x.begin(), x.end(), y.begin(), [](double xi) { return std::log10(xi); });
    const Parametros<double> m = ParametrosMuestrales(y);
    const auto n = static_cast<double>(x.size());
    const double logN = std::log10(n);
    const double K = -0.9043 + 3.345 * std::sqrt(logN) - 0.4046 * logN;
    a.inferior = std::pow(10, m.media - K * m.desviacion);
    a.superior = std::pow(10, m.media + K * m.desviacion);
    if (!(std::isfinite(a.inferior) && std::isfinite(a.superior))) {
        a.prueba.sentencia = kFueraDeAlcance;
        return a;
    }
    double lejos = 0;
    for (const double yi : y) {
        const double w = (yi - m.media) / m.desviacion;
        a.bajos += w < -K;
        a.altos += w > K;
        lejos = std::fmax(lejos, std::fabs(w));
    }
    const double resto = (n - 1) * (n - 1) - n * lejos * lejos;
    const double t = resto > 0 ? std::sqrt(n * (n - 2) * lejos * lejos / resto) : HUGE_VAL;
    a.prueba.estadistico = lejos;
    a.prueba.p = std::min(1.0, n * ColaStudent(t, static_cast<int>(x.size()) - 2));
    a.prueba.sentencia =
        (a.bajos + a.altos == 0 ? "Ningún valor atípico"
                                : "Valores bajos, " + std::to_string(a.bajos) + "; altos, " + std::to_string(a.altos)) +
        " (límites " + Format(a.inferior, "0.0#") + " y " + Format(a.superior, "0.0#") + ", 10 %)";
    return a;
}

std::vector<PruebaSerie> ProbarSerie(std::span<const double> x) {
    const bool posible = x.size() >= 4 && std::adjacent_find(x.begin(), x.end(), std::not_equal_to<>()) != x.end();
    if (!posible) {
        std::vector<PruebaSerie> pruebas;
        for (const char* nombre :
             {"Independencia (Wald-Wolfowitz)", "Autocorrelación de retardo 1", "Tendencia (Mann-Kendall)",
              "Cambio de nivel (Pettitt)", "Valores atípicos (Grubbs-Beck)"}) {
            pruebas.push_back({nombre, kNada, kNada, "No se puede efectuar: hacen falta 4 datos no todos iguales"});
        }
        return pruebas;
    }
    int cambio = 0;
    return {WaldWolfowitz(x), AutocorrelacionUno(x), MannKendall(x), Pettitt(x, cambio), GrubbsBeck(x).prueba};
}

}  // namespace cuencalia
