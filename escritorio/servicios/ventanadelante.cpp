#include "escritorio/servicios/ventanadelante.h"

#include <QApplication>
#include <QWidget>

namespace cuencalia {

QWidget* VentanaDelante() {
    QWidget* delante = QApplication::activeWindow();
    while (delante != nullptr && delante->windowType() == Qt::Popup) {
        delante = delante->parentWidget() == nullptr ? nullptr : delante->parentWidget()->window();
    }
    return delante != nullptr && delante->isEnabled() ? delante : nullptr;
}

}  // namespace cuencalia
