#include <gtest/gtest.h>

#include <QStandardPaths>
#include <iostream>

#include "escritorio/programa/programa.h"
#include "escritorio/vistas/estilo.h"

int main(int argc, char** argv) {
    if (qEnvironmentVariable("QT_QPA_PLATFORM", "offscreen") == "offscreen") {
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" CUENCALIA_PANTALLA);
    }
    testing::InitGoogleTest(&argc, argv);
    // The windows of the tests have no screen: what it would have done is no news.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& texto) {
        if (!texto.startsWith("This plugin does not support")) {
            std::cerr << texto.toStdString() << '\n';
        }
    });
    QStandardPaths::setTestModeEnabled(true);
    cuencalia::Programa programa(argc, argv);
    QApplication::setApplicationName("cuencalia-pruebas");
    QApplication::setOrganizationName("cuencalia-pruebas");
    // Each test closes its windows; that must not end the next one's message loops.
    QApplication::setQuitOnLastWindowClosed(false);
    cuencalia::estilo::Aplicar(programa, cuencalia::estilo::Esquema::Claro);
    return RUN_ALL_TESTS();
}
