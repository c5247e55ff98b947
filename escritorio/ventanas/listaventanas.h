#pragma once

#include <QMenu>

namespace cuencalia {

class Anfitrion;

/// The menu of the open windows: the one chosen comes to the front.
class ListaVentanas : public QMenu {
    Q_OBJECT

  public:
    ListaVentanas(Anfitrion& anfitrion, QWidget* padre);

    /// Opens the list over the window to which it belongs.
    void Abrir();

  private:
    void Llenar();

    Anfitrion& anfitrion_;
};

/// Places a new window a step to the right of and below the one in front, or at the corner of the screen when it would
/// leave the screen there.
void PonerEnCascada(QWidget& nueva, const QWidget& delante);

}  // namespace cuencalia
