#include "escritorio/servicios/segundoplano.h"

#include <QObject>
#include <QThread>
#include <QTimer>
#include <exception>

namespace cuencalia {

namespace {

constexpr int kReintento = 100;  ///< ms until the end is told again that a dialog did not let through.

}  // namespace

/// What runs on the main thread stands in its queue of events, and goes with it.
class SegundoPlano::Receptor : public QObject {
  public:
    void Avanzar(Aplicacion& app, const TrabajoLargo& trabajo, double parte) {
        if (!app.Sistema().Bloqueada()) {
            app.Despachar([&] { trabajo.alAvanzar(parte); });
        }
    }
    void Terminar(Aplicacion& app, const std::shared_ptr<TrabajoLargo>& trabajo, const std::exception_ptr& fallo) {
        if (app.Sistema().Bloqueada()) {
            QTimer::singleShot(kReintento, this, [=, this, &app] { Terminar(app, trabajo, fallo); });
            return;
        }
        app.Despachar(trabajo->alTerminar);
        if (fallo) {
            app.Despachar([&] { std::rethrow_exception(fallo); });  // told as that of any handler
        }
    }
};

SegundoPlano::SegundoPlano() : receptor_(std::make_unique<Receptor>()) {}

SegundoPlano::~SegundoPlano() {
    *fin_ = true;
    for (const auto& hilo : hilos_) {
        hilo->wait();
    }
}

void SegundoPlano::Empezar(Aplicacion& app, TrabajoLargo trabajo) {
    std::erase_if(hilos_, [](const auto& hilo) { return hilo->isFinished(); });
    auto encargo = std::make_shared<TrabajoLargo>(std::move(trabajo));
    hilos_.emplace_back(QThread::create([&app, encargo, fin = fin_, receptor = receptor_.get()] {
        int porciento = 0;
        std::exception_ptr fallo;
        try {
            encargo->trabajo([&](double parte) {
                const int ahora = static_cast<int>(100 * parte);
                if (ahora != porciento) {
                    porciento = ahora;
                    QMetaObject::invokeMethod(
                        receptor, [=, &app] { receptor->Avanzar(app, *encargo, parte); }, Qt::QueuedConnection);
                }
                return !*fin;
            });
        } catch (...) {
            fallo = std::current_exception();
        }
        QMetaObject::invokeMethod(
            receptor, [=, &app] { receptor->Terminar(app, encargo, fallo); }, Qt::QueuedConnection);
    }));
    hilos_.back()->start();
}

}  // namespace cuencalia
