#include "escritorio/ventanas/listaventanas.h"

#include <QScreen>

#include "escritorio/vistas/anfitrion.h"
#include "escritorio/vistas/textoqt.h"

namespace cuencalia {

namespace {

constexpr int kPaso = 30;     ///< Of the cascade, in pixels: the title of the window below is seen.
constexpr int kConTecla = 9;  ///< Windows that have a digit as their access key.
constexpr int kLargoTitulo = 60;

}  // namespace

ListaVentanas::ListaVentanas(Anfitrion& anfitrion, QWidget* padre)
    : QMenu(QStringLiteral("&Ventana"), padre), anfitrion_(anfitrion) {
    connect(this, &QMenu::aboutToShow, this, &ListaVentanas::Llenar);
}

void ListaVentanas::Abrir() {
    Llenar();
    const QWidget* ventana = parentWidget()->window();
    popup(ventana->mapToGlobal(ventana->rect().center() - QRect(QPoint(), sizeHint()).center()));
}

void ListaVentanas::Llenar() {
    clear();
    int numero = 0;
    for (const Formulario* forma : anfitrion_.App().Cargadas()) {
        const QString titulo = fontMetrics().elidedText(Q(forma->Caption), Qt::ElideRight,
                                                        kLargoTitulo * fontMetrics().averageCharWidth());
        const QString tecla = ++numero <= kConTecla ? QStringLiteral("&%1  ").arg(numero) : QString();
        QAction* accion = addAction(tecla + QString(titulo).replace(QLatin1Char('&'), QStringLiteral("&&")));
        connect(accion, &QAction::triggered, this, [this, nombre = forma->Nombre()] {
            anfitrion_.App().Despachar([&] { anfitrion_.App().ModuloAbrir(nombre); });
        });
    }
}

void PonerEnCascada(QWidget& nueva, const QWidget& delante) {
    const QRect pantalla = delante.screen()->availableGeometry();
    const QRect lugar(delante.pos() + QPoint(kPaso, kPaso), nueva.size());
    nueva.move(pantalla.contains(lugar) ? lugar.topLeft() : pantalla.topLeft());
}

}  // namespace cuencalia
