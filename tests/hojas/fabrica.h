#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "hojas/libros.h"

namespace cuencalia::pruebas {

/// The data rows of a sheet.
using Filas = std::vector<std::vector<ValorCelda>>;

inline const ValorCelda kVacia;
inline const Filas kUno = {{Double(1)}};

inline const std::string kDanado = "El libro de Excel está dañado o incompleto";
inline const std::string kProtegido = "El libro de Excel está protegido con contraseña";
inline const std::string kNoEsLibro = "El archivo no es un libro de Excel (.xls o .xlsx)";
inline const std::string kSinHojas = "El libro de Excel no tiene ninguna hoja de cálculo";

Filas Tabla(const Hoja& hoja, int columnas);
/// What LeerLibro gives for a file of these bytes.
Filas Leer(const std::string& libro, int columnas, int filasMax = 1501);
/// The text of the error 1004 that reading raises; empty when it raises none.
std::string Rechazo(const std::string& libro);
/// A workbook that another program wrote.
std::string Dato(const std::string& nombre);

/// Contents by name; folders in the names end with '/'.
using Partes = std::map<std::string, std::string>;
std::string Zip(const Partes& partes);
std::string Ole(const Partes& flujos);

/// A package with the given rows (XML within sheetData) and items of the table of texts (XML within sst).
Partes PaqueteCon(const std::string& filas, const std::string& textos = "");
inline std::string LibroCon(const std::string& filas, const std::string& textos = "") {
    return Zip(PaqueteCon(filas, textos));
}

/// A BIFF record.
std::string Registro(unsigned tipo, const std::string& datos);
/// The first and the last record of a part of the stream of records.
std::string Inicio(unsigned clase, unsigned version);
inline const std::string kFin = Registro(0x000A, "");

/// What a workbook declares about a sheet (0: cells, others: charts, macros), and its records.
struct HojaBiff {
    char clase;
    std::string registros;
};
/// A bare stream of records: what the workbook says, then the sheets, the last one first.
std::string LibroBiff(const std::vector<HojaBiff>& hojas, const std::string& globales = "", unsigned version = 0x0600);

/// Little-endian fields.
std::string U16(unsigned valor);
std::string U32(std::uint32_t valor);
std::string F64(double valor);
/// Row, column (from 0) and format: what the record of a cell starts with.
std::string Celda(unsigned fila, unsigned columna);

}  // namespace cuencalia::pruebas
