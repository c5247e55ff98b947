#include "escritorio/servicios/librosensegundoplano.h"

#include <QApplication>
#include <QEventLoop>
#include <QProgressDialog>
#include <QThread>
#include <QTimer>
#include <exception>
#include <memory>

#include "escritorio/servicios/espera.h"
#include "escritorio/servicios/ventanadelante.h"

namespace cuencalia {

namespace {

constexpr int kEsperaAviso = 400;  ///< ms before the progress is shown: most workbooks are written sooner.

}  // namespace

void LibrosEnSegundoPlano::EscribirLibro(const std::string& ruta, const Hoja& hoja) {
    const Espera ocupado(cajas_);
    std::exception_ptr fallo;
    const std::unique_ptr<QThread> hilo(QThread::create([&] {
        try {
            LibrosDeCalculo::EscribirLibro(ruta, hoja);
        } catch (...) {
            fallo = std::current_exception();
        }
    }));
    // Without an end of its range the bar moves to and fro: the library does not tell how far it is.
    QProgressDialog aviso(QStringLiteral("Escribiendo el libro de %1 filas…").arg(hoja.Filas()), QString(), 0, 0,
                          VentanaDelante());
    aviso.setWindowTitle(QStringLiteral("Crear Excel"));
    aviso.setWindowModality(Qt::ApplicationModal);
    QTimer::singleShot(kEsperaAviso, &aviso, &QWidget::show);
    QEventLoop espera;
    QObject::connect(hilo.get(), &QThread::finished, &espera, &QEventLoop::quit);
    hilo->start();
    espera.exec(QEventLoop::ExcludeUserInputEvents);
    hilo->wait();  // the loop ends sooner when the program is to end
    if (fallo) {
        std::rethrow_exception(fallo);
    }
}

}  // namespace cuencalia
