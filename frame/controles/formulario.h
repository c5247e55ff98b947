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
    bool Describir(EscritorJson& json) override { return DescribirTexto(json, Caption); }

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
    /// Called before a command that the user chose: an unfinished entry must be stored first.
    virtual void AntesDeOrden() {}
    /// Called when an event and everything that it caused have been handled.
    virtual void DespuesDeEvento() {}
    /// Whether the form holds data or text of the user's that no file has.
    virtual bool ConTrabajo() { return false; }
    /// Called when the user closes the form's window: returns whether it may close.
    virtual bool PuedeCerrar() { return true; }

    /// The control that gets the focus when this form becomes active, or null.
    Control* ControlActivo() const { return activo_; }
    void PonerControlActivo(Control* control) { activo_ = control; }
    /// The control that gets the focus when the form is shown: the active one, else the first, in reading order, that
    /// can take it; null: none gets it.
    virtual Control* ControlInicial() const;

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
