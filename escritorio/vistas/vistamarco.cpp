#include <QEvent>
#include <QGroupBox>
#include <QTabBar>
#include <QTabWidget>

#include "escritorio/vistas/vistas.h"
#include "frame/controles/controles.h"

namespace cuencalia {

namespace {

/// A group box at least as wide as its title, which starts 10 pixels from the border and has a padding of 4.
class MarcoConTitulo : public QGroupBox {
  public:
    using QGroupBox::QGroupBox;

    QSize minimumSizeHint() const override {
        return QGroupBox::minimumSizeHint().expandedTo({fontMetrics().horizontalAdvance(title()) + 28, 0});
    }
};

class VistaMarco : public Vista {
  public:
    VistaMarco(Anfitrion& anfitrion, Frame& marco, QGroupBox* grupo)
        : Vista(anfitrion, marco, grupo), marco_(marco), grupo_(grupo) {}

  protected:
    void Mostrar() override { grupo_->setTitle(Q(marco_.Caption)); }

  private:
    Frame& marco_;
    QGroupBox* grupo_;
};

class VistaFichas : public Vista {
  public:
    VistaFichas(Anfitrion& anfitrion, SSTab& fichas, QTabWidget* widget)
        : Vista(anfitrion, fichas, widget), fichas_(fichas), widget_(widget) {
        widget_->tabBar()->installEventFilter(this);
        connect(widget_, &QTabWidget::currentChanged, this, [this](int pagina) {
            if (pagina >= 0 && pagina != fichas_.Tab) {
                anfitrion_.App().Despachar([&] { fichas_.Tab = pagina; });
            }
        });
    }

  protected:
    void Mostrar() override { widget_->setCurrentIndex(fichas_.Tab); }

    /// The widget that has the focus is the row of tabs, so its focus events are handled as those of the tab control.
    bool eventFilter(QObject* objeto, QEvent* evento) override {
        return Vista::eventFilter(evento->type() == QEvent::FocusIn ? widget_ : objeto, evento);
    }

  private:
    SSTab& fichas_;
    QTabWidget* widget_;
};

}  // namespace

Vista* NuevaVista(Anfitrion& anfitrion, Frame& marco, QWidget* padre) {
    return new VistaMarco(anfitrion, marco, new MarcoConTitulo(padre));
}

Vista* NuevaVista(Anfitrion& anfitrion, SSTab& fichas, QWidget* padre) {
    return new VistaFichas(anfitrion, fichas, new QTabWidget(padre));
}

}  // namespace cuencalia
