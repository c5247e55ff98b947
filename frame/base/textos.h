#pragma once

#include <string>
#include <string_view>

#include "frame/base/numeros.h"

namespace cuencalia {

/// The longest leading number of the text, after leading blanks (spaces, tabs, line ends): sign, digits with a point as
/// decimal mark, exponent marked by e or E and complete ("1e" is 1). 0 for a text that starts with no number; a comma
/// ends the number. Error 6 when the number is beyond a Double; one too small for a Double is 0. Never consults the
/// system's locale.
Double Val(std::string_view texto);

/// The number with up to 15 significant digits, a point as decimal mark and no grouping ("0.5", "-3"). Below 0.00001
/// and from 1E+15 on it has an exponent of at least two digits ("1.5E-07", "1E+20").
std::string CStr(Double valor);
/// As above for a Single, with its shortest decimal digits that read back as the same Single.
std::string CStr(Single valor);
inline std::string CStr(std::integral auto valor) { return CStr(Double(valor)); }
inline std::string CStr(double valor) { return CStr(Double(valor)); }
/// CStr with one leading blank for a non-negative value, as row labels show it (" 1", "-2").
std::string Str(Double valor);

/// The value written by a digit pattern: `0` is a digit always shown, `#` a digit shown only if needed, `.` the decimal
/// point, and a `+` stands as it is. Rounds the value's 15 significant decimal digits, a half away from zero, and
/// shows no minus sign on a value that shows as zero. "0.##00" always shows four decimals, since the last two are
/// required; the decimal point of the pattern is always written ("0.##" of 3 is "3."). A minus sign comes before
/// everything ("+0.0" of -5 is "-+5.0"). Error 6 for an infinity or a NaN, which a damaged file may hold.
/// A pattern of any other shape is a fault of the program: std::invalid_argument.
std::string Format(Double valor, std::string_view patron);
/// As above for a Single, with its shortest decimal digits that read back as the same Single.
std::string Format(Single valor, std::string_view patron);
inline std::string Format(std::integral auto valor, std::string_view patron) { return Format(Double(valor), patron); }
inline std::string Format(double valor, std::string_view patron) { return Format(Double(valor), patron); }
/// Returns the text unchanged, whatever the pattern.
std::string Format(std::string_view texto, std::string_view patron);

/// Number of characters (code points), not of bytes, of a UTF-8 text. Here and below a byte that belongs to no
/// well-formed character counts as a character of its own, whose code is the byte.
int Len(std::string_view texto);
/// The text without its leading and trailing spaces; tabs and line ends stay.
std::string Trim(std::string_view texto);
/// The character with this code point, as UTF-8. Error 5 for a code that no character has.
std::string Chr(int codigo);
/// Code point of the first character. Error 5 for the empty text.
int Asc(std::string_view texto);
/// The characters (code points) inicio, inicio + 1, … of the text, numbered from 0; at most `cuantos`.
std::string Subtexto(std::string_view texto, int inicio, int cuantos);
/// `cuantos` blanks; none when it is not positive.
std::string Space(int cuantos);

}  // namespace cuencalia
