#pragma once

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QMainWindow>
#include <QMessageBox>
#include <QTableView>
#include <QTimer>
#include <QUrl>
#include <memory>
#include <ostream>
#include <stdexcept>
#include <vector>

#include "escritorio/escritorio.h"
#include "escritorio/vista.h"

/// How a failed comparison shows a text of the toolkit.
inline void PrintTo(const QString& texto, std::ostream* salida) { *salida << '"' << texto.toStdString() << '"'; }

namespace cuencalia::pruebas {

struct Mensaje {
    QString texto, titulo;
    QMessageBox::Icon icono;
};

/// Reads and closes every dialog that opens, so that none waits for a user that is not there.
class Vigia : public QObject {
    Q_OBJECT

  public:
    Vigia();

    std::vector<Mensaje> mensajes;
    /// Titles of the dialogs that were no message boxes; they are cancelled.
    QStringList otrosDialogos;

  private:
    void Mirar();

    QTimer reloj_;
};

/// Takes the place of the programs that open files.
class Shell : public QObject {
    Q_OBJECT

  public:
    Shell();
    ~Shell() override;

    QList<QUrl> abiertos;

  public slots:
    void Abrir(const QUrl& url) { abiertos << url; }
};

/// A user at the desk: the program is open at its main menu; mouse and keys go to its windows as they would on a
/// screen, to whatever widget stands under the pointer or has the focus.
class Mesa : public testing::Test {
  protected:
    void SetUp() override;
    void TearDown() override;

    /// Starts the program anew, with those forms.
    void Empezar(TablaFormas formas);

    /// The window of that form, or null when it is not on the screen.
    static QMainWindow* Ventana(const char* forma);
    static int VentanasDe(const char* forma);
    Formulario& Forma(const char* forma = "frmParamEsta") { return *escritorio_->App().Cargada(forma); }
    template <typename W = QWidget>
    W& Widget(const char* control, const char* forma = "frmParamEsta") {
        const QMainWindow* ventana = Ventana(forma);
        auto* widget = ventana == nullptr ? nullptr : ventana->findChild<W*>(QString::fromLatin1(control));
        if (widget == nullptr) {
            throw std::runtime_error(std::string("no widget shows ") + control);
        }
        return *widget;
    }
    QTableView& Tabla(const char* grid = "grdt") { return Widget<QTableView>(grid); }
    QLineEdit& Caja() { return Widget<QLineEdit>("txtt"); }
    /// A cell as the screen shows it, rows and columns numbered as the form does (from 0, headings included).
    QString Celda(int fila, int columna = 1, const char* grid = "grdt");
    int FilaActual() { return Tabla().currentIndex().row() + 1; }
    bool ActualALaVista();

    /// Brings a window to the front, as the user or the window manager does.
    static void Traer(const char* forma);
    void AbrirModulo() { ElegirEnBarra("frmCuencalia", "Parámetros", "Datos no agrupados"); }
    void ElegirEnBarra(const char* forma, const QString& menu, const QString& entrada);
    static void Clic(QWidget& widget, QPoint donde, Qt::MouseButton boton = Qt::LeftButton);
    static void Clic(QWidget& widget) { Clic(widget, widget.rect().center()); }
    void ClicEnCelda(int fila, int columna = 1, const char* grid = "grdt");
    static void Apuntar(QWidget& widget, QPoint donde);
    static void Tecla(Qt::Key tecla, Qt::KeyboardModifiers con = Qt::NoModifier);
    static void Escribir(const char* texto);
    /// Types each value on the entry row and confirms it.
    void EscribirSerie(const std::vector<const char*>& valores);
    /// Picks an entry of the menu that a right click on the row opens; false when it is greyed.
    bool ElegirEnFila(int fila, const QString& entrada);

    /// The results shown, row by row.
    std::vector<QStringList> Resultados();
    /// Widgets of the window that Tab can reach, in no order.
    static std::vector<QWidget*> Enfocables(const char* forma);

    std::unique_ptr<Vigia> vigia_ = std::make_unique<Vigia>();
    std::unique_ptr<Shell> shell_ = std::make_unique<Shell>();
    std::unique_ptr<Escritorio> escritorio_;
};

/// Parameters of 1, 2, 3, 4, 5 by hand: mean 15/5; sums of powers of the deviations 10, 0, 34; s² = 10/4, v = 10/5;
/// Ck = 5³·6.8/(4·3·2·2.5²); population kurtosis 6.8/2²; L1 = 3, L2 = 1, L3 = L4 = 0.
std::vector<QStringList> ParametrosDe1a5();

}  // namespace cuencalia::pruebas
