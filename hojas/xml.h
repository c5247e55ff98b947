#pragma once

#include <cstddef>
#include <exception>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

struct XML_ParserStruct;

namespace cuencalia {

/// The attributes of an element while it is being opened.
class AtributosXml {
  public:
    explicit AtributosXml(const char** pares) : pares_(pares) {}

    /// The attribute of this name and no namespace.
    std::optional<std::string_view> Valor(std::string_view nombre) const;
    /// The attribute `id` that refers to a relationship of the part, whatever prefix it was written with.
    std::optional<std::string_view> IdRelacion() const;

  private:
    const char** pares_;  // name, value, name, value, ..., null
};

/// Reads one XML part of a workbook. It sees the elements of the workbook's own vocabularies (the standard's two
/// dialects alike) by their path from the root, "worksheet/sheetData/row"; foreign elements are passed over with all
/// that they hold, and of alternate contents the fallback stands for the whole.
///
/// The whole of a part arrives by Alimentar and Concluir. Error 1004 for malformed XML, another root, a document type
/// declaration (which the format forbids, and which could declare entities that expand without end) and absurdly deep
/// nesting.
class LectorXml {
  public:
    /// `raiz` is the name of the root that the part must have; empty when any root will do.
    explicit LectorXml(std::string raiz);
    LectorXml(const LectorXml&) = delete;
    LectorXml& operator=(const LectorXml&) = delete;
    virtual ~LectorXml();

    /// Takes the next piece; false when the reader has seen enough.
    bool Alimentar(std::span<const std::byte> trozo);
    /// Ends the part, unless the reader had seen enough before.
    void Concluir();

  protected:
    virtual void AlAbrir(std::string_view /*ruta*/, const AtributosXml& /*atributos*/) {}
    virtual void AlTexto(std::string_view /*ruta*/, std::string_view /*texto*/) {}
    virtual void AlCerrar(std::string_view /*ruta*/) {}

    /// The rest of the part does not matter.
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
    int profundidad_ = 0;
    int ajenos_ = 0;  // open elements from the outermost foreign one inwards
    bool detenido_ = false;
};

}  // namespace cuencalia
