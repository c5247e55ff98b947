#pragma once

#include <atomic>
#include <memory>
#include <vector>

#include "frame/controles/aplicacion.h"
#include "frame/controles/plataforma.h"

class QThread;

namespace cuencalia {

/// Long calculations on threads of their own, while the windows go on. Progress and end come back as events of the
/// program, the end after any message box or dialog has been closed. Its destruction ends what still runs.
class SegundoPlano {
  public:
    SegundoPlano();
    ~SegundoPlano();
    SegundoPlano(const SegundoPlano&) = delete;
    SegundoPlano& operator=(const SegundoPlano&) = delete;

    void Empezar(Aplicacion& app, TrabajoLargo trabajo);

  private:
    class Receptor;

    std::shared_ptr<std::atomic<bool>> fin_ = std::make_shared<std::atomic<bool>>(false);
    std::unique_ptr<Receptor> receptor_;
    std::vector<std::unique_ptr<QThread>> hilos_;
};

}  // namespace cuencalia
