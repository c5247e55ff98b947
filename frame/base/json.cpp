#include "frame/base/json.h"

#include <charconv>
#include <iterator>
#include <utility>

namespace cuencalia {

/// A comma goes before whatever follows a value; nothing goes before the first one, or between a name and its value.
void EscritorJson::Separar() {
    if (!json_.empty() && std::string_view("{[:").find(json_.back()) == std::string_view::npos) {
        json_ += ',';
    }
}

EscritorJson& EscritorJson::Crudo(std::string_view valor) {
    Separar();
    json_ += valor;
    return *this;
}

EscritorJson& EscritorJson::Abrir(char llaveOCorchete) { return Crudo({&llaveOCorchete, 1}); }

EscritorJson& EscritorJson::Cerrar(char llaveOCorchete) {
    json_ += llaveOCorchete;
    return *this;
}

EscritorJson& EscritorJson::Clave(std::string_view nombre) {
    Texto(nombre);
    json_ += ':';
    return *this;
}

EscritorJson& EscritorJson::Texto(std::string_view texto) {
    static constexpr char kHex[] = "0123456789abcdef";
    Separar();
    json_ += '"';
    for (const char c : texto) {
        const auto codigo = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            json_ += '\\';
            json_ += c;
        } else if (c == '\n') {
            json_ += "\\n";
        } else if (c == '\t') {
            json_ += "\\t";
        } else if (codigo < 0x20) {
            json_ += "\\u00";
            json_ += kHex[codigo >> 4];
            json_ += kHex[codigo & 15];
        } else {
            json_ += c;
        }
    }
    json_ += '"';
    return *this;
}

EscritorJson& EscritorJson::Entero(long long valor) { return Crudo(std::to_string(valor)); }

EscritorJson& EscritorJson::Logico(bool valor) { return Crudo(valor ? "true" : "false"); }

EscritorJson& EscritorJson::Numero(double valor) {
    char cifras[32];
    const auto fin = std::to_chars(cifras, std::end(cifras), valor).ptr;
    return Crudo({cifras, static_cast<std::size_t>(fin - cifras)});
}

EscritorJson& EscritorJson::Nulo() { return Crudo("null"); }

std::string EscritorJson::Tomar() { return std::exchange(json_, {}); }

}  // namespace cuencalia
