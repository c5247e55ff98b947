#pragma once

#include "escritorio/vistas/vista.h"

namespace cuencalia {

class ComboBox;
class CommandButton;
class Frame;
class Label;
class OptionButton;
class PictureBox;
class SSTab;
class StatusBar;
class TextBox;

/// Creates the widget and the view of a control; null for a control that is not shown on screen. `padre` is the parent
/// widget; but a box that floats over a grid becomes a child of that grid.
Vista* HacerVista(Anfitrion& anfitrion, Control& control, QWidget* padre);

/// Creates the view for each kind of control.
Vista* NuevaVista(Anfitrion& anfitrion, TextBox& caja, QWidget* padre);
Vista* NuevaVista(Anfitrion& anfitrion, Label& etiqueta, QWidget* padre);
Vista* NuevaVista(Anfitrion& anfitrion, CommandButton& boton, QWidget* padre);
Vista* NuevaVista(Anfitrion& anfitrion, OptionButton& opcion, QWidget* padre);
Vista* NuevaVista(Anfitrion& anfitrion, ComboBox& combo, QWidget* padre);
Vista* NuevaVista(Anfitrion& anfitrion, Frame& marco, QWidget* padre);
Vista* NuevaVista(Anfitrion& anfitrion, SSTab& fichas, QWidget* padre);
Vista* NuevaVista(Anfitrion& anfitrion, StatusBar& barra, QWidget* padre);
Vista* NuevaVista(Anfitrion& anfitrion, PictureBox& imagen, QWidget* padre);

}  // namespace cuencalia
