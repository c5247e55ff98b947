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

/// Makes the widget and the view of a control, or nothing for one that no screen shows. `padre` is the widget in which
/// it stands; a box that floats over a grid goes into that grid instead.
Vista* HacerVista(Escritorio& escritorio, Control& control, QWidget* padre);

/// The same for each kind of control.
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
