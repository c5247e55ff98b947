#pragma once

#include "hojas/libros.h"

namespace cuencalia {

/// Workbooks written aside, while the windows go on being painted; a writing that takes long shows that it goes on.
/// Keys and clicks wait until it has ended.
class LibrosEnSegundoPlano : public LibrosDeCalculo {
  public:
    /// A writing counts in `cajas` as long as it lasts.
    explicit LibrosEnSegundoPlano(int& cajas) : cajas_(cajas) {}

    void EscribirLibro(const std::string& ruta, const Hoja& hoja) override;

  private:
    int& cajas_;
};

}  // namespace cuencalia
