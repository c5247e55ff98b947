#pragma once

#include <QString>
#include <string>

namespace cuencalia {

inline QString Q(const std::string& texto) { return QString::fromStdString(texto); }
inline std::string Std(const QString& texto) { return texto.toStdString(); }

/// Converts a position in a text from characters, which the program counts, to units of UTF-16, which the toolkit
/// counts.
int EnUtf16(const QString& texto, int caracteres);
int EnCaracteres(const QString& texto, int posicion);

}  // namespace cuencalia
