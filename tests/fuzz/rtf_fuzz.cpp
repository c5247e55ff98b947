// Reads any bytes as RTF, a document or a fragment; what was read must come back from its own RTF.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "frame/base/utf8.h"
#include "frame/reportes/rtf.h"

using namespace cuencalia;

namespace {

void Exigir(bool condicion) {
    if (!condicion) {
        std::abort();
    }
}

void ExigirFormaNormal(const TextoRico& texto) {
    Exigir(!texto.parrafos.empty());
    for (const Parrafo& parrafo : texto.parrafos) {
        for (std::size_t i = 0; i < parrafo.tramos.size(); ++i) {
            const Tramo& tramo = parrafo.tramos[i];
            Exigir(!tramo.texto.empty() && EsUtf8(tramo.texto));
            Exigir(tramo.texto.find_first_of(std::string_view("\0\r\n", 3)) == std::string::npos);
            Exigir(i == 0 || parrafo.tramos[i - 1].formato != tramo.formato);
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t cuantos) {
    const std::string_view fuente(reinterpret_cast<const char*>(datos), cuantos);
    for (const ClaseRtf clase : {ClaseRtf::kDocumento, ClaseRtf::kFragmento}) {
        const TextoRico texto = LeerRtf(fuente, clase);
        ExigirFormaNormal(texto);
        Exigir(LeerRtf(EscribirRtf(texto, clase), clase) == texto);
    }
    return 0;
}
