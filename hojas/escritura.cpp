#include <locale.h>
#include <xlsxwriter.h>

#include <cerrno>
#include <cmath>

#include "frame/base/archivos.h"
#include "frame/base/utf8.h"
#include "hojas/errores_libro.h"
#include "hojas/libros.h"
#include "hojas/xml.h"
#include "hojas/zip.h"

namespace cuencalia {

namespace {

// The library prints numbers by the locale of the calling thread, and a decimal comma would make the workbook
// unreadable.
class PuntoDecimal {
  public:
    PuntoDecimal() : neutro_(newlocale(LC_ALL_MASK, "C", nullptr)), previo_(uselocale(neutro_)) {}
    PuntoDecimal(const PuntoDecimal&) = delete;
    PuntoDecimal& operator=(const PuntoDecimal&) = delete;
    ~PuntoDecimal() {
        uselocale(previo_);
        freelocale(neutro_);
    }

  private:
    locale_t neutro_;
    locale_t previo_;
};

[[noreturn]] void FallarCelda() {
    throw ErrorEjecucion(kErrorLibro, "El valor de una celda no cabe en un libro de Excel");
}

void EscribirCelda(lxw_worksheet* hoja, std::pair<int, int> posicion, const ValorCelda& valor) {
    constexpr int kMaxColumnas = 16384;
    constexpr double kMaxNumero = 9.99999999999999E307;
    if (posicion.second > kMaxColumnas) {
        FallarCelda();
    }
    const auto fila = static_cast<lxw_row_t>(posicion.first - 1);
    const auto columna = static_cast<lxw_col_t>(posicion.second - 1);
    lxw_error error = LXW_NO_ERROR;
    if (const auto* numero = std::get_if<Double>(&valor)) {
        if (!(std::abs(numero->valor()) <= kMaxNumero)) {
            FallarCelda();
        }
        error = worksheet_write_number(hoja, fila, columna, numero->valor(), nullptr);
    } else if (const auto* texto = std::get_if<std::string>(&valor)) {
        error = EsUtf8SinNulos(*texto) ? worksheet_write_string(hoja, fila, columna, texto->c_str(), nullptr)
                                       : LXW_ERROR_PARAMETER_VALIDATION;
    }
    if (error != LXW_NO_ERROR) {
        FallarCelda();
    }
}

// Checks that every part of the written workbook is complete XML; error 61 when one is not. The library first writes
// the parts to temporary files of its own: if the disk fills up then, it packs the truncated parts without reporting an
// error.
void ExigirCompleto(const std::string& ruta) {
    const std::string contenido = LeerArchivo(ruta);
    try {
        const ArchivoZip libro(std::as_bytes(std::span(contenido)));
        for (const std::string& parte : libro.Partes()) {
            LectorXml lector("");
            libro.Recorrer(parte, contenido.max_size(),
                           [&](std::span<const std::byte> trozo) { return lector.Alimentar(trozo); });
            lector.Concluir();
        }
    } catch (const ErrorEjecucion&) {
        throw ErrorEjecucion(kDiscoLleno);
    }
}

}  // namespace

void LibrosDeCalculo::EscribirLibro(const std::string& ruta, const Hoja& hoja) {
    const PuntoDecimal neutro;
    ReemplazoDeArchivo archivo(ruta);
    lxw_workbook* libro = workbook_new(archivo.RutaProvisional().c_str());
    if (libro == nullptr) {
        throw ErrorEjecucion(kMemoriaInsuficiente);
    }
    try {
        lxw_worksheet* destino = workbook_add_worksheet(libro, "Hoja1");
        for (const auto& [posicion, valor] : hoja.Celdas()) {
            EscribirCelda(destino, posicion, valor);
        }
    } catch (...) {
        lxw_workbook_free(libro);
        throw;
    }
    errno = 0;
    if (workbook_close(libro) != LXW_NO_ERROR) {
        FallarPorSistema(errno, UsoArchivo::kEscribir);
    }
    ExigirCompleto(archivo.RutaProvisional());
    archivo.Publicar();
}

}  // namespace cuencalia
