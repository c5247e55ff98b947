#include "escritorio/servicios/dialogoarchivo.h"

#include <QFileDialog>
#include <QFileInfo>
#include <algorithm>

#include "escritorio/servicios/ventanadelante.h"

namespace cuencalia {

namespace {

struct Entrada {
    QString texto;
    QStringList patrones;
};

/// "label|pattern|label|pattern" as entries "label (pattern)".
QList<Entrada> Entradas(const QString& filtro) {
    const QStringList partes = filtro.split(QLatin1Char('|'));
    QList<Entrada> entradas;
    for (int i = 0; i + 1 < partes.size(); i += 2) {
        const bool yaDicho = partes[i].contains(partes[i + 1]);
        entradas << Entrada{yaDicho ? partes[i] : QStringLiteral("%1 (%2)").arg(partes[i], partes[i + 1]),
                            {partes[i + 1]}};
    }
    return entradas;
}

/// Where workbooks of several kinds may be opened, an entry for all of them comes first: the user seldom knows which
/// kind his file is.
void PonerLibros(QList<Entrada>& entradas) {
    QStringList libros;
    for (const Entrada& entrada : entradas) {
        libros << entrada.patrones;
    }
    const bool soloLibros = std::all_of(
        libros.begin(), libros.end(), [](const QString& patron) { return patron.startsWith(QLatin1String("*.xls")); });
    if (libros.size() > 1 && soloLibros) {
        entradas.prepend({QStringLiteral("Libros de Excel (%1)").arg(libros.join(QLatin1Char(' '))), libros});
    }
}

}  // namespace

QString DialogoArchivo::Preguntar(ModoArchivo modo, const QString& titulo, const QString& filtro,
                                  const QString& propuesto) {
    const bool guardar = modo == ModoArchivo::Guardar;
    QList<Entrada> entradas = Entradas(filtro);
    if (!guardar) {
        PonerLibros(entradas);
    }
    QStringList textos;
    for (const Entrada& entrada : entradas) {
        textos << entrada.texto;
    }
    QFileDialog dialogo(VentanaDelante(), titulo, carpeta_, textos.join(QStringLiteral(";;")));
    dialogo.setAcceptMode(guardar ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialogo.setFileMode(guardar ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    if (guardar && !entradas.isEmpty()) {
        dialogo.setDefaultSuffix(QFileInfo(entradas[0].patrones[0]).suffix());
    }
    if (!propuesto.isEmpty()) {
        dialogo.selectFile(propuesto);
    }
    if (dialogo.exec() != QDialog::Accepted || dialogo.selectedFiles().isEmpty()) {
        return {};
    }
    const auto cual = std::max<qsizetype>(0, textos.indexOf(dialogo.selectedNameFilter()));
    patron_ = entradas.isEmpty() ? QString() : entradas[cual].patrones[0];
    QString archivo = dialogo.selectedFiles().first();
    carpeta_ = QFileInfo(archivo).absolutePath();
    return archivo;
}

QString DialogoArchivo::ConExtension(const QString& archivo) const {
    const QString extension = patron_.mid(1);  // the pattern is "*.X"
    const bool falta = !archivo.isEmpty() && !extension.contains(QLatin1Char('*')) &&
                       !archivo.endsWith(extension, Qt::CaseInsensitive);
    return falta ? archivo + extension : archivo;
}

QString DialogoArchivo::Elegir(ModoArchivo modo, const QString& titulo, const QString& filtro, const QString& propuesto,
                               const std::function<bool(const QString&)>& reemplazar) {
    for (;;) {
        const QString escrito = Preguntar(modo, titulo, filtro, propuesto);
        QString archivo = modo == ModoArchivo::Guardar ? ConExtension(escrito) : escrito;
        // The dialog itself has asked about a name that exists as it was written.
        if (archivo == escrito || !QFileInfo::exists(archivo) || reemplazar(archivo)) {
            return archivo;
        }
    }
}

}  // namespace cuencalia
