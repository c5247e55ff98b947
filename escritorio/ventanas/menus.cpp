#include "escritorio/ventanas/menus.h"

#include <QMenu>

#include "escritorio/vistas/textoqt.h"
#include "frame/controles/aplicacion.h"

namespace cuencalia {

namespace {

/// The view of a menu entry: its text, and whether it is greyed or hidden.
class VistaMenu : public QObject, public VistaControl {
  public:
    VistaMenu(Menu& menu, QAction* accion) : QObject(accion), menu_(&menu), accion_(accion) {
        menu.PonerVista(this);
        VistaMenu::ModeloCambio();
    }
    ~VistaMenu() override { Soltar(); }

    QAction* Accion() const { return accion_; }
    /// Separates the view from the form's menu: the form may be destroyed before the menu on the screen.
    void Soltar() {
        if (menu_ != nullptr) {
            menu_->PonerVista(nullptr);
            menu_ = nullptr;
        }
    }

    void ModeloCambio() override {
        accion_->setText(Q(menu_->Caption));
        accion_->setEnabled(menu_->Enabled);
        accion_->setVisible(menu_->Visible);
    }

  private:
    Menu* menu_;
    QAction* accion_;
};

}  // namespace

QAction* AccionDe(const Menu& entrada) { return static_cast<VistaMenu*>(entrada.Vista())->Accion(); }

void SoltarMenus(const Formulario& forma) {
    for (const Control* control : forma.Controles()) {
        const auto* menu = dynamic_cast<const Menu*>(control);
        if (menu != nullptr && menu->Vista() != nullptr) {
            static_cast<VistaMenu*>(menu->Vista())->Soltar();
        }
    }
}

void LlenarMenu(Aplicacion& app, QMenu& menu, const Menu& modelo) {
    for (Menu* entrada : modelo.Entradas()) {
        if (entrada->EsSeparador()) {
            menu.addSeparator();
            continue;
        }
        QAction* accion = nullptr;
        if (entrada->Entradas().empty()) {
            accion = menu.addAction(QString());
            QObject::connect(accion, &QAction::triggered, accion, [&app, entrada] { app.Elegir(*entrada); });
        } else {
            QMenu* submenu = menu.addMenu(QString());
            LlenarMenu(app, *submenu, *entrada);
            accion = submenu->menuAction();
        }
        new VistaMenu(*entrada, accion);
    }
}

}  // namespace cuencalia
