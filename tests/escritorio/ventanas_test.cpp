#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <algorithm>
#include <set>

#include "shell/formas.h"
#include "tests/escritorio/mesa.h"

namespace cuencalia::pruebas {

namespace {

using Ventanas = Mesa;

QAction* Entrada(const QMainWindow& ventana, const QString& texto) {
    for (const QAction* menu : ventana.menuBar()->actions()) {
        for (QAction* accion : menu->menu()->actions()) {
            if (accion->text() == texto) {
                return accion;
            }
        }
    }
    return nullptr;
}

TEST_F(Ventanas, TheMenuBarIsComplete) {
    QStringList menus;
    for (const QAction* menu : Ventana("frmCuencalia")->menuBar()->actions()) {
        menus << menu->text();
    }
    EXPECT_EQ(menus, QStringList({"Parámetros", "&Regresión", "&Distribuciones", "Curvas características",
                                  "Precipitación", "Aforo", "Caudales máximos", "Evapotranspiración", "Ayuda"}));
    EXPECT_EQ(Std(Ventana("frmCuencalia")->windowTitle()),
              "Cuencalia, software para cálculos hidrológicos y estadísticos aplicados a la hidrología");
}

TEST_F(Ventanas, AnEntryIsGreyedWhileItsModuleIsMissing) {
    EXPECT_TRUE(Entrada(*Ventana("frmCuencalia"), "Datos no agrupados")->isEnabled());
    EXPECT_TRUE(Entrada(*Ventana("frmCuencalia"), "&Salir")->isEnabled());
    EXPECT_TRUE(Entrada(*Ventana("frmCuencalia"), "Acerca de Cuencalia 2")->isEnabled());

    TablaFormas sinModulo = FormasDelPrograma();
    sinModulo.erase("frmParamEsta");
    Empezar(sinModulo);
    EXPECT_FALSE(Entrada(*Ventana("frmCuencalia"), "Datos no agrupados")->isEnabled());
    ElegirEnBarra("frmCuencalia", "Parámetros", "Datos no agrupados");
    EXPECT_EQ(Ventana("frmParamEsta"), nullptr);
    EXPECT_TRUE(vigia_->mensajes.empty());
    while (QWidget* menu = QApplication::activePopupWidget()) {
        menu->close();
    }
}

TEST_F(Ventanas, TheMenuOpensAModuleByTheKeyboardAlone) {
    Tecla(Qt::Key_F10);
    Tecla(Qt::Key_Down);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    if (menu->activeAction() == nullptr) {
        Tecla(Qt::Key_Down);
    }
    EXPECT_EQ(menu->activeAction()->text(), "Datos no agrupados");
    Tecla(Qt::Key_Return);
    ASSERT_TRUE(Ventana("frmParamEsta") != nullptr);
    EXPECT_EQ(QApplication::activeWindow(), Ventana("frmParamEsta"));
    EXPECT_EQ(QApplication::focusWidget(), &Tabla());
}

TEST_F(Ventanas, OpeningAModuleTwiceBringsItsWindowForward) {
    AbrirModulo();
    EscribirSerie({"10", "20"});
    Traer("frmCuencalia");
    AbrirModulo();
    EXPECT_EQ(VentanasDe("frmParamEsta"), 1);
    EXPECT_EQ(QApplication::activeWindow(), Ventana("frmParamEsta"));
    EXPECT_EQ(Celda(2), "20.0");
    EscribirSerie({"30"});
    EXPECT_EQ(Celda(3), "30.0");

    Ventana("frmParamEsta")->showMinimized();
    AbrirModulo();
    EXPECT_FALSE(Ventana("frmParamEsta")->isMinimized());
    EXPECT_EQ(Celda(3), "30.0");
}

TEST_F(Ventanas, MenuPrincipalClosesTheModuleAndGoesBack) {
    AbrirModulo();
    EscribirSerie({"10", "20"});
    Clic(Widget("bMenu"));
    EXPECT_EQ(Ventana("frmParamEsta"), nullptr);
    EXPECT_EQ(escritorio_->App().Cargada("frmParamEsta"), nullptr);
    EXPECT_EQ(QApplication::activeWindow(), Ventana("frmCuencalia"));
    AbrirModulo();
    EXPECT_EQ(Tabla().model()->rowCount(), 1);
    EXPECT_EQ(Celda(1), "");
    EXPECT_EQ(Celda(1, 0), "[?]");
}

TEST_F(Ventanas, TheCloseBoxUnloadsTheModule) {
    AbrirModulo();
    EscribirSerie({"10"});
    Escribir("2");
    EXPECT_TRUE(Ventana("frmParamEsta")->close());
    EXPECT_EQ(Ventana("frmParamEsta"), nullptr);
    EXPECT_EQ(escritorio_->App().Cargada("frmParamEsta"), nullptr);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    AbrirModulo();
    EXPECT_EQ(Tabla().model()->rowCount(), 1);
    EscribirSerie({"30"});
    EXPECT_EQ(Celda(1), "30.0");
    EXPECT_TRUE(vigia_->mensajes.empty());
}

TEST_F(Ventanas, TheWindowInFrontHasTheKeyboard) {
    AbrirModulo();
    EscribirSerie({"10"});
    ElegirEnBarra("frmCuencalia", "Ayuda", "Acerca de Cuencalia 2");
    ASSERT_EQ(QApplication::activeWindow(), Ventana("frmacerc"));
    Traer("frmParamEsta");
    EscribirSerie({"20"});
    EXPECT_EQ(Celda(2), "20.0");
    Traer("frmacerc");
    Tecla(Qt::Key_Return);
    EXPECT_EQ(Ventana("frmacerc"), nullptr);
    EXPECT_EQ(Celda(2), "20.0");
}

TEST_F(Ventanas, SalirEndsTheProgramWithNoQuestion) {
    AbrirModulo();
    EscribirSerie({"10"});
    bool aTiempo = true;
    QTimer::singleShot(0, this->vigia_.get(), [this] { Clic(Widget("bsalir", "frmCuencalia")); });
    QTimer::singleShot(20000, this->vigia_.get(), [&] {
        aTiempo = false;
        QCoreApplication::exit(1);
    });
    QApplication::exec();
    EXPECT_TRUE(aTiempo);
    EXPECT_TRUE(escritorio_->App().Terminada());
    EXPECT_TRUE(vigia_->mensajes.empty());
    EXPECT_TRUE(vigia_->otrosDialogos.isEmpty());
}

TEST_F(Ventanas, F1AndTheMenuOpenTheManual) {
    AbrirModulo();
    Tecla(Qt::Key_F1);
    Escribir("1");
    Tecla(Qt::Key_F1);
    EXPECT_EQ(Caja().text(), "1");
    ElegirEnBarra("frmCuencalia", "Ayuda", "Ayuda");
    ASSERT_EQ(shell_->abiertos.size(), 3);
    for (const QUrl& url : shell_->abiertos) {
        EXPECT_TRUE(url.toLocalFile().endsWith("/ayuda/index.html")) << Std(url.toString());
    }
    EXPECT_TRUE(vigia_->mensajes.empty());
    escritorio_->AbrirConShell("/no/hay/manual.html");
    EXPECT_EQ(shell_->abiertos.size(), 3);
    EXPECT_TRUE(vigia_->mensajes.empty());
}

TEST_F(Ventanas, TabReachesEveryControlThatIsEnabled) {
    AbrirModulo();
    Clic(Widget("bOrdenar"));
    const std::vector<QWidget*> todos = Enfocables("frmParamEsta");
    for (const char* nombre : {"grdt", "grdParam", "grdorden", "bCalcular", "bLimpiar", "bMenu", "bOrdenar", "txtL1"}) {
        EXPECT_NE(std::find(todos.begin(), todos.end(), &Widget(nombre)), todos.end()) << nombre;
    }
    for (const Qt::Key tecla : {Qt::Key_Tab, Qt::Key_Backtab}) {
        const QWidget* inicio = &Tabla();
        Tabla().setFocus();
        std::set<QWidget*> alcanzados;
        do {
            Tecla(tecla);
            alcanzados.insert(QApplication::focusWidget());
        } while (QApplication::focusWidget() != inicio && alcanzados.size() <= todos.size() &&
                 QApplication::focusWidget() != nullptr);
        EXPECT_EQ(alcanzados, std::set<QWidget*>(todos.begin(), todos.end()));
    }
}

TEST_F(Ventanas, TheKeyboardFollowsTheFocusThatTheUserSees) {
    AbrirModulo();
    EscribirSerie({"1", "2", "3", "4", "5"});
    while (QApplication::focusWidget() != &Widget("bOrdenar")) {
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        Tecla(Qt::Key_Tab);
    }
    Tecla(Qt::Key_Space);
    EXPECT_TRUE(Tabla("grdorden").isVisible());
    EXPECT_EQ(Tabla().model()->rowCount(), 6);
}

}  // namespace

}  // namespace cuencalia::pruebas
