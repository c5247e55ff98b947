#include <QAccessible>

#include "escritorio/vistas/estilo.h"
#include "shell/formas.h"
#include "tests/escritorio/mesa.h"

namespace cuencalia::pruebas {

using Ventanas = Mesa;

// Whatever a form shows at any time is shown at once, on the smallest screen and with larger letters.
TEST_F(Ventanas, CadaFormaDelProgramaEstaEntera) {
    const QFont antes = QApplication::font();
    for (const double escala : {1.5, 1.0}) {
        QFont letra = antes;
        letra.setPointSizeF(antes.pointSizeF() * escala);
        QApplication::setFont(letra);
        for (const auto& [nombre, hacer] : FormasDelPrograma()) {
            SCOPED_TRACE(nombre + " " + std::to_string(escala));
            Abrir(nombre);
            Formulario& forma = Forma(nombre);
            Hacer([&] {
                for (Control* control : forma.Controles()) {
                    control->Visible = dynamic_cast<TextBox*>(control) == nullptr || control->Visible;
                }
            });
            QCoreApplication::processEvents();
            if (escala == 1) {
                Ventana(nombre)->resize(1024, 740);
                EXPECT_EQ(Ventana(nombre)->size(), QSize(1024, 740));
            }
            for (const QWidget* w : Ventana(nombre)->centralWidget()->findChildren<QWidget*>()) {
                const auto* etiqueta = qobject_cast<const QLabel*>(w);
                const bool deTexto = etiqueta != nullptr ? !etiqueta->wordWrap() : w->inherits("QAbstractButton");
                if (w->isVisible() && deTexto && !w->objectName().isEmpty()) {
                    EXPECT_EQ(w->size(), w->size().expandedTo(w->sizeHint())) << Std(w->objectName());
                }
            }
            for (const Control* control : forma.Controles()) {
                const auto* boton = dynamic_cast<const CommandButton*>(control);
                if (boton != nullptr && !boton->Picture().empty()) {
                    EXPECT_FALSE(estilo::Icono(Q(boton->Picture)).isNull()) << boton->Nombre();
                    EXPECT_FALSE(estilo::Icono(Q(boton->Picture) + "_luz").isNull()) << boton->Nombre();
                }
                if (control->PuedeRecibirFoco() && control->Vista() != nullptr) {
                    const auto* lector = QAccessible::queryAccessibleInterface(&Widget(*control));
                    EXPECT_FALSE(lector->text(QAccessible::Name).trimmed().isEmpty()) << control->Nombre();
                }
            }
            Cerrar(forma);
        }
    }
}

TEST_F(Ventanas, UnaVentanaAbreConSitioParaSusTablas) {
    Abrir("frmParamEsta");
    for (const char* grid : {"grdt", "grdParam"}) {
        const auto& tabla = Widget<QTableView>(*Forma("frmParamEsta").Controls(grid));
        EXPECT_EQ(tabla.horizontalScrollBar()->maximum() + tabla.verticalScrollBar()->maximum(), 0) << grid;
        const int filas = tabla.viewport()->height() / tabla.verticalHeader()->defaultSectionSize();
        EXPECT_TRUE(grid == std::string("grdt") ? filas >= 14 : filas == tabla.model()->rowCount()) << filas;
    }
}

TEST_F(Ventanas, UnaVentanaEsUnaParaSuFormaYSeVaConElla) {
    Abrir("frmacerc");
    QMainWindow* ventana = Ventana("frmacerc");
    ventana->showMinimized();
    Abrir("frmacerc");
    EXPECT_EQ(Ventana("frmacerc"), ventana);
    EXPECT_FALSE(ventana->isMinimized());
    Tecla(Qt::Key_F6);
    EXPECT_TRUE(QTest::qWaitFor([] { return Ventana()->isActiveWindow(); })) << "the list names it first";
    ventana->activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([&] { return &Foco()->Forma() == &Forma("frmacerc"); }));
    Tecla(Qt::Key_Escape);
    EXPECT_EQ(escritorio_->App().Cargada("frmacerc"), nullptr);
    // Unloaded inside a handler, the form lives to its end and may still change what nobody shows any more.
    Hacer([this] {
        FormaDePrueba& forma = F();
        escritorio_->App().Unload(forma);
        EXPECT_EQ(Ventana(), nullptr);
        forma.txt1.Text = "9";
        forma.mnuUno.Enabled = false;
    });
}

TEST_F(Ventanas, AbrenEnCascadaYUnaPantallaChicaLasMuestraPorPartes) {
    Ventana()->move(50, 70);
    Abrir("frmacerc");
    EXPECT_EQ(Ventana("frmacerc")->pos(), QPoint(80, 100));
    Ventana("frmacerc")->move(1900, 100);
    Abrir("frmCalculadora");
    EXPECT_EQ(Ventana("frmCalculadora")->pos(), QPoint(0, 0)) << "not over the border of the screen";
    const QFont antes = QApplication::font();
    QFont letra = antes;
    letra.setPointSizeF(antes.pointSizeF() * 3);
    QApplication::setFont(letra);
    Abrir("frmDisNormal");
    QApplication::setFont(antes);
    const QWidget& todo = *Ventana("frmDisNormal")->findChild<QScrollArea*>()->widget();
    EXPECT_GT(todo.height(), Ventana("frmDisNormal")->height());
    EXPECT_GE(todo.height(), todo.minimumSizeHint().height());
}

}  // namespace cuencalia::pruebas
