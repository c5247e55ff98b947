#include <locale.h>
#include <unistd.h>
#include <xlsxwriter.h>

#include <cerrno>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <system_error>

#include "frame/base/utf8.h"
#include "hojas/errores_libro.h"
#include "hojas/libros.h"

namespace cuencalia {

namespace {

[[noreturn]] void FallarPorSistema(int causa) {
    switch (causa) {
        case ENOSPC:
        case EDQUOT:
            throw ErrorEjecucion(kDiscoLleno);
        case ENOENT:
            throw ErrorEjecucion(kRutaNoEncontrada);
        default:
            throw ErrorEjecucion(kAccesoRuta);
    }
}

// A new file beside the target, removed again unless it takes the target's place.
class ArchivoProvisional {
  public:
    explicit ArchivoProvisional(const std::string& destino) : destino_(Definitivo(destino)) {
        constexpr int kIntentos = 100;
        for (int i = 0; i < kIntentos; ++i) {
            ruta_ = destino_.string() + ".nuevo" + std::to_string(i);
            if (std::FILE* archivo = std::fopen(ruta_.c_str(), "wbx"); archivo != nullptr) {
                std::fclose(archivo);
                return;
            }
            if (errno != EEXIST) {
                FallarPorSistema(errno);
            }
        }
        throw ErrorEjecucion(kAccesoRuta);
    }
    ArchivoProvisional(const ArchivoProvisional&) = delete;
    ArchivoProvisional& operator=(const ArchivoProvisional&) = delete;
    ~ArchivoProvisional() {
        if (!ruta_.empty()) {
            std::remove(ruta_.c_str());
        }
    }

    const std::string& Ruta() const { return ruta_; }

    void Publicar() {
        std::error_code error;
        std::filesystem::rename(ruta_, destino_, error);
        if (error) {
            FallarPorSistema(error.value());
        }
        ruta_.clear();
    }

  private:
    // A link stays a link, and a file that its owner protected from writing is not replaced.
    static std::filesystem::path Definitivo(const std::string& destino) {
        std::error_code error;
        if (!std::filesystem::exists(destino, error)) {
            return destino;
        }
        if (access(destino.c_str(), W_OK) != 0 || !std::filesystem::is_regular_file(destino, error)) {
            throw ErrorEjecucion(kAccesoRuta);
        }
        const auto real = std::filesystem::canonical(destino, error);
        return error ? std::filesystem::path(destino) : real;
    }

    std::filesystem::path destino_;
    std::string ruta_;
};

// The writer prints numbers by the locale of the calling thread, and a decimal comma makes the workbook unreadable.
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

}  // namespace

void LibrosDeCalculo::EscribirLibro(const std::string& ruta, const Hoja& hoja) {
    const PuntoDecimal neutro;
    ArchivoProvisional archivo(ruta);
    lxw_workbook* libro = workbook_new(archivo.Ruta().c_str());
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
        FallarPorSistema(errno);
    }
    archivo.Publicar();
}

}  // namespace cuencalia
