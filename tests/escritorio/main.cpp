#include <gtest/gtest.h>

#include <QApplication>
#include <QStandardPaths>

#include "escritorio/estilo.h"

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    testing::InitGoogleTest(&argc, argv);
    QStandardPaths::setTestModeEnabled(true);
    QApplication programa(argc, argv);
    QApplication::setApplicationName(QStringLiteral("cuencalia-pruebas"));
    QApplication::setOrganizationName(QStringLiteral("cuencalia-pruebas"));
    // Each test closes its windows; that must not end the next one's message loops.
    QApplication::setQuitOnLastWindowClosed(false);
    cuencalia::estilo::Aplicar(programa, cuencalia::estilo::Esquema::Claro);
    return RUN_ALL_TESTS();
}
