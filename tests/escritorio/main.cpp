#include <gtest/gtest.h>

#include <QApplication>
#include <QStandardPaths>
#include <iostream>

#include "escritorio/estilo.h"
#include "escritorio/programa.h"

namespace {

/// The windows of the tests have no screen: what it would have done is no news.
void Avisar(QtMsgType, const QMessageLogContext&, const QString& texto) {
    if (!texto.startsWith(QLatin1String("This plugin does not support"))) {
        std::cerr << texto.toStdString() << '\n';
    }
}

}  // namespace

int main(int argc, char** argv) {
    const QString plataforma = qEnvironmentVariable("QT_QPA_PLATFORM", QStringLiteral("offscreen"));
    if (plataforma == QLatin1String("offscreen")) {
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" CUENCALIA_PANTALLA);
    }
    testing::InitGoogleTest(&argc, argv);
    qInstallMessageHandler(Avisar);
    QStandardPaths::setTestModeEnabled(true);
    cuencalia::Programa programa(argc, argv);
    QApplication::setApplicationName(QStringLiteral("cuencalia-pruebas"));
    QApplication::setOrganizationName(QStringLiteral("cuencalia-pruebas"));
    // Each test closes its windows; that must not end the next one's message loops.
    QApplication::setQuitOnLastWindowClosed(false);
    cuencalia::estilo::Aplicar(programa, cuencalia::estilo::Esquema::Claro);
    return RUN_ALL_TESTS();
}
