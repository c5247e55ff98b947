#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "frame/reportes/paginascodigo.h"
#include "frame/reportes/rtf.h"

/// Parts of the RTF reader: the state machine that goes through the source, and the control words that act on it.
namespace cuencalia::rtf {

constexpr int kMaximoTwips = 31680;  // 22 inches, the longest measure of the definition.
constexpr int kMaximoMedioPuntos = 3276;
constexpr int kMedioPuntosBase = 24;
constexpr int kFuenteSinNombrar = -1;
constexpr int kSinColor = -1;

/// The number after a control word.
struct Parametro {
    int valor = 0;
    bool hay = false;

    int O(int otro) const { return hay ? valor : otro; }
    bool Enciende() const { return !hay || valor != 0; }
    int Twips() const { return std::clamp(valor, -kMaximoTwips, kMaximoTwips); }
};

enum class Destino : std::uint8_t { kTexto, kFuentes, kColores, kNinguno };

/// Character properties, as the numbers given in the source. It is small, because every open group may keep a copy.
struct EstadoCaracter {
    int fuente = kFuenteSinNombrar;
    int medioPuntos = kMedioPuntosBase;
    int color = kSinColor;
    int fondo = kSinColor;
    PosicionVertical posicion = PosicionVertical::kNormal;
    bool negrita = false;
    bool cursiva = false;
    bool subrayado = false;
    bool tachado = false;
    bool oculto = false;

    bool operator==(const EstadoCaracter&) const = default;
};

struct EstadoParrafo {
    Alineacion alineacion = Alineacion::kIzquierda;
    int izquierda = 0;
    int derecha = 0;
    int primera = 0;
    int antes = 0;
    int despues = 0;
    std::shared_ptr<std::vector<int>> tabuladores;  ///< Shared with the enclosing groups until changed.

    bool operator==(const EstadoParrafo&) const = default;
};

/// The state that is saved when a group begins and restored when it ends.
struct Estado {
    EstadoCaracter caracter;
    EstadoParrafo parrafo;
    int sustitutos = 1;  ///< Number of characters after each \u for readers without Unicode.
    Destino destino = Destino::kTexto;

    bool operator==(const Estado&) const = default;
};

struct Fuente {
    std::string nombre;
    const PaginaCodigo* pagina = nullptr;  ///< nullptr: the code page of the document.
};

/// The state machine of LeerRtf, on which the control words act.
class Lector {
  public:
    explicit Lector(std::string_view fuente) : resto_(fuente) {}

    TextoRico Leer(ClaseRtf clase);

    // Called by the actions of the control words.
    Estado& Actual() { return estado_; }
    EstadoCaracter& CaracterActual() { return estado_.caracter; }
    EstadoParrafo& ParrafoActual() { return estado_.parrafo; }
    void IrA(Destino destino) { estado_.destino = destino; }
    void Pagina(int numero) { pagina_ = BuscarPagina(numero); }
    void FuenteBase(int numero) { fuenteBase_ = numero; }
    void ElegirFuente(int numero);
    void PaginaFuente(const PaginaCodigo* pagina);
    void Componente(int desplazamiento, int valor);
    void Tabulador(int twips);
    void Unidad(int unidad);
    void Emitir(char32_t c);
    void TerminarParrafo();
    void PartirLinea();
    void Saltar(int bytes) { resto_.remove_prefix(std::min(resto_.size(), static_cast<std::size_t>(bytes))); }

  private:
    struct GrupoAbierto {
        Estado estado;
        std::size_t veces;  ///< Number of nested groups opened in this same state.
    };

    void AbrirGrupo();
    void CerrarGrupo();
    void LeerControl();
    void Palabra(std::string_view palabra, Parametro parametro);
    void Simbolo(char simbolo);
    void Hexadecimal();
    void Byte(unsigned char byte);
    void Literal(std::string_view texto);
    bool EsSustituto();
    void CerrarFuente();
    void SoltarSustitutoAlto();
    void EscribirCaracter(char32_t c);
    Tramo& TramoVigente();
    void FijarParrafo();
    const Fuente* BuscarFuente() const;
    const PaginaCodigo& PaginaVigente() const;
    FormatoCaracter Formato() const;
    std::optional<std::uint32_t> BuscarColor(int numero) const;

    std::string_view resto_;
    Estado estado_;
    std::vector<GrupoAbierto> grupos_;
    bool terminado_ = false;
    bool opcional_ = false;  ///< The last control symbol was \*.
    int porSaltar_ = 0;      ///< Substitute characters after a \u still to be skipped.
    char32_t sustitutoAlto_ = 0;

    const PaginaCodigo* pagina_ = BuscarPagina(1252);
    int fuenteBase_ = 0;
    std::unordered_map<int, Fuente> fuentes_;
    int fuenteDefinida_ = kFuenteSinNombrar;
    Fuente definicion_;
    std::vector<std::optional<std::uint32_t>> colores_;
    std::optional<std::uint32_t> colorDefinido_;  ///< None: the reader's default colour.

    TextoRico texto_;
    std::optional<EstadoCaracter> vigente_;  ///< State in which the last piece of text began.
    std::size_t piezas_ = 0;                 ///< Lines and pieces of one format written.
    bool trasMarca_ = false;                 ///< A paragraph mark was the last thing written.
};

/// The action of a control word.
using Accion = void (*)(Lector&, Parametro);

/// The action of a control word; null for a word that is not known.
Accion BuscarPalabra(std::string_view palabra);

}  // namespace cuencalia::rtf
