#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <vector>

struct zip;

namespace cuencalia {

/// A ZIP archive held in memory. The bytes must outlive this object.
class ArchivoZip {
  public:
    /// Receives a piece of a part; returns false when it needs no more.
    using Receptor = std::function<bool(std::span<const std::byte>)>;

    /// Error 1004 when the bytes are not a valid archive, or have more parts or longer names than a workbook needs.
    explicit ArchivoZip(std::span<const std::byte> bytes);

    /// Part names have '/' between folders and none in front; upper and lower case are not distinguished.
    bool Tiene(const std::string& parte) const;

    /// The names of all parts, in lower case.
    std::vector<std::string> Partes() const;

    /// Passes the unpacked bytes of a part to `recibir`, piece by piece. Error 1004 when the part is missing, damaged
    /// or encrypted, or is longer than `limite` bytes; the size declared in the file is not trusted. A wrong checksum
    /// is reported at the end of the part, also when the receiver needed no more, unless the limit is reached first.
    void Recorrer(const std::string& parte, std::size_t limite, const Receptor& recibir) const;

  private:
    struct Soltar {
        void operator()(zip* archivo) const;
    };

    std::unique_ptr<zip, Soltar> archivo_;
    std::map<std::string, std::uint64_t> partes_;  ///< Place in the archive, by name.
};

}  // namespace cuencalia
