#pragma once

#include <sys/resource.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

namespace cuencalia::pruebas {

/// A folder that goes with all it holds.
class CarpetaTemporal {
  public:
    CarpetaTemporal() {
        std::string modelo = (std::filesystem::temp_directory_path() / "cuencalia-XXXXXX").string();
        if (::mkdtemp(modelo.data()) == nullptr) {
            throw std::runtime_error("CarpetaTemporal: cannot make " + modelo);
        }
        ruta_ = modelo;
        // Open to all, so that a test may become another user.
        std::filesystem::permissions(ruta_, std::filesystem::perms(0755));
    }
    ~CarpetaTemporal() { std::filesystem::remove_all(ruta_); }
    CarpetaTemporal(const CarpetaTemporal&) = delete;
    CarpetaTemporal& operator=(const CarpetaTemporal&) = delete;

    /// Path of a file in the folder.
    std::string operator/(const std::string& nombre) const { return (ruta_ / nombre).string(); }
    std::size_t Archivos() const {
        return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(ruta_), {}));
    }

  private:
    std::filesystem::path ruta_;
};

inline std::string BytesDe(const std::string& ruta) {
    std::ifstream archivo(ruta, std::ios::binary);
    if (!archivo) {
        throw std::runtime_error("BytesDe: cannot open " + ruta);
    }
    return {std::istreambuf_iterator<char>(archivo), {}};
}

inline std::string Guardar(const std::string& ruta, const std::string& bytes) {
    std::ofstream(ruta, std::ios::binary) << bytes;
    return ruta;
}

/// As long as it lives, no file grows beyond so many bytes: a full disk for whoever writes.
class DiscoDe {
  public:
    explicit DiscoDe(rlim_t bytes) : manejador_(std::signal(SIGXFSZ, SIG_IGN)) {
        ::getrlimit(RLIMIT_FSIZE, &limite_);
        const rlimit menor{bytes, limite_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &menor);
    }
    ~DiscoDe() {
        ::setrlimit(RLIMIT_FSIZE, &limite_);
        std::signal(SIGXFSZ, manejador_);
    }
    DiscoDe(const DiscoDe&) = delete;
    DiscoDe& operator=(const DiscoDe&) = delete;

  private:
    void (*manejador_)(int);
    rlimit limite_{};
};

}  // namespace cuencalia::pruebas
