#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace cuencalia {

/// Font of a report: a monospaced one, since its tables are ruled with dashes and blanks.
inline constexpr const char* kFuenteReporte = "Courier New";

enum class PosicionVertical : std::uint8_t { kNormal, kSuperindice, kSubindice };

/// How characters look. Colours are 0xRRGGBB; without one the reader's own colour is used.
struct FormatoCaracter {
    std::string fuente = kFuenteReporte;
    int medioPuntos = 20;  ///< Font size in half points.
    bool negrita = false;
    bool cursiva = false;
    bool subrayado = false;
    bool tachado = false;
    PosicionVertical posicion = PosicionVertical::kNormal;
    std::optional<std::uint32_t> color;
    std::optional<std::uint32_t> fondo;

    bool operator==(const FormatoCaracter&) const = default;
};

/// Alignment of a paragraph, with the numbers that SelAlignment knows it by.
enum class Alineacion : std::uint8_t { kIzquierda = 0, kDerecha = 1, kCentrada = 2, kJustificada = 3 };

/// How a paragraph stands on the page. Lengths in twips (1/1440 inch).
struct FormatoParrafo {
    Alineacion alineacion = Alineacion::kIzquierda;
    int sangriaIzquierda = 0;
    int sangriaDerecha = 0;
    int primeraLinea = 0;  ///< Indent of the first line, counted from sangriaIzquierda.
    int espacioAntes = 0;
    int espacioDespues = 0;
    std::vector<int> tabuladores;  ///< Tab stops, counted from the margin.

    bool operator==(const FormatoParrafo&) const = default;
};

/// A piece of a paragraph in one format: valid UTF-8, not empty, with no line break and no NUL.
struct Tramo {
    std::string texto;
    FormatoCaracter formato;

    bool operator==(const Tramo&) const = default;
};

/// A line of the document. Neighbouring pieces differ in their format.
struct Parrafo {
    FormatoParrafo formato;
    std::vector<Tramo> tramos;

    /// Appends the piece, joining it to the last one if they look the same; nothing if it is empty.
    void Agregar(Tramo tramo);
    std::string Texto() const;

    bool operator==(const Parrafo&) const = default;
};

/// A formatted text: at least one paragraph. Paragraphs are parted by line breaks, so the text "a\n" has two.
struct TextoRico {
    std::vector<Parrafo> parrafos{1};

    /// The plain text, with \n between lines.
    std::string Texto() const;

    bool operator==(const TextoRico&) const = default;
};

/// The text in one format. LF, CR and CR LF end a line; NUL is left out; a byte that is not UTF-8 becomes U+FFFD.
TextoRico DeTextoPlano(std::string_view texto, const FormatoCaracter& caracter = {},
                       const FormatoParrafo& parrafo = {});

}  // namespace cuencalia
