// A monkey at the desk: random keys and clicks go to whatever window, box or menu is open. The program must live
// through them. Usage: escritorio_mono SECONDS [SEED]; with MONO set it tells each act.

#include <unistd.h>

#include <QtTest>
#include <QtWidgets>
#include <filesystem>
#include <iostream>
#include <random>

#include "escritorio/programa/escritorio.h"
#include "escritorio/programa/programa.h"
#include "escritorio/vistas/estilo.h"
#include "shell/formas.h"

using namespace cuencalia;

namespace {

constexpr unsigned kSegundosColgado = 30;
constexpr int kActosPorPrograma = 1500;

class Mono : public QObject {
    Q_OBJECT

  public:
    explicit Mono(unsigned semilla) : azar_(semilla) {}

    qint64 actos = 0;

    void Empezar(int cuantos) {
        faltan_ = cuantos;
        QTimer::singleShot(0, this, &Mono::Actuar);
    }

  public slots:
    void Abrir(const QUrl&) {}  ///< No other program is started.

  private:
    int Menor(int cuantos) { return static_cast<int>(azar_() % static_cast<unsigned>(std::max(cuantos, 1))); }

    template <typename T>
    auto& Uno(T& de) {
        return *std::next(std::begin(de), Menor(static_cast<int>(std::size(de))));
    }

    void Contar(const QWidget* donde, const QString& acto) {
        if (qEnvironmentVariableIsSet("MONO")) {
            std::cerr << donde->metaObject()->className() << " '" << donde->window()->windowTitle().toStdString()
                      << "' " << acto.toStdString() << '\n';
        }
    }

    // A box that an act opens runs a loop of events of its own: the next act is arranged before this one is done.
    void Actuar() {
        ::alarm(kSegundosColgado);
        if (--faltan_ < 0) {
            for (QWidget* caja = QApplication::activeModalWidget(); caja != nullptr; caja = nullptr) {
                caja->close();
                QTimer::singleShot(0, this, &Mono::Actuar);
                return;
            }
            return QApplication::exit();
        }
        QTimer::singleShot(0, this, &Mono::Actuar);
        ++actos;
        QWidget* ventana = QApplication::activePopupWidget();
        if (ventana == nullptr) {
            ventana = QApplication::activeModalWidget();
        }
        if (ventana == nullptr) {
            QWidgetList visibles;
            for (QWidget* w : QApplication::topLevelWidgets()) {
                if (w->isVisible() && w->isWindow()) {
                    visibles << w;
                }
            }
            if (visibles.isEmpty()) {
                return;
            }
            ventana = Uno(visibles);
            ventana->activateWindow();
        }
        if (auto* dialogo = qobject_cast<QDialog*>(ventana);
            dialogo != nullptr && !qobject_cast<QMessageBox*>(ventana)) {
            return Contestar(*dialogo);
        }
        Menor(3) == 0 ? Teclear(*ventana) : Pulsar(*ventana);
    }

    // In a dialog of files a monkey could delete any file of the machine: it only names one of the folder and accepts.
    void Contestar(QDialog& dialogo) {
        auto* archivos = qobject_cast<QFileDialog*>(&dialogo);
        if (archivos == nullptr || Menor(2) == 0) {
            Contar(&dialogo, "cancelado");
            return dialogo.reject();
        }
        static constexpr const char* kNombres[] = {"ejemplos/caudales.X",
                                                   "ejemplos/crecidas.xlsx",
                                                   "salida",
                                                   "nuevo.rtf",
                                                   "ejemplos/falta.X",
                                                   "nada/falta",
                                                   "ñ€"};
        auto* nombre = archivos->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        if (nombre != nullptr) {
            nombre->setText(QDir::current().absoluteFilePath(QString::fromUtf8(Uno(kNombres))));
            Contar(&dialogo, nombre->text());
            static_cast<QDialog*>(archivos)->accept();
        }
    }

    void Teclear(QWidget& ventana) {
        static constexpr int kTeclas[] = {
            Qt::Key_Return, Qt::Key_Escape,    Qt::Key_Tab,   Qt::Key_Backtab, Qt::Key_Up,     Qt::Key_Down,
            Qt::Key_Left,   Qt::Key_Right,     Qt::Key_Home,  Qt::Key_End,     Qt::Key_PageUp, Qt::Key_Delete,
            Qt::Key_F1,     Qt::Key_Backspace, Qt::Key_A,     Qt::Key_C,       Qt::Key_V,      Qt::Key_Z,
            Qt::Key_Y,      Qt::Key_U,         Qt::Key_M,     Qt::Key_7,       Qt::Key_2,      Qt::Key_Period,
            Qt::Key_Comma,  Qt::Key_Minus,     Qt::Key_Space, Qt::Key_Menu};
        static constexpr Qt::KeyboardModifier kCon[] = {Qt::NoModifier,    Qt::NoModifier,      Qt::NoModifier,
                                                        Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier};
        static constexpr const char* kTextos[] = {"1\t2\n3,5\t4", "12.5\n13\n14\n15\n9\n8", "texto", ""};
        QWidget* foco = ventana.focusWidget() != nullptr ? ventana.focusWidget() : &ventana;
        if (Menor(6) == 0) {
            QApplication::clipboard()->setText(QString::fromUtf8(Uno(kTextos)));
        }
        const auto tecla = static_cast<Qt::Key>(Uno(kTeclas));
        const Qt::KeyboardModifier con = Uno(kCon);
        Contar(foco, QStringLiteral("tecla %1 %2").arg(con).arg(tecla));
        const QPointer<QWidget> vivo(foco);
        QTest::keyPress(foco, tecla, con);
        if (vivo) {
            QTest::keyRelease(foco, tecla, con);
        }
    }

    static void Clic(QWidget* lugar, Qt::MouseButton boton, QPoint punto) {
        const QPointer<QWidget> vivo(lugar);
        QTest::mousePress(lugar, boton, {}, punto);
        if (vivo) {
            QTest::mouseRelease(lugar, boton, {}, punto);
        }
    }

    void Pulsar(QWidget& ventana) {
        QWidgetList lugares{&ventana};
        for (QWidget* w : ventana.findChildren<QWidget*>()) {
            if (w->isVisible() && w->isEnabled() && !w->size().isEmpty()) {
                lugares << w;
            }
        }
        QWidget* lugar = Uno(lugares);
        // Most programs are to live on for a while.
        if (const auto* boton = qobject_cast<QAbstractButton*>(lugar);
            boton != nullptr && boton->text().contains(QLatin1String("Salir")) && Menor(20) != 0) {
            return;
        }
        const QPoint punto(Menor(lugar->width()), Menor(lugar->height()));
        const int acto = Menor(12);
        Contar(lugar, QStringLiteral("ratón %1 en %2, %3").arg(acto).arg(punto.x()).arg(punto.y()));
        switch (acto) {
            case 0: {
                const QPointer<QWidget> vivo(lugar);
                Clic(lugar, Qt::LeftButton, punto);
                if (vivo) {
                    QMouseEvent doble(QEvent::MouseButtonDblClick, punto, lugar->mapToGlobal(punto), Qt::LeftButton,
                                      Qt::LeftButton, {});
                    QApplication::sendEvent(lugar, &doble);
                }
                return;
            }
            case 1:
                return Clic(lugar, Qt::RightButton, punto);
            case 2: {
                QWheelEvent rueda(punto, lugar->mapToGlobal(punto), {}, {0, Menor(2) == 0 ? 120 : -120}, {}, {},
                                  Qt::NoScrollPhase, false);
                QApplication::sendEvent(lugar, &rueda);
                return;
            }
            case 3:
                // A press without its release, as when the pointer leaves the window.
                return QTest::mousePress(lugar, Qt::LeftButton, {}, punto);
            case 4:
                if (Menor(4) == 0) {
                    ventana.isWindow() && Menor(3) == 0 ? void(ventana.close())
                                                        : ventana.resize(200 + Menor(1200), 150 + Menor(900));
                }
                return;
            default:
                return Clic(lugar, Qt::LeftButton, punto);
        }
    }

    std::minstd_rand azar_;
    int faltan_ = 0;
};

}  // namespace

int main(int argc, char** argv) {
    const std::filesystem::path carpeta = "/dev/shm/mono-" + std::to_string(::getpid());
    std::filesystem::create_directories(carpeta);
    std::filesystem::copy(CUENCALIA_EJEMPLOS, carpeta / "ejemplos");
    std::filesystem::current_path(carpeta);
    qputenv("HOME", carpeta.c_str());
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" CUENCALIA_PANTALLA);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    QStandardPaths::setTestModeEnabled(true);
    Programa programa(argc, argv);
    QApplication::setApplicationName(QStringLiteral("cuencalia-mono"));
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication::setQuitOnLastWindowClosed(false);
    estilo::Aplicar(programa, estilo::Esquema::Claro);

    const int segundos = argc > 1 ? std::atoi(argv[1]) : 60;
    const auto semilla = static_cast<unsigned>(argc > 2 ? std::atoi(argv[2]) : QDateTime::currentSecsSinceEpoch());
    std::cout << "semilla " << semilla << std::endl;
    Mono mono(semilla);
    for (const char* esquema : {"http", "https", "file"}) {
        QDesktopServices::setUrlHandler(QString::fromLatin1(esquema), &mono, "Abrir");
    }
    int programas = 0;
    for (const QDeadlineTimer fin(segundos * 1000LL); !fin.hasExpired(); ++programas) {
        {
            Escritorio escritorio(FormasDelPrograma());
            programa.alFallar = [](const ErrorEjecucion& error) {
                std::cerr << error.Texto() << '\n';
                std::abort();
            };
            escritorio.App().Despachar([&] { escritorio.App().ModuloAbrir("frmCuencalia"); });
            mono.Empezar(kActosPorPrograma);
            QApplication::exec();
            while (QWidget* menu = QApplication::activePopupWidget()) {
                menu->hide();
            }
        }
        // The next program has a screen to itself.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    std::filesystem::current_path("/");
    std::filesystem::remove_all(carpeta);
    std::cout << "programas " << programas << ", actos " << mono.actos << '\n';
    return 0;
}

#include "escritorio_mono.moc"
