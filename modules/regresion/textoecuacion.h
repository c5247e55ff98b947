#pragma once

#include <string>
#include <vector>

#include "frame/base/numeros.h"

namespace cuencalia {

/// "Y = a + b * X", the coefficients written by the pattern. A b whose text is negative has two blanks in front instead
/// of the plus sign.
std::string TextoRecta(Double a, Double b, const char* patron);
/// "Y = a * ( b )  ^ X"
std::string TextoExponencial(Double a, Double b, const char* patron);
/// "Y = a *  X ^ (b)"
std::string TextoPotencial(Double a, Double b, const char* patron);

/// Pattern of the coefficients, R, R² and Se of the regressions by normal equations: four decimals.
inline constexpr const char* kPatronCorrelacion = "#####0.##00";

/// How the coefficients after the first one are written.
enum class Signo { Siempre, SoloMenos };

/// The equation of a regression by normal equations: each coefficient stands between two pieces of text, of which there
/// is one more.
std::string TextoEcuacion(const std::vector<std::string>& trozos, const std::vector<Double>& a,
                          Signo signo = Signo::Siempre);

/// The cells of a table of equations in a report: two blanks and a tab after each cell of row 1, a tab after those of
/// the other rows, with five blanks before it in column 2.
std::string CeldaDeEcuacion(const std::string& texto, int fila, int columna);

}  // namespace cuencalia
