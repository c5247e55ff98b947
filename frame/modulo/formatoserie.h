#pragma once

#include <string>

namespace cuencalia {

/// Patterns by which a data grid shows the numbers of its cells.
inline constexpr const char* kPatronEdicionA = "#0.0#######";
inline constexpr const char* kPatronEdicionB = "0.0#######";

/// The format of a module's series files and sheets, and the texts of its file dialogs.
struct FormatoSerie {
    int valores = 1;            ///< Singles in a record, 1 to 4: the data columns of the grid in order.
    const char* rotuloCrear{};  ///< Label of the file filter when a file is created.
    const char* rotuloAccesar{};
    const char* extension{};                      ///< File name pattern of the filter.
    int registrosDeCola = 0;                      ///< Records of a file after those of the data rows.
    int filasDeCabeza = 0;                        ///< Rows of a sheet before the data rows.
    bool conHoja = true;                          ///< Whether the module can load sheets; false hides the button.
    const char* patronArchivo = kPatronEdicionA;  ///< Shows the numbers loaded from a file.
    const char* patronHoja = kPatronEdicionB;     ///< Shows the numbers loaded from a sheet.

    std::string FiltroCrear() const { return std::string(rotuloCrear) + "|" + extension; }
    std::string FiltroAccesar() const { return std::string(rotuloAccesar) + "|" + extension; }
};

/// Series of one variable, of which several families have windows.
inline constexpr FormatoSerie kArchivoX{1, "Valores de X", "Valores X", "*.X"};

}  // namespace cuencalia
