#pragma once

#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>
#include <functional>

#include "escritorio/programa/escritorio.h"
#include "escritorio/ventanas/menus.h"
#include "escritorio/vistas/vista.h"
#include "frame/controles/flexgrid.h"
#include "frame/reportes/grafico.h"

/// How a failed comparison shows a text of the toolkit.
inline void PrintTo(const QString& texto, std::ostream* salida) { *salida << '"' << texto.toStdString() << '"'; }

namespace cuencalia::pruebas {

using Textos = std::vector<std::string>;

/// Reads and closes whatever opens by itself, so that nothing waits for a user that is not there, and takes the place
/// of the programs that open files.
class Vigia : public QObject {
    Q_OBJECT

  public:
    Vigia();
    ~Vigia() override;

    struct Mensaje {
        QString texto, titulo, omision;
        QMessageBox::Icon icono;
        Qt::TextFormat formato;
        QWidget* padre;
    };
    std::vector<Mensaje> mensajes;
    /// Titles of the dialogs that were no message boxes; they are cancelled.
    QStringList otrosDialogos;
    /// Looks at the next file dialog and names the file to pick in it.
    std::function<QString(QFileDialog&)> elegir;
    QList<QUrl> abiertos;

  public slots:
    void Abrir(const QUrl& url) { abiertos << url; }

  private:
    void Mirar();

    QTimer reloj_;
};

/// A form with a control of each kind that writes down what reaches them: "txt1 letra 97".
class FormaDePrueba : public Formulario {
  public:
    explicit FormaDePrueba(Aplicacion& app);

    TextBox txt1{*this, "txt1", "Caja"}, txtt{*this, "txtt"}, txt2{*this, "txt2"}, txt3{*this, "txt3"};
    Label lbl1{*this, "lbl1", "&Texto:"};
    CommandButton btn1{*this, "btn1", "&Botón"};
    OptionButton opt1{*this, "opt1", "Uno", true}, opt2{*this, "opt2", "Dos"};
    ComboBox cmb1{*this, "cmb1", {"uno", "dos"}}, cmb2{*this, "cmb2", {"a", "b", "c"}};
    Frame Frame1{*this, "Frame1", "Marco"};
    SSTab SSTab1{*this, "SSTab1", {"Una", "Otra"}};
    FlexGrid grd1{*this, "grd1"};
    GraficoModulo Graph1{*this, "Graph1", "Gráfico de la serie"};
    StatusBar StatusBar1{*this, "StatusBar1", 3};
    Menu mnu1{*this, "mnu1", "&Menú"}, mnuUno{mnu1, "mnuUno", "&Uno"}, mnuDos{mnu1, "mnuDos", "Dos"};
    Menu mnuFila{*this, "mnuFila", "Fila", false}, mnuBorrar{mnuFila, "mnuBorrar", "Borrar"};

    Textos sucesos;
    Textos punteros;  ///< The controls that were told of the pointer over them.

  protected:
    Disposicion Disponer() override;
};

/// A user at the desk: mouse and keys go to the windows as they would on a screen, to whatever widget stands under the
/// pointer or has the focus.
class Mesa : public testing::Test {
  protected:
    Mesa();
    ~Mesa() override;

    void Hacer(const std::function<void()>& accion) { escritorio_->App().Despachar(accion); }
    /// Opens a form, or brings its window to the front.
    void Abrir(const std::string& forma);
    /// Gives the keyboard back to the window of that form: a dialog that closes may leave it to none.
    static void Volver(const std::string& forma);
    void Cerrar(Formulario& forma) {
        Hacer([&] { escritorio_->App().Unload(forma); });
    }
    const Control* Foco() { return escritorio_->App().Foco(); }
    /// What was written down since the last look.
    Textos Sucesos() { return std::exchange(F().sucesos, {}); }

    /// The window of that form, or null when it is not on the screen.
    static QMainWindow* Ventana(const std::string& forma = "frmPrueba");
    Formulario& Forma(const std::string& forma) { return *escritorio_->App().Cargada(forma); }
    FormaDePrueba& F() { return static_cast<FormaDePrueba&>(Forma("frmPrueba")); }
    template <typename W = QWidget>
    static W& Widget(const Control& control) {
        return dynamic_cast<W&>(*static_cast<Vista*>(control.Vista())->Widget());
    }

    static void Clic(QWidget& widget, QPoint donde, Qt::MouseButton boton = Qt::LeftButton);
    static void Clic(QWidget& widget) { Clic(widget, widget.rect().center()); }
    static void Apuntar(QWidget& widget, QPoint donde);
    /// Turns the wheel towards the user over the middle of the widget; negative steps away from him.
    static void Rodar(QWidget& widget, int pasos);
    static void Tecla(Qt::Key tecla, Qt::KeyboardModifiers con = Qt::NoModifier, const QString& texto = {});
    static void Escribir(const std::string& texto);

    Vigia vigia_;
    std::unique_ptr<Escritorio> escritorio_;
};

}  // namespace cuencalia::pruebas
