#pragma once

#include <cstddef>
#include <span>

#include "hojas/armador.h"

namespace cuencalia {

/// Reads the first worksheet of an Office Open XML workbook (ECMA-376, transitional and strict) into `armador`. The
/// sheet is read only to the end of its data. Error 1004 when the bytes are not a valid workbook.
void LeerXlsx(std::span<const std::byte> bytes, ArmadorHoja& armador);

}  // namespace cuencalia
