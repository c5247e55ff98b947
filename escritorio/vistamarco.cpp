#include <QGroupBox>
#include <QTabWidget>

#include "escritorio/escritorio.h"
#include "escritorio/vistas.h"
#include "frame/controles/controles.h"

namespace cuencalia {

namespace {

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

}  // namespace

Vista* NuevaVista(Escritorio& escritorio, Frame& marco, QWidget* padre) {
    return new VistaMarco(escritorio, marco, new QGroupBox(padre));
}

Vista* NuevaVista(Escritorio& escritorio, SSTab& fichas, QWidget* padre) {
    return new VistaFichas(escritorio, fichas, new QTabWidget(padre));
}

}  // namespace cuencalia
