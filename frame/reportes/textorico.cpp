#include "frame/reportes/textorico.h"

#include <algorithm>
#include <utility>

#include "frame/base/utf8.h"

namespace cuencalia {

namespace {

std::string SoloLegible(std::string_view texto) {
    std::string legible;
    legible.reserve(texto.size());
    for (std::size_t i = 0; i < texto.size();) {
        const CaracterUtf8 c = LeerUtf8(texto, i);
        if (c.codigo != 0) {
            AgregarUtf8(legible, c.codigo);
        }
        i += c.bytes;
    }
    return legible;
}

}  // namespace

void Parrafo::Agregar(Tramo tramo) {
    if (tramo.texto.empty()) {
        return;
    }
    if (!tramos.empty() && tramos.back().formato == tramo.formato) {
        tramos.back().texto += tramo.texto;
        return;
    }
    tramos.push_back(std::move(tramo));
}

std::string Parrafo::Texto() const {
    std::string texto;
    for (const Tramo& tramo : tramos) {
        texto += tramo.texto;
    }
    return texto;
}

std::string TextoRico::Texto() const {
    std::string texto;
    for (const Parrafo& parrafo : parrafos) {
        for (const Tramo& tramo : parrafo.tramos) {
            texto += tramo.texto;
        }
        texto += '\n';
    }
    texto.pop_back();
    return texto;
}

TextoRico DeTextoPlano(std::string_view texto, const FormatoCaracter& caracter, const FormatoParrafo& parrafo) {
    if (!EsUtf8SinNulos(texto)) {
        return DeTextoPlano(SoloLegible(texto), caracter, parrafo);
    }
    TextoRico rico;
    rico.parrafos.front().formato = parrafo;
    for (;;) {
        const auto esFin = [](char c) { return c == '\r' || c == '\n'; };
        const auto fin = static_cast<std::size_t>(std::ranges::find_if(texto, esFin) - texto.begin());
        if (fin > 0) {
            rico.parrafos.back().Agregar({std::string(texto.substr(0, fin)), caracter});
        }
        if (fin == texto.size()) {
            return rico;
        }
        texto.remove_prefix(fin + (texto.substr(fin).starts_with("\r\n") ? 2 : 1));
        rico.parrafos.push_back({parrafo, {}});
    }
}

}  // namespace cuencalia
