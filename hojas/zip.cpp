#include "hojas/zip.h"

#include <gsf/gsf.h>

#include <algorithm>
#include <array>
#include <mutex>
#include <string_view>

#include "hojas/errores_libro.h"

namespace cuencalia {

namespace {

// Discards the library's many messages about a damaged file: the caller gets an error instead.
void Callar(const char*, GLogLevelFlags, const char*, void*) {}

void Iniciar() {
    gsf_init();
    constexpr int kAvisos = G_LOG_LEVEL_WARNING | G_LOG_LEVEL_CRITICAL;
    g_log_set_handler("libgsf:zip", static_cast<GLogLevelFlags>(kAvisos), Callar, nullptr);
}

GsfInput* HijoLlamado(GsfInput* carpeta, const std::string& nombre) {
    if (!GSF_IS_INFILE(carpeta)) {
        return nullptr;
    }
    GsfInfile* archivo = GSF_INFILE(carpeta);
    const int hijos = gsf_infile_num_children(archivo);
    for (int i = 0; i < hijos; ++i) {
        const char* hijo = gsf_infile_name_by_index(archivo, i);
        if (hijo != nullptr && g_ascii_strcasecmp(hijo, nombre.c_str()) == 0) {
            return gsf_infile_child_by_index(archivo, i);
        }
    }
    return nullptr;
}

std::string EnMinusculas(std::string nombre) {
    std::ranges::transform(nombre, nombre.begin(), g_ascii_tolower);
    return nombre;
}

std::uint32_t Entero(std::string_view bytes, std::size_t lugar, std::size_t largo) {
    std::uint32_t valor = 0;
    for (std::size_t i = largo; i-- > 0;) {
        valor = valor << 8 | static_cast<unsigned char>(bytes.at(lugar + i));
    }
    return valor;
}

// The CRC-32 of each part, from the index at the end of the archive (APPNOTE.TXT 4.3.12 and 4.3.16), since the library
// does not check it. Parts missing from the index are not found by the library either.
std::map<std::string, std::uint32_t> LeerSumas(std::string_view archivo) {
    constexpr std::size_t kLargoFinal = 22;
    constexpr std::size_t kLargoEntrada = 46;
    std::map<std::string, std::uint32_t> sumas;
    const std::size_t final = archivo.rfind("PK\5\6");
    if (final == std::string_view::npos || archivo.size() - final < kLargoFinal) {
        return sumas;
    }
    std::size_t lugar = Entero(archivo, final + 16, 4);
    while (lugar < final && final - lugar >= kLargoEntrada && archivo.substr(lugar, 4) == "PK\1\2") {
        const std::size_t nombre = Entero(archivo, lugar + 28, 2);
        sumas[EnMinusculas(std::string(archivo.substr(lugar + kLargoEntrada, nombre)))] =
            Entero(archivo, lugar + 16, 4);
        lugar += kLargoEntrada + nombre + Entero(archivo, lugar + 30, 2) + Entero(archivo, lugar + 32, 2);
    }
    return sumas;
}

constexpr std::array<std::uint32_t, 256> kTablaCrc = [] {
    std::array<std::uint32_t, 256> tabla{};
    for (std::uint32_t i = 0; i < tabla.size(); ++i) {
        std::uint32_t resto = i;
        for (int bit = 0; bit < 8; ++bit) {
            resto = (resto & 1) != 0 ? resto >> 1 ^ 0xEDB88320 : resto >> 1;
        }
        tabla[i] = resto;
    }
    return tabla;
}();

// Updates the CRC-32 of the bytes read so far by the next ones; both values are complemented.
std::uint32_t Sumar(std::uint32_t suma, std::span<const std::byte> bytes) {
    for (const std::byte b : bytes) {
        suma = kTablaCrc[(suma ^ std::to_integer<std::uint32_t>(b)) & 0xFF] ^ suma >> 8;
    }
    return suma;
}

}  // namespace

void ArchivoZip::Soltar::operator()(void* objeto) const { g_object_unref(objeto); }

ArchivoZip::ArchivoZip(std::span<const std::byte> bytes) {
    static std::once_flag iniciada;
    std::call_once(iniciada, Iniciar);
    const Objeto entrada(gsf_input_memory_new(reinterpret_cast<const guint8*>(bytes.data()),
                                              static_cast<gsf_off_t>(bytes.size()), FALSE));
    raiz_.reset(gsf_infile_zip_new(GSF_INPUT(entrada.get()), nullptr));
    if (raiz_ == nullptr) {
        FallarDanado();
    }
    sumas_ = LeerSumas({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
}

std::vector<std::string> ArchivoZip::Partes() const {
    std::vector<std::string> partes;
    for (const auto& [parte, suma] : sumas_) {
        partes.push_back(parte);
    }
    return partes;
}

ArchivoZip::Objeto ArchivoZip::Abrir(const std::string& parte) const {
    Objeto actual(g_object_ref(raiz_.get()));
    for (std::size_t inicio = 0; actual != nullptr && inicio <= parte.size();) {
        const std::size_t fin = std::min(parte.find('/', inicio), parte.size());
        actual.reset(HijoLlamado(GSF_INPUT(actual.get()), parte.substr(inicio, fin - inicio)));
        inicio = fin + 1;
    }
    return actual;
}

bool ArchivoZip::Tiene(const std::string& parte) const { return Abrir(parte) != nullptr; }

void ArchivoZip::Recorrer(const std::string& parte, std::size_t limite, const Receptor& recibir) const {
    const Objeto objeto = Abrir(parte);
    if (objeto == nullptr) {
        FallarDanado();
    }
    GsfInput* entrada = GSF_INPUT(objeto.get());
    std::array<std::byte, 16384> trozo;
    std::size_t leidos = 0;
    bool recibe = true;
    std::uint32_t suma = ~std::uint32_t{0};
    for (gsf_off_t quedan = gsf_input_remaining(entrada); quedan > 0; quedan = gsf_input_remaining(entrada)) {
        const std::size_t pedidos = std::min<std::size_t>(trozo.size(), static_cast<std::size_t>(quedan));
        if (gsf_input_read(entrada, pedidos, reinterpret_cast<guint8*>(trozo.data())) == nullptr) {
            FallarDanado();
        }
        leidos += pedidos;
        if (leidos > limite && recibe) {
            FallarDemasiadoGrande();
        }
        if (leidos > limite) {
            return;
        }
        const auto leido = std::span(trozo).first(pedidos);
        suma = Sumar(suma, leido);
        recibe = recibe && recibir(leido);
    }
    const auto esperada = sumas_.find(EnMinusculas(parte));
    if (esperada != sumas_.end() && esperada->second != ~suma) {
        FallarDanado();
    }
}

}  // namespace cuencalia
