#pragma once

#include <string>
#include <string_view>

#include "frame/reportes/textorico.h"

namespace cuencalia {

/// A document ends each line with a paragraph mark, the last one too. In a fragment, such as a selection, a mark at the
/// end begins one more line.
enum class ClaseRtf { kDocumento, kFragmento };

/// True for RTF source, by its beginning.
bool EsRtf(std::string_view texto);

/// RTF 1.x source, in ASCII.
std::string EscribirRtf(const TextoRico& texto, ClaseRtf clase = ClaseRtf::kDocumento);

/// Reads RTF source as Rich Text Format 1.9.1 defines it (Microsoft, 2008). Pictures, headers, notes on the
/// document and unknown optional groups are passed over; table cells are parted by tabs, their rows by line breaks.
/// Source that is cut or makes no sense is read as far as it goes; text that is not RTF source is taken as it stands.
TextoRico LeerRtf(std::string_view fuente, ClaseRtf clase = ClaseRtf::kDocumento);

}  // namespace cuencalia
