#pragma once

#include "escritorio/vista.h"

class QLayout;

namespace cuencalia {

/// Makes the widget and the view of a control. `padre` is the widget in which it stands; a box that floats over a grid
/// goes into that grid instead.
Vista* HacerVista(Escritorio& escritorio, Control& control, QWidget* padre);

}  // namespace cuencalia
