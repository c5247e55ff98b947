#include "hojas/xml.h"

#include <expat.h>

#include <utility>

#include "hojas/errores_libro.h"

namespace cuencalia {

namespace {

constexpr char kSeparador = '|';
constexpr int kMaxProfundidad = 64;  // the parts of a valid workbook nest less than ten deep

// How far before the current piece a tag, comment or the like may start. The parser scans one that is not complete from
// its start again with each piece, so that a tag of the size of the part would take time by its square.
constexpr std::int64_t kMaxMarca = std::int64_t{64} << 10;

// Where the parser stands. A library that has the position in 64 bits calls the other function deprecated, and one that
// has not is still in use.
template <typename Analizador>
std::int64_t LugarDe(Analizador* analizador) {
    if constexpr (requires { XML_GetCurrentByteIndex64(analizador); }) {
        return XML_GetCurrentByteIndex64(analizador);
    } else {
        return XML_GetCurrentByteIndex(analizador);
    }
}

struct Nombre {
    std::string_view espacio;
    std::string_view local;
};

Nombre Partir(std::string_view nombre) {
    const std::size_t corte = nombre.rfind(kSeparador);
    if (corte == std::string_view::npos) {
        return {{}, nombre};
    }
    return {nombre.substr(0, corte), nombre.substr(corte + 1)};
}

bool EsPropio(const Nombre& nombre) {
    return nombre.espacio == "http://schemas.openxmlformats.org/spreadsheetml/2006/main" ||
           nombre.espacio == "http://purl.oclc.org/ooxml/spreadsheetml/main" ||
           nombre.espacio == "http://schemas.openxmlformats.org/package/2006/relationships";
}

// Elements that are ignored while their contents are read.
bool EsTransparente(const Nombre& nombre) {
    return nombre.espacio == "http://schemas.openxmlformats.org/markup-compatibility/2006" &&
           (nombre.local == "AlternateContent" || nombre.local == "Fallback");
}

}  // namespace

std::optional<std::string_view> AtributosXml::Valor(std::string_view nombre) const {
    for (const char** par = pares_; *par != nullptr; par += 2) {
        if (par[0] == nombre) {
            return par[1];
        }
    }
    return std::nullopt;
}

std::optional<std::string_view> AtributosXml::IdRelacion() const {
    for (const char** par = pares_; *par != nullptr; par += 2) {
        const Nombre nombre = Partir(par[0]);
        if (nombre.local == "id" && nombre.espacio.ends_with("/relationships")) {
            return par[1];
        }
    }
    return std::nullopt;
}

// Exceptions must not pass through the parser's C code: they are stored and thrown again once the parser has returned.
struct LectorXml::Enlace {
    template <typename Accion>
    static void Cuidar(void* datos, Accion accion) {
        auto& lector = *static_cast<LectorXml*>(datos);
        if (lector.detenido_) {
            return;
        }
        try {
            accion(lector);
        } catch (...) {
            lector.fallo_ = std::current_exception();
            lector.Detener();
        }
    }

    static void Abrir(void* datos, const char* nombre, const char** atributos) {
        Cuidar(datos, [&](LectorXml& lector) { lector.Abrir(nombre, atributos); });
    }
    static void Cerrar(void* datos, const char* nombre) {
        Cuidar(datos, [&](LectorXml& lector) { lector.Cerrar(nombre); });
    }
    static void Texto(void* datos, const char* texto, int largo) {
        Cuidar(datos, [&](LectorXml& lector) {
            if (lector.ajenos_ == 0) {
                lector.AlTexto(lector.ruta_, {texto, static_cast<std::size_t>(largo)});
            }
        });
    }
    static void TipoDeDocumento(void* datos, const char*, const char*, const char*, int) {
        Cuidar(datos, [](LectorXml&) { FallarDanado(); });
    }
};

void LectorXml::Liberar::operator()(XML_ParserStruct* analizador) const { XML_ParserFree(analizador); }

LectorXml::LectorXml(std::string raiz) : analizador_(XML_ParserCreateNS(nullptr, kSeparador)), raiz_(std::move(raiz)) {
    if (analizador_ == nullptr) {
        throw ErrorEjecucion(kMemoriaInsuficiente);
    }
    XML_SetUserData(analizador_.get(), this);
    XML_SetElementHandler(analizador_.get(), Enlace::Abrir, Enlace::Cerrar);
    XML_SetCharacterDataHandler(analizador_.get(), Enlace::Texto);
    XML_SetStartDoctypeDeclHandler(analizador_.get(), Enlace::TipoDeDocumento);
}

LectorXml::~LectorXml() = default;

bool LectorXml::Alimentar(std::span<const std::byte> trozo) {
    Analizar(trozo, false);
    return !detenido_;
}

void LectorXml::Concluir() {
    if (!detenido_) {
        Analizar({}, true);
    }
}

void LectorXml::Detener() {
    detenido_ = true;
    XML_StopParser(analizador_.get(), XML_FALSE);
}

void LectorXml::Analizar(std::span<const std::byte> trozo, bool ultimo) {
    const XML_Status estado = XML_Parse(analizador_.get(), reinterpret_cast<const char*>(trozo.data()),
                                        static_cast<int>(trozo.size()), ultimo ? 1 : 0);
    if (fallo_ != nullptr) {
        std::rethrow_exception(fallo_);
    }
    if (estado != XML_STATUS_OK && !detenido_) {
        FallarDanado();
    }
    if (!detenido_ && leidos_ - LugarDe(analizador_.get()) > kMaxMarca) {
        FallarDemasiadoGrande();
    }
    leidos_ += static_cast<std::int64_t>(trozo.size());
}

void LectorXml::Abrir(std::string_view nombreCompleto, const char** atributos) {
    const Nombre nombre = Partir(nombreCompleto);
    const bool exigida = ++profundidad_ == 1 && !raiz_.empty();
    if (profundidad_ > kMaxProfundidad || (exigida && (!EsPropio(nombre) || nombre.local != raiz_))) {
        FallarDanado();
    }
    if (ajenos_ > 0 || (!EsPropio(nombre) && !EsTransparente(nombre))) {
        ++ajenos_;
        return;
    }
    if (EsPropio(nombre)) {
        ruta_ += ruta_.empty() ? "" : "/";
        ruta_ += nombre.local;
        AlAbrir(ruta_, AtributosXml(atributos));
    }
}

void LectorXml::Cerrar(std::string_view nombreCompleto) {
    --profundidad_;
    if (ajenos_ > 0) {
        --ajenos_;
        return;
    }
    if (EsPropio(Partir(nombreCompleto))) {
        AlCerrar(ruta_);
        const std::size_t corte = ruta_.rfind('/');
        ruta_.erase(corte == std::string::npos ? 0 : corte);
    }
}

}  // namespace cuencalia
