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

/// A ZIP archive held in memory, as a tree of named parts. The bytes must outlive it.
class ArchivoZip {
  public:
    /// Takes a piece of a part; false ends the reading.
    using Receptor = std::function<bool(std::span<const std::byte>)>;

    /// Error 1004 when the bytes are no sound archive.
    explicit ArchivoZip(std::span<const std::byte> bytes);

    /// Part names have '/' between folders, none in front, and do not tell capitals from small letters.
    bool Tiene(const std::string& parte) const;

    /// The names of all parts, in small letters.
    std::vector<std::string> Partes() const;

    /// Hands over the unpacked bytes of a part, piece by piece. Error 1004 when the part is missing or damaged, or goes
    /// on beyond `limite` bytes: what the file declares as its size is not trusted. A damage that shows in the checksum
    /// alone is told at the end, also when the receiver had seen enough before, unless the limit ends the part.
    void Recorrer(const std::string& parte, std::size_t limite, const Receptor& recibir) const;

  private:
    struct Soltar {
        void operator()(void* objeto) const;
    };
    using Objeto = std::unique_ptr<void, Soltar>;

    Objeto Abrir(const std::string& parte) const;

    Objeto raiz_;
    std::map<std::string, std::uint32_t> sumas_;  ///< CRC-32 by part.
};

}  // namespace cuencalia
