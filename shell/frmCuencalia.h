#pragma once

#include <memory>
#include <vector>

#include "frame/controles/aplicacion.h"

namespace cuencalia {

/// The main menu, the first window of the program. It has no data and calculates nothing.
class frmCuencalia : public Formulario {
  public:
    explicit frmCuencalia(Aplicacion& app);

    PictureBox imgFondo{*this, "imgFondo", "fondo", true};
    Label lblNombre{*this, "lblNombre", "Cuencalia", Papel::Titulo};
    Label lblLema{*this, "lblLema", "Cálculos hidrológicos y estadísticos", Papel::Lema};
    CommandButton bsalir{*this, "bsalir", "&Salir", "Salir del programa"};

    void Form_Load() override;
    /// Ends the program at once without asking, even when modules are open.
    void bsalir_Click() { App().Terminar(); }
    void mayuayu_Click();

    /// No control: a stray blank or ENTER must not press Salir.
    Control* ControlInicial() const override { return nullptr; }
    /// Asks when data or reports would be lost.
    bool PuedeCerrar() override;

  protected:
    Disposicion Disponer() override;

  private:
    void CrearMenus();

    std::vector<std::unique_ptr<Menu>> menus_;
};

}  // namespace cuencalia
