#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "frame/controles/controles.h"
#include "frame/controles/disposicion.h"
#include "frame/modulo/marcomodulo.h"

namespace cuencalia {

/// The controls by which a fitted equation, chosen by an option, is applied to values that the user types. A new value
/// demands a new choice: it turns the options off and empties the result.
class AplicarEcuacion {
  public:
    struct Caja {
        std::string nombre, nombreRotulo, rotulo;
    };
    struct Opcion {
        std::string nombre, caption;
        std::string rotulo;                                            ///< Caption of lblCalculoY once it is chosen.
        std::function<Double(const std::vector<Double>&)> ecuacion{};  ///< Y for the values of the boxes.
    };
    struct Descripcion {
        std::string rotulo;  ///< Caption of lblCalculoY before anything was cleared.
        std::vector<Caja> cajas;
        std::vector<Opcion> opciones;
        std::string faltaX;  ///< Message when a box is empty.
    };

    AplicarEcuacion(MarcoModulo& modulo, Descripcion descripcion);
    AplicarEcuacion(const AplicarEcuacion&) = delete;
    AplicarEcuacion& operator=(const AplicarEcuacion&) = delete;

    Frame Frame4;
    Label lblCalculoY;
    std::deque<Label> rotulos;
    std::deque<TextBox> cajas;
    Label Label7;
    TextBox txtvyy;
    std::deque<OptionButton> opciones;
    CommandButton bLimpiarDatos;

    /// The boxes that the user fills.
    std::vector<TextBox*> Cajas();
    /// Takes the choice back.
    void ApagarOpciones();
    Disposicion Zona();

  private:
    void Aplicar(const Opcion& opcion);
    void bLimpiarDatos_Click();

    MarcoModulo& modulo_;
    Descripcion descripcion_;
};

}  // namespace cuencalia
