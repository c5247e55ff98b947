#include "escritorio/programa/programa.h"

#include <QEvent>
#include <new>

namespace cuencalia {

namespace {

constexpr int kErrorInterno = 51;

}  // namespace

bool Programa::notify(QObject* receptor, QEvent* evento) {
    try {
        return QApplication::notify(receptor, evento);
    } catch (const ErrorEjecucion& error) {
        Contar(error, *evento);
    } catch (const std::bad_alloc&) {
        Contar(ErrorEjecucion(kMemoriaInsuficiente), *evento);
    } catch (const std::exception& error) {
        Contar(ErrorEjecucion(kErrorInterno, std::string("Error interno: ") + error.what()), *evento);
    }
    return false;
}

void Programa::Contar(const ErrorEjecucion& error, const QEvent& evento) {
    // Painting and timer events are repeated by themselves: a message for each would make the program unusable.
    const bool seRepite = evento.type() == QEvent::Paint || evento.type() == QEvent::Timer;
    if (!alFallar || (seRepite && !contados_.insert(error.Texto()).second)) {
        return;
    }
    QMetaObject::invokeMethod(
        this, [this, error] { alFallar(error); }, Qt::QueuedConnection);
}

}  // namespace cuencalia
