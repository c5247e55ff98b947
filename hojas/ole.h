#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace cuencalia {

/// An OLE2 compound document ([MS-CFB]) held in memory: streams laid out in chains of sectors, like a small disk. The
/// bytes must outlive it.
///
/// A reader of our own: the general library walks the directory by recursion, which a hostile document of a few
/// megabytes drives out of stack. Here every chain and walk is bounded by what the file really holds.
class DocumentoOle {
  public:
    /// Error 1004 when the bytes are no sound document.
    explicit DocumentoOle(std::span<const std::byte> bytes);

    /// The contents of a stream of the root storage; nothing when there is none of that name, whatever its capitals.
    /// Error 1004 when its chain is damaged.
    std::optional<std::vector<std::byte>> Flujo(std::string_view nombre) const;

  private:
    struct Entrada;
    using Cadena = std::vector<std::uint32_t>;  // next sector by sector

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
