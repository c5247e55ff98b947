#pragma once

#include <cstddef>
#include <span>

#include "hojas/armador.h"

namespace cuencalia {

/// Reads the first worksheet of an Excel 5.0 to 2003 workbook into the gatherer: an OLE2 document with the stream of
/// records. Error 1004 when the bytes are no sound workbook, or a protected one.
void LeerXls(std::span<const std::byte> bytes, ArmadorHoja& armador);

/// Reads the bare stream of records (BIFF5 or BIFF8, [MS-XLS] 2.1.4), as some programs store it with no document
/// around.
void LeerBiff(std::span<const std::byte> flujo, ArmadorHoja& armador);

}  // namespace cuencalia
