#include "escritorio/vistas/vistatextorico.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QPalette>
#include <QTextCursor>

#include "escritorio/vistas/documentorico.h"
#include "frame/reportes/rtf.h"

namespace cuencalia {

namespace {

constexpr const char* kTiposRtf[] = {"text/rtf", "application/rtf"};

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

VistaTextoRico::VistaTextoRico(Anfitrion& anfitrion, RichTextBox& caja, QWidget* padre)
    : Vista(anfitrion, caja, new CajaTextoRico(padre)), caja_(caja), texto_(static_cast<CajaTextoRico*>(Widget())) {
    texto_->setFrameShape(QFrame::NoFrame);
    texto_->setAccessibleName(QStringLiteral("Texto del documento"));
    Preparar(*texto_->document());
    texto_->document()->setDocumentMargin(kMargenTexto);
    connect(texto_, &QTextEdit::textChanged, this, [this] { editado_ = true; });
    texto_->alCopiar = [this] { return caja_.Leer().SelRTF(); };
    texto_->alPegar = [this](const std::string& texto) {
        // When a text is moved by dragging within the box, the widget reports its removal from the old place only at
        // the end, so the change is marked here.
        editado_ = true;
        anfitrion_.App().Despachar([&] { caja_.Editor().Pegar(texto); });
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
    PonerAlDia(*texto_->document(), mostrado_, editor.Documento(), texto_->palette().color(QPalette::Base));
    mostrado_ = editor.Documento();
    editado_ = false;
    MostrarSeleccion(editor);
}

}  // namespace cuencalia
