#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "frame/reportes/textorico.h"

namespace cuencalia {

/// What a rich-text box offers the program: a document, empty at first, with a selection. Positions and lengths count
/// characters (code points), a line break being one. Inserting at one place again and again costs the text inserted,
/// not the document; only a line break moves the lines after it.
class EditorTextoRico {
  public:
    const TextoRico& Documento() const { return documento_; }
    /// Replaces the document; the insertion point goes to its beginning.
    void Documento(TextoRico documento);

    /// The plain text, with \n between lines.
    std::string Text() const { return documento_.Texto(); }
    std::vector<std::string> Lineas() const;
    /// The alignment of each line, as in SelAlignment.
    std::vector<int> Alineaciones() const;
    /// Characters of the document.
    int Longitud() const { return longitud_; }

    /// Beginning of the selection. Setting it leaves nothing selected; a value outside the document goes to its nearer
    /// end.
    int SelStart() const { return inicio_; }
    void SelStart(int caracter);
    /// Characters selected. Setting it selects no further than the end of the document.
    int SelLength() const { return largo_; }
    void SelLength(int caracteres);

    /// Left indent in twips of the paragraphs that the selection touches, or of the one with the insertion point. Lines
    /// begun there later inherit it. Reading gives that of the first paragraph.
    int SelIndent() const { return ParrafoActual().formato.sangriaIzquierda; }
    void SelIndent(int twips);
    /// Right indent in twips, as SelIndent.
    int SelRightIndent() const { return ParrafoActual().formato.sangriaDerecha; }
    void SelRightIndent(int twips);
    /// Alignment, as SelIndent: 0 left, 1 right, 2 centred, 3 justified. Error 5 for another value.
    int SelAlignment() const { return static_cast<int>(ParrafoActual().formato.alineacion); }
    void SelAlignment(int alineacion);

    /// The selection as RTF source.
    std::string SelRTF() const;
    /// Replaces the selection by RTF source, or by the text as it stands if it is not RTF source. The insertion point
    /// ends behind it.
    void SelRTF(std::string_view texto);
    /// The selection as plain text.
    std::string SelText() const;
    /// Replaces the selection by the text as it stands, in the format of what it replaces or else of the character
    /// before. The insertion point ends behind it.
    void SelText(std::string_view texto);
    /// Replaces the selection by a formatted text. As a paragraph's format belongs to its line break, the lines that
    /// the text brings whole keep their own; the rest of the line broken keeps its.
    void Insertar(TextoRico texto);

    /// Reads an RTF file, or a plain text in UTF-8 or else Windows-1252. Error 53 if there is no such file, 75 if it
    /// cannot be read; the document then stays.
    void LoadFile(const std::string& ruta);
    /// Writes the document as RTF beside the file and puts it in its place when it is complete. Error 61 if it does not
    /// fit on the disk, 76 if its folder does not exist, 75 for any other failure; the old file then stays.
    void SaveFile(const std::string& ruta) const;

  private:
    /// A place between two characters. Never at the beginning of a piece that has another one before it.
    struct Punto {
        std::size_t parrafo = 0;
        std::size_t tramo = 0;
        std::size_t byte = 0;
    };

    const Parrafo& ParrafoActual() const { return documento_.parrafos[punto_.parrafo]; }
    Punto Avanzar(Punto desde, int caracteres) const;
    Punto Final() const;
    Punto FinalSeleccion() const { return Avanzar(punto_, largo_); }
    FormatoCaracter FormatoAntes(const Punto& punto) const;
    TextoRico Seleccion() const;
    template <typename Cambio>
    void CambiarParrafos(Cambio cambio);
    void BorrarSeleccion();
    void InsertarTramo(const Tramo& tramo);
    void InsertarParrafos(std::vector<Parrafo> nuevos);

    TextoRico documento_;
    int longitud_ = 0;
    int inicio_ = 0;
    int largo_ = 0;
    Punto punto_;              ///< Where inicio_ is.
    FormatoCaracter formato_;  ///< Of the text typed next.
};

}  // namespace cuencalia
