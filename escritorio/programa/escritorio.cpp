#include "escritorio/programa/escritorio.h"

#include <QApplication>
#include <QClipboard>
#include <QCursor>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryFile>
#include <QUrl>

#include "escritorio/servicios/espera.h"
#include "escritorio/servicios/impresion.h"
#include "escritorio/servicios/ventanadelante.h"
#include "escritorio/ventanas/listaventanas.h"
#include "escritorio/ventanas/menus.h"
#include "escritorio/ventanas/ventanapadre.h"
#include "escritorio/vistas/vistagrid.h"

namespace cuencalia {

namespace {

constexpr int kEsperaConsulta = 2000;  // ms

/// Whether the desktop has a program for workbooks. To open a file succeeds as soon as the desktop is asked to: without
/// a program for it nothing happens. Where the desktop cannot be asked, the opening itself tells.
bool HayHojaDeCalculo() {
    QProcess consulta;
    consulta.start(QStringLiteral("xdg-mime"),
                   {QStringLiteral("query"), QStringLiteral("default"),
                    QStringLiteral("application/vnd.openxmlformats-officedocument.spreadsheetml.sheet")});
    return !consulta.waitForFinished(kEsperaConsulta) || !consulta.readAllStandardOutput().trimmed().isEmpty();
}

}  // namespace

Escritorio::Escritorio(TablaFormas formas) : app_(std::make_unique<Aplicacion>(*this, std::move(formas))) {}

Escritorio::~Escritorio() {
    // All windows let go of their forms first: a closing window gives the focus to another one, which must not report
    // that to a program being destroyed.
    for (const auto& [forma, ventana] : ventanas_) {
        ventana->Soltar();
    }
    app_.reset();
}

void Escritorio::MsgBox(const std::string& texto, Icono icono, const std::string& titulo) {
    anfitrion_.Pintar();
    const Espera espera(cajas_);
    QMessageBox caja(VentanaDelante());
    caja.setIcon(icono == kIconoError         ? QMessageBox::Critical
                 : icono == kIconoPregunta    ? QMessageBox::Question
                 : icono == kIconoAdvertencia ? QMessageBox::Warning
                 : icono == kIconoInformacion ? QMessageBox::Information
                                              : QMessageBox::NoIcon);
    caja.setWindowTitle(titulo.empty() ? QStringLiteral("Cuencalia") : Q(titulo));
    caja.setTextFormat(Qt::PlainText);
    caja.setText(Q(texto));
    caja.exec();
}

int Escritorio::Contestar(const std::string& texto, const std::string& titulo, int botones, int porOmision) {
    anfitrion_.Pintar();
    const Espera espera(cajas_);
    QMessageBox caja(QMessageBox::Question, Q(titulo), Q(texto), QMessageBox::StandardButtons(botones),
                     VentanaDelante());
    caja.setTextFormat(Qt::PlainText);
    caja.button(QMessageBox::Yes)->setText(QStringLiteral("&Sí"));
    if (QAbstractButton* cancelar = caja.button(QMessageBox::Cancel)) {
        cancelar->setText(QStringLiteral("&Cancelar"));
    }
    caja.setDefaultButton(QMessageBox::StandardButton(porOmision));
    return caja.exec();
}

bool Escritorio::Preguntar(const std::string& texto, const std::string& titulo, bool porOmision) {
    return Contestar(texto, titulo, QMessageBox::Yes | QMessageBox::No,
                     porOmision ? QMessageBox::Yes : QMessageBox::No) == QMessageBox::Yes;
}

std::optional<bool> Escritorio::PreguntarOCancelar(const std::string& texto, const std::string& titulo) {
    const int respuesta =
        Contestar(texto, titulo, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes);
    const bool contestada = respuesta == QMessageBox::Yes || respuesta == QMessageBox::No;
    return contestada ? std::optional(respuesta == QMessageBox::Yes) : std::nullopt;
}

void Escritorio::MostrarError(const ErrorEjecucion& error) {
    MsgBox("Se produjo el error " + std::to_string(error.Numero()) + ":\n\n" + error.Texto() +
               "\n\nLa operación se detuvo en ese punto. Los datos escritos se conservan.",
           kIconoError, "Error en tiempo de ejecución");
}

Ventana& Escritorio::VentanaPara(Formulario& forma) {
    Ventana*& ventana = ventanas_[&forma];
    if (ventana == nullptr) {
        auto* padre = dynamic_cast<frmPadre*>(&forma);
        ventana = padre == nullptr ? new Ventana(anfitrion_, forma) : new VentanaPadre(anfitrion_, *padre);
        const QWidget* delante = QApplication::activeWindow();
        if (padre == nullptr && forma.Padre() == nullptr && delante != nullptr) {
            PonerEnCascada(*ventana, *delante);
        }
    }
    return *ventana;
}

void Escritorio::MostrarForma(Formulario& forma) {
    Ventana& ventana = VentanaPara(forma);
    if (forma.Padre() != nullptr) {
        static_cast<VentanaPadre&>(VentanaPara(*forma.Padre())).PonerDelante(ventana);
        return;
    }
    if (ventana.isMinimized()) {
        ventana.showNormal();
    } else {
        ventana.show();
    }
    if (forma.ControlInicial() == nullptr && forma.Padre() == nullptr) {
        // Without a focus of its own the toolkit would give it to the window's first button.
        ventana.centralWidget()->setFocus();
    }
    ventana.raise();
    ventana.activateWindow();
}

void Escritorio::DescargarForma(Formulario& forma) {
    const auto hallada = ventanas_.find(&forma);
    if (hallada == ventanas_.end()) {
        return;
    }
    Ventana* ventana = hallada->second;
    ventanas_.erase(hallada);
    ventana->Soltar();
    // In a window that the user closes, close() does nothing more: hidden here, its grids are laid out for the last
    // time while the form is still there.
    ventana->Marco()->setEnabled(false);  // no key reaches it any more
    ventana->Marco()->hide();
    ventana->Marco()->close();
    ventana->Marco()->deleteLater();
}

void Escritorio::MenuEmergente(Menu& menu) {
    anfitrion_.Pintar();
    QMenu emergente;
    LlenarMenu(*app_, emergente, menu);
    QPoint donde = QCursor::pos();
    const Control* foco = app_->Foco();
    const auto* grid = dynamic_cast<const FlexGrid*>(foco);
    if (grid != nullptr && grid->Vista() != nullptr) {
        // A menu opened from the keyboard appears at the current cell, since the pointer may be anywhere.
        const auto* vista = static_cast<VistaGrid*>(grid->Vista());
        const QWidget* tabla = vista->Tabla()->viewport();
        const QRect enPantalla(tabla->mapToGlobal(QPoint(0, 0)), tabla->size());
        if (!enPantalla.contains(donde)) {
            donde = tabla->mapToGlobal(vista->CeldaActual().center());
        }
    }
    emergente.exec(donde);
}

void Escritorio::ImprimirForma(Formulario& forma) {
    if (const auto hallada = ventanas_.find(&forma); hallada != ventanas_.end()) {
        const Espera espera(cajas_);
        ImprimirImagen(*this, *hallada->second);
    }
}

void Escritorio::ImprimirDocumento(Formulario& documento, bool soloSeleccion, const std::string& titulo) {
    anfitrion_.Pintar();
    const Espera espera(cajas_);
    for (Control* control : documento.Controles()) {
        if (auto* caja = dynamic_cast<RichTextBox*>(control)) {
            ImprimirTexto(caja->Leer(), soloSeleccion, Q(titulo), Q(documento.Caption));
        }
    }
}

/// Writes the workbook to a temporary file and has it opened.
bool Escritorio::MostrarLibro(const Hoja& hoja) {
    if (!HayHojaDeCalculo()) {
        return false;
    }
    QTemporaryFile libro(QDir::tempPath() + QStringLiteral("/serie-XXXXXX.xlsx"));
    if (!libro.open()) {
        throw ErrorEjecucion(kAccesoRuta);
    }
    libro.close();
    libros_.EscribirLibro(Std(libro.fileName()), hoja);
    const bool abierto = QDesktopServices::openUrl(QUrl::fromLocalFile(libro.fileName()));
    libro.setAutoRemove(!abierto);
    return abierto;
}

void Escritorio::Terminar() { QCoreApplication::quit(); }

void Escritorio::AbrirConShell(const std::string& ruta) {
    const QString archivo = Q(ruta);
    if (QFileInfo::exists(archivo)) {
        QDesktopServices::openUrl(QUrl::fromLocalFile(archivo));
    }
}

void Escritorio::IrACarpetaDelPrograma() { QDir::setCurrent(Q(CarpetaInstalacion())); }

void Escritorio::ElegirArchivo(ModoArchivo modo, const std::string& titulo, const std::string& filtro,
                               std::string& nombre) {
    anfitrion_.Pintar();
    const auto reemplazar = [this](const QString& archivo) {
        return Preguntar(Std(QStringLiteral("Ya existe el archivo\n%1\n\n¿Reemplazarlo?").arg(archivo)), "Guardar",
                         false);
    };
    const QString elegido = [&] {
        const Espera espera(cajas_);
        return dialogoArchivo_.Elegir(modo, Q(titulo), Q(filtro), Q(nombre), reemplazar);
    }();
    if (!elegido.isEmpty()) {
        nombre = Std(elegido);
    }
}

std::string Escritorio::TextoDelPortapapeles() const { return Std(QGuiApplication::clipboard()->text()); }

void Escritorio::PonerEnPortapapeles(const std::string& texto) { QGuiApplication::clipboard()->setText(Q(texto)); }

std::string Escritorio::LeerAjuste(const std::string& clave, const std::string& porOmision) const {
    return Std(QSettings().value(QStringLiteral("Settings/") + Q(clave), Q(porOmision)).toString());
}

void Escritorio::GuardarAjuste(const std::string& clave, const std::string& valor) {
    QSettings().setValue(QStringLiteral("Settings/") + Q(clave), Q(valor));
}

std::string Escritorio::CarpetaInstalacion() const {
    const QDir programa(QCoreApplication::applicationDirPath());
    // A build folder has the share/ of an installed program.
    for (const char* lugar : {"../share/cuencalia", ".."}) {
        if (programa.exists(QLatin1String(lugar) + QStringLiteral("/ayuda"))) {
            return Std(QDir::cleanPath(programa.filePath(QLatin1String(lugar))));
        }
    }
    return Std(programa.absolutePath());
}

}  // namespace cuencalia
