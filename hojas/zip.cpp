#include "hojas/zip.h"

#include <zip.h>

#include <algorithm>
#include <string_view>

#include "hojas/errores_libro.h"

namespace cuencalia {

namespace {

// A workbook has a few dozen parts, one with hundreds of sheets a few thousand.
constexpr std::size_t kMaxPartes = 10000;
constexpr std::size_t kMaxNombre = 1024;

// A part is unpacked in pieces of this size: large ones, as the XML reader scans a token that goes beyond the end of a
// piece from its start again.
constexpr std::size_t kTrozo = std::size_t{256} << 10;

// Every entry of the index starts with this mark (APPNOTE.TXT 4.3.12), wherever the index is, so that their number is
// bounded before the library reads them.
void ExigirPocasPartes(std::string_view bytes) {
    constexpr std::string_view kEntrada = "PK\1\2";
    std::size_t marcas = 0;
    for (std::size_t lugar = bytes.find(kEntrada); lugar != std::string_view::npos;
         lugar = bytes.find(kEntrada, lugar + kEntrada.size())) {
        if (++marcas > kMaxPartes) {
            FallarDemasiadoGrande();
        }
    }
}

std::string EnMinusculas(std::string nombre) {
    std::ranges::transform(nombre, nombre.begin(), [](char c) { return c >= 'A' && c <= 'Z' ? c + ('a' - 'A') : c; });
    return nombre;
}

struct Cerrar {
    void operator()(zip_file_t* parte) const { zip_fclose(parte); }
};

}  // namespace

void ArchivoZip::Soltar::operator()(zip* archivo) const { zip_discard(archivo); }

ArchivoZip::ArchivoZip(std::span<const std::byte> bytes) {
    ExigirPocasPartes({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
    zip_source_t* origen = zip_source_buffer_create(bytes.data(), bytes.size(), 0, nullptr);
    if (origen == nullptr) {
        throw ErrorEjecucion(kMemoriaInsuficiente);
    }
    archivo_.reset(zip_open_from_source(origen, ZIP_RDONLY, nullptr));
    if (archivo_ == nullptr) {
        zip_source_free(origen);
        FallarDanado();
    }
    const zip_int64_t cuantas = zip_get_num_entries(archivo_.get(), 0);
    for (zip_uint64_t i = 0; i < static_cast<zip_uint64_t>(cuantas); ++i) {
        const char* nombre = zip_get_name(archivo_.get(), i, ZIP_FL_ENC_RAW);
        if (nombre == nullptr || std::string_view(nombre).size() > kMaxNombre) {
            FallarDanado();
        }
        partes_.emplace(EnMinusculas(nombre), i);
    }
}

std::vector<std::string> ArchivoZip::Partes() const {
    std::vector<std::string> partes;
    for (const auto& [parte, lugar] : partes_) {
        partes.push_back(parte);
    }
    return partes;
}

bool ArchivoZip::Tiene(const std::string& parte) const { return partes_.contains(EnMinusculas(parte)); }

void ArchivoZip::Recorrer(const std::string& parte, std::size_t limite, const Receptor& recibir) const {
    const auto lugar = partes_.find(EnMinusculas(parte));
    if (lugar == partes_.end()) {
        FallarDanado();
    }
    const std::unique_ptr<zip_file_t, Cerrar> entrada(zip_fopen_index(archivo_.get(), lugar->second, 0));
    if (entrada == nullptr) {
        if (zip_error_code_zip(zip_get_error(archivo_.get())) == ZIP_ER_NOPASSWD) {
            FallarProtegido();
        }
        FallarDanado();
    }
    std::vector<std::byte> trozo(kTrozo);
    std::size_t leidos = 0;
    bool recibe = true;
    for (;;) {
        const zip_int64_t cuantos = zip_fread(entrada.get(), trozo.data(), trozo.size());
        if (cuantos < 0) {
            FallarDanado();
        }
        if (cuantos == 0) {
            return;
        }
        leidos += static_cast<std::size_t>(cuantos);
        if (leidos > limite && recibe) {
            FallarDemasiadoGrande();
        }
        if (leidos > limite) {
            return;
        }
        recibe = recibe && recibir(std::span(trozo).first(static_cast<std::size_t>(cuantos)));
    }
}

}  // namespace cuencalia
