#include <algorithm>
#include <array>
#include <cstdint>
#include <unordered_map>
#include <vector>

#include "frame/base/utf8.h"
#include "frame/reportes/rtf.h"

namespace cuencalia {

namespace {

class Escritor {
  public:
    Escritor(const TextoRico& texto, ClaseRtf clase) : texto_(texto), clase_(clase) {
        NumeroFuente(kFuenteReporte);  // font 0, used by text without a font of its own
    }

    std::string Escribir() {
        for (std::size_t i = 0; i < texto_.parrafos.size(); ++i) {
            const bool ultimo = i + 1 == texto_.parrafos.size();
            EscribirParrafo(texto_.parrafos[i], !ultimo || clase_ == ClaseRtf::kDocumento);
        }
        return Cabecera() + cuerpo_ + "}\n";
    }

  private:
    std::string Cabecera() const {
        std::string cabecera = "{\\rtf1\\ansi\\ansicpg1252\\uc1\\deff0\\deftab720\n{\\fonttbl";
        for (std::size_t i = 0; i < fuentes_.size(); ++i) {
            cabecera += "{\\f" + std::to_string(i) + (EsMonoespaciada(fuentes_[i]) ? "\\fmodern\\fprq1" : "\\fnil");
            cabecera += "\\fcharset0 ";
            AgregarTexto(cabecera, fuentes_[i]);
            cabecera += ";}";
        }
        cabecera += "}\n{\\colortbl;";
        for (const std::uint32_t color : colores_) {
            cabecera += "\\red" + std::to_string(color >> 16 & 0xFF) + "\\green" + std::to_string(color >> 8 & 0xFF) +
                        "\\blue" + std::to_string(color & 0xFF) + ";";
        }
        return cabecera + "}\n";
    }

    static bool EsMonoespaciada(std::string_view fuente) {
        constexpr std::array<std::string_view, 5> kSenales{"Courier", "Mono", "Consol", "Fixed", "Typewriter"};
        return std::any_of(kSenales.begin(), kSenales.end(),
                           [fuente](std::string_view senal) { return fuente.find(senal) != std::string_view::npos; });
    }

    void EscribirParrafo(const Parrafo& parrafo, bool conMarca) {
        if (anterior_ == nullptr || anterior_->formato != parrafo.formato) {
            EscribirFormato(parrafo.formato);
        }
        anterior_ = &parrafo;
        for (const Tramo& tramo : parrafo.tramos) {
            EscribirTramo(tramo);
        }
        if (conMarca) {
            cuerpo_ += "\\par\n";
        }
    }

    void EscribirTramo(const Tramo& tramo) {
        // LibreOffice ends superscript and subscript only at the end of their group.
        const bool enGrupo = tramo.formato.posicion != PosicionVertical::kNormal;
        cuerpo_ += enGrupo ? "{" : "";
        if (caracter_ == nullptr || *caracter_ != tramo.formato) {
            EscribirFormato(tramo.formato);
        }
        AgregarTexto(cuerpo_, tramo.texto);
        cuerpo_ += enGrupo ? "}" : "";
        caracter_ = enGrupo ? caracter_ : &tramo.formato;
    }

    void EscribirFormato(const FormatoParrafo& formato) {
        constexpr std::array<std::string_view, 4> kAlineaciones{"\\ql", "\\qr", "\\qc", "\\qj"};
        cuerpo_ += "\\pard";
        cuerpo_ += kAlineaciones[static_cast<std::size_t>(formato.alineacion)];
        AgregarMedida("\\li", formato.sangriaIzquierda);
        AgregarMedida("\\ri", formato.sangriaDerecha);
        AgregarMedida("\\fi", formato.primeraLinea);
        AgregarMedida("\\sb", formato.espacioAntes);
        AgregarMedida("\\sa", formato.espacioDespues);
        for (const int tabulador : formato.tabuladores) {
            cuerpo_ += "\\tx" + std::to_string(tabulador);
        }
        cuerpo_ += ' ';
    }

    void EscribirFormato(const FormatoCaracter& formato) {
        cuerpo_ +=
            "\\plain\\f" + std::to_string(NumeroFuente(formato.fuente)) + "\\fs" + std::to_string(formato.medioPuntos);
        cuerpo_ += formato.negrita ? "\\b" : "";
        cuerpo_ += formato.cursiva ? "\\i" : "";
        cuerpo_ += formato.subrayado ? "\\ul" : "";
        cuerpo_ += formato.tachado ? "\\strike" : "";
        constexpr std::array<std::string_view, 3> kPosiciones{"", "\\super", "\\sub"};
        cuerpo_ += kPosiciones[static_cast<std::size_t>(formato.posicion)];
        if (formato.color) {
            cuerpo_ += "\\cf" + std::to_string(NumeroColor(*formato.color));
        }
        if (formato.fondo) {
            // The background colour is written twice, since some programs know only \highlight and others only
            // \chcbpat.
            const std::string numero = std::to_string(NumeroColor(*formato.fondo));
            cuerpo_ += "\\highlight" + numero + "\\chshdng0\\chcbpat" + numero;
        }
        cuerpo_ += ' ';
    }

    void AgregarMedida(std::string_view palabra, int twips) {
        if (twips != 0) {
            cuerpo_ += palabra;
            cuerpo_ += std::to_string(twips);
        }
    }

    static void AgregarTexto(std::string& destino, std::string_view texto) {
        for (std::size_t i = 0; i < texto.size();) {
            const CaracterUtf8 c = LeerUtf8(texto, i);
            AgregarCaracter(destino, c.codigo);
            i += c.bytes;
        }
    }

    static void AgregarCaracter(std::string& destino, char32_t c) {
        if (c == '\\' || c == '{' || c == '}') {
            destino += '\\';
            destino += static_cast<char>(c);
        } else if (c == '\t') {
            destino += "\\tab ";
        } else if (c < 0x20 || c == 0x7F) {
            constexpr std::string_view kHex = "0123456789abcdef";
            destino += "\\'";
            destino += kHex[c >> 4];
            destino += kHex[c & 0xF];
        } else if (c < 0x80) {
            destino += static_cast<char>(c);
        } else if (c < 0x10000) {
            AgregarUnidad(destino, c);
        } else {
            AgregarUnidad(destino, 0xD800 + ((c - 0x10000) >> 10));
            AgregarUnidad(destino, 0xDC00 + ((c - 0x10000) & 0x3FF));
        }
    }

    /// Appends a UTF-16 unit as a signed number, followed by the one substitute character ("?") that \uc1 announces for
    /// readers without Unicode.
    static void AgregarUnidad(std::string& destino, char32_t unidad) {
        destino += "\\u" + std::to_string(static_cast<std::int16_t>(unidad)) + "?";
    }

    std::size_t NumeroFuente(const std::string& fuente) {
        const auto [lugar, nueva] = numeroFuente_.try_emplace(fuente, fuentes_.size());
        if (nueva) {
            fuentes_.push_back(fuente);
        }
        return lugar->second;
    }

    /// Number of the colour in the colour table, from 1: entry 0 is the reader's default colour.
    std::size_t NumeroColor(std::uint32_t color) {
        const auto [lugar, nuevo] = numeroColor_.try_emplace(color, colores_.size() + 1);
        if (nuevo) {
            colores_.push_back(color);
        }
        return lugar->second;
    }

    const TextoRico& texto_;
    ClaseRtf clase_;
    std::string cuerpo_;
    std::vector<std::string> fuentes_;
    std::unordered_map<std::string, std::size_t> numeroFuente_;
    std::vector<std::uint32_t> colores_;
    std::unordered_map<std::uint32_t, std::size_t> numeroColor_;
    const Parrafo* anterior_ = nullptr;
    const FormatoCaracter* caracter_ = nullptr;
};

}  // namespace

std::string EscribirRtf(const TextoRico& texto, ClaseRtf clase) { return Escritor(texto, clase).Escribir(); }

}  // namespace cuencalia
