#include "modules/evapotranspiracion/hargreaves.h"

#include <array>
#include <cstddef>

#include "frame/base/textos.h"

namespace cuencalia {

namespace {

constexpr std::size_t kCuantos = 47;
using Columna = std::array<const char*, kCuantos>;

// clang-format off
constexpr Columna kCultivos{
    "Alcachofa", "Alfalfa", "Algodón", "Apio", "Arroz", "Avena", "Banano", "Berenjena", "Calabaza",
    "Caña de azúcar", "Cártamo", "Cebada", "Cebolla", "Cereales pequeños", "Chile verde, pimiento", "Cítricos",
    "Espárrago", "Espinaca", "Frijoles", "Frutales, hoja caduca", "Frutales, hoja verde", "Girasol", "Guisantes",
    "Kiwi", "Lechuga", "Legumbres", "Lentejas", "Linaza", "Maíz", "Maní", "Melones", "Mijo", "Olivos", "Papas",
    "Pepino", "Pistacho", "Rábano", "Remolacha", "Repollo", "Sandía", "Sorgo", "Soya", "Tabaco", "Tomate", "Trigo",
    "Uvas de mesa", "Zanahoria"};
constexpr Columna kKcInicial{
    "0.95", "0.45", "0.40", "0.30", "1.10", "0.30", "0.60", "0.40", "0.30", "0.50", "0.40", "0.30", "0.50", "0.40",
    "0.40", "0.65", "0.30", "0.30", "0.40", "0.50", "0.80", "0.40", "0.45", "0.30", "0.30", "0.40", "0.30", "0.40",
    "0.45", "0.50", "0.40", "0.35", "0.60", "0.50", "0.40", "0.10", "0.30", "0.40", "0.50", "0.40", "0.40", "0.40",
    "0.40", "0.50", "0.40", "0.45", "0.45"};
constexpr Columna kKcMediados{
    "1.0", "1.2", "1.15", "1.10", "1.20", "1.10", "1.10", "1.0", "0.95", "1.15", "1.10", "1.05", "1.0", "1.20",
    "1.10", "0.70", "0.95", "1.0", "1.05", "1.10", "1.15", "1.10", "1.10", "1.05", "1.0", "1.15", "1.15", "1.05",
    "1.10", "0.95", "1.05", "1.05", "0.80", "1.15", "0.95", "1.05", "0.85", "1.10", "1.10", "1.05", "1.15", "1.05",
    "1.10", "1.15", "1.15", "0.80", "1.05"};
constexpr Columna kKcFinal{
    "0.95", "1.15", "0.50", "1.0", "1.10", "0.20", "1.0", "0.85", "0.75", "0.55", "0.25", "0.20", "0.90", "0.35",
    "0.85", "0.65", "0.25", "0.95", "0.85", "0.80", "1.05", "0.45", "1.0", "1.05", "0.45", "0.30", "0.30", "0.25",
    "1.0", "0.55", "0.80", "0.30", "0.80", "0.75", "0.75", "0.35", "0.80", "0.30", "0.85", "0.70", "0.50", "0.50",
    "0.80", "0.80", "0.30", "0.45", "0.75"};
// clang-format on

const Columna& ColumnaDe(EtapaCultivo etapa) {
    switch (etapa) {
        case EtapaCultivo::Inicial:
            return kKcInicial;
        case EtapaCultivo::Mediados:
            return kKcMediados;
        case EtapaCultivo::Final:
            break;
    }
    return kKcFinal;
}

}  // namespace

Double EToHargreaves(Double Ra, Double Tmin, Double Tmax) {
    const Double Tmed = (Tmin + Tmax) / 2;
    return 0.0023 * Ra * Sqr(Tmax - Tmin) * (Tmed + 17.8);
}

std::vector<std::string> CultivosConKc(EtapaCultivo etapa) {
    std::vector<std::string> entradas;
    for (std::size_t i = 0; i < kCuantos; ++i) {
        entradas.push_back(kCultivos[i] + std::string(" (") + ColumnaDe(etapa)[i] + ")");
    }
    return entradas;
}

Single KcDeCultivo(EtapaCultivo etapa, int posicion) {
    const auto i = static_cast<std::size_t>(posicion);
    if (i >= kCuantos) {
        throw ErrorEjecucion(kSubindiceFuera);
    }
    return CSng(Val(ColumnaDe(etapa)[i]));
}

}  // namespace cuencalia
