#include "escritorio/vistas/vistas.h"

#include "escritorio/vistas/vistagrafico.h"
#include "escritorio/vistas/vistagrid.h"
#include "escritorio/vistas/vistatextorico.h"
#include "frame/controles/controles.h"
#include "frame/reportes/grafico.h"

namespace cuencalia {

namespace {

Vista* NuevaVista(Anfitrion& anfitrion, FlexGrid& grid, QWidget* padre) {
    return new VistaGrid(anfitrion, grid, padre);
}
Vista* NuevaVista(Anfitrion& anfitrion, GraficoModulo& grafico, QWidget* padre) {
    return new VistaGrafico(anfitrion, grafico, padre);
}
Vista* NuevaVista(Anfitrion& anfitrion, RichTextBox& caja, QWidget* padre) {
    return new VistaTextoRico(anfitrion, caja, padre);
}

/// A view for the first of these classes to which the control belongs, or null.
template <typename... Clases>
Vista* VistaDeClase(Anfitrion& anfitrion, Control& control, QWidget* padre) {
    Vista* vista = nullptr;
    const auto probar = [&](auto* deClase) {
        if (deClase != nullptr) {
            vista = NuevaVista(anfitrion, *deClase, padre);
        }
        return deClase != nullptr;
    };
    (void)(probar(dynamic_cast<Clases*>(&control)) || ...);
    return vista;
}

}  // namespace

Vista* HacerVista(Anfitrion& anfitrion, Control& control, QWidget* padre) {
    return VistaDeClase<TextBox, Label, CommandButton, OptionButton, ComboBox, FlexGrid, GraficoModulo, Frame, SSTab,
                        StatusBar, RichTextBox, PictureBox>(anfitrion, control, padre);
}

}  // namespace cuencalia
