#include "escritorio/vistas.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTableView>
#include <QToolButton>
#include <algorithm>

#include "escritorio/escritorio.h"
#include "escritorio/estilo.h"
#include "escritorio/vistagrafico.h"
#include "escritorio/vistagrid.h"
#include "escritorio/vistatextorico.h"
#include "frame/controles/controles.h"
#include "frame/controles/flexgrid.h"

namespace cuencalia {

namespace {

constexpr Qt::KeyboardModifiers kDeOrden = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;

/// AltGr writes characters; Control and Alt alone give orders.
bool EsOrden(const QKeyEvent& evento) {
    const Qt::KeyboardModifiers m = evento.modifiers() & kDeOrden;
    return m != Qt::NoModifier && m != (Qt::ControlModifier | Qt::AltModifier);
}

class VistaTexto : public Vista {
  public:
    VistaTexto(Escritorio& escritorio, TextBox& caja, QLineEdit* linea)
        : Vista(escritorio, caja, linea), caja_(caja), linea_(linea) {
        linea_->setProperty("flotante", caja.Sobre() != nullptr);
        if (caja.Sobre() == nullptr) {
            linea_->setMinimumWidth(linea_->fontMetrics().horizontalAdvance(QLatin1Char('0')) * 11);
        } else {
            linea_->setAlignment(Qt::AlignHCenter);
        }
        connect(linea_, &QLineEdit::textEdited, this, [this] { Devolver(); });
        connect(linea_, &QLineEdit::cursorPositionChanged, this, [this] { Devolver(); });
        connect(linea_, &QLineEdit::selectionChanged, this, [this] { Devolver(); });
    }

  protected:
    void Mostrar() override {
        mostrando_ = true;
        linea_->setReadOnly(caja_.Locked);
        const QString texto = Q(caja_.Text);
        if (linea_->text() != texto) {
            linea_->setText(texto);
        }
        const int inicio = EnUtf16(texto, caja_.SelStart);
        const int longitud = EnUtf16(texto, caja_.SelStart + caja_.SelLength) - inicio;
        if (longitud > 0) {
            if (linea_->selectionStart() != inicio || linea_->selectionLength() != longitud) {
                linea_->setSelection(inicio, longitud);
            }
        } else if (linea_->hasSelectedText() || linea_->cursorPosition() != inicio) {
            linea_->deselect();
            linea_->setCursorPosition(inicio);
        }
        if (caja_.Sobre() != nullptr && caja_.Visible) {
            auto* vista = static_cast<VistaGrid*>(caja_.Sobre()->Vista());
            linea_->setGeometry(vista->CeldaActual());
            linea_->raise();
        }
        mostrando_ = false;
    }

    /// Characters go through the control's own filter; moving and marking with Shift or Control stay the widget's.
    bool Tecla(QKeyEvent& evento) override {
        const bool deMover = evento.key() == Qt::Key_Left || evento.key() == Qt::Key_Right ||
                             evento.key() == Qt::Key_Home || evento.key() == Qt::Key_End;
        const bool deSalir = evento.key() == Qt::Key_Tab || evento.key() == Qt::Key_Backtab;
        if (EsOrden(evento) || deMover || deSalir) {
            return false;
        }
        const int codigo = CodigoDeTecla(evento);
        const int caracter = CaracterDe(evento);
        if (codigo == 0 && caracter == 0) {
            return false;
        }
        escritorio_.App().PulsarTecla(codigo, caracter);
        return true;
    }

  private:
    static int EnUtf16(const QString& texto, int caracteres) {
        int posicion = 0;
        for (; caracteres > 0 && posicion < texto.size(); --caracteres) {
            posicion += texto[posicion].isHighSurrogate() ? 2 : 1;
        }
        return posicion;
    }
    static int EnCaracteres(const QString& texto, int posicion) {
        return static_cast<int>(texto.left(posicion).toUcs4().size());
    }

    /// What the user did in the widget itself: paste, undo, marks, an input method.
    void Devolver() {
        if (mostrando_) {
            return;
        }
        const QString texto = linea_->text();
        const bool marcado = linea_->hasSelectedText();
        const int inicio = EnCaracteres(texto, marcado ? linea_->selectionStart() : linea_->cursorPosition());
        const int longitud = marcado ? EnCaracteres(texto, linea_->selectionEnd()) - inicio : 0;
        escritorio_.App().Despachar([&] { caja_.EscritoPorUsuario(Std(texto), inicio, longitud); });
    }

    TextBox& caja_;
    QLineEdit* linea_;
    bool mostrando_ = false;
};

class VistaEtiqueta : public Vista {
  public:
    VistaEtiqueta(Escritorio& escritorio, Label& etiqueta, QLabel* texto)
        : Vista(escritorio, etiqueta, texto), etiqueta_(etiqueta), texto_(texto) {
        static constexpr const char* kPapeles[] = {"texto", "encabezado", "nota",     "titulo",
                                                   "lema",  "pantalla",   "resultado"};
        texto_->setProperty("papel", QLatin1String(kPapeles[static_cast<int>(etiqueta.SuPapel())]));
        const bool variasLineas = etiqueta.SuPapel() == Papel::Nota || etiqueta.SuPapel() == Papel::Resultado;
        texto_->setWordWrap(variasLineas);
        texto_->setTextFormat(Qt::PlainText);
        if (variasLineas) {
            texto_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        }
    }

  protected:
    void Mostrar() override {
        texto_->setText(Q(etiqueta_.Caption));
        if (texto_->buddy() == nullptr && etiqueta_.Nombrado() != nullptr) {
            if (auto* vista = static_cast<Vista*>(etiqueta_.Nombrado()->Vista())) {
                texto_->setBuddy(vista->Widget());
                vista->Widget()->setAccessibleName(Q(etiqueta_.Caption));
            }
        }
    }

  private:
    Label& etiqueta_;
    QLabel* texto_;
};

class VistaBoton : public Vista {
  public:
    VistaBoton(Escritorio& escritorio, CommandButton& boton, QAbstractButton* widget)
        : Vista(escritorio, boton, widget), boton_(boton), widget_(widget) {
        widget_->setFocusPolicy(Qt::StrongFocus);
        connect(widget_, &QAbstractButton::clicked, this, [this] { escritorio_.App().Pulsar(boton_); });
    }

  protected:
    void Mostrar() override {
        if (widget_->text() != Q(boton_.Caption)) {
            widget_->setText(Q(boton_.Caption));
            widget_->ensurePolished();
            const int texto = widget_->fontMetrics().size(Qt::TextShowMnemonic, widget_->text()).width();
            widget_->setMinimumWidth(
                std::max({estilo::kAnchoBoton, texto + 2 * estilo::kAireBoton, widget_->sizeHint().width()}));
        }
        const QString imagen = Q(boton_.Picture);
        if (imagen != imagen_) {
            imagen_ = imagen;
            widget_->setIcon(estilo::Icono(imagen));
        }
        if (boton_.ConColor && widget_->styleSheet().isEmpty()) {
            const Color c = boton_.BackColor;
            const QColor fondo(c.rojo, c.verde, c.azul);
            widget_->setStyleSheet(QStringLiteral("QPushButton { background: %1; color: white; border: 1px solid #d5deea;"
                                                  " border-radius: 5px; padding: 8px 18px; font-weight: 600; }"
                                                  "QPushButton:hover { background: %2; }"
                                                  "QPushButton:focus { border: 2px solid white; padding: 7px 17px; }")
                                       .arg(fondo.name(), fondo.lighter(112).name()));
        }
    }

    bool Tecla(QKeyEvent& evento) override {
        const int caracter = CaracterDe(evento);
        if (EsOrden(evento) || (caracter != kTeclaEnter && caracter != kTeclaEspacio)) {
            return false;
        }
        escritorio_.App().PulsarTecla(caracter, caracter);
        return true;
    }

  private:
    CommandButton& boton_;
    QAbstractButton* widget_;
    QString imagen_;
};

class VistaOpcion : public Vista {
  public:
    VistaOpcion(Escritorio& escritorio, OptionButton& opcion, QRadioButton* widget)
        : Vista(escritorio, opcion, widget), opcion_(opcion), widget_(widget) {
        connect(widget_, &QRadioButton::toggled, this, [this](bool encendida) {
            if (encendida && !opcion_.Value) {
                escritorio_.App().Pulsar(opcion_);
            }
        });
    }

  protected:
    void Mostrar() override {
        widget_->setText(Q(opcion_.Caption));
        if (widget_->isChecked() != opcion_.Value) {
            // A lone option can only be turned off by code: the widget's own group would not let it.
            widget_->setAutoExclusive(false);
            widget_->setChecked(opcion_.Value);
            widget_->setAutoExclusive(true);
        }
    }

  private:
    OptionButton& opcion_;
    QRadioButton* widget_;
};

class VistaCombo : public Vista {
  public:
    VistaCombo(Escritorio& escritorio, ComboBox& combo, QComboBox* widget)
        : Vista(escritorio, combo, widget), combo_(combo), widget_(widget) {
        widget_->setEditable(combo.Editable);
        widget_->setInsertPolicy(QComboBox::NoInsert);
        connect(widget_, &QComboBox::activated, this, [this](int indice) {
            escritorio_.App().Despachar([&] { combo_.Elegir(indice); });
        });
        connect(widget_, &QComboBox::editTextChanged, this, [this](const QString& texto) {
            if (!mostrando_) {
                escritorio_.App().Despachar([&] { combo_.Text = Std(texto); });
            }
        });
    }

  protected:
    void Mostrar() override {
        mostrando_ = true;
        if (widget_->count() != static_cast<int>(combo_.List().size())) {
            widget_->clear();
            for (const std::string& entrada : combo_.List()) {
                widget_->addItem(Q(entrada));
            }
        }
        if (combo_.Editable) {
            if (widget_->currentText() != Q(combo_.Text)) {
                widget_->setEditText(Q(combo_.Text));
            }
        } else {
            widget_->setCurrentIndex(combo_.ListIndex());
        }
        mostrando_ = false;
    }

  private:
    ComboBox& combo_;
    QComboBox* widget_;
    bool mostrando_ = false;
};

class VistaMarco : public Vista {
  public:
    VistaMarco(Escritorio& escritorio, Frame& marco, QGroupBox* grupo)
        : Vista(escritorio, marco, grupo), marco_(marco), grupo_(grupo) {}

  protected:
    void Mostrar() override { grupo_->setTitle(Q(marco_.Caption)); }

  private:
    Frame& marco_;
    QGroupBox* grupo_;
};

class VistaFichas : public Vista {
  public:
    VistaFichas(Escritorio& escritorio, SSTab& fichas, QTabWidget* widget)
        : Vista(escritorio, fichas, widget), fichas_(fichas), widget_(widget) {
        connect(widget_, &QTabWidget::currentChanged, this, [this](int pagina) {
            if (pagina >= 0 && pagina != fichas_.Tab) {
                escritorio_.App().Despachar([&] { fichas_.Tab = pagina; });
            }
        });
    }

  protected:
    void Mostrar() override { widget_->setCurrentIndex(fichas_.Tab); }

  private:
    SSTab& fichas_;
    QTabWidget* widget_;
};

class VistaEstado : public Vista {
  public:
    VistaEstado(Escritorio& escritorio, StatusBar& barra, QLabel* texto)
        : Vista(escritorio, barra, texto), barra_(barra), texto_(texto) {
        texto_->setProperty("papel", QStringLiteral("estado"));
        if (barra.Paneles() == 1) {
            return;
        }
        // The panels after the first one stand at the right end.
        auto* fila = new QHBoxLayout(texto_);
        fila->setContentsMargins(0, 0, 0, 0);
        fila->addStretch(1);
        for (int i = 2; i <= barra.Paneles(); ++i) {
            auto* panel = new QLabel(texto_);
            panel->setProperty("papel", QStringLiteral("nota"));
            fila->addSpacing(estilo::kMargen);
            fila->addWidget(panel);
            otros_.push_back(panel);
        }
    }

  protected:
    void Mostrar() override {
        texto_->setText(Q(barra_.Panel(1)));
        for (int i = 2; i <= barra_.Paneles(); ++i) {
            otros_[static_cast<std::size_t>(i) - 2]->setText(Q(barra_.Panel(i)));
        }
    }

  private:
    StatusBar& barra_;
    QLabel* texto_;
    std::vector<QLabel*> otros_;
};

/// A picture drawn to the size that it is given.
class Lamina : public QWidget {
  public:
    using QWidget::QWidget;
    QString imagen;

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter pintor(this);
        pintor.setRenderHint(QPainter::Antialiasing);
        if (!imagen.isEmpty()) {
            estilo::PintarFondo(pintor, rect(), imagen);
        }
        if (hasFocus()) {
            pintor.fillRect(rect(), palette().highlight());
        }
    }
};

class VistaImagen : public Vista {
  public:
    VistaImagen(Escritorio& escritorio, PictureBox& imagen, Lamina* lamina)
        : Vista(escritorio, imagen, lamina), imagen_(imagen), lamina_(lamina) {
        if (imagen.AceptaFoco()) {
            // It takes the keyboard for the label above it and shows by a line that it does.
            lamina_->setFocusPolicy(Qt::StrongFocus);
            lamina_->setFixedHeight(3);
        } else {
            lamina_->setMinimumSize(400, 150);
        }
    }

  protected:
    void Mostrar() override {
        lamina_->imagen = Q(imagen_.Picture);
        lamina_->update();
    }

    bool Tecla(QKeyEvent& evento) override {
        const int codigo = CodigoDeTecla(evento);
        if (!imagen_.AceptaFoco() || EsOrden(evento) || codigo == 0) {
            return false;
        }
        escritorio_.App().PulsarTecla(codigo, CaracterDe(evento));
        return true;
    }

  private:
    PictureBox& imagen_;
    Lamina* lamina_;
};

QAbstractButton* HacerBoton(const CommandButton& boton, QWidget* padre) {
    if (boton.Picture().empty() || boton.ConColor) {
        auto* pulsador = new QPushButton(padre);
        pulsador->setAutoDefault(false);
        pulsador->setIconSize(QSize(estilo::kIcono, estilo::kIcono));
        return pulsador;
    }
    auto* pulsador = new QToolButton(padre);
    pulsador->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    pulsador->setIconSize(QSize(estilo::kIcono, estilo::kIcono));
    return pulsador;
}

}  // namespace

Vista* HacerVista(Escritorio& escritorio, Control& control, QWidget* padre) {
    if (auto* c = dynamic_cast<TextBox*>(&control)) {
        QWidget* sobre = padre;
        if (c->Sobre() != nullptr && c->Sobre()->Vista() != nullptr) {
            sobre = static_cast<VistaGrid*>(c->Sobre()->Vista())->Tabla()->viewport();
        }
        return new VistaTexto(escritorio, *c, new QLineEdit(sobre));
    }
    if (auto* c = dynamic_cast<Label*>(&control)) {
        return new VistaEtiqueta(escritorio, *c, new QLabel(padre));
    }
    if (auto* c = dynamic_cast<CommandButton*>(&control)) {
        return new VistaBoton(escritorio, *c, HacerBoton(*c, padre));
    }
    if (auto* c = dynamic_cast<OptionButton*>(&control)) {
        return new VistaOpcion(escritorio, *c, new QRadioButton(padre));
    }
    if (auto* c = dynamic_cast<ComboBox*>(&control)) {
        return new VistaCombo(escritorio, *c, new QComboBox(padre));
    }
    if (auto* c = dynamic_cast<FlexGrid*>(&control)) {
        return new VistaGrid(escritorio, *c, padre);
    }
    if (auto* c = dynamic_cast<GraficoModulo*>(&control)) {
        return new VistaGrafico(escritorio, *c, padre);
    }
    if (auto* c = dynamic_cast<Frame*>(&control)) {
        return new VistaMarco(escritorio, *c, new QGroupBox(padre));
    }
    if (auto* c = dynamic_cast<SSTab*>(&control)) {
        return new VistaFichas(escritorio, *c, new QTabWidget(padre));
    }
    if (auto* c = dynamic_cast<StatusBar*>(&control)) {
        return new VistaEstado(escritorio, *c, new QLabel(padre));
    }
    if (auto* c = dynamic_cast<RichTextBox*>(&control)) {
        return new VistaTextoRico(escritorio, *c, padre);
    }
    if (auto* c = dynamic_cast<PictureBox*>(&control)) {
        return new VistaImagen(escritorio, *c, new Lamina(padre));
    }
    return nullptr;
}

}  // namespace cuencalia
