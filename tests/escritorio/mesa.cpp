#include "tests/escritorio/mesa.h"

#include "escritorio/programa/programa.h"
#include "shell/formas.h"

namespace cuencalia::pruebas {

Vigia::Vigia() {
    connect(&reloj_, &QTimer::timeout, this, &Vigia::Mirar);
    reloj_.start(5);
    QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "Abrir");
}

Vigia::~Vigia() { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }

void Vigia::Mirar() {
    if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
        QTest::keyClick(menu, Qt::Key_Down);
        QTest::keyClick(menu, Qt::Key_Return);
    }
    auto* dialogo = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (auto* caja = qobject_cast<QMessageBox*>(dialogo)) {
        const QString omision = caja->defaultButton() == nullptr ? QString() : caja->defaultButton()->text();
        mensajes.push_back(
            {caja->text(), caja->windowTitle(), omision, caja->icon(), caja->textFormat(), caja->parentWidget()});
    } else if (dialogo != nullptr) {
        otrosDialogos << dialogo->windowTitle();
        if (auto* archivo = qobject_cast<QFileDialog*>(dialogo); archivo != nullptr && elegir) {
            archivo->selectFile(std::exchange(elegir, {})(*archivo));
            dialogo->accept();
        }
    }
    if (dialogo != nullptr && dialogo->isVisible()) {
        dialogo->reject();
    }
}

FormaDePrueba::FormaDePrueba(Aplicacion& app) : Formulario(app, "frmPrueba", "Prueba") {
    cmb2.Editable = false;
    lbl1.Nombra(txt1);
    txtt.FlotarSobre(grd1);
    txtt.Visible = false;
    grd1.PonerRows(40);
    grd1.PonerCols(4);
    for (int i = 0; i < 160; ++i) {
        grd1.PonerTextMatrix(i / 4, i % 4, std::to_string(i / 4) + "," + std::to_string(i % 4));
    }
    for (Control* control : Controles()) {
        const auto anotar = [this, control](const char* que) {
            return [this, control, que](auto... dato) {
                sucesos.push_back(((control->Nombre() + " " + que) + ... + (" " + std::to_string(dato))));
            };
        };
        control->Click.Conectar(anotar("clic"));
        control->GotFocus.Conectar(anotar("entra"));
        control->LostFocus.Conectar(anotar("sale"));
        control->KeyDown.Conectar(anotar("tecla"));
        control->KeyPress.Conectar(anotar("letra"));
        control->MouseDown.Conectar(anotar("botón"));
        control->MouseMove.Conectar([this, control] { punteros.push_back(control->Nombre()); });
    }
    MouseMove.Conectar([this] { punteros.push_back(Nombre()); });
    grd1.PulsarEncabezado.Conectar(
        [this](int columna) { sucesos.push_back("grd1 encabezado " + std::to_string(columna)); });
    grd1.MouseDown.Conectar([this](int boton) {
        if (boton == kBotonDerecho) {
            App().Sistema().MenuEmergente(mnuFila);
        }
    });
}

Disposicion FormaDePrueba::Disponer() {
    const Disposicion fichas = Fichas(SSTab1, {Columna({txt2}), Columna({txt3, Disposicion(Graph1).Estira(1)})});
    return Columna({Fila({lbl1, txt1, Grupo(Frame1, {btn1, opt1, opt2}), cmb1, cmb2}),
                    Fila({Disposicion(grd1).Estira(1), txtt, fichas}), StatusBar1});
}

Mesa::Mesa() {
    TablaFormas formas = FormasDelPrograma();
    formas["frmPrueba"] = [](Aplicacion& app) { return std::make_unique<FormaDePrueba>(app); };
    escritorio_ = std::make_unique<Escritorio>(std::move(formas));
    static_cast<Programa*>(qApp)->alFallar = [this](const ErrorEjecucion& error) { escritorio_->MostrarError(error); };
    Abrir("frmPrueba");
    F().sucesos.clear();
}

Mesa::~Mesa() {
    escritorio_.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void Mesa::Abrir(const std::string& forma) {
    Hacer([&] { escritorio_->App().ModuloAbrir(forma); });
    ASSERT_TRUE(QTest::qWaitForWindowActive(Ventana(forma)));
}

void Mesa::Volver(const std::string& forma) {
    Ventana(forma)->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(Ventana(forma)));
}

QMainWindow* Mesa::Ventana(const std::string& forma) {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible() && widget->objectName() == Q("ventana_" + forma)) {
            return qobject_cast<QMainWindow*>(widget);
        }
    }
    return nullptr;
}

void Mesa::Clic(QWidget& widget, QPoint donde, Qt::MouseButton boton) {
    QTest::mouseClick(widget.window()->windowHandle(), boton, Qt::NoModifier, widget.mapTo(widget.window(), donde));
}

void Mesa::Apuntar(QWidget& widget, QPoint donde) {
    QTest::mouseMove(widget.window()->windowHandle(), widget.mapTo(widget.window(), donde));
    QCoreApplication::processEvents();
}

void Mesa::Rodar(QWidget& widget, int pasos) {
    const QPointF donde = widget.rect().center();
    QWheelEvent rueda(donde, widget.mapToGlobal(donde), {}, {0, -120 * pasos}, {}, {}, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&widget, &rueda);
}

void Mesa::Tecla(Qt::Key tecla, Qt::KeyboardModifiers con, const QString& texto) {
    ASSERT_NE(QGuiApplication::focusWindow(), nullptr);
    if (texto.isNull()) {
        QTest::keyClick(QGuiApplication::focusWindow(), tecla, con);
    } else {
        QTest::sendKeyEvent(QTest::Click, QGuiApplication::focusWindow(), tecla, texto, con);
    }
}

void Mesa::Escribir(const std::string& texto) {
    for (const char letra : texto) {
        QTest::keyClick(QGuiApplication::focusWindow(), letra);
    }
}

}  // namespace cuencalia::pruebas
