#include <QComboBox>
#include <QKeyEvent>
#include <QScopedValueRollback>

#include "escritorio/vistas/vistas.h"
#include "frame/controles/controles.h"

namespace cuencalia {

namespace {

/// A list that is as wide as its longest entry; Qt leaves out the margins of the text.
class Lista : public QComboBox {
  public:
    using QComboBox::QComboBox;
    QSize sizeHint() const override { return QComboBox::sizeHint() + QSize(isEditable() ? kMargenTexto : 0, 0); }

  private:
    static constexpr int kMargenTexto = 12;
};

class VistaCombo : public Vista {
  public:
    VistaCombo(Anfitrion& anfitrion, ComboBox& combo, QComboBox* widget)
        : Vista(anfitrion, combo, widget), combo_(combo), widget_(widget) {
        widget_->setEditable(combo.Editable);
        widget_->setInsertPolicy(QComboBox::NoInsert);
        widget_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
        connect(widget_, &QComboBox::activated, this,
                [this](int indice) { anfitrion_.App().Despachar([&] { combo_.Elegir(indice); }); });
        connect(widget_, &QComboBox::editTextChanged, this, [this](const QString& texto) {
            if (!mostrando_) {
                anfitrion_.App().Despachar([&] { combo_.Text = Std(texto); });
            }
        });
    }

  protected:
    /// ENTER is the form's, which may lead on to the next box; the widget itself has no use for it.
    bool Tecla(QKeyEvent& evento) override {
        if (EsOrden(evento) || CodigoDeTecla(evento) != kTeclaEnter) {
            return false;
        }
        anfitrion_.App().PulsarTecla(kTeclaEnter, kTeclaEnter);
        return true;
    }

    void Mostrar() override {
        const QScopedValueRollback<bool> mostrando(mostrando_, true);
        if (mostrada_ != combo_.List()) {
            mostrada_ = combo_.List();
            widget_->clear();
            for (const std::string& entrada : mostrada_) {
                widget_->addItem(Q(entrada));
            }
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

Vista* NuevaVista(Anfitrion& anfitrion, ComboBox& combo, QWidget* padre) {
    return new VistaCombo(anfitrion, combo, new Lista(padre));
}

}  // namespace cuencalia
