#include "frame/base/archivoserie.h"

#include <bit>
#include <cstdint>
#include <string_view>

namespace cuencalia {

namespace {

constexpr std::size_t kAnchoSingle = 4;
constexpr std::size_t kMaximoRegistros = INT16_MAX;

using Bytes = std::array<char, 4 * kAnchoSingle>;

/// Writes the bytes in the order of the file, little-endian, whatever the machine's own order.
void Poner(Bytes& bytes, std::size_t donde, float valor) {
    const auto bits = std::bit_cast<std::uint32_t>(valor);
    for (std::size_t i = 0; i < kAnchoSingle; ++i) {
        bytes[donde + i] = static_cast<char>(bits >> (8 * i) & 0xFF);
    }
}

float Tomar(std::string_view bytes) {
    std::uint32_t bits = 0;
    for (std::size_t i = 0; i < kAnchoSingle; ++i) {
        bits |= static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[i])) << (8 * i);
    }
    return std::bit_cast<float>(bits);
}

std::size_t Ancho(int valores) { return static_cast<std::size_t>(valores) * kAnchoSingle; }

}  // namespace

LectorSerie::LectorSerie(const std::string& ruta, int valores)
    : bytes_(LeerArchivo(ruta, (kMaximoRegistros + 1) * Ancho(valores))),
      valores_(valores),
      registros_(bytes_.size() / Ancho(valores)) {}

Registro LectorSerie::Leer() {
    const std::string_view resto = std::string_view(bytes_).substr(leidos_);
    if (resto.size() < Ancho(valores_)) {
        throw ErrorEjecucion(kAccesoRuta);
    }
    Registro registro;
    for (std::size_t i = 0; i < static_cast<std::size_t>(valores_); ++i) {
        registro[i] = Tomar(resto.substr(i * kAnchoSingle));
    }
    leidos_ += Ancho(valores_);
    return registro;
}

EscritorSerie::EscritorSerie(const std::string& ruta, int valores)
    : archivo_(ruta.empty() ? throw ErrorEjecucion(kArchivoNoEncontrado) : ruta, true), valores_(valores) {}

void EscritorSerie::Escribir(const Registro& registro) {
    Bytes bytes{};
    for (std::size_t i = 0; i < static_cast<std::size_t>(valores_); ++i) {
        Poner(bytes, i * kAnchoSingle, registro[i].valor());
    }
    archivo_.Escribir({bytes.data(), Ancho(valores_)});
}

}  // namespace cuencalia
