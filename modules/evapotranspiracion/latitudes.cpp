#include "modules/evapotranspiracion/latitudes.h"

#include <algorithm>

namespace cuencalia {

std::optional<int> DesplazamientoDe(const TablaDeLatitudes& tabla, std::string_view clave) {
    const auto buscar = [&](std::span<const int> latitudes, int fila, int paso) -> std::optional<int> {
        for (const int grados : latitudes) {
            for (const char hemisferio : {'N', 'S'}) {
                if (clave == std::to_string(grados) + hemisferio) {
                    return 12 * (hemisferio == 'N' ? fila : tabla.Filas() - 1 - fila);
                }
            }
            fila += paso;
        }
        return {};
    };
    const std::optional<int> hallado = buscar(tabla.grados, 0, 1);
    return hallado ? hallado : buscar(tabla.masAlla, 0, 0);
}

std::vector<std::string> ListaDeLatitudes(const TablaDeLatitudes& tabla) {
    std::vector<std::string> lista;
    for (const std::span<const int> latitudes : {tabla.masAlla, tabla.grados}) {
        for (const int grados : latitudes) {
            lista.push_back(std::to_string(grados));
        }
    }
    std::reverse(lista.begin(), lista.end());
    return lista;
}

}  // namespace cuencalia
