#include "frame/reportes/rtf.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <optional>
#include <unordered_map>
#include <utility>
#include <vector>

#include "frame/base/utf8.h"

namespace cuencalia {

namespace {

constexpr std::string_view kComienzo = "{\\rtf";

/// The upper half of a code page: bytes 0x80 to 0xFF.
struct PaginaCodigo {
    int numero;
    std::u16string_view mitadAlta;
};

// clang-format off
/// Unicode mapping tables of the vendors (unicode.org/Public/MAPPINGS/VENDORS); Mac OS Roman goes by its Windows number.
constexpr std::array<PaginaCodigo, 8> kPaginas{{
    {1250,
        u"€\uFFFD‚\uFFFD„…†‡\uFFFD‰Š‹ŚŤŽŹ\uFFFD‘’“”•–—\uFFFD™š›śťžź"
        u"\u00A0ˇ˘Ł¤Ą¦§¨©Ş«¬\u00AD®Ż°±˛ł´µ¶·¸ąş»Ľ˝ľż"
        u"ŔÁÂĂÄĹĆÇČÉĘËĚÍÎĎĐŃŇÓÔŐÖ×ŘŮÚŰÜÝŢß"
        u"ŕáâăäĺćçčéęëěíîďđńňóôőö÷řůúűüýţ˙"},
    {1251,
        u"ЂЃ‚ѓ„…†‡€‰Љ‹ЊЌЋЏђ‘’“”•–—\uFFFD™љ›њќћџ"
        u"\u00A0ЎўЈ¤Ґ¦§Ё©Є«¬\u00AD®Ї°±Ііґµ¶·ё№є»јЅѕї"
        u"АБВГДЕЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯ"
        u"абвгдежзийклмнопрстуфхцчшщъыьэюя"},
    {1252,
        u"€\uFFFD‚ƒ„…†‡ˆ‰Š‹Œ\uFFFDŽ\uFFFD\uFFFD‘’“”•–—˜™š›œ\uFFFDžŸ"
        u"\u00A0¡¢£¤¥¦§¨©ª«¬\u00AD®¯°±²³´µ¶·¸¹º»¼½¾¿"
        u"ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖ×ØÙÚÛÜÝÞß"
        u"àáâãäåæçèéêëìíîïðñòóôõö÷øùúûüýþÿ"},
    {1253,
        u"€\uFFFD‚ƒ„…†‡\uFFFD‰\uFFFD‹\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD‘’“”•–—\uFFFD™\uFFFD›\uFFFD\uFFFD\uFFFD\uFFFD"
        u"\u00A0΅Ά£¤¥¦§¨©\uFFFD«¬\u00AD®―°±²³΄µ¶·ΈΉΊ»Ό½ΎΏ"
        u"ΐΑΒΓΔΕΖΗΘΙΚΛΜΝΞΟΠΡ\uFFFDΣΤΥΦΧΨΩΪΫάέήί"
        u"ΰαβγδεζηθικλμνξοπρςστυφχψωϊϋόύώ\uFFFD"},
    {1254,
        u"€\uFFFD‚ƒ„…†‡ˆ‰Š‹Œ\uFFFD\uFFFD\uFFFD\uFFFD‘’“”•–—˜™š›œ\uFFFD\uFFFDŸ"
        u"\u00A0¡¢£¤¥¦§¨©ª«¬\u00AD®¯°±²³´µ¶·¸¹º»¼½¾¿"
        u"ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏĞÑÒÓÔÕÖ×ØÙÚÛÜİŞß"
        u"àáâãäåæçèéêëìíîïğñòóôõö÷øùúûüışÿ"},
    {437,
        u"ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜ¢£¥₧ƒ"
        u"áíóúñÑªº¿⌐¬½¼¡«»░▒▓│┤╡╢╖╕╣║╗╝╜╛┐"
        u"└┴┬├─┼╞╟╚╔╩╦╠═╬╧╨╤╥╙╘╒╓╫╪┘┌█▄▌▐▀"
        u"αßΓπΣσµτΦΘΩδ∞φε∩≡±≥≤⌠⌡÷≈°∙·√ⁿ²■\u00A0"},
    {850,
        u"ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜø£Ø×ƒ"
        u"áíóúñÑªº¿®¬½¼¡«»░▒▓│┤ÁÂÀ©╣║╗╝¢¥┐"
        u"└┴┬├─┼ãÃ╚╔╩╦╠═╬¤ðÐÊËÈıÍÎÏ┘┌█▄¦Ì▀"
        u"ÓßÔÒõÕµþÞÚÛÙýÝ¯´\u00AD±‗¾¶§÷¸°¨·¹³²■\u00A0"},
    {10000,
        u"ÄÅÇÉÑÖÜáàâäãåçéèêëíìîïñóòôöõúùûü"
        u"†°¢£§•¶ß®©™´¨≠ÆØ∞±≤≥¥µ∂∑∏π∫ªºΩæø"
        u"¿¡¬√ƒ≈∆«»…\u00A0ÀÃÕŒœ–—“”‘’÷◊ÿŸ⁄€‹›ﬁﬂ"
        u"‡·‚„‰ÂÊÁËÈÍÎÏÌÓÔ\uF8FFÒÚÛÙıˆ˜¯˘˙˚¸˝˛ˇ"},
}};
// clang-format on
static_assert(std::all_of(kPaginas.begin(), kPaginas.end(),
                          [](const PaginaCodigo& pagina) { return pagina.mitadAlta.size() == 128; }));

/// Windows-1252 stands for a page that is not known.
const PaginaCodigo* BuscarPagina(int numero) {
    constexpr std::size_t kWindows1252 = 2;
    static_assert(kPaginas[kWindows1252].numero == 1252);
    const auto pagina =
        std::find_if(kPaginas.begin(), kPaginas.end(), [numero](const PaginaCodigo& p) { return p.numero == numero; });
    return pagina == kPaginas.end() ? &kPaginas[kWindows1252] : &*pagina;
}

char32_t Descodificar(const PaginaCodigo& pagina, unsigned char byte) {
    return byte < 0x80 ? byte : pagina.mitadAlta[byte - 0x80u];
}

// ---------------------------------------------------------------------------------------------------------- Writing

class Escritor {
  public:
    Escritor(const TextoRico& texto, ClaseRtf clase, std::string_view fuenteBase) : texto_(texto), clase_(clase) {
        NumeroFuente(std::string(fuenteBase));
    }

    std::string Escribir() {
        for (std::size_t i = 0; i < texto_.parrafos.size(); ++i) {
            const bool ultimo = i + 1 == texto_.parrafos.size();
            EscribirParrafo(texto_.parrafos[i], !ultimo || clase_ == ClaseRtf::kDocumento);
        }
        return Cabecera() + cuerpo_ + "}\n";
    }

  private:
    std::string Cabecera() const {
        std::string cabecera = "{\\rtf1\\ansi\\ansicpg1252\\uc1\\deff0\\deftab720\n{\\fonttbl";
        for (std::size_t i = 0; i < fuentes_.size(); ++i) {
            cabecera += "{\\f" + std::to_string(i) + (EsMonoespaciada(fuentes_[i]) ? "\\fmodern\\fprq1" : "\\fnil");
            cabecera += "\\fcharset0 ";
            AgregarTexto(cabecera, fuentes_[i]);
            cabecera += ";}";
        }
        cabecera += "}\n{\\colortbl;";
        for (const std::uint32_t color : colores_) {
            cabecera += "\\red" + std::to_string(color >> 16 & 0xFF) + "\\green" + std::to_string(color >> 8 & 0xFF) +
                        "\\blue" + std::to_string(color & 0xFF) + ";";
        }
        return cabecera + "}\n";
    }

    static bool EsMonoespaciada(std::string_view fuente) {
        constexpr std::array<std::string_view, 5> kSenales{"Courier", "Mono", "Consol", "Fixed", "Typewriter"};
        return std::any_of(kSenales.begin(), kSenales.end(),
                           [fuente](std::string_view senal) { return fuente.find(senal) != std::string_view::npos; });
    }

    void EscribirParrafo(const Parrafo& parrafo, bool conMarca) {
        if (anterior_ == nullptr || anterior_->formato != parrafo.formato) {
            EscribirFormato(parrafo.formato);
        }
        anterior_ = &parrafo;
        for (const Tramo& tramo : parrafo.tramos) {
            EscribirTramo(tramo);
        }
        if (conMarca) {
            cuerpo_ += "\\par\n";
        }
    }

    void EscribirTramo(const Tramo& tramo) {
        // LibreOffice takes a raised text to last until its group ends.
        const bool enGrupo = tramo.formato.posicion != PosicionVertical::kNormal;
        cuerpo_ += enGrupo ? "{" : "";
        if (caracter_ == nullptr || *caracter_ != tramo.formato) {
            EscribirFormato(tramo.formato);
        }
        AgregarTexto(cuerpo_, tramo.texto);
        cuerpo_ += enGrupo ? "}" : "";
        caracter_ = enGrupo ? caracter_ : &tramo.formato;
    }

    void EscribirFormato(const FormatoParrafo& formato) {
        constexpr std::array<std::string_view, 4> kAlineaciones{"\\ql", "\\qr", "\\qc", "\\qj"};
        cuerpo_ += "\\pard";
        cuerpo_ += kAlineaciones[static_cast<std::size_t>(formato.alineacion)];
        AgregarMedida("\\li", formato.sangriaIzquierda);
        AgregarMedida("\\ri", formato.sangriaDerecha);
        AgregarMedida("\\fi", formato.primeraLinea);
        AgregarMedida("\\sb", formato.espacioAntes);
        AgregarMedida("\\sa", formato.espacioDespues);
        for (const int tabulador : formato.tabuladores) {
            cuerpo_ += "\\tx" + std::to_string(tabulador);
        }
        cuerpo_ += ' ';
    }

    void EscribirFormato(const FormatoCaracter& formato) {
        cuerpo_ +=
            "\\plain\\f" + std::to_string(NumeroFuente(formato.fuente)) + "\\fs" + std::to_string(formato.medioPuntos);
        cuerpo_ += formato.negrita ? "\\b" : "";
        cuerpo_ += formato.cursiva ? "\\i" : "";
        cuerpo_ += formato.subrayado ? "\\ul" : "";
        cuerpo_ += formato.tachado ? "\\strike" : "";
        constexpr std::array<std::string_view, 3> kPosiciones{"", "\\super", "\\sub"};
        cuerpo_ += kPosiciones[static_cast<std::size_t>(formato.posicion)];
        if (formato.color) {
            cuerpo_ += "\\cf" + std::to_string(NumeroColor(*formato.color));
        }
        if (formato.fondo) {
            // Some programs know the one word, some the other.
            const std::string numero = std::to_string(NumeroColor(*formato.fondo));
            cuerpo_ += "\\highlight" + numero + "\\chshdng0\\chcbpat" + numero;
        }
        cuerpo_ += ' ';
    }

    void AgregarMedida(std::string_view palabra, int twips) {
        if (twips != 0) {
            cuerpo_ += palabra;
            cuerpo_ += std::to_string(twips);
        }
    }

    static void AgregarTexto(std::string& destino, std::string_view texto) {
        for (std::size_t i = 0; i < texto.size();) {
            const CaracterUtf8 c = LeerUtf8(texto, i);
            AgregarCaracter(destino, c.codigo);
            i += c.bytes;
        }
    }

    static void AgregarCaracter(std::string& destino, char32_t c) {
        if (c == '\\' || c == '{' || c == '}') {
            destino += '\\';
            destino += static_cast<char>(c);
        } else if (c == '\t') {
            destino += "\\tab ";
        } else if (c < 0x20 || c == 0x7F) {
            constexpr std::string_view kHex = "0123456789abcdef";
            destino += "\\'";
            destino += kHex[c >> 4];
            destino += kHex[c & 0xF];
        } else if (c < 0x80) {
            destino += static_cast<char>(c);
        } else if (c < 0x10000) {
            AgregarUnidad(destino, c);
        } else {
            AgregarUnidad(destino, 0xD800 + ((c - 0x10000) >> 10));
            AgregarUnidad(destino, 0xDC00 + ((c - 0x10000) & 0x3FF));
        }
    }

    /// A UTF-16 unit as a signed number, with the one character that \uc1 promises to older readers.
    static void AgregarUnidad(std::string& destino, char32_t unidad) {
        destino += "\\u" + std::to_string(static_cast<std::int16_t>(unidad)) + "?";
    }

    std::size_t NumeroFuente(const std::string& fuente) {
        const auto [lugar, nueva] = numeroFuente_.try_emplace(fuente, fuentes_.size());
        if (nueva) {
            fuentes_.push_back(fuente);
        }
        return lugar->second;
    }

    /// From 1: the first entry of the table is the reader's own colour.
    std::size_t NumeroColor(std::uint32_t color) {
        const auto [lugar, nuevo] = numeroColor_.try_emplace(color, colores_.size() + 1);
        if (nuevo) {
            colores_.push_back(color);
        }
        return lugar->second;
    }

    const TextoRico& texto_;
    ClaseRtf clase_;
    std::string cuerpo_;
    std::vector<std::string> fuentes_;
    std::unordered_map<std::string, std::size_t> numeroFuente_;
    std::vector<std::uint32_t> colores_;
    std::unordered_map<std::uint32_t, std::size_t> numeroColor_;
    const Parrafo* anterior_ = nullptr;
    const FormatoCaracter* caracter_ = nullptr;
};

// ---------------------------------------------------------------------------------------------------------- Reading

// What a paragraph and a font name may hold is bounded, since the reader makes copies of them: a hostile source would
// otherwise turn a few bytes into a long copy again and again.
constexpr std::size_t kMaximoTabuladores = 32;
constexpr std::size_t kMaximoNombreFuente = 64;
constexpr int kMaximoTwips = 31680;  // 22 inches, the longest measure of the definition.
constexpr int kMaximoMedioPuntos = 3276;
constexpr int kMedioPuntosBase = 24;
constexpr int kFuenteSinNombrar = -1;
constexpr int kSinColor = -1;

/// The number after a control word.
struct Parametro {
    int valor = 0;
    bool hay = false;

    int O(int otro) const { return hay ? valor : otro; }
    bool Enciende() const { return !hay || valor != 0; }
    int Twips() const { return std::clamp(valor, -kMaximoTwips, kMaximoTwips); }
};

enum class Destino : std::uint8_t { kTexto, kFuentes, kColores, kNinguno };

/// Character properties in the numbers of the source: small, because every open group may keep a copy.
struct EstadoCaracter {
    int fuente = kFuenteSinNombrar;
    int medioPuntos = kMedioPuntosBase;
    int color = kSinColor;
    int fondo = kSinColor;
    PosicionVertical posicion = PosicionVertical::kNormal;
    bool negrita = false;
    bool cursiva = false;
    bool subrayado = false;
    bool tachado = false;
    bool oculto = false;

    bool operator==(const EstadoCaracter&) const = default;
};

struct EstadoParrafo {
    Alineacion alineacion = Alineacion::kIzquierda;
    int izquierda = 0;
    int derecha = 0;
    int primera = 0;
    int antes = 0;
    int despues = 0;
    std::shared_ptr<std::vector<int>> tabuladores;  ///< Shared with the groups around.

    bool operator==(const EstadoParrafo&) const = default;
};

/// What a group restores when it ends.
struct Estado {
    EstadoCaracter caracter;
    EstadoParrafo parrafo;
    int sustitutos = 1;  ///< Characters that stand after a \u for older readers.
    Destino destino = Destino::kTexto;

    bool operator==(const Estado&) const = default;
};

struct Fuente {
    std::string nombre;
    const PaginaCodigo* pagina = nullptr;  ///< nullptr: the document's.
};

/// The state machine behind LeerRtf: what the words of the source act on.
class Lector {
  public:
    explicit Lector(std::string_view fuente) : resto_(fuente) {}

    TextoRico Leer(ClaseRtf clase);

    // Called by the words.
    Estado& Actual() { return estado_; }
    EstadoCaracter& CaracterActual() { return estado_.caracter; }
    EstadoParrafo& ParrafoActual() { return estado_.parrafo; }
    void IrA(Destino destino) { estado_.destino = destino; }
    void Pagina(int numero) { pagina_ = BuscarPagina(numero); }
    void FuenteBase(int numero) { fuenteBase_ = numero; }
    void ElegirFuente(int numero);
    void PaginaFuente(const PaginaCodigo* pagina);
    void Componente(int desplazamiento, int valor);
    void Tabulador(int twips);
    void Unidad(int unidad);
    void Emitir(char32_t c);
    void TerminarParrafo();
    void PartirLinea();
    void Saltar(int bytes) { resto_.remove_prefix(std::min(resto_.size(), static_cast<std::size_t>(bytes))); }

  private:
    struct GrupoAbierto {
        Estado estado;
        std::size_t veces;  ///< Groups opened one inside the other in this same state.
    };

    void AbrirGrupo();
    void CerrarGrupo();
    void LeerControl();
    void Palabra(std::string_view palabra, Parametro parametro);
    void Simbolo(char simbolo);
    void Hexadecimal();
    void Byte(unsigned char byte);
    void Literal(std::string_view texto);
    bool EsSustituto();
    void CerrarFuente();
    void SoltarSustitutoAlto();
    void EscribirCaracter(char32_t c);
    Tramo& TramoVigente();
    void FijarParrafo();
    const Fuente* BuscarFuente() const;
    const PaginaCodigo& PaginaVigente() const;
    FormatoCaracter Formato() const;
    std::optional<std::uint32_t> BuscarColor(int numero) const;

    std::string_view resto_;
    Estado estado_;
    std::vector<GrupoAbierto> grupos_;
    bool terminado_ = false;
    bool opcional_ = false;  ///< The last control was \*.
    int porSaltar_ = 0;      ///< Substitutes still to come after a \u.
    char32_t sustitutoAlto_ = 0;

    const PaginaCodigo* pagina_ = BuscarPagina(1252);
    int fuenteBase_ = 0;
    std::unordered_map<int, Fuente> fuentes_;
    int fuenteDefinida_ = kFuenteSinNombrar;
    Fuente definicion_;
    std::vector<std::optional<std::uint32_t>> colores_;
    std::optional<std::uint32_t> colorDefinido_;  ///< None: the reader's own.

    TextoRico texto_;
    std::optional<EstadoCaracter> vigente_;  ///< State in which the last piece was begun.
    bool trasMarca_ = false;                 ///< A paragraph mark was the last thing written.
};

using Accion = void (*)(Lector&, Parametro);

template <char32_t C>
void Escribir(Lector& lector, Parametro) {
    lector.Emitir(C);
}

template <bool EstadoCaracter::*Campo>
void Encender(Lector& lector, Parametro p) {
    lector.CaracterActual().*Campo = p.Enciende();
}

template <PosicionVertical Posicion>
void Elevar(Lector& lector, Parametro p) {
    lector.CaracterActual().posicion = p.Enciende() ? Posicion : PosicionVertical::kNormal;
}

template <Alineacion A>
void Alinear(Lector& lector, Parametro) {
    lector.ParrafoActual().alineacion = A;
}

template <int EstadoParrafo::*Campo>
void Medir(Lector& lector, Parametro p) {
    lector.ParrafoActual().*Campo = p.Twips();
}

template <int EstadoCaracter::*Campo>
void Numerar(Lector& lector, Parametro p) {
    lector.CaracterActual().*Campo = p.valor;
}

template <Destino D>
void Dirigir(Lector& lector, Parametro) {
    lector.IrA(D);
}

template <int Numero>
void UsarPagina(Lector& lector, Parametro) {
    lector.Pagina(Numero);
}

void TerminarParrafo(Lector& lector, Parametro) { lector.TerminarParrafo(); }
void PartirLinea(Lector& lector, Parametro) { lector.PartirLinea(); }

/// The code page of a Windows character set; none for "ANSI, whatever the document says".
const PaginaCodigo* PaginaDeJuego(int juego) {
    switch (juego) {
        case 1:
            return nullptr;
        case 77:
            return BuscarPagina(10000);
        case 161:
            return BuscarPagina(1253);
        case 162:
            return BuscarPagina(1254);
        case 204:
            return BuscarPagina(1251);
        case 238:
            return BuscarPagina(1250);
        case 254:
            return BuscarPagina(437);
        case 255:
            return BuscarPagina(850);
        default:
            return BuscarPagina(1252);
    }
}

const std::unordered_map<std::string_view, Accion>& Palabras() {
    static constexpr Accion kNada = Dirigir<Destino::kNinguno>;
    static constexpr Accion kSubrayar = Encender<&EstadoCaracter::subrayado>;
    static constexpr Accion kFondo = Numerar<&EstadoCaracter::fondo>;
    static const std::unordered_map<std::string_view, Accion> kPalabras{
        {"ansi", UsarPagina<1252>},
        {"mac", UsarPagina<10000>},
        {"pc", UsarPagina<437>},
        {"pca", UsarPagina<850>},
        {"ansicpg", [](Lector& l, Parametro p) { l.Pagina(p.valor); }},
        {"deff", [](Lector& l, Parametro p) { l.FuenteBase(p.valor); }},
        {"uc", [](Lector& l, Parametro p) { l.Actual().sustitutos = std::clamp(p.O(1), 0, 255); }},
        {"u", [](Lector& l, Parametro p) { l.Unidad(p.valor); }},
        {"bin", [](Lector& l, Parametro p) { l.Saltar(std::max(p.valor, 0)); }},

        {"fonttbl", Dirigir<Destino::kFuentes>},
        {"colortbl", Dirigir<Destino::kColores>},
        {"fcharset", [](Lector& l, Parametro p) { l.PaginaFuente(PaginaDeJuego(p.valor)); }},
        {"cpg", [](Lector& l, Parametro p) { l.PaginaFuente(BuscarPagina(p.valor)); }},
        {"red", [](Lector& l, Parametro p) { l.Componente(16, p.valor); }},
        {"green", [](Lector& l, Parametro p) { l.Componente(8, p.valor); }},
        {"blue", [](Lector& l, Parametro p) { l.Componente(0, p.valor); }},

        {"stylesheet", kNada},
        {"filetbl", kNada},
        {"info", kNada},
        {"pict", kNada},
        {"header", kNada},
        {"headerl", kNada},
        {"headerr", kNada},
        {"headerf", kNada},
        {"footer", kNada},
        {"footerl", kNada},
        {"footerr", kNada},
        {"footerf", kNada},
        {"ftnsep", kNada},
        {"ftnsepc", kNada},
        {"ftncn", kNada},
        {"aftnsep", kNada},
        {"aftnsepc", kNada},
        {"aftncn", kNada},
        {"fldinst", kNada},
        {"objdata", kNada},
        {"objclass", kNada},
        {"objname", kNada},
        {"bkmkstart", kNada},
        {"bkmkend", kNada},
        {"annotation", kNada},
        {"xe", kNada},
        {"tc", kNada},
        {"tcn", kNada},
        {"rxe", kNada},
        {"falt", kNada},
        {"panose", kNada},
        {"nonesttables", kNada},
        {"nesttableprops", [](Lector&, Parametro) {}},

        {"plain", [](Lector& l, Parametro) { l.CaracterActual() = {}; }},
        {"f", [](Lector& l, Parametro p) { l.ElegirFuente(p.valor); }},
        {"fs",
         [](Lector& l, Parametro p) {
             l.CaracterActual().medioPuntos = std::clamp(p.O(kMedioPuntosBase), 1, kMaximoMedioPuntos);
         }},
        {"b", Encender<&EstadoCaracter::negrita>},
        {"i", Encender<&EstadoCaracter::cursiva>},
        {"strike", Encender<&EstadoCaracter::tachado>},
        {"striked", Encender<&EstadoCaracter::tachado>},
        {"v", Encender<&EstadoCaracter::oculto>},
        {"ul", kSubrayar},
        {"uld", kSubrayar},
        {"uldash", kSubrayar},
        {"uldashd", kSubrayar},
        {"uldashdd", kSubrayar},
        {"uldb", kSubrayar},
        {"ulhwave", kSubrayar},
        {"ulldash", kSubrayar},
        {"ulth", kSubrayar},
        {"ulthd", kSubrayar},
        {"ulthdash", kSubrayar},
        {"ulthdashd", kSubrayar},
        {"ulthdashdd", kSubrayar},
        {"ulthldash", kSubrayar},
        {"ululdbwave", kSubrayar},
        {"ulw", kSubrayar},
        {"ulwave", kSubrayar},
        {"ulnone", [](Lector& l, Parametro) { l.CaracterActual().subrayado = false; }},
        {"super", Elevar<PosicionVertical::kSuperindice>},
        {"up", Elevar<PosicionVertical::kSuperindice>},
        {"sub", Elevar<PosicionVertical::kSubindice>},
        {"dn", Elevar<PosicionVertical::kSubindice>},
        {"nosupersub", [](Lector& l, Parametro) { l.CaracterActual().posicion = PosicionVertical::kNormal; }},
        {"cf", Numerar<&EstadoCaracter::color>},
        {"cb", kFondo},
        {"highlight", kFondo},
        {"chcbpat", kFondo},

        {"pard", [](Lector& l, Parametro) { l.ParrafoActual() = {}; }},
        {"ql", Alinear<Alineacion::kIzquierda>},
        {"qr", Alinear<Alineacion::kDerecha>},
        {"qc", Alinear<Alineacion::kCentrada>},
        {"qj", Alinear<Alineacion::kJustificada>},
        {"qd", Alinear<Alineacion::kJustificada>},
        {"li", Medir<&EstadoParrafo::izquierda>},
        {"ri", Medir<&EstadoParrafo::derecha>},
        {"fi", Medir<&EstadoParrafo::primera>},
        {"sb", Medir<&EstadoParrafo::antes>},
        {"sa", Medir<&EstadoParrafo::despues>},
        {"tx", [](Lector& l, Parametro p) { l.Tabulador(p.Twips()); }},

        {"par", TerminarParrafo},
        {"sect", TerminarParrafo},
        {"row", TerminarParrafo},
        {"nestrow", TerminarParrafo},
        {"line", PartirLinea},
        {"lbr", PartirLinea},
        {"page", PartirLinea},
        {"column", PartirLinea},
        {"tab", Escribir<U'\t'>},
        {"cell", Escribir<U'\t'>},
        {"nestcell", Escribir<U'\t'>},
        {"emdash", Escribir<U'\u2014'>},
        {"endash", Escribir<U'\u2013'>},
        {"emspace", Escribir<U'\u2003'>},
        {"enspace", Escribir<U'\u2002'>},
        {"qmspace", Escribir<U'\u2005'>},
        {"bullet", Escribir<U'\u2022'>},
        {"lquote", Escribir<U'\u2018'>},
        {"rquote", Escribir<U'\u2019'>},
        {"ldblquote", Escribir<U'\u201C'>},
        {"rdblquote", Escribir<U'\u201D'>},
        {"ltrmark", Escribir<U'\u200E'>},
        {"rtlmark", Escribir<U'\u200F'>},
        {"zwj", Escribir<U'\u200D'>},
        {"zwnj", Escribir<U'\u200C'>},
    };
    return kPalabras;
}

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
            default:  // Line ends of the source are no text.
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
        // The line still open keeps the format it was in.
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
    // Binary data may hold anything, so its length counts even where the text does not.
    const bool binario = palabra == "bin";
    if (EsSustituto() && !binario) {
        return;
    }
    if (estado_.destino == Destino::kNinguno && !binario) {
        return;
    }
    const auto accion = Palabras().find(palabra);
    if (accion != Palabras().end()) {
        accion->second(*this, parametro);
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

/// Bytes of the source that stand for themselves.
void Lector::Literal(std::string_view texto) {
    opcional_ = false;
    const std::size_t saltados = std::min(texto.size(), static_cast<std::size_t>(porSaltar_));
    porSaltar_ -= static_cast<int>(saltados);
    texto.remove_prefix(saltados);
    for (const char c : texto) {
        Byte(static_cast<unsigned char>(c));
    }
}

/// Counts one of the characters that a \u before made superfluous.
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

/// A UTF-16 unit, or the whole code that some programs write.
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
    texto_.parrafos.emplace_back();
    trasMarca_ = true;
}

void Lector::PartirLinea() {
    TerminarParrafo();
    trasMarca_ = false;
}

/// A paragraph looks as its end says.
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

}  // namespace

bool EsRtf(std::string_view texto) { return texto.starts_with(kComienzo); }

std::string EscribirRtf(const TextoRico& texto, ClaseRtf clase, std::string_view fuenteBase) {
    return Escritor(texto, clase, fuenteBase).Escribir();
}

TextoRico LeerRtf(std::string_view fuente, ClaseRtf clase) {
    return EsRtf(fuente) ? Lector(fuente).Leer(clase) : DeTextoPlano(fuente);
}

std::string DeWindows1252(std::string_view bytes) {
    const PaginaCodigo& pagina = *BuscarPagina(1252);
    std::string texto;
    for (const char byte : bytes) {
        AgregarUtf8(texto, Descodificar(pagina, static_cast<unsigned char>(byte)));
    }
    return texto;
}

}  // namespace cuencalia
