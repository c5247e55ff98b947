#include "modules/comparacion/fichamomentos.h"

#include <cmath>

#include "modules/comparacion/diagramal.h"

namespace cuencalia {

namespace {

// The curves go from tau3 = -0.4 to 0.7, where the series of annual maxima are.
constexpr double kPaso = 0.05;
constexpr int kPrimero = -8, kUltimo = 14;

}  // namespace

FichaMomentos::FichaMomentos(MarcoModulo& modulo)
    : lblTau4(modulo, "lblTau4", "Curtosis lineal tau4 = L4/L2"),
      lblTau3(modulo, "lblTau3", "Asimetría lineal tau3 = L3/L2"),
      Graph2(modulo, "Graph2", "Diagrama de momentos lineales") {
    Graph2.RotularEjes(lblTau3, lblTau4);
    modulo.DeclararGraficos({&Graph2});
}

void FichaMomentos::Dibujar(const Comparacion& c) {
    const PuntoL suyo = PuntoDeSerie(c.ordenada);
    std::vector<SerieGrafico> series;
    if (std::isfinite(suyo.tau3) && std::isfinite(suyo.tau4)) {
        series.push_back({.leyenda = "Serie", .x = {suyo.tau3}, .y = {suyo.tau4}, .sueltos = true});
    }
    for (const Familia familia : {Familia::ValorExtremo, Familia::Logistica, Familia::Pareto, Familia::LogNormal3,
                                  Familia::Gamma3, Familia::Weibull}) {
        SerieGrafico curva{.leyenda = NombreFamilia(familia)};
        for (int k = kPrimero; k <= kUltimo; ++k) {
            curva.x.emplace_back(kPaso * k);
            curva.y.emplace_back(Tau4(familia, kPaso * k));
        }
        series.push_back(std::move(curva));
    }
    for (const Familia familia : {Familia::Normal, Familia::Gumbel, Familia::Exponencial}) {
        const PuntoL p = PuntoDeFamilia(familia);
        series.push_back({.leyenda = NombreFamilia(familia), .x = {p.tau3}, .y = {p.tau4}, .sueltos = true});
    }
    GraficoDibujar(Graph2, {}, series);
}

Disposicion FichaMomentos::Zona() {
    return Columna({Fila({lblTau4, Espacio()}), Disposicion(Graph2).Estira(1), Fila({Espacio(), lblTau3})});
}

}  // namespace cuencalia
