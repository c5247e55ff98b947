#pragma once

#include <array>
#include <string>
#include <vector>

#include "frame/base/numeros.h"

namespace cuencalia {

/// The values of one record of a series file; those beyond the record's width are 0.
using Registro = std::array<Single, 4>;

/// A headerless file of fixed records of one to four little-endian IEEE-754 Singles, read from its first record on. Its
/// length alone tells the number of records; a tail shorter than a record is never read.
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

/// Such a file being written anew: what it held before is gone once it is open. What was written stays when writing
/// ends early.
class EscritorSerie {
  public:
    /// Error 53: empty name; 76: no such folder; 75: no access.
    EscritorSerie(const std::string& ruta, int valores);
    ~EscritorSerie();
    EscritorSerie(const EscritorSerie&) = delete;
    EscritorSerie& operator=(const EscritorSerie&) = delete;

    /// Error 61: the disk is full; 75: any other failure.
    void Escribir(const Registro& registro);

  private:
    int archivo_;
    int valores_;
};

}  // namespace cuencalia
