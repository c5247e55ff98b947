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

inline constexpr int kMargenDocumento = 100;  ///< Twips around the text of a document.

/// The window of a form: its menus, and its controls in the form's layout.
class Ventana : public QMainWindow {
    Q_OBJECT

  public:
    Ventana(Escritorio& escritorio, Formulario& forma);

    /// The form that the window shows; null after Soltar.
    Formulario* Forma() const { return forma_; }
    /// The outermost widget of the window: its subwindow frame when it is inside another window.
    QWidget* Marco();
    /// Called before the form is destroyed: from then on the window neither shows the form nor reports events to it.
    void Soltar();

  protected:
    void closeEvent(QCloseEvent* evento) override;

  private:
    void HacerMenus();
    void HacerListaDeVentanas();
    void Enrollar(QSize pantalla);
    /// Adds the controls of the layout tree to `caja`.
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

/// The active window, as the parent of a box or dialog. Null when its form has gone: it waits for its end then, which
/// would take the box along.
QWidget* VentanaDelante();

/// The action of the screen's menu that shows this entry of the form's menu.
QAction* AccionDe(const Menu& entrada);

/// Fills a menu of the screen with the entries of a form's menu.
void LlenarMenu(Escritorio& escritorio, QMenu& menu, const Menu& modelo);

}  // namespace cuencalia
