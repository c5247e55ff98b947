#pragma once

class QWidget;

namespace cuencalia {

/// The active window, as the parent of a box or dialog. An open menu is none: it ends before the box does. Null when
/// the window waits for its end, which would take the box along.
QWidget* VentanaDelante();

}  // namespace cuencalia
