#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace cuencalia {

/// A table of values by latitude and month, one file of the installation: rows of twelve months, January first, from
/// the northernmost latitude to the southernmost. The key of a row is its degrees and "N" or "S"; the equator is one
/// row, "0N" and "0S".
struct TablaDeLatitudes {
    const char* archivo;
    std::span<const int> grados;   ///< Latitudes of the rows from the northernmost to 0; the south mirrors them.
    std::span<const int> masAlla;  ///< Latitudes beyond, which share the first and the last row.
    int lugares;                   ///< Values that a window has room for.

    constexpr int Filas() const { return 2 * static_cast<int>(grados.size()) - 1; }
    constexpr int Valores() const { return 12 * Filas(); }
};

inline constexpr std::array kGradosThornthwaite{50, 45, 40, 35, 30, 25, 20, 15, 10, 5, 0};
inline constexpr std::array kGradosFao{60, 58, 56, 54, 52, 50, 48, 46, 44, 42, 40, 35, 30, 25, 20, 15, 10, 5, 0};

/// Mean possible duration of sunlight in units of 30 days of 12 hours: Thornthwaite (1948), table V.
inline constexpr TablaDeLatitudes kTablaF{"FThornthwite.TF", kGradosThornthwaite, {}, 300};
/// Mean daily percentage of the year's daytime hours: Doorenbos and Pruitt (1977), FAO 24, table 1.
inline constexpr TablaDeLatitudes kTablaP{"PBlaneyCriddle.BP", kGradosFao, {}, 500};
/// Mean daily duration of maximum possible sunshine, hours: the same, table 3. It begins at 50 degrees.
inline constexpr TablaDeLatitudes kTablaN{"InsolacionMaxN.NN", std::span(kGradosFao).subspan<5>(),
                                          std::span(kGradosFao).first<5>(), 500};
static_assert(kTablaF.Valores() == 252 && kTablaP.Valores() == 444 && kTablaN.Valores() == 324);
static_assert(kTablaF.Valores() <= kTablaF.lugares && kTablaP.Valores() <= kTablaP.lugares &&
              kTablaN.Valores() <= kTablaN.lugares);

/// Number of values before those of a latitude; nothing for a key that the table does not have.
std::optional<int> DesplazamientoDe(const TablaDeLatitudes& tabla, std::string_view clave);

/// The latitudes that have a key, in degrees from 0 on, as a list shows them.
std::vector<std::string> ListaDeLatitudes(const TablaDeLatitudes& tabla);

}  // namespace cuencalia
