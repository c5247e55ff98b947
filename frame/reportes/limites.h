#pragma once

#include <cstddef>
#include <string_view>

#include "frame/reportes/textorico.h"

namespace cuencalia {

/// Number of the error for a document that would keep the window busy.
inline constexpr int kErrorDocumento = 1005;

/// The longest file that is read as a document, in bytes.
inline constexpr std::size_t kMaxArchivoDocumento = std::size_t{32} << 20;

/// The most lines and pieces of one format that are read.
inline constexpr std::size_t kMaxPiezas = 200'000;

/// Error 1005, with the reason, for a text from outside that a text box would take more than about two seconds to lay
/// out. Besides the length, what costs is a long word, since a line is broken by trying, and many changes of format in
/// a line: both take time by their square.
void ExigirManejable(const TextoRico& texto);

/// Error 1005 for a source (RTF or plain text) that is too long to be read at all: of more than kMaxArchivoDocumento
/// bytes, or with more than kMaxPiezas lines.
void ExigirLargoManejable(std::string_view fuente);

/// Error 1005 when `piezas`, the lines and pieces of one format that a reader has made so far, are more than
/// kMaxPiezas.
void ExigirPiezas(std::size_t piezas);

}  // namespace cuencalia
