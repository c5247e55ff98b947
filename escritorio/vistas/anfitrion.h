#pragma once

#include <vector>

#include "frame/controles/aplicacion.h"

namespace cuencalia {

class Vista;

/// What the views of all windows stand on: the program whose controls they show, and the list of those that are to be
/// brought up to date.
class Anfitrion {
  public:
    explicit Anfitrion(Aplicacion& app) : app_(app) {}

    Aplicacion& App() { return app_; }

    /// Marks a view as outdated; it is updated when the current event has ended.
    void Ensuciar(Vista* vista);
    void Olvidar(Vista* vista);
    /// True while the views are being updated: signals of the widgets are then not caused by the user.
    bool Pintando() const { return pintando_; }
    /// Updates the outdated views, and gives the keyboard to the control that has the focus.
    void Pintar();

  private:
    void DarFoco();

    Aplicacion& app_;
    std::vector<Vista*> sucias_;
    bool pintando_ = false;
};

}  // namespace cuencalia
