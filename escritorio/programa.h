#pragma once

#include <QApplication>
#include <functional>
#include <set>
#include <string>

#include "frame/base/errores.h"

namespace cuencalia {

/// The toolkit's application. What a painting, a timer or any other event raises outside of the program's own door is
/// told, and the program goes on: the toolkit itself would end it.
class Programa : public QApplication {
  public:
    using QApplication::QApplication;

    /// Tells the user; it runs after the event that failed.
    std::function<void(const ErrorEjecucion&)> alFallar;

    bool notify(QObject* receptor, QEvent* evento) override;

  private:
    void Contar(const ErrorEjecucion& error, const QEvent& evento);

    std::set<std::string> contados_;
};

}  // namespace cuencalia
