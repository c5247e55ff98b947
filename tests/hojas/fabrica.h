#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "hojas/libros.h"

namespace cuencalia::pruebas {

using Bytes = std::vector<std::byte>;
using Filas = std::vector<std::vector<ValorCelda>>;

inline const ValorCelda kVacia;

/// The data rows of a sheet as a table of `columnas` columns.
Filas Tabla(const Hoja& hoja, int columnas);
/// What LeerLibro gives for the file, as a table.
Filas Leer(const Bytes& libro, int columnas, int filasMax = 1501);
/// The text of the error 1004 that reading raises; empty when it raises none.
std::string Rechazo(const Bytes& libro, int filasMax = 1501);

std::string RutaDeDatos(const std::string& nombre);
Bytes BytesDeArchivo(const std::string& ruta);

using Partes = std::map<std::string, std::string>;
Bytes Zip(const Partes& partes);
Bytes Ole(const Partes& flujos);

/// A package with the given rows (XML within sheetData) and items of the table of texts (XML within sst).
Partes PaqueteCon(const std::string& filas, const std::string& textos = "");
Bytes LibroCon(const std::string& filas, const std::string& textos = "");

/// A stream of BIFF records, written field by field.
class Flujo {
  public:
    explicit Flujo(std::uint16_t version) : version_(version) {}

    /// Appends a record whose data are the bytes of `datos`.
    Flujo& Registro(std::uint16_t tipo, const std::string& datos);
    Flujo& Inicio(std::uint16_t clase);
    /// Appends the records of another stream.
    Flujo& Agregar(const Flujo& otro) {
        bytes_ += otro.bytes_;
        return *this;
    }
    Flujo& Fin() { return Registro(0x000A, ""); }
    /// A sheet of the workbook, whose substream must be begun by `Empezar` with the same number, from 0.
    Flujo& Declarar(std::uint8_t clase);
    Flujo& Empezar(std::size_t hoja, std::uint16_t clase);

    const std::string& Datos() const { return bytes_; }
    Bytes Crudo() const;

  private:
    std::uint16_t version_;
    std::string bytes_;
    std::vector<std::size_t> lugares_;  // of the positions of the sheets
};

/// Little-endian fields.
std::string U16(unsigned valor);
std::string U32(std::uint32_t valor);
std::string F64(double valor);
/// Row, column (from 0) and format: what the record of a cell starts with.
std::string Celda(unsigned fila, unsigned columna);

}  // namespace cuencalia::pruebas
