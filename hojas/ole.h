#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace cuencalia {

/// An OLE2 compound document ([MS-CFB]) held in memory: streams stored in chains of sectors, as on a small disk. The
/// bytes must outlive this object.
///
/// We do not use the general library for this format, because it walks the directory recursively, so that a malicious
/// document of a few megabytes overflows the stack. Here the length of every chain and walk is limited by the size of
/// the file.
class DocumentoOle {
  public:
    /// Error 1004 when the bytes are not a valid document.
    explicit DocumentoOle(std::span<const std::byte> bytes);

    /// The contents of a stream of the root storage; nothing when there is no stream of that name. Upper and lower case
    /// are not distinguished. Error 1004 when the chain of its sectors is damaged.
    std::optional<std::vector<std::byte>> Flujo(std::string_view nombre) const;

  private:
    struct Entrada;
    using Cadena = std::vector<std::uint32_t>;  // number of the next sector, for each sector

    std::span<const std::byte> Sector(std::uint32_t numero) const;
    void AgregarTablas(std::span<const std::byte> numeros, std::size_t& quedan);
    std::vector<std::byte> LeerCadena(std::uint32_t primero) const;
    std::vector<std::byte> LeerMini(const Entrada& entrada) const;
    Entrada LeerEntrada(std::size_t indice) const;

    std::span<const std::byte> bytes_;
    std::size_t largoSector_ = 0;
    std::size_t sectores_ = 0;
    Cadena siguiente_;
    std::vector<std::byte> directorio_;
};

}  // namespace cuencalia
