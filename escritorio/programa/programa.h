#pragma once

#include <QApplication>
#include <functional>
#include <set>
#include <string>

#include "frame/base/errores.h"

namespace cuencalia {

/// The toolkit's application object. An exception thrown by a painting, a timer or any other event that does not pass
/// through Aplicacion::Despachar is reported to the user and the program goes on; the toolkit itself would end the
/// program.
class Programa : public QApplication {
  public:
    using QApplication::QApplication;

    /// Reports a failure to the user; it is called after the event that failed.
    std::function<void(const ErrorEjecucion&)> alFallar;

    bool notify(QObject* receptor, QEvent* evento) override;

  private:
    void Contar(const ErrorEjecucion& error, const QEvent& evento);

    std::set<std::string> contados_;
};

}  // namespace cuencalia
