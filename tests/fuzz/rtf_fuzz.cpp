// Reads any bytes as RTF and as a fragment pasted into a document; what was read must come back from its own RTF.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "frame/base/utf8.h"
#include "frame/reportes/editortextorico.h"
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
    EditorTextoRico editor;
    editor.SelRTF("uno\ndos\ntres");
    editor.SelStart(5);
    editor.SelLength(4);
    editor.SelRTF(fuente);
    ExigirFormaNormal(editor.Documento());
    editor.SelStart(editor.SelStart() / 2);
    editor.SelLength(editor.Longitud() / 3);
    const TextoRico antes = editor.Documento();
    const int inicio = editor.SelStart();
    editor.SelRTF(editor.SelRTF());
    ExigirFormaNormal(editor.Documento());
    Exigir(editor.Text() == antes.Texto());
    Exigir(editor.SelStart() >= inicio && editor.Documento() == antes);
    return 0;
}
