#include "frame/reportes/editortextorico.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "frame/base/archivos.h"
#include "frame/base/errores.h"
#include "frame/base/utf8.h"
#include "frame/reportes/limites.h"
#include "frame/reportes/paginascodigo.h"
#include "frame/reportes/rtf.h"

namespace cuencalia {

namespace {

/// Cuts off the part of the paragraph after the given place and returns it.
std::vector<Tramo> CortarDesde(Parrafo& parrafo, std::size_t tramo, std::size_t byte) {
    std::vector<Tramo> cola;
    if (tramo >= parrafo.tramos.size()) {
        return cola;
    }
    Tramo& partido = parrafo.tramos[tramo];
    if (byte < partido.texto.size()) {
        cola.push_back({partido.texto.substr(byte), partido.formato});
        partido.texto.resize(byte);
    }
    const auto siguiente = parrafo.tramos.begin() + static_cast<std::ptrdiff_t>(tramo + 1);
    cola.insert(cola.end(), std::make_move_iterator(siguiente), std::make_move_iterator(parrafo.tramos.end()));
    parrafo.tramos.erase(byte == 0 ? siguiente - 1 : siguiente, parrafo.tramos.end());
    return cola;
}

}  // namespace

void EditorTextoRico::Documento(TextoRico documento) {
    documento_ = std::move(documento);
    std::size_t caracteres = documento_.parrafos.size() - 1;
    for (const Parrafo& parrafo : documento_.parrafos) {
        for (const Tramo& tramo : parrafo.tramos) {
            caracteres += ContarUtf8(tramo.texto);
        }
    }
    longitud_ = static_cast<int>(caracteres);
    SelStart(0);
}

std::vector<std::string> EditorTextoRico::Lineas() const {
    std::vector<std::string> lineas;
    for (const Parrafo& parrafo : documento_.parrafos) {
        lineas.push_back(parrafo.Texto());
    }
    return lineas;
}

std::vector<int> EditorTextoRico::Alineaciones() const {
    std::vector<int> alineaciones;
    for (const Parrafo& parrafo : documento_.parrafos) {
        alineaciones.push_back(static_cast<int>(parrafo.formato.alineacion));
    }
    return alineaciones;
}

void EditorTextoRico::SelStart(int caracter) {
    const int nuevo = std::clamp(caracter, 0, longitud_);
    // When the cursor moves forward, counting starts at its present place, so that the usual small steps take little
    // time.
    if (nuevo == longitud_) {
        punto_ = Final();
    } else {
        punto_ = nuevo >= inicio_ ? Avanzar(punto_, nuevo - inicio_) : Avanzar({}, nuevo);
    }
    inicio_ = nuevo;
    largo_ = 0;
    formato_ = FormatoAntes(punto_);
}

void EditorTextoRico::SelLength(int caracteres) { largo_ = std::clamp(caracteres, 0, longitud_ - inicio_); }

void EditorTextoRico::SelIndent(int twips) {
    CambiarParrafos([twips](FormatoParrafo& formato) { formato.sangriaIzquierda = twips; });
}

void EditorTextoRico::SelRightIndent(int twips) {
    CambiarParrafos([twips](FormatoParrafo& formato) { formato.sangriaDerecha = twips; });
}

void EditorTextoRico::SelTabs(const std::vector<int>& twips) {
    CambiarParrafos([&twips](FormatoParrafo& formato) { formato.tabuladores = twips; });
}

void EditorTextoRico::SelAlignment(int alineacion) {
    if (alineacion < 0 || alineacion > static_cast<int>(Alineacion::kJustificada)) {
        throw ErrorEjecucion(kArgumentoNoValido);
    }
    CambiarParrafos(
        [alineacion](FormatoParrafo& formato) { formato.alineacion = static_cast<Alineacion>(alineacion); });
}

std::string EditorTextoRico::SelRTF() const { return EscribirRtf(Seleccion(), ClaseRtf::kFragmento); }

void EditorTextoRico::SelRTF(std::string_view texto) {
    if (EsRtf(texto)) {
        Insertar(LeerRtf(texto, ClaseRtf::kFragmento));
    } else {
        SelText(texto);
    }
}

void EditorTextoRico::Pegar(std::string_view texto) {
    ExigirLargoManejable(texto);
    ExigirManejable(LeerRtf(texto, ClaseRtf::kFragmento));
    SelRTF(texto);
}

std::string EditorTextoRico::SelText() const { return Seleccion().Texto(); }

void EditorTextoRico::SelText(std::string_view texto) {
    BorrarSeleccion();
    InsertarParrafos(DeTextoPlano(texto, formato_, ParrafoActual().formato).parrafos);
}

void EditorTextoRico::Insertar(TextoRico texto) {
    BorrarSeleccion();
    Parrafo& actual = documento_.parrafos[punto_.parrafo];
    const Parrafo& ultimo = texto.parrafos.back();
    if (actual.tramos.empty() && !ultimo.tramos.empty()) {
        actual.formato = ultimo.formato;
    }
    InsertarParrafos(std::move(texto.parrafos));
    formato_ = FormatoAntes(punto_);
}

void EditorTextoRico::LoadFile(const std::string& ruta) {
    constexpr std::string_view kMarcaUtf8 = "\xEF\xBB\xBF";
    const std::string contenido = LeerArchivo(ruta, kMaxArchivoDocumento + 1);
    ExigirLargoManejable(contenido);
    std::string_view texto = contenido;
    if (texto.starts_with(kMarcaUtf8)) {
        texto.remove_prefix(kMarcaUtf8.size());
    }
    TextoRico leido =
        EsRtf(texto) ? LeerRtf(texto) : DeTextoPlano(EsUtf8(texto) ? std::string(texto) : DeWindows1252(texto));
    ExigirManejable(leido);
    Documento(std::move(leido));
}

void EditorTextoRico::SaveFile(const std::string& ruta) const {
    ReemplazoDeArchivo archivo(ruta, true);
    archivo.Escribir(EscribirRtf(documento_, ClaseRtf::kDocumento));
    archivo.Publicar();
}

EditorTextoRico::Punto EditorTextoRico::Avanzar(Punto desde, int caracteres) const {
    auto faltan = static_cast<std::size_t>(caracteres);
    while (faltan > 0) {
        const std::vector<Tramo>& tramos = documento_.parrafos[desde.parrafo].tramos;
        if (desde.tramo < tramos.size()) {
            const std::string_view resto = std::string_view(tramos[desde.tramo].texto).substr(desde.byte);
            const std::size_t quedan = ContarUtf8(resto);
            if (faltan <= quedan) {
                desde.byte += ByteDeCaracter(resto, faltan);
                return desde;
            }
            faltan -= quedan;
        }
        if (desde.tramo + 1 < tramos.size()) {
            desde = {desde.parrafo, desde.tramo + 1, 0};
        } else {
            desde = {desde.parrafo + 1, 0, 0};
            --faltan;
        }
    }
    return desde;
}

EditorTextoRico::Punto EditorTextoRico::Final() const {
    const std::vector<Tramo>& tramos = documento_.parrafos.back().tramos;
    const std::size_t parrafo = documento_.parrafos.size() - 1;
    return tramos.empty() ? Punto{parrafo, 0, 0} : Punto{parrafo, tramos.size() - 1, tramos.back().texto.size()};
}

FormatoCaracter EditorTextoRico::FormatoAntes(const Punto& punto) const {
    const std::vector<Tramo>& tramos = documento_.parrafos[punto.parrafo].tramos;
    if (!tramos.empty()) {
        return tramos[punto.tramo].formato;
    }
    for (std::size_t i = punto.parrafo; i-- > 0;) {
        const std::vector<Tramo>& anteriores = documento_.parrafos[i].tramos;
        if (!anteriores.empty()) {
            return anteriores.back().formato;
        }
    }
    return {};
}

TextoRico EditorTextoRico::Seleccion() const {
    const Punto fin = FinalSeleccion();
    TextoRico elegido;
    elegido.parrafos.clear();
    for (std::size_t i = punto_.parrafo; i <= fin.parrafo; ++i) {
        const Parrafo& parrafo = documento_.parrafos[i];
        Parrafo copia{parrafo.formato, {}};
        const bool primero = i == punto_.parrafo;
        const bool ultimo = i == fin.parrafo;
        for (std::size_t j = primero ? punto_.tramo : 0; j < parrafo.tramos.size() && !(ultimo && j > fin.tramo); ++j) {
            const Tramo& tramo = parrafo.tramos[j];
            const std::size_t desde = primero && j == punto_.tramo ? punto_.byte : 0;
            const std::size_t hasta = ultimo && j == fin.tramo ? fin.byte : tramo.texto.size();
            copia.Agregar({tramo.texto.substr(desde, hasta - desde), tramo.formato});
        }
        elegido.parrafos.push_back(std::move(copia));
    }
    return elegido;
}

template <typename Cambio>
void EditorTextoRico::CambiarParrafos(Cambio cambio) {
    const Punto fin = FinalSeleccion();
    // A selection that ends with a line break does not include the line after the break.
    const bool soloSalto = fin.parrafo > punto_.parrafo && fin.byte == 0;
    const std::size_t hasta = soloSalto ? fin.parrafo - 1 : fin.parrafo;
    for (std::size_t i = punto_.parrafo; i <= hasta; ++i) {
        cambio(documento_.parrafos[i].formato);
    }
}

void EditorTextoRico::BorrarSeleccion() {
    if (largo_ == 0) {
        return;
    }
    formato_ = FormatoAntes(Avanzar(punto_, 1));
    const Punto fin = FinalSeleccion();
    std::vector<Tramo> cola = CortarDesde(documento_.parrafos[fin.parrafo], fin.tramo, fin.byte);
    Parrafo& actual = documento_.parrafos[punto_.parrafo];
    CortarDesde(actual, punto_.tramo, punto_.byte);
    for (Tramo& tramo : cola) {
        actual.Agregar(std::move(tramo));
    }
    // The joined line ends with the line break of the last selected line, and so takes the format of that line.
    actual.formato = documento_.parrafos[fin.parrafo].formato;
    const auto inicio = documento_.parrafos.begin();
    documento_.parrafos.erase(inicio + static_cast<std::ptrdiff_t>(punto_.parrafo + 1),
                              inicio + static_cast<std::ptrdiff_t>(fin.parrafo + 1));
    longitud_ -= largo_;
    largo_ = 0;
}

void EditorTextoRico::InsertarTramo(const Tramo& tramo) {
    std::vector<Tramo>& tramos = documento_.parrafos[punto_.parrafo].tramos;
    if (!tramos.empty() && tramos[punto_.tramo].formato == tramo.formato) {
        tramos[punto_.tramo].texto.insert(punto_.byte, tramo.texto);
        punto_.byte += tramo.texto.size();
    } else {
        Parrafo& parrafo = documento_.parrafos[punto_.parrafo];
        std::vector<Tramo> cola = CortarDesde(parrafo, punto_.tramo, punto_.byte);
        parrafo.Agregar(tramo);
        punto_ = {punto_.parrafo, tramos.size() - 1, tramos.back().texto.size()};
        for (Tramo& siguiente : cola) {
            parrafo.Agregar(std::move(siguiente));
        }
    }
    const auto caracteres = static_cast<int>(ContarUtf8(tramo.texto));
    longitud_ += caracteres;
    inicio_ += caracteres;
}

void EditorTextoRico::InsertarParrafos(std::vector<Parrafo> nuevos) {
    if (nuevos.size() == 1) {
        for (const Tramo& tramo : nuevos.front().tramos) {
            InsertarTramo(tramo);
        }
        return;
    }
    std::size_t caracteres = nuevos.size() - 1;
    for (const Parrafo& nuevo : nuevos) {
        for (const Tramo& tramo : nuevo.tramos) {
            caracteres += ContarUtf8(tramo.texto);
        }
    }
    Parrafo& actual = documento_.parrafos[punto_.parrafo];
    std::vector<Tramo> cola = CortarDesde(actual, punto_.tramo, punto_.byte);
    for (Tramo& tramo : nuevos.front().tramos) {
        actual.Agregar(std::move(tramo));
    }
    Parrafo& ultimo = nuevos.back();
    ultimo.formato = std::exchange(actual.formato, nuevos.front().formato);
    const Punto final =
        ultimo.tramos.empty() ? Punto{} : Punto{0, ultimo.tramos.size() - 1, ultimo.tramos.back().texto.size()};
    for (Tramo& tramo : cola) {
        ultimo.Agregar(std::move(tramo));
    }
    const auto lugar = documento_.parrafos.begin() + static_cast<std::ptrdiff_t>(punto_.parrafo + 1);
    punto_ = {punto_.parrafo + nuevos.size() - 1, final.tramo, final.byte};
    documento_.parrafos.insert(lugar, std::make_move_iterator(nuevos.begin() + 1),
                               std::make_move_iterator(nuevos.end()));
    longitud_ += static_cast<int>(caracteres);
    inicio_ += static_cast<int>(caracteres);
}

}  // namespace cuencalia
