#include "hojas/contenedor.h"

#include <gsf/gsf.h>

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "hojas/errores_libro.h"

namespace cuencalia {

namespace {

// The library comments on every oddity of a damaged file, without end; the caller learns of it by the error.
void Callar(const char*, GLogLevelFlags, const char*, void*) {}

bool Iniciar() {
    gsf_init();
    for (const char* dominio : {"libgsf:msole", "libgsf:zip"}) {
        g_log_set_handler(dominio, static_cast<GLogLevelFlags>(G_LOG_LEVEL_WARNING | G_LOG_LEVEL_CRITICAL), Callar,
                          nullptr);
    }
    return true;
}

GsfInput* EntradaDeMemoria(std::span<const std::byte> bytes) {
    [[maybe_unused]] static const bool iniciada = Iniciar();
    return gsf_input_memory_new(reinterpret_cast<const guint8*>(bytes.data()), static_cast<gsf_off_t>(bytes.size()),
                                FALSE);
}

template <typename Abridor>
void* AbrirContenedor(std::span<const std::byte> bytes, Abridor abrir) {
    GsfInput* entrada = EntradaDeMemoria(bytes);
    GsfInfile* archivo = abrir(entrada, nullptr);
    g_object_unref(entrada);
    if (archivo == nullptr) {
        FallarDanado();
    }
    return archivo;
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

}  // namespace

void Contenedor::Soltar::operator()(void* objeto) const { g_object_unref(objeto); }

Contenedor Contenedor::Zip(std::span<const std::byte> bytes) {
    return Contenedor(Objeto(AbrirContenedor(bytes, gsf_infile_zip_new)));
}

Contenedor Contenedor::Ole(std::span<const std::byte> bytes) {
    return Contenedor(Objeto(AbrirContenedor(bytes, gsf_infile_msole_new)));
}

Contenedor::Objeto Contenedor::Abrir(const std::string& parte) const {
    Objeto actual(g_object_ref(raiz_.get()));
    for (std::size_t inicio = 0; actual != nullptr && inicio <= parte.size();) {
        const std::size_t fin = std::min(parte.find('/', inicio), parte.size());
        actual.reset(HijoLlamado(GSF_INPUT(actual.get()), parte.substr(inicio, fin - inicio)));
        inicio = fin + 1;
    }
    return actual;
}

bool Contenedor::Tiene(const std::string& parte) const { return Abrir(parte) != nullptr; }

void Contenedor::Recorrer(const std::string& parte, std::size_t limite, const Receptor& recibir) const {
    const Objeto objeto = Abrir(parte);
    if (objeto == nullptr) {
        FallarDanado();
    }
    GsfInput* entrada = GSF_INPUT(objeto.get());
    std::array<std::byte, 16384> trozo;
    std::size_t leidos = 0;
    for (gsf_off_t quedan = gsf_input_remaining(entrada); quedan > 0; quedan = gsf_input_remaining(entrada)) {
        const std::size_t pedidos = std::min<std::size_t>(trozo.size(), static_cast<std::size_t>(quedan));
        if (gsf_input_read(entrada, pedidos, reinterpret_cast<guint8*>(trozo.data())) == nullptr) {
            FallarDanado();
        }
        leidos += pedidos;
        if (leidos > limite) {
            FallarDemasiadoGrande();
        }
        if (!recibir(std::span(trozo).first(pedidos))) {
            return;
        }
    }
}

}  // namespace cuencalia
