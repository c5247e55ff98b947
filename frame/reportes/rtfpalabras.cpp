#include "frame/reportes/rtflectura.h"

namespace cuencalia::rtf {

namespace {

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

/// Groups whose contents are not text of the document.
constexpr std::string_view kSinTexto[] = {
    "stylesheet", "filetbl", "info",    "pict",    "header",   "headerl", "headerr",   "headerf",
    "footer",     "footerl", "footerr", "footerf", "ftnsep",   "ftnsepc", "ftncn",     "aftnsep",
    "aftnsepc",   "aftncn",  "fldinst", "objdata", "objclass", "objname", "bkmkstart", "bkmkend",
    "annotation", "xe",      "tc",      "tcn",     "rxe",      "falt",    "panose",    "nonesttables"};

/// All kinds of underline, which are read as one.
constexpr std::string_view kSubrayados[] = {"ul",         "uld",       "uldash",     "uldashd", "uldashdd", "uldb",
                                            "ulhwave",    "ulldash",   "ulth",       "ulthd",   "ulthdash", "ulthdashd",
                                            "ulthdashdd", "ulthldash", "ululdbwave", "ulw",     "ulwave"};

std::unordered_map<std::string_view, Accion> Palabras() {
    constexpr Accion kFondo = Numerar<&EstadoCaracter::fondo>;
    std::unordered_map<std::string_view, Accion> palabras{
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

        {"nesttableprops", [](Lector&, Parametro) {}},  // marked optional, but contains the end of the table row

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
    for (const std::string_view palabra : kSinTexto) {
        palabras.emplace(palabra, Dirigir<Destino::kNinguno>);
    }
    for (const std::string_view palabra : kSubrayados) {
        palabras.emplace(palabra, Encender<&EstadoCaracter::subrayado>);
    }
    return palabras;
}

}  // namespace

Accion BuscarPalabra(std::string_view palabra) {
    static const std::unordered_map<std::string_view, Accion> kPalabras = Palabras();
    const auto accion = kPalabras.find(palabra);
    return accion == kPalabras.end() ? nullptr : accion->second;
}

}  // namespace cuencalia::rtf
