#pragma once

#include <cstddef>
#include <span>
#include <string>

#include "frame/base/hojas.h"

namespace cuencalia {

/// Reads .xlsx and .xls workbooks and writes .xlsx ones; needs no spreadsheet program on the machine.
class LibrosDeCalculo : public AccesoHojas {
  public:
    Hoja LeerPrimeraHoja(const std::string& ruta, int columnas, int filasMax) override;
    void EscribirLibro(const std::string& ruta, const Hoja& hoja) override;
};

/// The result of LeerPrimeraHoja for a file with these contents. Error 1004 as there.
Hoja LeerLibro(std::span<const std::byte> contenido, int columnas, int filasMax);

}  // namespace cuencalia
