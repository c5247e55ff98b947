#pragma once

#include <QMainWindow>
#include <vector>

#include "escritorio/vistas/anfitrion.h"
#include "frame/controles/formulario.h"

class QBoxLayout;

namespace cuencalia {

class Vista;

inline constexpr int kMargenDocumento = 100;  ///< Twips around the text of a document.

/// The window of a form: its menus, and its controls in the form's layout.
class Ventana : public QMainWindow {
    Q_OBJECT

  public:
    Ventana(Anfitrion& anfitrion, Formulario& forma);

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

    Anfitrion& anfitrion_;
    Formulario* forma_;
    std::vector<Vista*> vistas_;
};

}  // namespace cuencalia
