#pragma once

#include <string>

#include "frame/base/numeros.h"
#include "modules/evapotranspiracion/latitudes.h"

namespace cuencalia {

/// A table of the installation as a window keeps it: the whole table, and the twelve months of the latitude that was
/// chosen last, all 0 before the first choice.
class ValoresPorLatitud {
  public:
    explicit ValoresPorLatitud(const TablaDeLatitudes& tabla) : tabla_(tabla), valores_(1, tabla.lugares) {}

    /// Reads the file of the table in `carpeta`. A file that is not there is created empty, and what a file lacks is 0.
    /// Error 76: no such folder; 75: the file cannot be read; 9: it has more values than there is room for.
    void Cargar(const std::string& carpeta);
    /// What the file lacked, as a sentence; empty when it was whole.
    const std::string& Falta() const { return falta_; }

    /// Takes the twelve months of a latitude; a key that the table does not have leaves them as they are. Returns
    /// whether it has it.
    bool Elegir(const std::string& clave);
    const Arreglo<Single, 1, 12>& Meses() const { return meses_; }
    Single operator()(int mes) const { return meses_(mes); }

  private:
    const TablaDeLatitudes& tabla_;
    ArregloBase<Single> valores_;
    Arreglo<Single, 1, 12> meses_;
    std::string falta_;
};

}  // namespace cuencalia
