#include "escritorio/ventanas/barraformato.h"

#include <QLineEdit>
#include <QShortcut>
#include <QTextDocument>
#include <QTextEdit>

#include "escritorio/vistas/estilo.h"

namespace cuencalia {

namespace {

constexpr int kIconoDeBarra = 18;
constexpr int kAnchoBusqueda = 180;

template <Qt::AlignmentFlag lado>
bool Alineado(const QTextEdit& texto) {
    return (texto.alignment() & Qt::AlignHorizontal_Mask).testFlag(lado);
}

template <Qt::AlignmentFlag lado>
void Alinear(QTextEdit& texto) {
    texto.setAlignment(lado);
}

struct OrdenDeFormato {
    const char* imagen;
    const char* texto;
    void (*poner)(QTextEdit&);
    bool (*puesto)(const QTextEdit&);
};

/// The keys of the letters stand in the texts only: the editor itself takes them.
const OrdenDeFormato kLetra[] = {
    {"negrita", "Negrita (Ctrl+B)",
     [](QTextEdit& t) { t.setFontWeight(t.fontWeight() > QFont::Medium ? QFont::Normal : QFont::Bold); },
     [](const QTextEdit& t) { return t.fontWeight() > QFont::Medium; }},
    {"cursiva", "Cursiva (Ctrl+I)", [](QTextEdit& t) { t.setFontItalic(!t.fontItalic()); },
     [](const QTextEdit& t) { return t.fontItalic(); }},
    {"subrayado", "Subrayado (Ctrl+U)", [](QTextEdit& t) { t.setFontUnderline(!t.fontUnderline()); },
     [](const QTextEdit& t) { return t.fontUnderline(); }}};
const OrdenDeFormato kParrafo[] = {
    {"izquierda", "Alinear a la izquierda", Alinear<Qt::AlignLeft>, Alineado<Qt::AlignLeft>},
    {"centro", "Centrar", Alinear<Qt::AlignHCenter>, Alineado<Qt::AlignHCenter>},
    {"derecha", "Alinear a la derecha", Alinear<Qt::AlignRight>, Alineado<Qt::AlignRight>},
    {"justificado", "Justificar", Alinear<Qt::AlignJustify>, Alineado<Qt::AlignJustify>}};

}  // namespace

BarraFormato::BarraFormato(QWidget* padre) : QToolBar(QStringLiteral("Formato"), padre) {
    setObjectName(QStringLiteral("barraFormato"));
    setMovable(false);
    setContextMenuPolicy(Qt::PreventContextMenu);
    setIconSize(QSize(kIconoDeBarra, kIconoDeBarra));
    HacerBotones();
    HacerBusqueda();
    Seguir(nullptr);
}

QAction* BarraFormato::Agregar(const char* imagen, const char* texto) {
    QAction* accion = addAction(estilo::Icono(QLatin1String(imagen)), QString::fromUtf8(texto));
    accion->setObjectName(QLatin1String(imagen));
    return accion;
}

void BarraFormato::HacerBotones() {
    deshacer_ = Agregar("deshacer", "Deshacer (Ctrl+Z)");
    connect(deshacer_, &QAction::triggered, this, [this] { texto_->undo(); });
    rehacer_ = Agregar("rehacer", "Rehacer (Ctrl+Y)");
    rehacer_->setShortcut(Qt::CTRL | Qt::Key_Y);
    connect(rehacer_, &QAction::triggered, this, [this] { texto_->redo(); });
    const auto formatos = [this](const auto& ordenes) {
        addSeparator();
        for (const OrdenDeFormato& orden : ordenes) {
            QAction* accion = Agregar(orden.imagen, orden.texto);
            accion->setCheckable(true);
            connect(accion, &QAction::triggered, this, [this, poner = orden.poner] {
                poner(*texto_);
                MostrarFormato();
            });
            botones_.push_back({accion, orden.puesto});
        }
    };
    formatos(kLetra);
    formatos(kParrafo);
}

void BarraFormato::HacerBusqueda() {
    addSeparator();
    QAction* buscar = Agregar("buscar", "Buscar (Ctrl+F; otra vez: F3)");
    buscado_ = new QLineEdit(this);
    buscado_->setPlaceholderText(QStringLiteral("Buscar"));
    buscado_->setAccessibleName(QStringLiteral("Texto buscado"));
    buscado_->setFixedWidth(kAnchoBusqueda);
    addWidget(buscado_);
    connect(buscar, &QAction::triggered, this, [this] { Buscar(false); });
    connect(buscado_, &QLineEdit::returnPressed, this, [this] { Buscar(false); });
    const auto tecla = [](const QKeySequence& teclas, QWidget* donde, Qt::ShortcutContext contexto, auto accion) {
        connect(new QShortcut(teclas, donde, nullptr, nullptr, contexto), &QShortcut::activated, donde, accion);
    };
    tecla(QKeySequence::Find, window(), Qt::WindowShortcut, [this] {
        buscado_->setFocus();
        buscado_->selectAll();
    });
    tecla(Qt::Key_F3, window(), Qt::WindowShortcut, [this] { Buscar(false); });
    tecla(Qt::SHIFT | Qt::Key_F3, window(), Qt::WindowShortcut, [this] { Buscar(true); });
    tecla(Qt::Key_Escape, buscado_, Qt::WidgetShortcut, [this] {
        if (texto_ != nullptr) {
            texto_->setFocus();
        }
    });
}

void BarraFormato::Seguir(QTextEdit* texto) {
    if (texto_ != nullptr) {
        texto_->disconnect(this);
        texto_->document()->disconnect(deshacer_);
        texto_->document()->disconnect(rehacer_);
    }
    texto_ = texto;
    setEnabled(texto != nullptr);
    if (texto == nullptr) {
        return;
    }
    connect(texto, &QObject::destroyed, this, [this] {
        texto_.clear();
        setEnabled(false);
    });
    connect(texto, &QTextEdit::currentCharFormatChanged, this, &BarraFormato::MostrarFormato);
    connect(texto, &QTextEdit::cursorPositionChanged, this, &BarraFormato::MostrarFormato);
    connect(texto->document(), &QTextDocument::undoAvailable, deshacer_, &QAction::setEnabled);
    connect(texto->document(), &QTextDocument::redoAvailable, rehacer_, &QAction::setEnabled);
    deshacer_->setEnabled(texto->document()->isUndoAvailable());
    rehacer_->setEnabled(texto->document()->isRedoAvailable());
    MostrarFormato();
}

void BarraFormato::MostrarFormato() {
    for (const Boton& boton : botones_) {
        boton.accion->setChecked(boton.puesto(*texto_));
    }
}

void BarraFormato::Buscar(bool atras) {
    const QString buscado = buscado_->text();
    if (texto_ == nullptr || buscado.isEmpty()) {
        buscado_->setFocus();
        return;
    }
    const QTextDocument::FindFlags lado = atras ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    bool hallado = texto_->find(buscado, lado);
    if (!hallado) {
        const QTextCursor antes = texto_->textCursor();
        texto_->moveCursor(atras ? QTextCursor::End : QTextCursor::Start);
        hallado = texto_->find(buscado, lado);
        if (!hallado) {
            texto_->setTextCursor(antes);
        }
    }
    buscado_->setStyleSheet(hallado ? QString() : QStringLiteral("background: %1;").arg(estilo::FondoAviso().name()));
    buscado_->setToolTip(hallado ? QString() : QStringLiteral("El texto no está en el documento"));
}

}  // namespace cuencalia
