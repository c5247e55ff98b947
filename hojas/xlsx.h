#pragma once

#include <cstddef>
#include <span>

#include "hojas/armador.h"

namespace cuencalia {

/// Reads the first worksheet of an Office Open XML workbook (ECMA-376, transitional and strict) into the gatherer. The
/// sheet is read only as far as its data go. Error 1004 when the bytes are no sound workbook.
void LeerXlsx(std::span<const std::byte> bytes, ArmadorHoja& armador);

}  // namespace cuencalia
