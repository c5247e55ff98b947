#pragma once

#include <cstddef>
#include <span>

#include "hojas/armador.h"

namespace cuencalia {

/// Reads the first worksheet of an Excel 5.0 to 2003 workbook, an OLE2 document that contains the stream of records,
/// into `armador`. Error 1004 when the bytes are not a valid workbook, or the workbook is protected.
void LeerXls(std::span<const std::byte> bytes, ArmadorHoja& armador);

/// Reads the stream of records alone (BIFF5 or BIFF8, [MS-XLS] 2.1.4), which some programs store without an OLE2
/// document around it.
void LeerBiff(std::span<const std::byte> flujo, ArmadorHoja& armador);

}  // namespace cuencalia
