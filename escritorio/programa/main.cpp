#include <QLibraryInfo>
#include <QTranslator>

#include "escritorio/programa/escritorio.h"
#include "escritorio/programa/programa.h"
#include "escritorio/programa/traduccion.h"
#include "escritorio/vistas/estilo.h"
#include "shell/formas.h"

int main(int argc, char** argv) {
    cuencalia::Programa programa(argc, argv);
    QApplication::setApplicationName(QStringLiteral("cuencalia"));
    QApplication::setOrganizationName(QStringLiteral("cuencalia"));
    QGuiApplication::setDesktopFileName(QStringLiteral("cuencalia"));
    QLocale::setDefault(QLocale(QLocale::Spanish));
    cuencalia::TraduccionRestante restante;
    QApplication::installTranslator(&restante);
    QTranslator espanol;
    if (espanol.load(QStringLiteral("qtbase_es"), QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QApplication::installTranslator(&espanol);
    }
    cuencalia::estilo::Aplicar(programa);
    QApplication::setWindowIcon(cuencalia::estilo::Icono(QStringLiteral("cuencalia")));

    cuencalia::Escritorio escritorio(cuencalia::FormasDelPrograma());
    programa.alFallar = [&escritorio](const cuencalia::ErrorEjecucion& error) { escritorio.MostrarError(error); };
    escritorio.App().Despachar([&] { escritorio.App().ModuloAbrir("frmCuencalia"); });
    return QApplication::exec();
}
