#include "escritorio/servicios/manual.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include "escritorio/vistas/textoqt.h"
#include "frame/controles/plataforma.h"

namespace cuencalia {

QUrl LugarDelManual(const QString& carpeta, const QString& ventana) {
    const QDir paginas(carpeta);
    const QByteArray marca = QStringLiteral("id=\"%1\"").arg(ventana).toUtf8();
    for (const QString& pagina : paginas.entryList({QStringLiteral("*.html")}, QDir::Files, QDir::Name)) {
        QFile archivo(paginas.filePath(pagina));
        if (archivo.open(QIODevice::ReadOnly) && archivo.readAll().contains(marca)) {
            QUrl lugar = QUrl::fromLocalFile(archivo.fileName());
            lugar.setFragment(ventana);
            return lugar;
        }
    }
    return QUrl::fromLocalFile(paginas.filePath(QStringLiteral("index.html")));
}

void AbrirManual(const QUrl& lugar) {
    if (!QFile::exists(lugar.toLocalFile())) {
        return;
    }
    const QDir cache(QStandardPaths::writableLocation(QStandardPaths::CacheLocation));
    QFile salto(cache.filePath(QStringLiteral("ayuda.html")));
    const QByteArray pagina =
        QStringLiteral(
            "<!DOCTYPE html>\n<html lang=\"es\"><meta charset=\"utf-8\"><title>Ayuda de Cuencalia</title>\n"
            "<meta http-equiv=\"refresh\" content=\"0; url=%1\">\n<a href=\"%1\">Ayuda</a></html>\n")
            .arg(lugar.toString(QUrl::FullyEncoded).toHtmlEscaped())
            .toUtf8();
    if (lugar.hasFragment() && cache.mkpath(QStringLiteral(".")) && salto.open(QIODevice::WriteOnly) &&
        salto.write(pagina) == pagina.size() && salto.flush()) {
        QDesktopServices::openUrl(QUrl::fromLocalFile(salto.fileName()));
        return;
    }
    QDesktopServices::openUrl(lugar);
}

void AbrirManualEn(const Plataforma& sistema, const std::string& ventana) {
    AbrirManual(LugarDelManual(Q(sistema.CarpetaInstalacion()) + QStringLiteral("/ayuda"), Q(ventana)));
}

}  // namespace cuencalia
