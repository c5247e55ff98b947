#include "hojas/biff.h"

#include <iconv.h>

#include <algorithm>
#include <bit>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "frame/base/utf8.h"
#include "hojas/errores_libro.h"
#include "hojas/ole.h"

namespace cuencalia {

namespace {

using Bytes = std::span<const std::byte>;

enum TipoRegistro : std::uint16_t {
    kFormula = 0x0006,
    kFin = 0x000A,
    kProtegido = 0x002F,  // FILEPASS: everything after it is encrypted
    kContinua = 0x003C,
    kPaginaDeCodigos = 0x0042,
    kHoja = 0x0085,
    kNumerosRk = 0x00BD,
    kTextoRico = 0x00D6,
    kTablaDeTextos = 0x00FC,
    kTextoCompartido = 0x00FD,
    kNumero = 0x0203,
    kTexto = 0x0204,
    kLogicoOError = 0x0205,
    kTextoDeFormula = 0x0207,
    kNumeroRk = 0x027E,
    kInicio = 0x0809,
};

enum VersionBiff : std::uint16_t { kBiff5 = 0x0500, kBiff8 = 0x0600 };
constexpr std::uint16_t kSubflujoGlobal = 0x0005;
constexpr std::uint16_t kSubflujoHoja = 0x0010;
constexpr unsigned kMacRoman = 10000;

// Reads little-endian fields from the data of a record and of the records that continue it.
class Campos {
  public:
    explicit Campos(Bytes datos) : trozos_{datos} {}

    void Continuar(Bytes datos) { trozos_.push_back(datos); }

    std::uint8_t Byte() {
        AvanzarDeTrozo();
        return std::to_integer<std::uint8_t>(trozos_[trozo_][posicion_++]);
    }
    std::uint16_t Palabra() {
        const unsigned bajo = Byte();
        return static_cast<std::uint16_t>(bajo | unsigned{Byte()} << 8);
    }
    std::uint32_t Doble() {
        const std::uint32_t bajo = Palabra();
        return bajo | std::uint32_t{Palabra()} << 16;
    }
    std::uint64_t Cuadruple() {
        const std::uint64_t bajo = Doble();
        return bajo | std::uint64_t{Doble()} << 32;
    }
    double Real() { return std::bit_cast<double>(Cuadruple()); }

    void Saltar(std::size_t cuantos) {
        while (cuantos > 0) {
            AvanzarDeTrozo();
            const std::size_t paso = std::min(cuantos, EnTrozo());
            posicion_ += paso;
            cuantos -= paso;
        }
    }

    std::size_t EnTrozo() const { return trozos_[trozo_].size() - posicion_; }

    // At the end of a record, moves on to the record that continues it; returns whether it moved.
    bool AvanzarDeTrozo() {
        bool avanzo = false;
        while (EnTrozo() == 0) {
            if (trozo_ + 1 == trozos_.size()) {
                FallarDanado();
            }
            ++trozo_;
            posicion_ = 0;
            avanzo = true;
        }
        return avanzo;
    }

  private:
    std::vector<Bytes> trozos_;
    std::size_t trozo_ = 0;
    std::size_t posicion_ = 0;
};

// Characters of a BIFF8 string ([MS-XLS] 2.5.293): one byte each (Latin-1) or two (UTF-16). When a string goes on in a
// continuing record, that record begins with a flag byte of its own that gives the width of its characters.
std::string CaracteresUnicode(Campos& campos, std::size_t cuantos, bool anchos) {
    std::string texto;
    char32_t alto = 0;
    for (std::size_t i = 0; i < cuantos; ++i) {
        if (campos.AvanzarDeTrozo()) {
            anchos = (campos.Byte() & 1) != 0;
        }
        const char32_t unidad = anchos ? campos.Palabra() : campos.Byte();
        const bool esBajo = unidad >= 0xDC00 && unidad < 0xE000;
        if (alto != 0 && !esBajo) {
            AgregarUtf8(texto, alto);
        }
        if (alto != 0 && esBajo) {
            AgregarUtf8(texto, 0x10000 + ((alto - 0xD800) << 10) + (unidad - 0xDC00));
            alto = 0;
        } else {
            alto = unidad >= 0xD800 && unidad < 0xDC00 ? unidad : 0;
            if (alto == 0) {
                AgregarUtf8(texto, unidad);
            }
        }
    }
    if (alto != 0) {
        AgregarUtf8(texto, alto);
    }
    return texto;
}

// A BIFF8 string. Its formatting runs and phonetic data are skipped, as they are not part of the text.
std::string CadenaUnicode(Campos& campos) {
    const std::size_t cuantos = campos.Palabra();
    const std::uint8_t banderas = campos.Byte();
    const std::size_t formatos = (banderas & 8) != 0 ? campos.Palabra() : 0;
    const std::size_t fonetica = (banderas & 4) != 0 ? campos.Doble() : 0;
    std::string texto = CaracteresUnicode(campos, cuantos, (banderas & 1) != 0);
    campos.Saltar(4 * formatos + fonetica);
    return texto;
}

// Text of a code page as UTF-8. Error 1004 for a page unknown to the system and for bytes that the page does not
// define.
std::string DePagina(std::string crudo, unsigned pagina) {
    const std::string nombre = pagina == kMacRoman ? "MACINTOSH" : "CP" + std::to_string(pagina);
    const iconv_t conversor = iconv_open("UTF-8", nombre.c_str());
    if (conversor == reinterpret_cast<iconv_t>(-1)) {
        FallarDanado();
    }
    constexpr std::size_t kMaximoPorByte = 4;
    std::string texto(kMaximoPorByte * (crudo.size() + 1), '\0');
    char* entrada = crudo.data();
    char* salida = texto.data();
    std::size_t faltan = crudo.size();
    std::size_t caben = texto.size();
    constexpr auto kFallo = static_cast<std::size_t>(-1);
    // The second call flushes characters that iconv holds back in code pages with combining characters.
    const bool convertido = iconv(conversor, &entrada, &faltan, &salida, &caben) != kFallo &&
                            iconv(conversor, nullptr, nullptr, &salida, &caben) != kFallo;
    iconv_close(conversor);
    if (!convertido) {
        FallarDanado();
    }
    texto.resize(texto.size() - caben);
    return texto;
}

std::string CadenaDePagina(Campos& campos, unsigned pagina) {
    std::string crudo;
    for (std::size_t quedan = campos.Palabra(); quedan > 0; --quedan) {
        crudo += static_cast<char>(campos.Byte());
    }
    return DePagina(std::move(crudo), pagina);
}

// Decodes an RK number: 30 bits of a whole number, or the upper 30 bits of a real; the lowest bit set means divided by
// 100 ([MS-XLS] 2.5.217).
double NumeroRk(std::uint32_t rk) {
    const double numero = (rk & 2) != 0 ? static_cast<double>(static_cast<std::int32_t>(rk) >> 2)
                                        : std::bit_cast<double>(std::uint64_t{rk & ~std::uint32_t{3}} << 32);
    return (rk & 1) != 0 ? numero / 100 : numero;
}

std::string LiteralDeError(std::uint8_t codigo) {
    switch (codigo) {
        case 0x00:
            return "#NULL!";
        case 0x07:
            return "#DIV/0!";
        case 0x0F:
            return "#VALUE!";
        case 0x17:
            return "#REF!";
        case 0x1D:
            return "#NAME?";
        case 0x24:
            return "#NUM!";
        case 0x2A:
            return "#N/A";
        default:
            return "#ERROR!";
    }
}

struct Registro {
    std::uint16_t tipo;
    Bytes datos;
};

// The records of the stream from a position on. The last one must be an end record: a stream without it is truncated.
class Registros {
  public:
    Registros(Bytes flujo, std::size_t posicion) : flujo_(flujo), posicion_(posicion) {}

    Registro Siguiente() {
        const auto registro = Mirar();
        if (!registro) {
            FallarDanado();
        }
        posicion_ += kCabecera + registro->datos.size();
        return *registro;
    }

    // The data of the record just read, together with those of the records that continue it.
    Campos ConContinuacion(const Registro& registro) {
        Campos campos(registro.datos);
        for (auto otro = Mirar(); otro && otro->tipo == kContinua; otro = Mirar()) {
            campos.Continuar(Siguiente().datos);
        }
        return campos;
    }

  private:
    static constexpr std::size_t kCabecera = 4;

    std::optional<Registro> Mirar() const {
        if (posicion_ > flujo_.size() || flujo_.size() - posicion_ < kCabecera) {
            return std::nullopt;
        }
        const Bytes resto = flujo_.subspan(posicion_);
        Campos cabecera(resto);
        const std::uint16_t tipo = cabecera.Palabra();
        const std::size_t largo = cabecera.Palabra();
        if (resto.size() - kCabecera < largo) {
            return std::nullopt;
        }
        return Registro{tipo, resto.subspan(kCabecera, largo)};
    }

    Bytes flujo_;
    std::size_t posicion_;
};

// The part of the workbook that comes before its sheets.
struct Globales {
    std::uint16_t version = 0;
    unsigned pagina = 1252;
    std::optional<std::size_t> primeraHoja;
    std::optional<Campos> textos;
};

void AnotarHoja(Campos campos, Globales& globales) {
    const std::size_t posicion = campos.Doble();
    campos.Saltar(1);  // skips the visibility: hidden sheets count as well
    const bool esHojaDeCalculo = campos.Byte() == 0;
    if (esHojaDeCalculo && !globales.primeraHoja) {
        globales.primeraHoja = posicion;
    }
}

unsigned PaginaDeCodigos(std::uint16_t declarada) {
    constexpr std::uint16_t kAppleRoman = 0x8000;
    constexpr std::uint16_t kWindows = 0x8001;
    return declarada == kAppleRoman ? kMacRoman : declarada == kWindows ? 1252U : declarada;
}

Globales LeerGlobales(Bytes flujo) {
    Registros registros(flujo, 0);
    Globales globales;
    const Registro inicio = registros.Siguiente();
    Campos cabecera(inicio.datos);
    globales.version = cabecera.Palabra();
    if (inicio.tipo != kInicio || (globales.version != kBiff5 && globales.version != kBiff8) ||
        cabecera.Palabra() != kSubflujoGlobal) {
        FallarFormatoNoLeido();
    }
    for (Registro registro = registros.Siguiente(); registro.tipo != kFin; registro = registros.Siguiente()) {
        if (registro.tipo == kProtegido) {
            FallarProtegido();
        } else if (registro.tipo == kPaginaDeCodigos) {
            globales.pagina = PaginaDeCodigos(Campos(registro.datos).Palabra());
        } else if (registro.tipo == kHoja) {
            AnotarHoja(Campos(registro.datos), globales);
        } else if (registro.tipo == kTablaDeTextos) {
            globales.textos = registros.ConContinuacion(registro);
        }
    }
    return globales;
}

class LectorHojaBiff {
  public:
    LectorHojaBiff(Bytes flujo, const Globales& globales, ArmadorHoja& armador)
        : registros_(flujo, *globales.primeraHoja), globales_(globales), armador_(armador) {}

    // Embedded charts are substreams inside the substream of the sheet.
    void Leer() {
        ExigirInicioDeHoja();
        for (int abiertos = 1; abiertos > 0;) {
            const Registro registro = registros_.Siguiente();
            if (registro.tipo == kInicio) {
                ++abiertos;
            } else if (registro.tipo == kFin) {
                --abiertos;
            } else if (abiertos == 1) {
                LeerRegistro(registro);
            }
        }
    }

  private:
    void ExigirInicioDeHoja() {
        const Registro inicio = registros_.Siguiente();
        Campos cabecera(inicio.datos);
        cabecera.Saltar(2);
        if (inicio.tipo != kInicio || cabecera.Palabra() != kSubflujoHoja) {
            FallarDanado();
        }
    }

    void LeerRegistro(const Registro& registro) {
        switch (registro.tipo) {
            case kNumero:
            case kNumeroRk:
            case kTexto:
            case kTextoRico:
            case kTextoCompartido:
            case kLogicoOError:
            case kFormula:
                LeerCelda(registro);
                break;
            case kNumerosRk:
                LeerNumerosRk(registro);
                break;
            case kTextoDeFormula:
                LeerTextoDeFormula(registro);
                break;
            default:
                break;
        }
    }

    void LeerCelda(const Registro& registro) {
        Campos campos = registros_.ConContinuacion(registro);
        fila_ = campos.Palabra() + 1;
        columna_ = campos.Palabra() + 1;
        campos.Saltar(2);  // format
        esperaTexto_ = false;
        if (!armador_.Interesa(fila_, columna_)) {
            return;
        }
        if (registro.tipo == kNumero) {
            Poner(Double(campos.Real()));
        } else if (registro.tipo == kNumeroRk) {
            Poner(Double(NumeroRk(campos.Doble())));
        } else if (registro.tipo == kTextoCompartido) {
            armador_.PonerCompartido(fila_, columna_, campos.Doble());
        } else if (registro.tipo == kLogicoOError) {
            const std::uint8_t valor = campos.Byte();
            PonerLogicoOError(valor, campos.Byte() != 0);
        } else if (registro.tipo == kFormula) {
            LeerFormula(campos);
        } else {
            Poner(Cadena(campos));
        }
    }

    // A formula's result: a real number, or, when its last two bytes are set, a value of the kind given in its first
    // byte ([MS-XLS] 2.5.133).
    void LeerFormula(Campos& campos) {
        const std::uint64_t resultado = campos.Cuadruple();
        if (resultado >> 48 != 0xFFFF) {
            Poner(Double(std::bit_cast<double>(resultado)));
            return;
        }
        enum Clase : std::uint8_t { kEsTexto = 0, kEsLogico = 1, kEsError = 2, kEsTextoVacio = 3 };
        const auto clase = static_cast<std::uint8_t>(resultado);
        const auto valor = static_cast<std::uint8_t>(resultado >> 16);
        if (clase == kEsTexto) {
            esperaTexto_ = true;  // the text follows in a separate record
        } else if (clase == kEsLogico || clase == kEsError) {
            PonerLogicoOError(valor, clase == kEsError);
        } else if (clase == kEsTextoVacio) {
            Poner(std::string());
        } else {
            FallarDanado();
        }
    }

    void LeerTextoDeFormula(const Registro& registro) {
        if (esperaTexto_) {
            Campos campos = registros_.ConContinuacion(registro);
            Poner(Cadena(campos));
            esperaTexto_ = false;
        }
    }

    void LeerNumerosRk(const Registro& registro) {
        constexpr std::size_t kUno = 6;    // format and number
        constexpr std::size_t kFijos = 6;  // row, first and last column
        Campos campos(registro.datos);
        fila_ = campos.Palabra() + 1;
        columna_ = campos.Palabra() + 1;
        esperaTexto_ = false;
        for (std::size_t leidos = kFijos; leidos + kUno <= registro.datos.size(); leidos += kUno) {
            campos.Saltar(2);
            const double numero = NumeroRk(campos.Doble());
            if (armador_.Interesa(fila_, columna_)) {
                Poner(Double(numero));
            }
            ++columna_;
        }
    }

    std::string Cadena(Campos& campos) const {
        return globales_.version == kBiff8 ? CadenaUnicode(campos) : CadenaDePagina(campos, globales_.pagina);
    }

    void PonerLogicoOError(std::uint8_t valor, bool esError) {
        Poner(esError ? LiteralDeError(valor) : TextoLogico(valor != 0));
    }

    void Poner(ValorCelda valor) { armador_.Poner(fila_, columna_, std::move(valor)); }

    Registros registros_;
    const Globales& globales_;
    ArmadorHoja& armador_;
    int fila_ = 0;
    int columna_ = 0;
    bool esperaTexto_ = false;
};

void LeerTextos(Campos campos, ArmadorHoja& armador) {
    campos.Saltar(8);  // skips the counts of texts, which may be wrong
    for (std::uint32_t indice = 0; armador.FaltanTextos(); ++indice) {
        armador.DarTexto(indice, CadenaUnicode(campos));
    }
}

}  // namespace

void LeerBiff(std::span<const std::byte> flujo, ArmadorHoja& armador) {
    const Globales globales = LeerGlobales(flujo);
    if (!globales.primeraHoja) {
        FallarSinHojas();
    }
    LectorHojaBiff(flujo, globales, armador).Leer();
    if (armador.FaltanTextos() && globales.textos) {
        LeerTextos(*globales.textos, armador);
    }
}

void LeerXls(std::span<const std::byte> bytes, ArmadorHoja& armador) {
    const DocumentoOle documento(bytes);
    if (documento.Flujo("EncryptedPackage")) {
        FallarProtegido();
    }
    auto flujo = documento.Flujo("Workbook");
    if (!flujo) {
        flujo = documento.Flujo("Book");
    }
    if (!flujo) {
        FallarNoEsLibro();
    }
    LeerBiff(*flujo, armador);
}

}  // namespace cuencalia
