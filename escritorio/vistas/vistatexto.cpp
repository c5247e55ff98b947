#include <QKeyEvent>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QStyle>
#include <QTableView>

#include "escritorio/vistas/vistagrid.h"
#include "escritorio/vistas/vistas.h"
#include "frame/controles/controles.h"
#include "frame/controles/flexgrid.h"

namespace cuencalia {

namespace {

class VistaTexto : public Vista {
  public:
    VistaTexto(Anfitrion& anfitrion, TextBox& caja, QLineEdit* linea)
        : Vista(anfitrion, caja, linea), caja_(caja), linea_(linea) {
        linea_->setProperty("flotante", caja.Sobre() != nullptr);
        if (caja.Sobre() == nullptr) {
            linea_->setMinimumWidth(linea_->fontMetrics().horizontalAdvance(QLatin1Char('0')) * 11);
        } else {
            linea_->setAlignment(Qt::AlignHCenter);
        }
        connect(linea_, &QLineEdit::textEdited, this, [this] { Devolver(); });
        // A box that is left drops its mark. Told, it would get the focus back: the program knows of no other yet.
        const auto moverse = [this] {
            if (linea_->hasFocus()) {
                Devolver();
            }
        };
        connect(linea_, &QLineEdit::cursorPositionChanged, this, moverse);
        connect(linea_, &QLineEdit::selectionChanged, this, moverse);
    }

  protected:
    void Mostrar() override {
        const QScopedValueRollback<bool> mostrando(mostrando_, true);
        if (linea_->isReadOnly() != caja_.Locked()) {
            // A box for a result is passed over by Tab; the pointer still reaches it, to copy the result.
            linea_->setReadOnly(caja_.Locked);
            linea_->setFocusPolicy(caja_.Locked ? Qt::ClickFocus : Qt::StrongFocus);
            linea_->style()->unpolish(linea_);
            linea_->style()->polish(linea_);
        }
        const QString texto = Q(caja_.Text);
        if (linea_->text() != texto) {
            linea_->setText(texto);
        }
        const int inicio = EnUtf16(texto, caja_.SelStart);
        const int longitud = EnUtf16(texto, caja_.SelStart + caja_.SelLength) - inicio;
        if (longitud > 0) {
            if (linea_->selectionStart() != inicio || linea_->selectionLength() != longitud) {
                linea_->setSelection(inicio, longitud);
            }
        } else if (linea_->hasSelectedText() || linea_->cursorPosition() != inicio) {
            linea_->deselect();
            linea_->setCursorPosition(inicio);
        }
        if (caja_.Sobre() != nullptr && caja_.Visible) {
            auto* vista = static_cast<VistaGrid*>(caja_.Sobre()->Vista());
            linea_->setGeometry(vista->CeldaActual());
            linea_->raise();
        }
    }

    /// Typed characters go to the control, whose handlers may drop them; the keys that move the cursor or leave the
    /// box, and those with Control or Alt, are left to the widget.
    bool Tecla(QKeyEvent& evento) override {
        const bool deMover = evento.key() == Qt::Key_Left || evento.key() == Qt::Key_Right ||
                             evento.key() == Qt::Key_Home || evento.key() == Qt::Key_End;
        // In the box over a grid Tab confirms and goes on; elsewhere it leaves the box.
        const bool deSalir =
            evento.key() == Qt::Key_Backtab || (evento.key() == Qt::Key_Tab && caja_.Sobre() == nullptr);
        const std::pair<QKeySequence::StandardKey, int> deEdicion[] = {
            {QKeySequence::Paste, 'V'}, {QKeySequence::Undo, 'Z'}, {QKeySequence::Redo, 'Y'}};
        for (const auto& [orden, codigo] : deEdicion) {
            if (evento.matches(orden)) {
                anfitrion_.App().PulsarTecla(codigo, 0, kControl);
                return true;
            }
        }
        if (EsOrden(evento) || deMover || deSalir) {
            return false;
        }
        const int codigo = CodigoDeTecla(evento);
        const int caracter = CaracterDe(evento);
        if (codigo == 0 && caracter == 0) {
            return false;
        }
        anfitrion_.App().PulsarTecla(codigo, caracter);
        return true;
    }

  private:
    /// Passes to the control what the user did in the widget itself: paste, undo, selection, an input method.
    void Devolver() {
        if (mostrando_) {
            return;
        }
        const QString texto = linea_->text();
        const bool marcado = linea_->hasSelectedText();
        const int inicio = EnCaracteres(texto, marcado ? linea_->selectionStart() : linea_->cursorPosition());
        const int longitud = marcado ? EnCaracteres(texto, linea_->selectionEnd()) - inicio : 0;
        anfitrion_.App().Despachar([&] { caja_.EscritoPorUsuario(Std(texto), inicio, longitud); });
    }

    TextBox& caja_;
    QLineEdit* linea_;
    bool mostrando_ = false;
};

}  // namespace

Vista* NuevaVista(Anfitrion& anfitrion, TextBox& caja, QWidget* padre) {
    QWidget* sobre = padre;
    if (caja.Sobre() != nullptr && caja.Sobre()->Vista() != nullptr) {
        sobre = static_cast<VistaGrid*>(caja.Sobre()->Vista())->Tabla()->viewport();
    }
    return new VistaTexto(anfitrion, caja, new QLineEdit(sobre));
}

}  // namespace cuencalia
