#include "hojas/ole.h"

#include <algorithm>
#include <string>

#include "hojas/errores_libro.h"

namespace cuencalia {

namespace {

using Bytes = std::span<const std::byte>;

// Offsets and sizes of [MS-CFB] 2.2 (header) and 2.6 (directory entry).
constexpr std::size_t kLargoCabecera = 512;
constexpr std::size_t kPotenciaSector = 30;
constexpr std::size_t kCuantasTablas = 44;
constexpr std::size_t kPrimerDirectorio = 48;
constexpr std::size_t kPrimeraMiniTabla = 60;
constexpr std::size_t kPrimeraLista = 68;
constexpr std::size_t kTablas = 76;
constexpr std::size_t kLargoEntrada = 128;
constexpr std::uint32_t kUltimoSector = 0xFFFFFFFA;  // greater numbers have special meanings
constexpr std::size_t kLargoMini = 64;
constexpr std::size_t kCorteMini = 4096;  // shorter streams are in small sectors, inside the root's stream

std::uint32_t Palabra(Bytes bytes, std::size_t lugar, std::size_t largo) {
    if (lugar + largo > bytes.size()) {
        FallarDanado();
    }
    std::uint32_t valor = 0;
    for (std::size_t i = largo; i-- > 0;) {
        valor = valor << 8 | std::to_integer<std::uint32_t>(bytes[lugar + i]);
    }
    return valor;
}

std::uint32_t U16(Bytes bytes, std::size_t lugar) { return Palabra(bytes, lugar, 2); }
std::uint32_t U32(Bytes bytes, std::size_t lugar) { return Palabra(bytes, lugar, 4); }

char Mayuscula(char letra) { return letra >= 'a' && letra <= 'z' ? static_cast<char>(letra - 'a' + 'A') : letra; }

bool MismoNombre(std::string_view uno, std::string_view otro) {
    return std::ranges::equal(uno, otro, {}, Mayuscula, Mayuscula);
}

}  // namespace

struct DocumentoOle::Entrada {
    std::string nombre;  // non-ASCII characters replaced by '?'
    bool esFlujo;
    std::uint32_t anterior;
    std::uint32_t posterior;
    std::uint32_t hijo;
    std::uint32_t primero;
    std::size_t largo;
};

DocumentoOle::DocumentoOle(Bytes bytes) : bytes_(bytes) {
    constexpr std::uint32_t kPotencias[] = {9, 12};  // versions 3 and 4
    if (bytes.size() < kLargoCabecera || std::ranges::count(kPotencias, U16(bytes, kPotenciaSector)) == 0) {
        FallarDanado();
    }
    largoSector_ = std::size_t{1} << U16(bytes, kPotenciaSector);
    sectores_ = bytes.size() / largoSector_;
    // The numbers of the sectors with allocation tables: the first ones are in the header, the others in a chain of
    // further sectors.
    std::size_t quedan = std::min<std::size_t>(U32(bytes, kCuantasTablas), sectores_);
    AgregarTablas(bytes.subspan(kTablas, kLargoCabecera - kTablas), quedan);
    for (std::uint32_t lista = U32(bytes, kPrimeraLista); quedan > 0;) {
        const Bytes numeros = Sector(lista);
        if (numeros.size() < largoSector_) {
            FallarDanado();
        }
        AgregarTablas(numeros.first(largoSector_ - 4), quedan);
        lista = U32(numeros, largoSector_ - 4);
    }
    directorio_ = LeerCadena(U32(bytes, kPrimerDirectorio));
}

// Reads up to `quedan` allocation tables, each one sector; `numeros` contains the numbers of these sectors.
void DocumentoOle::AgregarTablas(Bytes numeros, std::size_t& quedan) {
    for (std::size_t lugar = 0; lugar < numeros.size() && quedan > 0; lugar += 4, --quedan) {
        const Bytes tabla = Sector(U32(numeros, lugar));
        for (std::size_t i = 0; i + 4 <= tabla.size(); i += 4) {
            siguiente_.push_back(U32(tabla, i));
        }
    }
}

// The bytes of a sector; the last sector of a file may be cut short.
Bytes DocumentoOle::Sector(std::uint32_t numero) const {
    const std::size_t lugar = (std::size_t{numero} + 1) * largoSector_;
    if (lugar >= bytes_.size()) {
        FallarDanado();
    }
    return bytes_.subspan(lugar, std::min(largoSector_, bytes_.size() - lugar));
}

std::vector<std::byte> DocumentoOle::LeerCadena(std::uint32_t primero) const {
    std::vector<std::byte> leidos;
    std::size_t pasos = 0;
    for (std::uint32_t sector = primero; sector <= kUltimoSector; sector = siguiente_[sector]) {
        const Bytes datos = Sector(sector);
        leidos.insert(leidos.end(), datos.begin(), datos.end());
        if (++pasos > sectores_ || sector >= siguiente_.size()) {
            FallarDanado();
        }
    }
    return leidos;
}

std::vector<std::byte> DocumentoOle::LeerMini(const Entrada& entrada) const {
    const std::vector<std::byte> sectores = LeerCadena(LeerEntrada(0).primero);
    const std::vector<std::byte> siguiente = LeerCadena(U32(bytes_, kPrimeraMiniTabla));
    std::vector<std::byte> leidos;
    for (std::uint32_t sector = entrada.primero; leidos.size() < entrada.largo;
         sector = U32(siguiente, std::size_t{sector} * 4)) {
        const std::size_t lugar = std::size_t{sector} * kLargoMini;
        if (lugar + kLargoMini > sectores.size()) {
            FallarDanado();
        }
        const Bytes datos = Bytes(sectores).subspan(lugar, kLargoMini);
        leidos.insert(leidos.end(), datos.begin(), datos.end());
    }
    return leidos;
}

DocumentoOle::Entrada DocumentoOle::LeerEntrada(std::size_t indice) const {
    if (indice >= directorio_.size() / kLargoEntrada) {
        FallarDanado();
    }
    const Bytes datos = Bytes(directorio_).subspan(indice * kLargoEntrada, kLargoEntrada);
    constexpr std::size_t kMaxNombre = 64;
    constexpr std::uint32_t kClaseFlujo = 2;
    Entrada entrada{{},
                    Palabra(datos, 66, 1) == kClaseFlujo,
                    U32(datos, 68),
                    U32(datos, 72),
                    U32(datos, 76),
                    U32(datos, 116),
                    U32(datos, 120)};
    const std::size_t largoNombre = std::min<std::size_t>(U16(datos, 64), kMaxNombre);  // includes a final zero
    for (std::size_t i = 0; i + 2 < largoNombre; i += 2) {
        const std::uint32_t letra = U16(datos, i);
        entrada.nombre += letra < 0x80 ? static_cast<char>(letra) : '?';
    }
    return entrada;
}

std::optional<std::vector<std::byte>> DocumentoOle::Flujo(std::string_view nombre) const {
    // Only the root storage is searched, by following its tree of entries: an embedded workbook has streams of the same
    // names in a storage of its own.
    std::vector<bool> vistas(directorio_.size() / kLargoEntrada);
    std::vector<std::uint32_t> porVer{LeerEntrada(0).hijo};
    while (!porVer.empty()) {
        const std::uint32_t indice = porVer.back();
        porVer.pop_back();
        if (indice >= vistas.size() || vistas[indice]) {
            continue;
        }
        vistas[indice] = true;
        const Entrada entrada = LeerEntrada(indice);
        if (entrada.esFlujo && MismoNombre(entrada.nombre, nombre)) {
            auto contenido = entrada.largo < kCorteMini ? LeerMini(entrada) : LeerCadena(entrada.primero);
            if (contenido.size() < entrada.largo) {
                FallarDanado();
            }
            contenido.resize(entrada.largo);
            return contenido;
        }
        porVer.push_back(entrada.anterior);
        porVer.push_back(entrada.posterior);
    }
    return std::nullopt;
}

}  // namespace cuencalia
