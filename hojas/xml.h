#pragma once

#include <cstddef>
#include <cstdint>
#include <exception>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

struct XML_ParserStruct;

namespace cuencalia {

/// The attributes of the element that is being opened.
class AtributosXml {
  public:
    explicit AtributosXml(const char** pares) : pares_(pares) {}

    /// Value of the attribute with this name and no namespace.
    std::optional<std::string_view> Valor(std::string_view nombre) const;
    /// Value of the attribute `id` that refers to a relationship of the part, whatever its namespace prefix.
    std::optional<std::string_view> IdRelacion() const;

  private:
    const char** pares_;  // name, value, name, value, ..., null
};

/// Reads one XML part of a workbook. Elements of the workbook's own vocabularies (the same in both dialects of the
/// standard) are reported by their path from the root, such as "worksheet/sheetData/row". Elements of other
/// vocabularies are skipped with their contents; of alternate contents only the fallback is read.
///
/// The part is passed piece by piece to Alimentar, then Concluir is called. Error 1004 for malformed XML, another root,
/// nesting that is too deep, a tag or comment of hundreds of KiB, and a document type declaration (which the format
/// forbids, and which could declare entities that expand without limit).
class LectorXml {
  public:
    /// `raiz` is the name that the root element must have; empty: any name.
    explicit LectorXml(std::string raiz);
    LectorXml(const LectorXml&) = delete;
    LectorXml& operator=(const LectorXml&) = delete;
    virtual ~LectorXml();

    /// Parses the next piece; returns false when the rest of the part is not needed.
    bool Alimentar(std::span<const std::byte> trozo);
    /// Ends the part; checks that it is complete, unless its rest was not needed.
    void Concluir();

  protected:
    virtual void AlAbrir(std::string_view /*ruta*/, const AtributosXml& /*atributos*/) {}
    virtual void AlTexto(std::string_view /*ruta*/, std::string_view /*texto*/) {}
    virtual void AlCerrar(std::string_view /*ruta*/) {}

    /// Tells that the rest of the part is not needed.
    void Detener();

  private:
    struct Enlace;  // the parser's C callbacks
    struct Liberar {
        void operator()(XML_ParserStruct* analizador) const;
    };

    void Analizar(std::span<const std::byte> trozo, bool ultimo);
    void Abrir(std::string_view nombre, const char** atributos);
    void Cerrar(std::string_view nombre);

    std::unique_ptr<XML_ParserStruct, Liberar> analizador_;
    std::exception_ptr fallo_;
    std::string raiz_;
    std::string ruta_;
    std::int64_t leidos_ = 0;
    int profundidad_ = 0;
    int ajenos_ = 0;  // depth within the outermost element of another vocabulary; 0 outside
    bool detenido_ = false;
};

}  // namespace cuencalia
