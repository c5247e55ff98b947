#include "frame/base/archivoserie.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <bit>
#include <cerrno>
#include <cstdint>

namespace cuencalia {

namespace {

constexpr std::size_t kAnchoSingle = 4;

using Bytes = std::array<unsigned char, 4 * kAnchoSingle>;

[[noreturn]] void Fallar(int codigo) {
    switch (codigo) {
        case ENOENT:
            throw ErrorEjecucion(kArchivoNoEncontrado);
        case ENOTDIR:
            throw ErrorEjecucion(kRutaNoEncontrada);
        case ENOSPC:
        case EFBIG:
        case EDQUOT:
            throw ErrorEjecucion(kDiscoLleno);
        default:
            throw ErrorEjecucion(kAccesoRuta);
    }
}

/// Bytes in the file's order, whatever the machine's.
void Poner(Bytes& bytes, std::size_t donde, float valor) {
    const auto bits = std::bit_cast<std::uint32_t>(valor);
    for (std::size_t i = 0; i < kAnchoSingle; ++i) {
        bytes[donde + i] = static_cast<unsigned char>(bits >> (8 * i));
    }
}

float Tomar(const Bytes& bytes, std::size_t donde) {
    std::uint32_t bits = 0;
    for (std::size_t i = 0; i < kAnchoSingle; ++i) {
        bits |= static_cast<std::uint32_t>(bytes[donde + i]) << (8 * i);
    }
    return std::bit_cast<float>(bits);
}

std::size_t Ancho(int valores) { return static_cast<std::size_t>(valores) * kAnchoSingle; }

}  // namespace

LectorSerie::LectorSerie(const std::string& ruta, int valores)
    // A pipe must not keep the program waiting for somebody to write to it.
    : archivo_(::open(ruta.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)), valores_(valores) {
    if (archivo_ < 0) {
        Fallar(errno);
    }
    struct stat datos {};
    const bool legible = ::fstat(archivo_, &datos) == 0 && S_ISREG(datos.st_mode);
    const auto registros = static_cast<std::uint64_t>(legible ? datos.st_size : 0) / Ancho(valores);
    if (!legible || registros > INT16_MAX) {
        ::close(archivo_);
        throw ErrorEjecucion(legible ? kDesbordamiento : kAccesoRuta);
    }
    registros_ = Integer(registros);
}

LectorSerie::~LectorSerie() { ::close(archivo_); }

Registro LectorSerie::Leer() {
    Bytes bytes{};
    std::size_t leidos = 0;
    while (leidos < Ancho(valores_)) {
        const ssize_t parte = ::read(archivo_, bytes.data() + leidos, Ancho(valores_) - leidos);
        if (parte < 0 && errno == EINTR) {
            continue;
        }
        if (parte <= 0) {
            throw ErrorEjecucion(kAccesoRuta);
        }
        leidos += static_cast<std::size_t>(parte);
    }
    Registro registro;
    for (std::size_t i = 0; i < static_cast<std::size_t>(valores_); ++i) {
        registro[i] = Tomar(bytes, i * kAnchoSingle);
    }
    return registro;
}

EscritorSerie::EscritorSerie(const std::string& ruta, int valores) : archivo_(-1), valores_(valores) {
    if (ruta.empty()) {
        throw ErrorEjecucion(kArchivoNoEncontrado);
    }
    archivo_ = ::open(ruta.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC | O_NONBLOCK, 0666);
    if (archivo_ < 0) {
        const int codigo = errno;
        if (codigo == ENOENT) {
            throw ErrorEjecucion(kRutaNoEncontrada);
        }
        Fallar(codigo);
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
            Fallar(errno);
        }
        escritos += static_cast<std::size_t>(parte);
    }
}

}  // namespace cuencalia
