#include <QComboBox>
#include <QScopedValueRollback>
#include <algorithm>

#include "escritorio/escritorio.h"
#include "escritorio/vistas.h"
#include "frame/controles/controles.h"

namespace cuencalia {

namespace {

constexpr int kAireCombo = 56;  // pixels around the text: edges and arrow

class VistaCombo : public Vista {
  public:
    VistaCombo(Escritorio& escritorio, ComboBox& combo, QComboBox* widget)
        : Vista(escritorio, combo, widget), combo_(combo), widget_(widget) {
        widget_->setEditable(combo.Editable);
        widget_->setInsertPolicy(QComboBox::NoInsert);
        connect(widget_, &QComboBox::activated, this,
                [this](int indice) { escritorio_.App().Despachar([&] { combo_.Elegir(indice); }); });
        connect(widget_, &QComboBox::editTextChanged, this, [this](const QString& texto) {
            if (!mostrando_) {
                escritorio_.App().Despachar([&] { combo_.Text = Std(texto); });
            }
        });
    }

  protected:
    void Mostrar() override {
        const QScopedValueRollback<bool> mostrando(mostrando_, true);
        if (mostrada_ != combo_.List()) {
            mostrada_ = combo_.List();
            widget_->clear();
            int ancho = 0;
            for (const std::string& entrada : mostrada_) {
                widget_->addItem(Q(entrada));
                ancho = std::max(ancho, widget_->fontMetrics().horizontalAdvance(Q(entrada)));
            }
            // The natural size of an editable list leaves its longest entry no room at the edges.
            widget_->setMinimumWidth(ancho + kAireCombo);
        }
        if (combo_.Editable) {
            if (widget_->currentText() != Q(combo_.Text)) {
                widget_->setCurrentIndex(combo_.ListIndex());  // the arrow keys continue from this entry
                widget_->setEditText(Q(combo_.Text));
            }
        } else {
            widget_->setCurrentIndex(combo_.ListIndex());
        }
    }

  private:
    ComboBox& combo_;
    QComboBox* widget_;
    std::vector<std::string> mostrada_;  ///< The list as last passed to the widget.
    bool mostrando_ = false;
};

}  // namespace

Vista* NuevaVista(Escritorio& escritorio, ComboBox& combo, QWidget* padre) {
    return new VistaCombo(escritorio, combo, new QComboBox(padre));
}

}  // namespace cuencalia
