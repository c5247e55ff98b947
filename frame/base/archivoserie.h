#pragma once

#include <array>
#include <string>
#include <vector>

#include "frame/base/archivos.h"
#include "frame/base/numeros.h"

namespace cuencalia {

/// The values of one record of a series file; those beyond the record's width are 0.
using Registro = std::array<Single, 4>;

/// Reads a headerless file of fixed records of one to four little-endian IEEE-754 Singles, from its first record on.
/// The number of records follows from the length of the file alone; a last, incomplete record is never read.
class LectorSerie {
  public:
    /// Error 53: no such file (also for an empty name); 75: no access, or no regular file; 6: more than 32767 records.
    LectorSerie(const std::string& ruta, int valores);

    int Registros() const { return registros_.valor(); }
    /// The next record. Error 75 after the last.
    Registro Leer();

  private:
    std::string bytes_;
    std::size_t leidos_ = 0;
    int valores_;
    Integer registros_;
};

/// Writes such a file. It replaces an existing file when it is published; until then the old file is unchanged, and
/// afterwards its contents stay beside the new one under the same name with "~" appended.
class EscritorSerie {
  public:
    /// Error 53: empty name; 76: no such folder; 75: no access; 61: the disk is full.
    EscritorSerie(const std::string& ruta, int valores);

    /// Error 61: the disk is full; 75: any other failure.
    void Escribir(const Registro& registro);
    /// The file is complete. Errors as Escribir.
    void Publicar() { archivo_.Publicar(); }

  private:
    ReemplazoDeArchivo archivo_;
    int valores_;
};

}  // namespace cuencalia
