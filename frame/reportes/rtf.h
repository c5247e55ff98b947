#pragma once

#include <string>
#include <string_view>

#include "frame/reportes/textorico.h"

namespace cuencalia {

/// How the last paragraph mark is understood. In a document every line ends with a mark, the last one included. In a
/// fragment, such as a selection, a mark at the end begins one more line.
enum class ClaseRtf { kDocumento, kFragmento };

/// True for a text that begins like RTF source.
bool EsRtf(std::string_view texto);

/// The text as RTF 1.x source, in ASCII.
std::string EscribirRtf(const TextoRico& texto, ClaseRtf clase = ClaseRtf::kDocumento);

/// Reads RTF source as Rich Text Format 1.9.1 defines it (Microsoft, 2008). Pictures, headers, notes on the document
/// and unknown optional groups are skipped; table cells become separated by tabs, table rows by line breaks. Source
/// that is cut off or invalid is read as far as possible; text that is not RTF source is taken as plain text. Error
/// 1005 for a source with more pieces than any report has (limites.h).
TextoRico LeerRtf(std::string_view fuente, ClaseRtf clase = ClaseRtf::kDocumento);

}  // namespace cuencalia
