#pragma once

class QAction;
class QMenu;

namespace cuencalia {

class Aplicacion;
class Formulario;
class Menu;

/// Fills a menu of the screen with the entries of a form's menu.
void LlenarMenu(Aplicacion& app, QMenu& menu, const Menu& modelo);

/// The action of the screen's menu that shows this entry of the form's menu.
QAction* AccionDe(const Menu& entrada);

/// From then on no menu of the screen shows the form's menus.
void SoltarMenus(const Formulario& forma);

}  // namespace cuencalia
