#pragma once

#include <functional>
#include <utility>
#include <vector>

namespace cuencalia {

/// Something that happens to a control. Handlers run in the order in which they were connected.
template <typename... Args>
class Evento {
  public:
    using Manejador = std::function<void(Args...)>;

    void Conectar(Manejador manejador) { manejadores_.push_back(std::move(manejador)); }

    /// Connects a method of the form: `bCalcular.Click.Conectar(this, &frmX::bCalcular_Click)`.
    template <typename Objeto, typename Clase>
    void Conectar(Objeto* objeto, void (Clase::*metodo)(Args...)) {
        Conectar([objeto, metodo](Args... args) { (objeto->*metodo)(std::forward<Args>(args)...); });
    }

    void operator()(Args... args) const {
        for (std::size_t i = 0; i < manejadores_.size(); ++i) {
            manejadores_[i](args...);
        }
    }

    bool Atendido() const { return !manejadores_.empty(); }

  private:
    std::vector<Manejador> manejadores_;
};

}  // namespace cuencalia
