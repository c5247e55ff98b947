#pragma once

#include "escritorio/vista.h"

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
Vista* HacerVista(Escritorio& escritorio, Control& control, QWidget* padre);

/// Creates the view for each kind of control.
Vista* NuevaVista(Escritorio& escritorio, TextBox& caja, QWidget* padre);
Vista* NuevaVista(Escritorio& escritorio, Label& etiqueta, QWidget* padre);
Vista* NuevaVista(Escritorio& escritorio, CommandButton& boton, QWidget* padre);
Vista* NuevaVista(Escritorio& escritorio, OptionButton& opcion, QWidget* padre);
Vista* NuevaVista(Escritorio& escritorio, ComboBox& combo, QWidget* padre);
Vista* NuevaVista(Escritorio& escritorio, Frame& marco, QWidget* padre);
Vista* NuevaVista(Escritorio& escritorio, SSTab& fichas, QWidget* padre);
Vista* NuevaVista(Escritorio& escritorio, StatusBar& barra, QWidget* padre);
Vista* NuevaVista(Escritorio& escritorio, PictureBox& imagen, QWidget* padre);

}  // namespace cuencalia
