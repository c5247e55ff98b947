#include <QAccessible>

#include "escritorio/estilo.h"
#include "shell/formas.h"
#include "tests/escritorio/mesa.h"

namespace cuencalia::pruebas {

namespace {

/// A form whose grid is wider than any screen.
class FormaAncha : public Formulario {
  public:
    explicit FormaAncha(Aplicacion& app) : Formulario(app, "frmAncha", "Ancha") { grd.PonerCols(100); }
    FlexGrid grd{*this, "grd"};
    Disposicion Disponer() override { return Columna({grd}); }
};

class Ventanas : public Mesa {
  protected:
    Ventanas() : Mesa({{"frmAncha", [](Aplicacion& app) { return std::make_unique<FormaAncha>(app); }}}) {}
};

/// Every control shown stands whole inside what holds it, on no other one, and has room for its text.
void EsperarNadaCortado(const QWidget& dentro) {
    std::vector<const QWidget*> controles;
    for (const QWidget* w : dentro.findChildren<QWidget*>()) {
        const bool deTabla = qobject_cast<const QAbstractScrollArea*>(w->parentWidget()) != nullptr;
        if (w->isVisible() && !deTabla && !w->objectName().isEmpty() && !w->objectName().startsWith("qt_")) {
            controles.push_back(w);
        }
    }
    for (const QWidget* w : controles) {
        SCOPED_TRACE(Std(w->objectName()));
        EXPECT_TRUE(w->parentWidget()->rect().contains(w->geometry()));
        const auto* etiqueta = qobject_cast<const QLabel*>(w);
        const bool conTexto = etiqueta != nullptr || qobject_cast<const QAbstractButton*>(w) != nullptr;
        const QSize preciso = etiqueta != nullptr && etiqueta->wordWrap() ? QSize(0, w->heightForWidth(w->width()))
                              : conTexto                                  ? w->sizeHint()
                                                                          : w->minimumSizeHint();
        EXPECT_EQ(w->size(), w->size().expandedTo(preciso));
        for (const QWidget* otro : controles) {
            EXPECT_FALSE(otro != w && otro->parentWidget() == w->parentWidget() &&
                         w->geometry().intersects(otro->geometry()))
                << Std(otro->objectName());
        }
    }
}

// Whatever a form shows at any time is shown at once, on the smallest screen and with larger letters.
TEST_F(Ventanas, EveryFormOfTheProgramIsWhole) {
    const QFont antes = QApplication::font();
    for (const double escala : {1.5, 1.0}) {
        QFont letra = antes;
        letra.setPointSizeF(antes.pointSizeF() * escala);
        QApplication::setFont(letra);
        for (const auto& [nombre, hacer] : FormasDelPrograma()) {
            SCOPED_TRACE(nombre + " " + std::to_string(escala));
            Abrir(nombre.c_str());
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
            EsperarNadaCortado(*Ventana(nombre)->centralWidget());
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
            Hacer([&] { escritorio_->App().Unload(forma); });
        }
    }
}

TEST_F(Ventanas, AWindowOpensWithRoomForItsGridsAndNoLargerThanTheScreen) {
    Abrir("frmAncha");
    EXPECT_LE(Ventana("frmAncha")->width(), Ventana("frmAncha")->screen()->availableSize().width());
    Abrir("frmParamEsta");
    for (const char* grid : {"grdt", "grdParam"}) {
        const auto& tabla = Widget<QTableView>(*Forma("frmParamEsta").Controls(grid));
        EXPECT_EQ(tabla.horizontalScrollBar()->maximum() + tabla.verticalScrollBar()->maximum(), 0) << grid;
        const int filas = tabla.viewport()->height() / tabla.verticalHeader()->defaultSectionSize();
        EXPECT_TRUE(grid == std::string("grdt") ? filas >= 14 : filas == tabla.model()->rowCount()) << filas;
    }
}

TEST_F(Ventanas, AWindowIsOneForItsFormAndGoesWithIt) {
    Abrir("frmAncha");
    QMainWindow* ventana = Ventana("frmAncha");
    ventana->showMinimized();
    Abrir("frmAncha");
    EXPECT_EQ(Ventana("frmAncha"), ventana);
    EXPECT_FALSE(ventana->isMinimized());
    Abrir("frmPrueba");
    EXPECT_EQ(&Foco()->Forma(), &F());
    ventana->activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([&] { return &Foco()->Forma() == &Forma("frmAncha"); }));
    EXPECT_TRUE(ventana->close());
    EXPECT_EQ(escritorio_->App().Cargada("frmAncha"), nullptr);
    // Unloaded inside a handler, the form lives to its end and may still change what nobody shows any more.
    Hacer([this] {
        FormaDePrueba& forma = F();
        escritorio_->App().Unload(forma);
        EXPECT_EQ(Ventana(), nullptr);
        forma.txt1.Text = "9";
        forma.mnuUno.Enabled = false;
    });
    Abrir("frmPrueba");
    EXPECT_EQ(Widget(F().txt1).property("text"), "");
}

}  // namespace

}  // namespace cuencalia::pruebas
