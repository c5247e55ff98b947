#include "escritorio/vistas/anfitrion.h"

#include <QScopedValueRollback>
#include <QWidget>
#include <algorithm>

#include "escritorio/vistas/vista.h"

namespace cuencalia {

void Anfitrion::Ensuciar(Vista* vista) {
    if (std::find(sucias_.begin(), sucias_.end(), vista) == sucias_.end()) {
        sucias_.push_back(vista);
    }
}

void Anfitrion::Olvidar(Vista* vista) { std::erase(sucias_, vista); }

void Anfitrion::Pintar() {
    if (pintando_) {
        return;
    }
    const QScopedValueRollback<bool> pintando(pintando_, true);
    while (!sucias_.empty()) {
        // What is hidden goes first: a window with both what comes and what goes in it would grow, and stay so.
        const auto oculta = std::find_if(sucias_.begin(), sucias_.end(), [](const Vista* v) { return v->Oculta(); });
        const auto siguiente = oculta != sucias_.end() ? oculta : sucias_.begin();
        Vista* vista = *siguiente;
        sucias_.erase(siguiente);
        vista->Actualizar();
    }
    DarFoco();
}

/// This is done after all views are up to date, because the toolkit moves the focus when a widget is hidden.
void Anfitrion::DarFoco() {
    const Control* foco = app_.Foco();
    if (foco == nullptr || foco->Vista() == nullptr) {
        return;
    }
    QWidget* widget = static_cast<Vista*>(foco->Vista())->Widget();
    if (!widget->hasFocus() && widget->window()->focusWidget() != widget) {
        widget->setFocus(Qt::OtherFocusReason);
    }
}

}  // namespace cuencalia
