#include "hojas/zip.h"

#include <gsf/gsf.h>

#include <algorithm>
#include <array>
#include <mutex>

#include "hojas/errores_libro.h"

namespace cuencalia {

namespace {

// The library comments on every oddity of a damaged file, without end; the caller learns of it by the error.
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
