#pragma once

#include <QString>
#include <QUrl>
#include <string>

namespace cuencalia {

class Plataforma;

/// The place of the manual that tells of the window of that name: the section that has the name as its id. The first
/// page where no section has it.
QUrl LugarDelManual(const QString& carpeta, const QString& ventana);

/// Opens the place in the user's browser. The programs that pass a file on to the browser drop the section: a small
/// page in the user's cache sends the browser there.
void AbrirManual(const QUrl& lugar);

/// Opens the installed manual at the section on the window of that name.
void AbrirManualEn(const Plataforma& sistema, const std::string& ventana);

}  // namespace cuencalia
