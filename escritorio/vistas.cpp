#include "escritorio/vistas.h"

#include "escritorio/vistagrafico.h"
#include "escritorio/vistagrid.h"
#include "escritorio/vistatextorico.h"
#include "frame/controles/controles.h"
#include "frame/reportes/grafico.h"

namespace cuencalia {

namespace {

Vista* NuevaVista(Escritorio& escritorio, FlexGrid& grid, QWidget* padre) {
    return new VistaGrid(escritorio, grid, padre);
}
Vista* NuevaVista(Escritorio& escritorio, GraficoModulo& grafico, QWidget* padre) {
    return new VistaGrafico(escritorio, grafico, padre);
}
Vista* NuevaVista(Escritorio& escritorio, RichTextBox& caja, QWidget* padre) {
    return new VistaTextoRico(escritorio, caja, padre);
}

/// A view for the first of these classes to which the control belongs, or null.
template <typename... Clases>
Vista* VistaDeClase(Escritorio& escritorio, Control& control, QWidget* padre) {
    Vista* vista = nullptr;
    const auto probar = [&](auto* deClase) {
        if (deClase != nullptr) {
            vista = NuevaVista(escritorio, *deClase, padre);
        }
        return deClase != nullptr;
    };
    (void)(probar(dynamic_cast<Clases*>(&control)) || ...);
    return vista;
}

}  // namespace

Vista* HacerVista(Escritorio& escritorio, Control& control, QWidget* padre) {
    return VistaDeClase<TextBox, Label, CommandButton, OptionButton, ComboBox, FlexGrid, GraficoModulo, Frame, SSTab,
                        StatusBar, RichTextBox, PictureBox>(escritorio, control, padre);
}

}  // namespace cuencalia
