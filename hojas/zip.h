#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace cuencalia {

/// A ZIP archive held in memory, as a tree of named parts. The bytes must outlive this object.
class ArchivoZip {
  public:
    /// Receives a piece of a part; returns false to end the reading.
    using Receptor = std::function<bool(std::span<const std::byte>)>;

    /// Error 1004 when the bytes are not a valid archive.
    explicit ArchivoZip(std::span<const std::byte> bytes);

    /// Part names have '/' between folders and none in front; upper and lower case are not distinguished.
    bool Tiene(const std::string& parte) const;

    /// The names of all parts, in lower case.
    std::vector<std::string> Partes() const;

    /// Passes the unpacked bytes of a part to `recibir`, piece by piece. Error 1004 when the part is missing or
    /// damaged, or is longer than `limite` bytes; the size declared in the file is not trusted. A wrong checksum is
    /// reported at the end of the part, also when the receiver ended the reading early, unless the limit is reached
    /// first.
    void Recorrer(const std::string& parte, std::size_t limite, const Receptor& recibir) const;

  private:
    struct Soltar {
        void operator()(void* objeto) const;
    };
    using Objeto = std::unique_ptr<void, Soltar>;

    Objeto Abrir(const std::string& parte) const;

    Objeto raiz_;
    std::map<std::string, std::uint32_t> sumas_;  ///< CRC-32 of each part, by name.
};

}  // namespace cuencalia
