#pragma once

#include <memory>
#include <string>
#include <vector>

#include "frame/controles/controles.h"
#include "frame/controles/disposicion.h"

namespace cuencalia {

/// A window of the program: its controls, its menus and their layout. A form has one default instance, which the
/// application creates on first use.
class Formulario : public Control {
  public:
    Formulario(Aplicacion& app, std::string nombre, std::string caption);
    ~Formulario() override;

    Propiedad<std::string> Caption;

    Aplicacion& App() const { return app_; }

    /// The control with this name ("txtL1", "cmdNum(7)"), or null.
    Control* Controls(const std::string& nombre);
    const std::vector<Control*>& Controles() const { return controles_; }
    const std::vector<Menu*>& Barra() const { return barra_; }

    const Disposicion& Distribucion() const { return disposicion_; }

    /// The form whose window contains this one, or null.
    Formulario* Padre() const { return padre_; }
    void PonerPadre(Formulario& padre) { padre_ = &padre; }

    /// Lays the form out and runs Form_Load: the application does it once, before the form is shown.
    void Cargar();
    virtual void Form_Load() {}
    virtual void Form_Unload() {}
    /// The user chose a command of the form: what he was writing is to be taken over first.
    virtual void AntesDeOrden() {}
    /// An event on the form has ended, with all that came of it.
    virtual void DespuesDeEvento() {}

    /// The control that gets the focus when this form becomes active, or null.
    Control* ControlActivo() const { return activo_; }
    void PonerControlActivo(Control* control) { activo_ = control; }
    /// The first control, in reading order, that can take the focus.
    Control* PrimerControl() const;

    void Registrar(Control& control) { controles_.push_back(&control); }
    void AgregarABarra(Menu& menu) { barra_.push_back(&menu); }

  protected:
    /// The layout of the form; each form defines its own.
    virtual Disposicion Disponer() { return {}; }

  private:
    Aplicacion& app_;
    std::vector<Control*> controles_;
    std::vector<Menu*> barra_;
    Disposicion disposicion_;
    Formulario* padre_ = nullptr;
    Control* activo_ = nullptr;
};

}  // namespace cuencalia
