#include "tests/escritorio/mesa.h"

#include <QApplication>
#include <QDesktopServices>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>
#include <QWindow>
#include <algorithm>

#include "shell/formas.h"

namespace cuencalia::pruebas {

Vigia::Vigia() {
    connect(&reloj_, &QTimer::timeout, this, &Vigia::Mirar);
    reloj_.start(5);
}

void Vigia::Mirar() {
    auto* dialogo = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialogo == nullptr) {
        return;
    }
    if (auto* caja = qobject_cast<QMessageBox*>(dialogo)) {
        mensajes.push_back({caja->text(), caja->windowTitle(), caja->icon()});
    } else {
        otrosDialogos << dialogo->windowTitle();
    }
    dialogo->reject();
}

Shell::Shell() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "Abrir"); }

Shell::~Shell() { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }

void Mesa::SetUp() { Empezar(FormasDelPrograma()); }

void Mesa::Empezar(TablaFormas formas) {
    escritorio_.reset();
    escritorio_ = std::make_unique<Escritorio>(std::move(formas));
    escritorio_->App().Despachar([this] { escritorio_->App().ModuloAbrir("frmCuencalia"); });
    Traer("frmCuencalia");
}

void Mesa::TearDown() {
    escritorio_.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QMainWindow* Mesa::Ventana(const char* forma) {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        auto* ventana = qobject_cast<QMainWindow*>(widget);
        if (ventana != nullptr && ventana->isVisible() && ventana->objectName() == QStringLiteral("ventana_") + forma) {
            return ventana;
        }
    }
    return nullptr;
}

int Mesa::VentanasDe(const char* forma) {
    const QWidgetList ventanas = QApplication::topLevelWidgets();
    return static_cast<int>(std::count_if(ventanas.begin(), ventanas.end(), [&](const QWidget* ventana) {
        return ventana->isVisible() && ventana->objectName() == QStringLiteral("ventana_") + forma;
    }));
}

QString Mesa::Celda(int fila, int columna, const char* grid) {
    const QAbstractItemModel& modelo = *Tabla(grid).model();
    if (columna == 0) {
        return modelo.headerData(fila - 1, Qt::Vertical).toString();
    }
    return modelo.index(fila - 1, columna - 1).data().toString();
}

bool Mesa::ActualALaVista() {
    const QTableView& tabla = Tabla();
    return tabla.viewport()->rect().contains(tabla.visualRect(tabla.currentIndex()));
}

void Mesa::Traer(const char* forma) {
    Ventana(forma)->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(Ventana(forma)));
}

void Mesa::ElegirEnBarra(const char* forma, const QString& menu, const QString& entrada) {
    QMenuBar& barra = *Ventana(forma)->menuBar();
    for (QAction* enBarra : barra.actions()) {
        if (enBarra->text() != menu) {
            continue;
        }
        Clic(barra, barra.actionGeometry(enBarra).center());
        ASSERT_EQ(QApplication::activePopupWidget(), enBarra->menu());
        for (QAction* accion : enBarra->menu()->actions()) {
            if (accion->text() == entrada) {
                Clic(*enBarra->menu(), enBarra->menu()->actionGeometry(accion).center());
                QCoreApplication::processEvents();
                return;
            }
        }
    }
    FAIL() << "no entry " << Std(menu) << " > " << Std(entrada);
}

void Mesa::Clic(QWidget& widget, QPoint donde, Qt::MouseButton boton) {
    QWidget* ventana = widget.window();
    QTest::mouseClick(ventana->windowHandle(), boton, Qt::NoModifier, widget.mapTo(ventana, donde));
}

void Mesa::ClicEnCelda(int fila, int columna, const char* grid) {
    const QTableView& tabla = Tabla(grid);
    Clic(*tabla.viewport(), tabla.visualRect(tabla.model()->index(fila - 1, columna - 1)).center());
}

void Mesa::Apuntar(QWidget& widget, QPoint donde) {
    QTest::mouseMove(widget.window()->windowHandle(), widget.mapTo(widget.window(), donde));
    QCoreApplication::processEvents();
}

void Mesa::Tecla(Qt::Key tecla, Qt::KeyboardModifiers con) {
    ASSERT_NE(QGuiApplication::focusWindow(), nullptr);
    QTest::keyClick(QGuiApplication::focusWindow(), tecla, con);
}

void Mesa::Escribir(const char* texto) {
    for (; *texto != '\0'; ++texto) {
        ASSERT_NE(QGuiApplication::focusWindow(), nullptr);
        QTest::keyClick(QGuiApplication::focusWindow(), *texto);
    }
}

void Mesa::EscribirSerie(const std::vector<const char*>& valores) {
    for (const char* valor : valores) {
        Escribir(valor);
        Tecla(Qt::Key_Return);
    }
}

bool Mesa::ElegirEnFila(int fila, const QString& entrada) {
    bool elegida = false;
    QTimer alAbrir;
    QObject::connect(&alAbrir, &QTimer::timeout, &alAbrir, [&] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (menu == nullptr) {
            return;
        }
        alAbrir.stop();
        for (QAction* accion : menu->actions()) {
            if (accion->text() == entrada && accion->isEnabled()) {
                elegida = true;
                Clic(*menu, menu->actionGeometry(accion).center());
            }
        }
        menu->close();
    });
    alAbrir.start(5);
    const QTableView& tabla = Tabla();
    Clic(*tabla.viewport(), tabla.visualRect(tabla.model()->index(fila - 1, 0)).center(), Qt::RightButton);
    EXPECT_FALSE(alAbrir.isActive()) << "no menu opened";
    return elegida;
}

std::vector<QStringList> Mesa::Resultados() {
    std::vector<QStringList> filas;
    for (int f = 1; f <= 6; ++f) {
        filas.push_back({Celda(f, 1, "grdParam"), Celda(f, 2, "grdParam"), Celda(f, 3, "grdParam")});
    }
    return filas;
}

std::vector<QWidget*> Mesa::Enfocables(const char* forma) {
    std::vector<QWidget*> enfocables;
    for (QWidget* widget : Ventana(forma)->centralWidget()->findChildren<QWidget*>()) {
        if (widget->isVisible() && widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus)) {
            enfocables.push_back(widget);
        }
    }
    return enfocables;
}

std::vector<QStringList> ParametrosDe1a5() {
    return {{"3.0000", "3.0000", "3.0000"}, {"2.5", "2.0", "1.0"},          {"1.5811", "1.4142", "1.0000"},
            {"0.5270", "0.4714", "0.3333"}, {"0.0000", "0.0000", "0.0000"}, {"5.6667", "1.7000", "0.0000"}};
}

}  // namespace cuencalia::pruebas
