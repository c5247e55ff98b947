#include "hojas/armador.h"

#include <cmath>

#include "hojas/errores_libro.h"

namespace cuencalia {

namespace {

// Limit on the total length of the texts in a sheet: many cells may refer to one long text, so that a small file would
// make a very large sheet.
constexpr std::size_t kMaxBytesDeTexto = std::size_t{64} << 20;

}  // namespace

void ArmadorHoja::Poner(int fila, int columna, ValorCelda valor) {
    if (const auto* numero = std::get_if<Double>(&valor); numero != nullptr && !std::isfinite(numero->valor())) {
        FallarDanado();
    }
    if (const auto* texto = std::get_if<std::string>(&valor)) {
        bytesDeTexto_ += texto->size();
        if (bytesDeTexto_ > kMaxBytesDeTexto) {
            FallarDemasiadoGrande();
        }
    }
    hoja_.Poner(fila, columna, std::move(valor));
}

void ArmadorHoja::PonerCompartido(int fila, int columna, std::uint32_t indice) {
    pendientes_[indice].emplace_back(fila, columna);
}

void ArmadorHoja::DarTexto(std::uint32_t indice, const std::string& texto) {
    const auto celdas = pendientes_.extract(indice);
    if (celdas.empty()) {
        return;
    }
    for (const auto& [fila, columna] : celdas.mapped()) {
        Poner(fila, columna, texto);
    }
}

Hoja ArmadorHoja::Terminar() const {
    if (FaltanTextos()) {
        FallarDanado();
    }
    const int filas = hoja_.Filas();
    Hoja datos;
    for (const auto& [posicion, valor] : hoja_.Celdas()) {
        if (posicion.first <= filas) {
            datos.Poner(posicion.first, posicion.second, valor);
        }
    }
    return datos;
}

}  // namespace cuencalia
