#pragma once

#include <array>
#include <string>
#include <vector>

#include "frame/base/numeros.h"

namespace cuencalia {

/// The values of one record of a series file; those beyond the record's width are 0.
using Registro = std::array<Single, 4>;

/// What a module's series files hold, and what its file dialogs say.
struct TipoArchivo {
    int valores = 1;            ///< Singles a record, 1 to 4: the data columns of the grid in order.
    const char* rotuloCrear{};  ///< Label of the filter when a file is made.
    const char* rotuloAccesar{};
    const char* patron{};  ///< Names the extension.

    std::string FiltroCrear() const { return std::string(rotuloCrear) + "|" + patron; }
    std::string FiltroAccesar() const { return std::string(rotuloAccesar) + "|" + patron; }
};

inline constexpr TipoArchivo kArchivoX{1, "Valores de X", "Valores X", "*.X"};
inline constexpr TipoArchivo kArchivoXMaximas{1, "Valores de X", "Valores de X", "*.X"};
inline constexpr TipoArchivo kArchivoQ{1, "Valores de Q", "Valores Q", "*.Q"};
inline constexpr TipoArchivo kArchivoCD{1, "Valores de caudales Q", "Valores de caudales Q", "*.CD"};
inline constexpr TipoArchivo kArchivoVE{1, "Valores mensuales de X", "Valores mensuales de X", "*.VE"};
inline constexpr TipoArchivo kArchivoTM{1, "Temperaturas mensuales TM", "Temperaturas mensuales TM", "*.TM"};
inline constexpr TipoArchivo kArchivoTB{1, "Temperaturas mensuales TB", "Temperaturas mensuales TB", "*.TB"};
inline constexpr TipoArchivo kArchivoP{1, "Valores de precipitación P", "Valores de precipitación P", "*.P"};
inline constexpr TipoArchivo kArchivoTP{2, "Temperaturas y precipitación TP", "Temperaturas y precipitación TP",
                                        "*.TP"};
inline constexpr TipoArchivo kArchivoXY{2, "Pares valores X,Y", "Pares valores X,Y", "*.XY"};
inline constexpr TipoArchivo kArchivoTH{2, "Pares valores T,H", "Pares valores T,H", "*.TH"};
inline constexpr TipoArchivo kArchivoPA{2, "Pares valores P, A", "Pares valores P, A", "*.PA"};
inline constexpr TipoArchivo kArchivoIA{2, "Pares valores I, A", "Pares valores I, A", "*.IA"};
inline constexpr TipoArchivo kArchivoTDI{3, "Trio valores T,D,I", "Trio valores T,D,I", "*.TDI"};
inline constexpr TipoArchivo kArchivoXYZ{3, "Trio valores X,Y,Z", "Trio valores X,Y,Z", "*.XYZ"};
inline constexpr TipoArchivo kArchivoLHV{3, "Trio valores L,h,v", "Trio valores L,h,V", "*.LHV"};
inline constexpr TipoArchivo kArchivoXSY{4, "Cuartetos valores XS,Y", "Cuartetos valores XS,Y", "*.XSY"};

/// A headerless file of fixed records of one to four little-endian IEEE-754 Singles, open for reading from its first
/// record on. Its length alone tells the number of records; a tail shorter than a record is never read.
class LectorSerie {
  public:
    /// Error 53: no such file (also for an empty name); 75: no access, or no regular file; 6: more than 32767 records.
    LectorSerie(const std::string& ruta, int valores);
    ~LectorSerie();
    LectorSerie(const LectorSerie&) = delete;
    LectorSerie& operator=(const LectorSerie&) = delete;

    int Registros() const { return registros_.valor(); }
    /// The next record. Error 75 when the file cannot be read on.
    Registro Leer();

  private:
    int archivo_;
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
