#include <QKeyEvent>
#include <QPainter>
#include <QWidget>

#include "escritorio/vistas/estilo.h"
#include "escritorio/vistas/vistas.h"
#include "frame/controles/controles.h"

namespace cuencalia {

namespace {

/// A picture scaled to the size of its widget.
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
    VistaImagen(Anfitrion& anfitrion, PictureBox& imagen, Lamina* lamina)
        : Vista(anfitrion, imagen, lamina), imagen_(imagen), lamina_(lamina) {
        if (imagen.AceptaFoco()) {
            // The picture takes the focus on behalf of the label above it and shows by a line that it has it.
            lamina_->setFocusPolicy(Qt::StrongFocus);
            lamina_->setFixedHeight(3);
        } else {
            lamina_->setMinimumSize(estilo::TamanoNatural(Q(imagen_.Picture)));
            lamina_->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
        }
    }

  protected:
    void Mostrar() override {
        lamina_->imagen = Q(imagen_.Picture);
        lamina_->update();
    }

    bool Tecla(QKeyEvent& evento) override {
        const int codigo = CodigoDeTecla(evento);
        const bool delPortapapeles = evento.matches(QKeySequence::Copy) || evento.matches(QKeySequence::Paste);
        if (!imagen_.AceptaFoco() || (EsOrden(evento) && !delPortapapeles) || codigo == 0) {
            return false;
        }
        anfitrion_.App().PulsarTecla(codigo, EsOrden(evento) ? 0 : CaracterDe(evento), ModificadoresDe(evento));
        return true;
    }

  private:
    PictureBox& imagen_;
    Lamina* lamina_;
};

}  // namespace

Vista* NuevaVista(Anfitrion& anfitrion, PictureBox& imagen, QWidget* padre) {
    return new VistaImagen(anfitrion, imagen, new Lamina(padre));
}

}  // namespace cuencalia
