#pragma once

#include <QPointer>
#include <QToolBar>
#include <vector>

class QLineEdit;
class QTextEdit;

namespace cuencalia {

/// Formats, undoes and finds in the document in front; without one it is greyed.
class BarraFormato : public QToolBar {
    Q_OBJECT

  public:
    explicit BarraFormato(QWidget* padre);

    /// From now on the bar works on that text, null for none.
    void Seguir(QTextEdit* texto);

  private:
    struct Boton {
        QAction* accion;
        bool (*puesto)(const QTextEdit&);
    };

    void HacerBotones();
    void HacerBusqueda();
    QAction* Agregar(const char* imagen, const char* texto);
    void MostrarFormato();
    /// Marks the next place of the text that the user looks for, behind the cursor or, going back, before it; after the
    /// last place the search goes on at the other end.
    void Buscar(bool atras);

    QPointer<QTextEdit> texto_;
    std::vector<Boton> botones_;
    QAction* deshacer_;
    QAction* rehacer_;
    QLineEdit* buscado_;
};

}  // namespace cuencalia
