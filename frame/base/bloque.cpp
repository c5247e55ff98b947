#include "frame/base/bloque.h"

#include <algorithm>

#include "frame/base/textos.h"

namespace cuencalia {

namespace {

constexpr std::string_view kEspacioFino = "\u202F";
constexpr std::string_view kEspacioFijo = "\u00A0";

bool EsCifra(char c) { return c >= '0' && c <= '9'; }

/// Takes the digits off the front.
std::string_view TomarCifras(std::string_view& texto) {
    const auto fin = std::find_if_not(texto.begin(), texto.end(), EsCifra);
    const std::string_view cifras(texto.begin(), fin);
    texto.remove_prefix(cifras.size());
    return cifras;
}

/// Takes a mark between thousands off the front when three digits follow it; says whether it did.
bool TomarSeparador(std::string_view& texto, char separador) {
    for (const std::string_view marca :
         {std::string_view(&separador, 1), std::string_view(" "), kEspacioFino, kEspacioFijo}) {
        if (texto.starts_with(marca)) {
            std::string_view resto = texto.substr(marca.size());
            if (TomarCifras(resto).size() == 3) {
                texto.remove_prefix(marca.size());
                return true;
            }
        }
    }
    return false;
}

}  // namespace

Bloque SepararBloque(std::string_view texto) {
    Bloque bloque;
    while (!texto.empty()) {
        const std::size_t fin = std::min(texto.find_first_of("\r\n"), texto.size());
        std::string_view linea = texto.substr(0, fin);
        texto.remove_prefix(fin);
        texto.remove_prefix(texto.starts_with("\r\n") ? 2 : texto.empty() ? 0 : 1);
        std::vector<std::string>& fila = bloque.emplace_back();
        for (std::size_t desde = 0; desde != std::string_view::npos;) {
            const std::size_t hasta = linea.find('\t', desde);
            fila.push_back(Trim(linea.substr(desde, hasta - desde)));
            desde = hasta == std::string_view::npos ? hasta : hasta + 1;
        }
    }
    const auto vacia = [](const auto& fila) {
        return std::all_of(fila.begin(), fila.end(), [](const auto& c) { return c.empty(); });
    };
    while (!bloque.empty() && vacia(bloque.back())) {
        bloque.pop_back();
    }
    return bloque;
}

std::string UnirBloque(const Bloque& bloque) {
    std::string texto;
    for (const auto& fila : bloque) {
        for (std::size_t c = 0; c < fila.size(); ++c) {
            texto += (c == 0 ? "" : "\t") + fila[c];
        }
        texto += '\n';
    }
    return texto;
}

bool ValLeeTodo(std::string_view texto) {
    const std::string limpio = Trim(texto);
    const auto numero = LeerNumero(limpio, SignoDecimal::Punto);
    return numero && limpio.find_first_of(", ") == std::string::npos && Val(limpio) == Val(*numero);
}

std::optional<std::string> LeerNumero(std::string_view celda, SignoDecimal signo) {
    const char decimal = signo == SignoDecimal::Punto ? '.' : ',';
    const char miles = signo == SignoDecimal::Punto ? ',' : '.';
    std::string numero;
    for (const std::string_view menos : {std::string_view("-"), std::string_view("\u2212")}) {
        if (celda.starts_with(menos)) {
            celda.remove_prefix(menos.size());
            numero = "-";
            break;
        }
    }
    if (numero.empty() && celda.starts_with('+')) {
        celda.remove_prefix(1);
    }
    const std::string_view primeras = TomarCifras(celda);
    numero += primeras;
    if (!primeras.empty() && primeras.size() <= 3) {
        while (TomarSeparador(celda, miles)) {
            numero += TomarCifras(celda);
        }
    }
    bool conCifras = !primeras.empty();
    if (celda.starts_with(decimal)) {
        celda.remove_prefix(1);
        const std::string_view decimales = TomarCifras(celda);
        conCifras = conCifras || !decimales.empty();
        numero += '.';
        numero += decimales;
    }
    if (conCifras && (celda.starts_with('e') || celda.starts_with('E'))) {
        std::string_view exponente = celda.substr(1);
        std::string_view sinSigno = exponente.substr(exponente.starts_with('-') || exponente.starts_with('+') ? 1 : 0);
        if (!TomarCifras(sinSigno).empty() && sinSigno.empty()) {
            return numero + "e" + std::string(exponente);
        }
        return std::nullopt;
    }
    return conCifras && celda.empty() ? std::optional(numero) : std::nullopt;
}

LecturaBloque LeerBloque(const Bloque& bloque) {
    LecturaBloque lectura;
    bool sinNumeros = true, puedePunto = true, puedeComa = true;
    for (const auto& fila : bloque) {
        bool conNumero = false;
        for (const std::string& celda : fila) {
            const auto punto = LeerNumero(celda, SignoDecimal::Punto);
            const auto coma = LeerNumero(celda, SignoDecimal::Coma);
            conNumero = conNumero || punto || coma;
            puedePunto = puedePunto && (punto || !coma);
            puedeComa = puedeComa && (coma || !punto);
            if (punto && coma && *punto != *coma && Val(*punto) != Val(*coma) && lectura.dudoso.empty()) {
                lectura.dudoso = celda;
            }
        }
        sinNumeros = sinNumeros && !conNumero;
        lectura.encabezados += sinNumeros ? 1 : 0;
    }
    if (sinNumeros) {
        lectura.encabezados = 0;
    }
    if (puedePunto != puedeComa) {
        lectura.signo = puedePunto ? SignoDecimal::Punto : SignoDecimal::Coma;
    } else if (lectura.dudoso.empty()) {
        lectura.signo = SignoDecimal::Punto;
    }
    return lectura;
}

Pegado LeerPegado(const Bloque& bloque, std::size_t encabezados, SignoDecimal signo, std::size_t columnas) {
    Pegado pegado;
    for (std::size_t i = encabezados; i < bloque.size(); ++i) {
        std::vector<std::string>& fila = pegado.celdas.emplace_back();
        for (const std::string& celda : bloque[i]) {
            if (fila.size() == columnas) {
                pegado.sobrantes += celda.empty() ? 0 : 1;
                continue;
            }
            const auto numero = LeerNumero(celda, signo);
            pegado.ajenas += numero || celda.empty() ? 0 : 1;
            fila.push_back(numero.value_or(celda));
        }
    }
    return pegado;
}

}  // namespace cuencalia
