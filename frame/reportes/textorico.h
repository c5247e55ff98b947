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

/// Format of characters. Colours are 0xRRGGBB; none means the reader's default colour.
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

/// Alignment of a paragraph; the values are those of SelAlignment.
enum class Alineacion : std::uint8_t { kIzquierda = 0, kDerecha = 1, kCentrada = 2, kJustificada = 3 };

/// Format of a paragraph. Lengths in twips (1/1440 inch).
struct FormatoParrafo {
    Alineacion alineacion = Alineacion::kIzquierda;
    int sangriaIzquierda = 0;
    int sangriaDerecha = 0;
    int primeraLinea = 0;  ///< Indent of the first line relative to sangriaIzquierda.
    int espacioAntes = 0;
    int espacioDespues = 0;
    std::vector<int> tabuladores;  ///< Tab stops, measured from the margin.

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

    /// Appends the piece; joins it to the last one if their formats are equal. An empty piece is ignored.
    void Agregar(Tramo tramo);
    std::string Texto() const;

    bool operator==(const Parrafo&) const = default;
};

/// A formatted text of at least one paragraph. Paragraphs are separated by line breaks, so the text "a\n" has two.
struct TextoRico {
    std::vector<Parrafo> parrafos{1};

    /// The plain text, with \n between lines.
    std::string Texto() const;

    bool operator==(const TextoRico&) const = default;
};

/// A plain text in one format. LF, CR and CR LF end a line; NUL is left out; a byte that is not valid UTF-8 becomes
/// U+FFFD.
TextoRico DeTextoPlano(std::string_view texto, const FormatoCaracter& caracter = {},
                       const FormatoParrafo& parrafo = {});

}  // namespace cuencalia
