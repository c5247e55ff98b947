#include "frame/reportes/rtflectura.h"

#include <charconv>
#include <limits>
#include <utility>

#include "frame/base/utf8.h"
#include "frame/reportes/limites.h"

namespace cuencalia {

namespace rtf {

namespace {

// Limits on the tab stops of a paragraph and the length of a font name. The reader copies them, so that without limits
// a small malicious source could make it copy long data again and again.
constexpr std::size_t kMaximoTabuladores = 32;
constexpr std::size_t kMaximoNombreFuente = 64;

}  // namespace

TextoRico Lector::Leer(ClaseRtf clase) {
    while (!terminado_ && !resto_.empty()) {
        const std::size_t literal = std::min(resto_.find_first_of("\\{}\r\n"), resto_.size());
        if (literal > 0) {
            const std::string_view texto = resto_.substr(0, literal);
            resto_.remove_prefix(literal);
            Literal(texto);
            continue;
        }
        const char c = resto_.front();
        resto_.remove_prefix(1);
        switch (c) {
            case '{':
                AbrirGrupo();
                break;
            case '}':
                CerrarGrupo();
                break;
            case '\\':
                LeerControl();
                break;
            default:  // Line ends in the source are not part of the text.
                break;
        }
    }
    SoltarSustitutoAlto();
    if (trasMarca_ && clase == ClaseRtf::kDocumento) {
        texto_.parrafos.pop_back();
    } else {
        FijarParrafo();
    }
    return std::move(texto_);
}

void Lector::AbrirGrupo() {
    porSaltar_ = 0;
    opcional_ = false;
    if (!grupos_.empty() && grupos_.back().estado == estado_) {
        ++grupos_.back().veces;
    } else {
        ExigirPiezas(grupos_.size());
        grupos_.push_back({estado_, 1});
    }
}

void Lector::CerrarGrupo() {
    porSaltar_ = 0;
    opcional_ = false;
    if (estado_.destino == Destino::kFuentes) {
        CerrarFuente();
    }
    const bool ultimo = grupos_.empty() || (grupos_.size() == 1 && grupos_.front().veces == 1);
    if (ultimo) {
        // The document ends here; the last line, if it has no paragraph mark, keeps its present format.
        terminado_ = true;
        return;
    }
    estado_ = grupos_.back().estado;
    if (--grupos_.back().veces == 0) {
        grupos_.pop_back();
    }
}

void Lector::LeerControl() {
    constexpr auto esLetra = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); };
    constexpr auto esCifra = [](char c) { return c >= '0' && c <= '9'; };
    if (resto_.empty()) {
        return;
    }
    if (!esLetra(resto_.front())) {
        const char simbolo = resto_.front();
        resto_.remove_prefix(1);
        Simbolo(simbolo);
        return;
    }
    const auto fin = std::find_if_not(resto_.begin(), resto_.end(), esLetra);
    const std::string_view palabra(resto_.begin(), fin);
    resto_.remove_prefix(palabra.size());

    Parametro parametro;
    const std::size_t signo = resto_.starts_with('-') ? 1 : 0;
    const auto primera = resto_.begin() + static_cast<std::ptrdiff_t>(std::min(signo, resto_.size()));
    const auto ultima = std::find_if_not(primera, resto_.end(), esCifra);
    if (primera != ultima) {
        parametro.hay = true;
        const auto leido = std::from_chars(resto_.data(), resto_.data() + (ultima - resto_.begin()), parametro.valor);
        if (leido.ec == std::errc::result_out_of_range) {
            constexpr int kMaximo = std::numeric_limits<int>::max();
            parametro.valor = signo == 0 ? kMaximo : -kMaximo;
        }
        resto_.remove_prefix(static_cast<std::size_t>(ultima - resto_.begin()));
    }
    if (resto_.starts_with(' ')) {
        resto_.remove_prefix(1);
    }
    Palabra(palabra, parametro);
}

void Lector::Palabra(std::string_view palabra, Parametro parametro) {
    const bool opcional = std::exchange(opcional_, false);
    // \bin is obeyed even where text is skipped: the binary data after it may contain braces and backslashes, so they
    // must be skipped by their length.
    const bool binario = palabra == "bin";
    if (EsSustituto() && !binario) {
        return;
    }
    if (estado_.destino == Destino::kNinguno && !binario) {
        return;
    }
    if (const Accion accion = BuscarPalabra(palabra)) {
        accion(*this, parametro);
    } else if (opcional) {
        IrA(Destino::kNinguno);
    }
}

void Lector::Simbolo(char simbolo) {
    opcional_ = simbolo == '*';
    if (simbolo == '\'') {
        Hexadecimal();
        return;
    }
    if (EsSustituto()) {
        return;
    }
    switch (simbolo) {
        case '\\':
        case '{':
        case '}':
        case '\t':
            Emitir(static_cast<unsigned char>(simbolo));
            break;
        case '~':
            Emitir(0x00A0);
            break;
        case '_':
            Emitir(0x2011);
            break;
        case '-':
            Emitir(0x00AD);
            break;
        case '\r':
            Saltar(resto_.starts_with('\n') ? 1 : 0);
            [[fallthrough]];
        case '\n':
            TerminarParrafo();
            break;
        default:
            break;
    }
}

void Lector::Hexadecimal() {
    unsigned int byte = 0;
    const std::string_view cifras = resto_.substr(0, 2);
    const auto leido = std::from_chars(cifras.data(), cifras.data() + cifras.size(), byte, 16);
    if (leido.ec != std::errc{} || leido.ptr != cifras.data() + 2) {
        return;
    }
    resto_.remove_prefix(2);
    if (!EsSustituto()) {
        Byte(static_cast<unsigned char>(byte));
    }
}

void Lector::Byte(unsigned char byte) { Emitir(byte < 0x80 ? byte : Descodificar(PaginaVigente(), byte)); }

/// Reads bytes that are text, not control words.
void Lector::Literal(std::string_view texto) {
    opcional_ = false;
    const std::size_t saltados = std::min(texto.size(), static_cast<std::size_t>(porSaltar_));
    porSaltar_ -= static_cast<int>(saltados);
    texto.remove_prefix(saltados);
    for (const char c : texto) {
        Byte(static_cast<unsigned char>(c));
    }
}

/// True when the character is a substitute for a \u read before, and is to be skipped; counts it.
bool Lector::EsSustituto() {
    if (porSaltar_ == 0) {
        return false;
    }
    --porSaltar_;
    return true;
}

void Lector::ElegirFuente(int numero) {
    if (estado_.destino != Destino::kFuentes) {
        estado_.caracter.fuente = numero;
        return;
    }
    CerrarFuente();
    fuenteDefinida_ = numero;
}

void Lector::PaginaFuente(const PaginaCodigo* pagina) {
    if (estado_.destino == Destino::kFuentes) {
        definicion_.pagina = pagina;
    }
}

void Lector::CerrarFuente() {
    if (definicion_.nombre.empty()) {
        return;
    }
    ExigirPiezas(fuentes_.size());
    fuentes_[std::exchange(fuenteDefinida_, kFuenteSinNombrar)] = std::exchange(definicion_, {});
}

void Lector::Componente(int desplazamiento, int valor) {
    const auto componente = static_cast<std::uint32_t>(std::clamp(valor, 0, 255));
    const std::uint32_t otros = colorDefinido_.value_or(0) & ~(std::uint32_t{0xFF} << desplazamiento);
    colorDefinido_ = otros | componente << desplazamiento;
}

void Lector::Tabulador(int twips) {
    std::shared_ptr<std::vector<int>>& lista = estado_.parrafo.tabuladores;
    if (lista == nullptr) {
        lista = std::make_shared<std::vector<int>>();
    } else if (lista.use_count() > 1) {
        lista = std::make_shared<std::vector<int>>(*lista);
    }
    if (lista->size() < kMaximoTabuladores) {
        lista->push_back(twips);
    }
}

/// Reads the number of a \u: a UTF-16 unit, or a whole code point, which some programs write.
void Lector::Unidad(int unidad) {
    constexpr int kUnidades = 0x10000;
    const int codigo = unidad < 0 ? unidad + kUnidades : unidad;
    porSaltar_ = estado_.sustitutos;
    if (codigo >= 0xD800 && codigo <= 0xDBFF) {
        SoltarSustitutoAlto();
        sustitutoAlto_ = static_cast<char32_t>(codigo);
        return;
    }
    const bool bajo = codigo >= 0xDC00 && codigo <= 0xDFFF;
    if (bajo && sustitutoAlto_ != 0) {
        const char32_t alto = std::exchange(sustitutoAlto_, 0);
        Emitir(0x10000 + ((alto - 0xD800) << 10) + (static_cast<char32_t>(codigo) - 0xDC00));
        return;
    }
    Emitir(bajo || codigo < 0 ? kCaracterIlegible : static_cast<char32_t>(codigo));
}

void Lector::SoltarSustitutoAlto() {
    if (std::exchange(sustitutoAlto_, 0) != 0) {
        EscribirCaracter(kCaracterIlegible);
    }
}

void Lector::Emitir(char32_t c) {
    SoltarSustitutoAlto();
    if (c == '\n' || c == '\r') {
        TerminarParrafo();
    } else if (c != 0) {
        EscribirCaracter(c);
    }
}

void Lector::EscribirCaracter(char32_t c) {
    switch (estado_.destino) {
        case Destino::kTexto:
            if (!estado_.caracter.oculto) {
                AgregarUtf8(TramoVigente().texto, c);
                trasMarca_ = false;
            }
            break;
        case Destino::kFuentes:
            if (c == ';') {
                CerrarFuente();
            } else if (definicion_.nombre.size() < kMaximoNombreFuente) {
                AgregarUtf8(definicion_.nombre, c);
            }
            break;
        case Destino::kColores:
            if (c == ';') {
                ExigirPiezas(colores_.size());
                colores_.push_back(std::exchange(colorDefinido_, std::nullopt));
            }
            break;
        case Destino::kNinguno:
            break;
    }
}

Tramo& Lector::TramoVigente() {
    std::vector<Tramo>& tramos = texto_.parrafos.back().tramos;
    if (!tramos.empty() && vigente_ == estado_.caracter) {
        return tramos.back();
    }
    vigente_ = estado_.caracter;
    FormatoCaracter formato = Formato();
    if (tramos.empty() || tramos.back().formato != formato) {
        ExigirPiezas(++piezas_);
        tramos.push_back({{}, std::move(formato)});
    }
    return tramos.back();
}

void Lector::TerminarParrafo() {
    if (estado_.destino != Destino::kTexto) {
        return;
    }
    SoltarSustitutoAlto();
    FijarParrafo();
    ExigirPiezas(++piezas_);
    texto_.parrafos.emplace_back();
    trasMarca_ = true;
}

void Lector::PartirLinea() {
    TerminarParrafo();
    trasMarca_ = false;
}

/// Gives the paragraph the format that is in force at its end.
void Lector::FijarParrafo() {
    const EstadoParrafo& estado = estado_.parrafo;
    texto_.parrafos.back().formato = {
        estado.alineacion,
        estado.izquierda,
        estado.derecha,
        estado.primera,
        estado.antes,
        estado.despues,
        estado.tabuladores == nullptr ? std::vector<int>{} : *estado.tabuladores,
    };
}

const Fuente* Lector::BuscarFuente() const {
    const int numero = estado_.caracter.fuente == kFuenteSinNombrar ? fuenteBase_ : estado_.caracter.fuente;
    const auto fuente = fuentes_.find(numero);
    return fuente == fuentes_.end() ? nullptr : &fuente->second;
}

const PaginaCodigo& Lector::PaginaVigente() const {
    const Fuente* fuente = estado_.destino == Destino::kFuentes ? &definicion_ : BuscarFuente();
    return fuente == nullptr || fuente->pagina == nullptr ? *pagina_ : *fuente->pagina;
}

FormatoCaracter Lector::Formato() const {
    const EstadoCaracter& estado = estado_.caracter;
    const Fuente* fuente = BuscarFuente();
    FormatoCaracter formato;
    formato.fuente = fuente == nullptr ? kFuenteReporte : fuente->nombre;
    formato.medioPuntos = estado.medioPuntos;
    formato.negrita = estado.negrita;
    formato.cursiva = estado.cursiva;
    formato.subrayado = estado.subrayado;
    formato.tachado = estado.tachado;
    formato.posicion = estado.posicion;
    formato.color = BuscarColor(estado.color);
    if (estado.fondo > 0) {
        formato.fondo = BuscarColor(estado.fondo);
    }
    return formato;
}

std::optional<std::uint32_t> Lector::BuscarColor(int numero) const {
    if (numero < 0 || static_cast<std::size_t>(numero) >= colores_.size()) {
        return std::nullopt;
    }
    return colores_[static_cast<std::size_t>(numero)];
}

}  // namespace rtf

bool EsRtf(std::string_view texto) { return texto.starts_with("{\\rtf"); }

TextoRico LeerRtf(std::string_view fuente, ClaseRtf clase) {
    return EsRtf(fuente) ? rtf::Lector(fuente).Leer(clase) : DeTextoPlano(fuente);
}

}  // namespace cuencalia
