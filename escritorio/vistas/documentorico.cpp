#include "escritorio/vistas/documentorico.h"

#include <QFontMetricsF>
#include <QTextBlock>
#include <QTextCursor>
#include <algorithm>
#include <cmath>

#include "escritorio/vistas/estilo.h"
#include "escritorio/vistas/textoqt.h"
#include "frame/reportes/reporte.h"

namespace cuencalia {

namespace {

constexpr int kPasoTabulador = 720;  // twips; half an inch, the default of RTF
constexpr int kReglaAncha = 145;     // dashes

/// Property with the colour that the text has in the file, where the screen shows another one.
constexpr int kColorPropio = QTextFormat::UserProperty;

double EnPixeles(int twips) { return twips / kTwipsPorPixel; }
int EnTwips(double pixeles) { return static_cast<int>(std::lround(pixeles * kTwipsPorPixel)); }

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

}  // namespace

void PonerAlDia(QTextDocument& documento, const TextoRico& antes, const TextoRico& despues, const QColor& papel) {
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
    Formatos formatos(papel);
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

void Preparar(QTextDocument& documento) {
    documento.setDefaultFont(LetraDeReporte());
    QTextOption opcion = documento.defaultTextOption();
    opcion.setTabStopDistance(EnPixeles(kPasoTabulador));
    opcion.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    documento.setDefaultTextOption(opcion);
}

int AnchoDeReglas() {
    const QFontMetricsF letra(LetraDeReporte());
    const double regla = kReglaAncha * letra.horizontalAdvance(QLatin1Char('-'));
    return static_cast<int>(std::ceil(regla + 2 * (EnPixeles(kMargenReporte) + kMargenTexto)));
}

std::unique_ptr<QTextDocument> DocumentoParaPapel(const TextoRico& texto) {
    auto documento = std::make_unique<QTextDocument>();
    Preparar(*documento);
    documento->setDocumentMargin(0);
    documento->setUndoRedoEnabled(false);
    PonerAlDia(*documento, {}, texto, Qt::white);
    return documento;
}

}  // namespace cuencalia
