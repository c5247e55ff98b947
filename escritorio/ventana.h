#pragma once

#include <QMainWindow>
#include <vector>

#include "frame/controles/formulario.h"

class QAction;
class QBoxLayout;
class QMenu;

namespace cuencalia {

class Escritorio;
class Vista;

/// The window of a form: its menus, and its controls laid out as the form says.
class Ventana : public QMainWindow {
    Q_OBJECT

  public:
    Ventana(Escritorio& escritorio, Formulario& forma);

    /// The form that the window shows, or null once it was let go.
    Formulario* Forma() const { return forma_; }
    /// The outermost widget of the window: its frame when it stands inside another window.
    QWidget* Marco();
    /// The form is about to go: from now on the window shows nothing and tells nothing.
    void Soltar();

  protected:
    void closeEvent(QCloseEvent* evento) override;

  private:
    void HacerMenus();
    /// Puts the controls of the tree into the layout.
    void Poner(const Disposicion& d, QBoxLayout& caja, QWidget* padre);
    void PonerHijos(const Disposicion& d, QBoxLayout& caja, QWidget* padre);
    void PonerGrupo(const Disposicion& d, QBoxLayout& caja, QWidget* padre);
    void PonerFichas(const Disposicion& d, QBoxLayout& caja, QWidget* padre);
    void PonerPares(const Disposicion& d, QBoxLayout& caja, QWidget* padre);
    Vista* Hacer(Control& control, QWidget* padre);

    Escritorio& escritorio_;
    Formulario* forma_;
    std::vector<Vista*> vistas_;
};

/// The entry of a window's menus that shows an entry of its form.
QAction* AccionDe(const Menu& entrada);

/// Fills a menu of the screen with the entries of a form's menu.
void LlenarMenu(Escritorio& escritorio, QMenu& menu, const Menu& modelo);

}  // namespace cuencalia
