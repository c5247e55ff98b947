#include "frame/reportes/limites.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <set>
#include <string>

#include "frame/base/errores.h"
#include "frame/reportes/rtf.h"

namespace cuencalia {

namespace {

// Cost of each kind of content in microseconds, as measured with the desktop's text box on a machine of 2020.
constexpr double kMaximo = 2e6;
constexpr double kPorLinea = 25;
constexpr double kPorByte = 0.3;
constexpr double kPorCambio = 8;
constexpr double kPorFuente = 200;
constexpr double kPorParDeBytes = 8e-5;    // of a word
constexpr double kPorParDeCambios = 0.03;  // of a line

constexpr const char* kLargo = "es demasiado largo";

struct Causa {
    const char* texto;
    double costo = 0;
};

[[noreturn]] void Fallar(const std::string& causa) {
    throw ErrorEjecucion(kErrorDocumento, "El documento no se abre, porque tardaría demasiado: " + causa);
}

class Cuenta {
  public:
    void Contar(const TextoRico& texto) {
        for (const Parrafo& parrafo : texto.parrafos) {
            cambios_ = 0;
            palabra_ = 0;
            for (const Tramo& tramo : parrafo.tramos) {
                ++cambios_;
                fuentes_.insert(tramo.formato.fuente);
                Contar(tramo.texto);
            }
            CerrarPalabra();
            largo_.costo += kPorLinea;
            formatos_.costo += kPorCambio * cambios_ + kPorParDeCambios * cambios_ * cambios_;
        }
        formatos_.costo += kPorFuente * static_cast<double>(fuentes_.size());
    }

    void Exigir() const {
        if (largo_.costo + palabras_.costo + formatos_.costo > kMaximo) {
            const std::array causas{largo_, palabras_, formatos_};
            Fallar(std::ranges::max(causas, {}, &Causa::costo).texto);
        }
    }

  private:
    void Contar(const std::string& texto) {
        largo_.costo += kPorByte * static_cast<double>(texto.size());
        for (const char c : texto) {
            if (c == ' ' || c == '\t') {
                CerrarPalabra();
                continue;
            }
            ++palabra_;
            // From U+0590 on, where the scripts begin that are laid out apart from the Latin ones.
            const auto byte = static_cast<unsigned char>(c);
            const bool otra = byte >= 0xD6 || (byte >= 0x80 && byte < 0xC0 && otraEscritura_);
            cambios_ += otra != otraEscritura_ ? 1 : 0;
            otraEscritura_ = otra;
        }
    }

    void CerrarPalabra() {
        palabras_.costo += kPorParDeBytes * palabra_ * palabra_;
        palabra_ = 0;
    }

    Causa largo_{kLargo};
    Causa palabras_{"tiene palabras demasiado largas, sin blancos"};
    Causa formatos_{"tiene demasiados cambios de formato"};
    std::set<std::string> fuentes_;
    double cambios_ = 0;
    double palabra_ = 0;
    bool otraEscritura_ = false;
};

}  // namespace

void ExigirManejable(const TextoRico& texto) {
    Cuenta cuenta;
    cuenta.Contar(texto);
    cuenta.Exigir();
}

void ExigirLargoManejable(std::string_view fuente) {
    const auto esFin = [](char c) { return c == '\r' || c == '\n'; };
    const bool muchasLineas =
        !EsRtf(fuente) && static_cast<std::size_t>(std::ranges::count_if(fuente, esFin)) > kMaxPiezas;
    if (fuente.size() > kMaxArchivoDocumento || muchasLineas) {
        Fallar(kLargo);
    }
}

void ExigirPiezas(std::size_t piezas) {
    if (piezas > kMaxPiezas) {
        Fallar(kLargo);
    }
}

}  // namespace cuencalia
