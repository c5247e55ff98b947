#include "escritorio/vistatextorico.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QPalette>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <algorithm>
#include <cmath>

#include "escritorio/escritorio.h"
#include "escritorio/estilo.h"
#include "frame/reportes/reporte.h"
#include "frame/reportes/rtf.h"

namespace cuencalia {

namespace {

constexpr int kPasoTabulador = 720;  // twips; half an inch, the default of RTF
constexpr int kMargen = 6;           // pixels between the edge of the sheet and the text
constexpr int kReglaAncha = 145;     // dashes

/// Property with the colour that the text has in the file, where the screen shows another one.
constexpr int kColorPropio = QTextFormat::UserProperty;

constexpr const char* kTiposRtf[] = {"text/rtf", "application/rtf"};

double EnPixeles(int twips) { return twips / estilo::kTwipsPorPixel; }
int EnTwips(double pixeles) { return static_cast<int>(std::lround(pixeles * estilo::kTwipsPorPixel)); }

/// Font families for a font name. The report's own font has monospaced substitutes, because its tables of dashes and
/// blanks line up only with characters of equal width.
QStringList Familias(const std::string& fuente) {
    if (fuente == kFuenteReporte) {
        return {Q(fuente), QStringLiteral("Liberation Mono"), QStringLiteral("DejaVu Sans Mono"),
                QStringLiteral("monospace")};
    }
    return {Q(fuente)};
}

/// A colour of the same hue that is readable on that background: the colours of a file are meant for white paper.
QColor Legible(const QColor& color, const QColor& fondo) {
    constexpr float kContrasteMinimo = 0.3f;
    if (std::abs(color.lightnessF() - fondo.lightnessF()) >= kContrasteMinimo) {
        return color;
    }
    return QColor::fromHslF(color.hslHueF(), color.hslSaturationF(), 1 - color.lightnessF());
}

/// Converts the formats of the model to those of the toolkit, for a given background colour.
class Formatos {
  public:
    explicit Formatos(QColor papel) : papel_(papel) {}

    const QTextCharFormat& De(const FormatoCaracter& formato) {
        if (!hecho_ || formato != ultimo_) {
            ultimo_ = formato;
            qt_ = Hacer(formato);
            hecho_ = true;
        }
        return qt_;
    }

  private:
    QTextCharFormat Hacer(const FormatoCaracter& formato) const {
        QTextCharFormat qt;
        qt.setFontFamilies(Familias(formato.fuente));
        if (formato.fuente == kFuenteReporte) {
            qt.setFontStyleHint(QFont::Monospace);
            qt.setFontFixedPitch(true);
        }
        qt.setFontPointSize(std::max(formato.medioPuntos, 1) / 2.0);
        qt.setFontWeight(formato.negrita ? QFont::Bold : QFont::Normal);
        qt.setFontItalic(formato.cursiva);
        qt.setFontUnderline(formato.subrayado);
        qt.setFontStrikeOut(formato.tachado);
        qt.setVerticalAlignment(formato.posicion == PosicionVertical::kSuperindice ? QTextCharFormat::AlignSuperScript
                                : formato.posicion == PosicionVertical::kSubindice ? QTextCharFormat::AlignSubScript
                                                                                   : QTextCharFormat::AlignNormal);
        if (formato.fondo) {
            qt.setBackground(QColor(QRgb(*formato.fondo)));
        }
        if (formato.color) {
            const QColor propio{QRgb(*formato.color)};
            qt.setForeground(Legible(propio, formato.fondo ? QColor(QRgb(*formato.fondo)) : papel_));
            qt.setProperty(kColorPropio, *formato.color);
        }
        return qt;
    }

    QColor papel_;
    FormatoCaracter ultimo_;
    QTextCharFormat qt_;
    bool hecho_ = false;
};

FormatoCaracter Leer(const QTextCharFormat& qt) {
    FormatoCaracter formato;
    const QStringList familias = qt.fontFamilies().toStringList();
    if (!familias.isEmpty()) {
        formato.fuente = Std(familias.first());
    }
    if (qt.hasProperty(QTextFormat::FontPointSize)) {
        formato.medioPuntos = static_cast<int>(std::lround(2 * qt.fontPointSize()));
    }
    formato.negrita = qt.fontWeight() > QFont::Medium;
    formato.cursiva = qt.fontItalic();
    formato.subrayado = qt.fontUnderline();
    formato.tachado = qt.fontStrikeOut();
    formato.posicion = qt.verticalAlignment() == QTextCharFormat::AlignSuperScript ? PosicionVertical::kSuperindice
                       : qt.verticalAlignment() == QTextCharFormat::AlignSubScript ? PosicionVertical::kSubindice
                                                                                   : PosicionVertical::kNormal;
    if (qt.hasProperty(kColorPropio)) {
        formato.color = qt.property(kColorPropio).toUInt();
    }
    if (qt.hasProperty(QTextFormat::BackgroundBrush)) {
        formato.fondo = qt.background().color().rgb() & 0xFFFFFFu;
    }
    return formato;
}

constexpr Qt::Alignment kAlineaciones[] = {Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter, Qt::AlignJustify};

/// RTF measures tab stops from the margin, the toolkit from the indent.
QTextBlockFormat FormatoDeBloque(const FormatoParrafo& formato) {
    QTextBlockFormat qt;
    qt.setAlignment(kAlineaciones[static_cast<int>(formato.alineacion)]);
    qt.setLeftMargin(EnPixeles(formato.sangriaIzquierda));
    qt.setRightMargin(EnPixeles(formato.sangriaDerecha));
    qt.setTextIndent(EnPixeles(formato.primeraLinea));
    qt.setTopMargin(EnPixeles(formato.espacioAntes));
    qt.setBottomMargin(EnPixeles(formato.espacioDespues));
    QList<QTextOption::Tab> tabuladores;
    for (const int twips : formato.tabuladores) {
        tabuladores << QTextOption::Tab(EnPixeles(twips - formato.sangriaIzquierda), QTextOption::LeftTab);
    }
    if (!tabuladores.isEmpty()) {
        qt.setTabPositions(tabuladores);
    }
    return qt;
}

FormatoParrafo Leer(const QTextBlockFormat& qt) {
    FormatoParrafo formato;
    const auto hallada = std::find(std::begin(kAlineaciones), std::end(kAlineaciones),
                                   qt.alignment() & Qt::AlignHorizontal_Mask & ~Qt::Alignment(Qt::AlignAbsolute));
    if (hallada != std::end(kAlineaciones)) {
        formato.alineacion = static_cast<Alineacion>(hallada - std::begin(kAlineaciones));
    }
    formato.sangriaIzquierda = EnTwips(qt.leftMargin());
    formato.sangriaDerecha = EnTwips(qt.rightMargin());
    formato.primeraLinea = EnTwips(qt.textIndent());
    formato.espacioAntes = EnTwips(qt.topMargin());
    formato.espacioDespues = EnTwips(qt.bottomMargin());
    for (const QTextOption::Tab& tabulador : qt.tabPositions()) {
        formato.tabuladores.push_back(EnTwips(tabulador.position) + formato.sangriaIzquierda);
    }
    return formato;
}

/// Removes characters that the toolkit reserves for the structure of its documents.
QString SinReservados(QString texto) {
    for (const char16_t reservado : {u'\x2029', u'\xFDD0', u'\xFDD1', u'\xFFFC'}) {
        texto.replace(QChar(reservado), QChar(QChar::ReplacementCharacter));
    }
    return texto;
}

QFont LetraDeReporte() {
    QFont fuente;
    fuente.setFamilies(Familias(kFuenteReporte));
    fuente.setStyleHint(QFont::Monospace);
    fuente.setFixedPitch(true);
    fuente.setPointSizeF(FormatoCaracter{}.medioPuntos / 2.0);
    return fuente;
}

void Preparar(QTextDocument& documento) {
    documento.setDefaultFont(LetraDeReporte());
    QTextOption opcion = documento.defaultTextOption();
    opcion.setTabStopDistance(EnPixeles(kPasoTabulador));
    opcion.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    documento.setDefaultTextOption(opcion);
}

/// Replaces `cuantas` lines of the document, from line `desde` on, by the paragraphs [desde, hasta) of the text;
/// neither is empty.
void Reemplazar(QTextDocument& documento, int desde, int cuantas, const TextoRico& texto, int hasta,
                Formatos& formatos) {
    QTextCursor cursor(&documento);
    const QTextBlock ultimo = documento.findBlockByNumber(desde + cuantas - 1);
    cursor.beginEditBlock();
    cursor.setPosition(documento.findBlockByNumber(desde).position());
    cursor.setPosition(ultimo.position() + ultimo.length() - 1, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    QTextCharFormat formato = cursor.charFormat();
    for (int i = desde; i < hasta; ++i) {
        const Parrafo& parrafo = texto.parrafos[static_cast<std::size_t>(i)];
        if (!parrafo.tramos.empty()) {
            formato = formatos.De(parrafo.tramos.front().formato);
        }
        if (i == desde) {
            cursor.setBlockFormat(FormatoDeBloque(parrafo.formato));
            cursor.setBlockCharFormat(formato);
        } else {
            cursor.insertBlock(FormatoDeBloque(parrafo.formato), formato);
        }
        for (const Tramo& tramo : parrafo.tramos) {
            formato = formatos.De(tramo.formato);
            cursor.insertText(SinReservados(Q(tramo.texto)), formato);
        }
    }
    // A change of format at the end keeps the user's next typing from being merged into this undo step.
    cursor.setBlockFormat(cursor.blockFormat());
    cursor.endEditBlock();
}

/// Changes the document, which shows `antes`, so that it shows `despues`; only lines that differ are replaced.
void PonerAlDia(QTextDocument& documento, const TextoRico& antes, const TextoRico& despues, Formatos& formatos) {
    const std::vector<Parrafo>& viejos = antes.parrafos;
    const std::vector<Parrafo>& nuevos = despues.parrafos;
    const auto iguales = std::mismatch(viejos.begin(), viejos.end(), nuevos.begin(), nuevos.end());
    if (iguales.first == viejos.end() && iguales.second == nuevos.end()) {
        return;
    }
    auto desde = iguales.first - viejos.begin();
    const auto finales = std::mismatch(viejos.rbegin(), viejos.rend() - desde, nuevos.rbegin(), nuevos.rend() - desde);
    auto quedan = finales.first - viejos.rbegin();
    const auto menos = static_cast<std::ptrdiff_t>(std::min(viejos.size(), nuevos.size()));
    if (desde + quedan == menos) {
        // Lines were only added or only removed: one unchanged line is replaced with them, because Reemplazar needs at
        // least one line on either side.
        --(desde > 0 ? desde : quedan);
    }
    const auto fin = static_cast<std::ptrdiff_t>(viejos.size()) - quedan;
    Reemplazar(documento, static_cast<int>(desde), static_cast<int>(fin - desde), despues,
               static_cast<int>(static_cast<std::ptrdiff_t>(nuevos.size()) - quedan), formatos);
}

TextoRico LeerDocumento(const QTextDocument& documento) {
    TextoRico texto;
    texto.parrafos.clear();
    for (QTextBlock bloque = documento.begin(); bloque.isValid(); bloque = bloque.next()) {
        Parrafo& parrafo = texto.parrafos.emplace_back();
        parrafo.formato = Leer(bloque.blockFormat());
        for (auto i = bloque.begin(); !i.atEnd(); ++i) {
            parrafo.Agregar({Std(i.fragment().text()), Leer(i.fragment().charFormat())});
        }
    }
    return texto;
}

/// True when the document has characters outside the Unicode basic plane, so that positions in UTF-16 units and in
/// characters differ. Only then is the text extracted to convert positions, since it may be long.
bool ConSustitutos(const QTextDocument& documento, int longitud) { return documento.characterCount() - 1 != longitud; }

int EnCaracteres(const QTextDocument& documento, int posicion, int longitud) {
    return ConSustitutos(documento, longitud) ? cuencalia::EnCaracteres(documento.toPlainText(), posicion) : posicion;
}

int EnUtf16(const QTextDocument& documento, int caracteres, int longitud) {
    return ConSustitutos(documento, longitud) ? cuencalia::EnUtf16(documento.toPlainText(), caracteres) : caracteres;
}

std::string RtfDe(const QMimeData& datos) {
    for (const char* tipo : kTiposRtf) {
        std::string fuente = datos.data(QLatin1String(tipo)).toStdString();
        if (EsRtf(fuente)) {
            return fuente;
        }
    }
    return {};
}

}  // namespace

void CajaTextoRico::keyPressEvent(QKeyEvent* evento) {
    QTextCharFormat cambio;
    if (evento->matches(QKeySequence::Bold)) {
        cambio.setFontWeight(fontWeight() > QFont::Medium ? QFont::Normal : QFont::Bold);
    } else if (evento->matches(QKeySequence::Italic)) {
        cambio.setFontItalic(!fontItalic());
    } else if (evento->matches(QKeySequence::Underline)) {
        cambio.setFontUnderline(!fontUnderline());
    } else if (evento->matches(QKeySequence::InsertLineSeparator)) {
        // Every line of a report is a paragraph, so a line break inside a paragraph becomes a new paragraph.
        textCursor().insertBlock();
        ensureCursorVisible();
        return;
    } else {
        QTextEdit::keyPressEvent(evento);
        return;
    }
    mergeCurrentCharFormat(cambio);
}

QMimeData* CajaTextoRico::createMimeDataFromSelection() const {
    QMimeData* datos = QTextEdit::createMimeDataFromSelection();
    datos->setData(QLatin1String(kTiposRtf[0]), QByteArray::fromStdString(alCopiar()));
    return datos;
}

bool CajaTextoRico::canInsertFromMimeData(const QMimeData* datos) const {
    return datos->hasText() || !RtfDe(*datos).empty();
}

void CajaTextoRico::insertFromMimeData(const QMimeData* datos) {
    const std::string rtf = RtfDe(*datos);
    alPegar(rtf.empty() ? Std(datos->text()) : rtf);
}

VistaTextoRico::VistaTextoRico(Escritorio& escritorio, RichTextBox& caja, QWidget* padre)
    : Vista(escritorio, caja, new CajaTextoRico(padre)), caja_(caja), texto_(static_cast<CajaTextoRico*>(Widget())) {
    texto_->setFrameShape(QFrame::NoFrame);
    texto_->setAccessibleName(QStringLiteral("Texto del documento"));
    Preparar(*texto_->document());
    texto_->document()->setDocumentMargin(kMargen);
    connect(texto_, &QTextEdit::textChanged, this, [this] { editado_ = true; });
    texto_->alCopiar = [this] { return caja_.Leer().SelRTF(); };
    texto_->alPegar = [this](const std::string& texto) {
        // When a text is moved by dragging within the box, the widget reports its removal from the old place only at
        // the end, so the change is marked here.
        editado_ = true;
        escritorio_.App().Despachar([&] { caja_.Editor().Pegar(texto); });
    };
    texto_->document()->setModified(false);
    caja_.AlConsultar([this](EditorTextoRico& editor) { Traer(editor); });
}

void VistaTextoRico::Traer(EditorTextoRico& editor) {
    if (caja_.Version() != version_) {
        // The program changed the text after the widget was last updated: the widget's text is outdated.
        return;
    }
    const QTextCursor cursor = texto_->textCursor();
    if (editado_) {
        mostrado_ = LeerDocumento(*texto_->document());
        editor.Documento(mostrado_);
        TraerSeleccion(editor);
        editado_ = false;
    } else if (cursor.selectionStart() != inicio_ || cursor.selectionEnd() != fin_) {
        TraerSeleccion(editor);
    }
}

void VistaTextoRico::TraerSeleccion(EditorTextoRico& editor) {
    const QTextDocument& documento = *texto_->document();
    inicio_ = texto_->textCursor().selectionStart();
    fin_ = texto_->textCursor().selectionEnd();
    const int inicio = EnCaracteres(documento, inicio_, editor.Longitud());
    editor.SelStart(inicio);
    editor.SelLength(EnCaracteres(documento, fin_, editor.Longitud()) - inicio);
}

void VistaTextoRico::MostrarSeleccion(const EditorTextoRico& editor) {
    const QTextDocument& documento = *texto_->document();
    inicio_ = EnUtf16(documento, editor.SelStart(), editor.Longitud());
    fin_ = EnUtf16(documento, editor.SelStart() + editor.SelLength(), editor.Longitud());
    QTextCursor cursor = texto_->textCursor();
    cursor.setPosition(inicio_);
    cursor.setPosition(fin_, QTextCursor::KeepAnchor);
    texto_->setTextCursor(cursor);
    texto_->ensureCursorVisible();
}

void VistaTextoRico::Mostrar() {
    if (caja_.Version() != version_) {
        MostrarTexto();
    }
    if (caja_.Guardados() != guardados_) {
        guardados_ = caja_.Guardados();
        texto_->document()->setModified(false);
    }
}

void VistaTextoRico::MostrarTexto() {
    version_ = caja_.Version();
    const EditorTextoRico& editor = caja_.SinTraer();
    Formatos formatos(texto_->palette().color(QPalette::Base));
    PonerAlDia(*texto_->document(), mostrado_, editor.Documento(), formatos);
    mostrado_ = editor.Documento();
    editado_ = false;
    MostrarSeleccion(editor);
}

int AnchoDeReglas() {
    const QFontMetricsF letra(LetraDeReporte());
    const double regla = kReglaAncha * letra.horizontalAdvance(QLatin1Char('-'));
    return static_cast<int>(std::ceil(regla + 2 * (EnPixeles(kMargenReporte) + kMargen)));
}

std::unique_ptr<QTextDocument> DocumentoParaPapel(const TextoRico& texto) {
    auto documento = std::make_unique<QTextDocument>();
    Preparar(*documento);
    documento->setDocumentMargin(0);
    documento->setUndoRedoEnabled(false);
    Formatos formatos(Qt::white);
    PonerAlDia(*documento, {}, texto, formatos);
    return documento;
}

}  // namespace cuencalia
