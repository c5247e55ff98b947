#include "frame/base/textos.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <stdexcept>

#include "frame/base/utf8.h"

namespace cuencalia {

namespace {

/// The value 0.d1d2d3… * 10^entera of the decimal digits d1, d2, … (no leading zeros; none at all for 0).
struct Decimal {
    bool negativo = false;
    std::string digitos;
    int entera = 0;  ///< Digits before the decimal point; negative when the fraction starts with zeros.
};

constexpr int kDigitosDouble = 15;

bool EsDigito(char c) { return c >= '0' && c <= '9'; }

/// Reads what std::to_chars writes in scientific form: [-]d[.ddd]e±dd.
Decimal LeerCientifico(std::string_view texto) {
    Decimal d;
    d.negativo = texto.front() == '-';
    const auto marca = texto.find('e');
    const auto mantisa = texto.substr(0, marca);
    std::copy_if(mantisa.begin(), mantisa.end(), std::back_inserter(d.digitos), EsDigito);
    if (d.digitos.find_first_not_of('0') == std::string::npos) {
        return {};
    }
    auto exponente = texto.substr(marca + 1);
    exponente.remove_prefix(exponente.front() == '+' ? 1 : 0);
    std::from_chars(exponente.data(), exponente.data() + exponente.size(), d.entera);
    ++d.entera;
    return d;
}

/// std::to_chars, unlike the printf family, does not depend on the locale. With a precision it rounds to that many
/// decimals of the mantissa, without one it gives the shortest digits that read back as the same value.
template <typename F, typename... Precision>
Decimal EnDecimal(F valor, Precision... precision) {
    if (!std::isfinite(valor)) {
        throw ErrorEjecucion(kDesbordamiento);
    }
    std::array<char, 40> texto;
    const auto fin =
        std::to_chars(texto.data(), texto.data() + texto.size(), valor, std::chars_format::scientific, precision...);
    return LeerCientifico({texto.data(), fin.ptr});
}

Decimal EnDecimal(Double valor) { return EnDecimal(valor.valor(), kDigitosDouble - 1); }
Decimal EnDecimal(Single valor) { return EnDecimal(valor.valor()); }

/// Leaves at most `decimales` digits after the point, a half going away from zero.
void Redondear(Decimal& d, int decimales) {
    const int quedan = d.entera + decimales;
    if (quedan >= static_cast<int>(d.digitos.size())) {
        return;
    }
    if (quedan < 0) {
        d = {};
        return;
    }
    const auto corte = static_cast<std::size_t>(quedan);
    const bool sube = d.digitos[corte] >= '5';
    d.digitos.resize(corte);
    if (!sube) {
        return;
    }
    const auto nueves = std::find_if(d.digitos.rbegin(), d.digitos.rend(), [](char c) { return c != '9'; });
    std::fill(d.digitos.rbegin(), nueves, '0');
    if (nueves != d.digitos.rend()) {
        ++*nueves;
        return;
    }
    d.digitos.insert(d.digitos.begin(), '1');
    ++d.entera;
}

/// Digits of the whole part, without leading zeros; empty below 1.
std::string ParteEntera(const Decimal& d) {
    if (d.entera <= 0) {
        return {};
    }
    std::string entera = d.digitos.substr(0, static_cast<std::size_t>(d.entera));
    entera.resize(static_cast<std::size_t>(d.entera), '0');
    return entera;
}

/// Digits after the point, without trailing zeros.
std::string Fraccion(const Decimal& d) {
    if (d.digitos.empty()) {
        return {};
    }
    std::string fraccion(static_cast<std::size_t>(std::max(0, -d.entera)), '0');
    fraccion.append(d.digitos, std::min(d.digitos.size(), static_cast<std::size_t>(std::max(0, d.entera))));
    fraccion.resize(fraccion.find_last_not_of('0') + 1);
    return fraccion;
}

/// What a digit pattern asks for. The digits between a required one and the decimal point are required too, since a
/// number cannot skip a decimal place.
struct Patron {
    std::string_view signo;  ///< "+" or empty.
    bool punto = false;
    std::size_t enteros_forzados = 0;
    std::size_t decimales_forzados = 0;
    int decimales = 0;
};

Patron LeerPatron(std::string_view texto) {
    const std::string_view todo = texto;
    Patron p;
    if (texto.starts_with('+')) {
        p.signo = texto.substr(0, 1);
        texto.remove_prefix(1);
    }
    const auto punto = texto.find('.');
    const auto enteros = texto.substr(0, punto);
    p.punto = punto != std::string_view::npos;
    const auto decimales = p.punto ? texto.substr(punto + 1) : std::string_view{};

    const auto ajeno = [](std::string_view parte) { return parte.find_first_not_of("0#") != std::string_view::npos; };
    if (ajeno(enteros) || ajeno(decimales) || (enteros.empty() && decimales.empty())) {
        throw std::invalid_argument("Format: not a digit pattern: \"" + std::string(todo) + "\"");
    }
    p.enteros_forzados = enteros.size() - std::min(enteros.find('0'), enteros.size());
    p.decimales_forzados = decimales.rfind('0') + 1;  // npos + 1 is 0
    p.decimales = static_cast<int>(decimales.size());
    return p;
}

std::string Escribir(Decimal d, std::string_view patron) {
    const Patron p = LeerPatron(patron);
    Redondear(d, p.decimales);
    std::string entera = ParteEntera(d);
    std::string fraccion = Fraccion(d);
    const bool menos = d.negativo && !(entera.empty() && fraccion.empty());
    entera.insert(0, p.enteros_forzados - std::min(p.enteros_forzados, entera.size()), '0');
    fraccion.resize(std::max(fraccion.size(), p.decimales_forzados), '0');

    std::string texto = menos ? "-" : "";
    texto += p.signo;
    texto += entera;
    texto += p.punto ? "." : "";
    return texto + fraccion;
}

std::string_view SinBlancosIniciales(std::string_view texto) {
    texto.remove_prefix(std::min(texto.find_first_not_of(" \t\r\n"), texto.size()));
    return texto;
}

/// Whether a written number other than 0 is 1 or more, however many digits its mantissa and exponent have.
bool EsUnoOMas(std::string_view numero) {
    const auto marca = std::min(numero.find_first_of("eE"), numero.size());
    const auto mantisa = numero.substr(0, marca);
    const auto punto = static_cast<std::int64_t>(std::min(mantisa.find('.'), mantisa.size()));
    const auto primera_cifra = static_cast<std::int64_t>(mantisa.find_first_of("123456789"));
    const std::int64_t orden = primera_cifra < punto ? punto - primera_cifra : punto - primera_cifra + 1;
    if (marca == numero.size()) {
        return orden > 0;
    }
    auto texto_exponente = numero.substr(marca + 1);
    texto_exponente.remove_prefix(texto_exponente.starts_with('+') ? 1 : 0);
    int exponente = 0;
    const auto leido =
        std::from_chars(texto_exponente.data(), texto_exponente.data() + texto_exponente.size(), exponente);
    return leido.ec == std::errc{} ? orden + exponente > 0 : !texto_exponente.starts_with('-');
}

std::string EscribirSinPatron(Decimal d) {
    constexpr int kMenorOrden = -4;  // 0.00001
    if (d.digitos.empty()) {
        return "0";
    }
    d.digitos.resize(d.digitos.find_last_not_of('0') + 1);
    const bool fija = d.entera >= kMenorOrden && d.entera <= kDigitosDouble;
    const int exponente = fija ? 0 : d.entera - 1;
    d.entera -= exponente;

    const std::string entera = ParteEntera(d);
    const std::string fraccion = Fraccion(d);
    std::string texto = d.negativo ? "-" : "";
    texto += entera.empty() ? "0" : entera;
    texto += fraccion.empty() ? "" : "." + fraccion;
    if (!fija) {
        texto += exponente < 0 ? "E-" : "E+";
        texto += Format(std::abs(exponente), "00");
    }
    return texto;
}

}  // namespace

Double Val(std::string_view texto) {
    texto = SinBlancosIniciales(texto);
    const bool negativo = texto.starts_with('-');
    if (negativo || texto.starts_with('+')) {
        texto.remove_prefix(1);
    }
    // std::from_chars would also read "inf", "nan" and a second sign.
    const auto cifra = texto.substr(texto.starts_with('.') ? 1 : 0);
    if (cifra.empty() || !EsDigito(cifra.front())) {
        return 0;
    }
    double valor = 0;
    const auto leido = std::from_chars(texto.data(), texto.data() + texto.size(), valor);
    if (leido.ec == std::errc::result_out_of_range) {
        if (EsUnoOMas({texto.data(), leido.ptr})) {
            throw ErrorEjecucion(kDesbordamiento);
        }
        valor = 0;
    }
    return negativo ? -valor : valor;
}

std::string CStr(Double valor) { return EscribirSinPatron(EnDecimal(valor)); }
std::string CStr(Single valor) { return EscribirSinPatron(EnDecimal(valor)); }

std::string Str(Double valor) {
    std::string texto = CStr(valor);
    return texto.starts_with('-') ? texto : " " + texto;
}

std::string Format(Double valor, std::string_view patron) { return Escribir(EnDecimal(valor), patron); }
std::string Format(Single valor, std::string_view patron) { return Escribir(EnDecimal(valor), patron); }
std::string Format(std::string_view texto, std::string_view) { return std::string(texto); }

int Len(std::string_view texto) { return static_cast<int>(ContarUtf8(texto)); }

std::string Trim(std::string_view texto) {
    texto.remove_prefix(std::min(texto.find_first_not_of(' '), texto.size()));
    return std::string(texto.substr(0, texto.find_last_not_of(' ') + 1));
}

std::string Chr(int codigo) {
    if (!EsCodigoDeCaracter(static_cast<char32_t>(codigo))) {
        throw ErrorEjecucion(kArgumentoNoValido);
    }
    std::string texto;
    AgregarUtf8(texto, static_cast<char32_t>(codigo));
    return texto;
}

int Asc(std::string_view texto) {
    if (texto.empty()) {
        throw ErrorEjecucion(kArgumentoNoValido);
    }
    const CaracterUtf8 primero = LeerUtf8(texto, 0);
    return primero.valido ? static_cast<int>(primero.codigo) : static_cast<unsigned char>(texto.front());
}

std::string Subtexto(std::string_view texto, int inicio, int cuantos) {
    const auto caracteres = [](int n) { return static_cast<std::size_t>(std::max(0, n)); };
    texto.remove_prefix(ByteDeCaracter(texto, caracteres(inicio)));
    return std::string(texto.substr(0, ByteDeCaracter(texto, caracteres(cuantos))));
}

std::string Space(int cuantos) { return std::string(static_cast<std::size_t>(std::max(0, cuantos)), ' '); }

}  // namespace cuencalia
