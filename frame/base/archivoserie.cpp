#include "frame/base/archivoserie.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <bit>
#include <cerrno>
#include <cstdint>
#include <string_view>

#include "frame/base/archivos.h"

namespace cuencalia {

namespace {

constexpr std::size_t kAnchoSingle = 4;
constexpr std::size_t kMaximoRegistros = INT16_MAX;

using Bytes = std::array<unsigned char, 4 * kAnchoSingle>;

/// Writes the bytes in the order of the file, little-endian, whatever the machine's own order.
void Poner(Bytes& bytes, std::size_t donde, float valor) {
    const auto bits = std::bit_cast<std::uint32_t>(valor);
    for (std::size_t i = 0; i < kAnchoSingle; ++i) {
        bytes[donde + i] = static_cast<unsigned char>(bits >> (8 * i));
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

EscritorSerie::EscritorSerie(const std::string& ruta, int valores) : archivo_(-1), valores_(valores) {
    if (ruta.empty()) {
        throw ErrorEjecucion(kArchivoNoEncontrado);
    }
    archivo_ = ::open(ruta.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC | O_NONBLOCK, 0666);
    if (archivo_ < 0) {
        FallarPorSistema(errno, UsoArchivo::kEscribir);
    }
    struct stat datos {};
    if (::fstat(archivo_, &datos) != 0 || !S_ISREG(datos.st_mode) || ::ftruncate(archivo_, 0) != 0) {
        ::close(archivo_);
        throw ErrorEjecucion(kAccesoRuta);
    }
}

EscritorSerie::~EscritorSerie() { ::close(archivo_); }

void EscritorSerie::Escribir(const Registro& registro) {
    Bytes bytes{};
    for (std::size_t i = 0; i < static_cast<std::size_t>(valores_); ++i) {
        Poner(bytes, i * kAnchoSingle, registro[i].valor());
    }
    std::size_t escritos = 0;
    while (escritos < Ancho(valores_)) {
        const ssize_t parte = ::write(archivo_, bytes.data() + escritos, Ancho(valores_) - escritos);
        if (parte < 0 && errno == EINTR) {
            continue;
        }
        if (parte < 0) {
            FallarPorSistema(errno, UsoArchivo::kEscribir);
        }
        escritos += static_cast<std::size_t>(parte);
    }
}

}  // namespace cuencalia
