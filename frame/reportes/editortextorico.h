#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "frame/reportes/textorico.h"

namespace cuencalia {

/// The contents of a rich-text box for the program: a document, empty at first, with a selection. Positions and lengths
/// count characters (code points), a line break being one. The time to insert at the same place repeatedly depends on
/// the text inserted, not on the size of the document; only inserting a line break moves the lines after it.
class EditorTextoRico {
  public:
    const TextoRico& Documento() const { return documento_; }
    /// Replaces the document; the insertion point goes to its beginning.
    void Documento(TextoRico documento);

    /// The plain text, with \n between lines.
    std::string Text() const { return documento_.Texto(); }
    std::vector<std::string> Lineas() const;
    /// The alignment of each line, with the values of SelAlignment.
    std::vector<int> Alineaciones() const;
    /// Number of characters of the document.
    int Longitud() const { return longitud_; }

    /// Position where the selection begins. Setting it leaves nothing selected; a value outside the document is moved
    /// to the nearer end.
    int SelStart() const { return inicio_; }
    void SelStart(int caracter);
    /// Number of characters selected. A length that goes beyond the end of the document is cut there.
    int SelLength() const { return largo_; }
    void SelLength(int caracteres);

    /// Left indent in twips of the paragraphs that the selection touches, or of the paragraph with the insertion point.
    /// New lines begun there inherit it. Reading gives the indent of the first of those paragraphs.
    int SelIndent() const { return ParrafoActual().formato.sangriaIzquierda; }
    void SelIndent(int twips);
    /// Right indent in twips, for the same paragraphs as SelIndent.
    int SelRightIndent() const { return ParrafoActual().formato.sangriaDerecha; }
    void SelRightIndent(int twips);
    /// Tab stops of the same paragraphs, in twips from the margin; none: those of every half inch.
    void SelTabs(const std::vector<int>& twips);
    /// Alignment of the same paragraphs as SelIndent: 0 left, 1 right, 2 centred, 3 justified. Error 5 for another
    /// value.
    int SelAlignment() const { return static_cast<int>(ParrafoActual().formato.alineacion); }
    void SelAlignment(int alineacion);

    /// The selection as RTF source.
    std::string SelRTF() const;
    /// Replaces the selection by RTF source; text that is not RTF source is inserted as plain text. The insertion point
    /// is then after the inserted text.
    void SelRTF(std::string_view texto);
    /// As SelRTF, for a text from outside the program. Error 1005 for one that would keep the window busy.
    void Pegar(std::string_view texto);
    /// The selection as plain text.
    std::string SelText() const;
    /// Replaces the selection by plain text, in the format of the replaced text, or of the character before when
    /// nothing was selected. The insertion point is then after the inserted text.
    void SelText(std::string_view texto);
    /// Replaces the selection by a formatted text. A paragraph's format belongs to its line break: every inserted line
    /// with a line break of its own keeps its format, and the rest of the line at the insertion point keeps the format
    /// of that line.
    void Insertar(TextoRico texto);

    /// Reads an RTF file, or a plain text in UTF-8 or, if it is not valid UTF-8, Windows-1252. Error 53 if there is no
    /// such file, 75 if it cannot be read, 1005 if it would keep the window busy; the document is then unchanged.
    void LoadFile(const std::string& ruta);
    /// Writes the document as RTF; an existing file is replaced only when the new one is complete. Error 61 if it does
    /// not fit on the disk, 76 if its folder does not exist, 75 for any other failure; the old file is then unchanged.
    void SaveFile(const std::string& ruta) const;

  private:
    /// A place between two characters. Between two pieces of a paragraph it is the end of the first, not the beginning
    /// of the second.
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
    Punto punto_;              ///< The same place as inicio_.
    FormatoCaracter formato_;  ///< Format of the text to be typed next.
};

}  // namespace cuencalia
