#include <QKeyEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QToolButton>
#include <algorithm>

#include "escritorio/vistas/estilo.h"
#include "escritorio/vistas/vistas.h"
#include "frame/controles/controles.h"

namespace cuencalia {

namespace {

class VistaBoton : public Vista {
  public:
    VistaBoton(Anfitrion& anfitrion, CommandButton& boton, QAbstractButton* widget)
        : Vista(anfitrion, boton, widget), boton_(boton), widget_(widget) {
        widget_->setFocusPolicy(Qt::StrongFocus);
        if (boton.Cancel) {
            auto* escape = new QShortcut(QKeySequence(Qt::Key_Escape), widget_);
            connect(escape, &QShortcut::activated, this, [this] { anfitrion_.App().Pulsar(boton_); });
        }
        connect(widget_, &QAbstractButton::clicked, this, [this] { anfitrion_.App().Pulsar(boton_); });
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
            widget_->setStyleSheet(
                QStringLiteral("QPushButton { background: %1; color: white; border: 1px solid #d5deea;"
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
        anfitrion_.App().PulsarTecla(caracter, caracter);
        return true;
    }

  private:
    CommandButton& boton_;
    QAbstractButton* widget_;
    QString imagen_;
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

/// An option button.
class VistaOpcion : public Vista {
  public:
    VistaOpcion(Anfitrion& anfitrion, OptionButton& opcion, QRadioButton* widget)
        : Vista(anfitrion, opcion, widget), opcion_(opcion), widget_(widget) {
        connect(widget_, &QRadioButton::toggled, this, [this](bool encendida) {
            if (encendida && !opcion_.Value) {
                anfitrion_.App().Pulsar(opcion_);
            }
        });
    }

  protected:
    void Mostrar() override {
        widget_->setText(Q(opcion_.Caption));
        if (widget_->isChecked() != opcion_.Value) {
            // With autoExclusive the widget refuses to turn off the only option that is on.
            widget_->setAutoExclusive(false);
            widget_->setChecked(opcion_.Value);
            widget_->setAutoExclusive(true);
        }
    }

  private:
    OptionButton& opcion_;
    QRadioButton* widget_;
};

}  // namespace

Vista* NuevaVista(Anfitrion& anfitrion, CommandButton& boton, QWidget* padre) {
    return new VistaBoton(anfitrion, boton, HacerBoton(boton, padre));
}

Vista* NuevaVista(Anfitrion& anfitrion, OptionButton& opcion, QWidget* padre) {
    return new VistaOpcion(anfitrion, opcion, new QRadioButton(padre));
}

}  // namespace cuencalia
