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

/// What reading RTF is made of: the machine that walks through the source, and the words that act on it.
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

/// Character properties in the numbers of the source: small, because every open group may keep a copy.
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
    std::shared_ptr<std::vector<int>> tabuladores;  ///< Shared with the groups around.

    bool operator==(const EstadoParrafo&) const = default;
};

/// What a group restores when it ends.
struct Estado {
    EstadoCaracter caracter;
    EstadoParrafo parrafo;
    int sustitutos = 1;  ///< Characters that stand after a \u for older readers.
    Destino destino = Destino::kTexto;

    bool operator==(const Estado&) const = default;
};

struct Fuente {
    std::string nombre;
    const PaginaCodigo* pagina = nullptr;  ///< nullptr: the document's.
};

/// The state machine behind LeerRtf: what the words of the source act on.
class Lector {
  public:
    explicit Lector(std::string_view fuente) : resto_(fuente) {}

    TextoRico Leer(ClaseRtf clase);

    // Called by the words.
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
        std::size_t veces;  ///< Groups opened one inside the other in this same state.
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
    bool opcional_ = false;  ///< The last control was \*.
    int porSaltar_ = 0;      ///< Substitutes still to come after a \u.
    char32_t sustitutoAlto_ = 0;

    const PaginaCodigo* pagina_ = BuscarPagina(1252);
    int fuenteBase_ = 0;
    std::unordered_map<int, Fuente> fuentes_;
    int fuenteDefinida_ = kFuenteSinNombrar;
    Fuente definicion_;
    std::vector<std::optional<std::uint32_t>> colores_;
    std::optional<std::uint32_t> colorDefinido_;  ///< None: the reader's own.

    TextoRico texto_;
    std::optional<EstadoCaracter> vigente_;  ///< State in which the last piece was begun.
    bool trasMarca_ = false;                 ///< A paragraph mark was the last thing written.
};

/// What a control word does.
using Accion = void (*)(Lector&, Parametro);

/// The action of a control word; null for a word that is not known.
Accion BuscarPalabra(std::string_view palabra);

}  // namespace cuencalia::rtf
