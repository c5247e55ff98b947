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

inline constexpr FormatoSerie kArchivoX{1, "Valores de X", "Valores X", "*.X"};
inline constexpr FormatoSerie kArchivoXMaximas{1, "Valores de X", "Valores de X", "*.X"};
inline constexpr FormatoSerie kArchivoQ{1, "Valores de Q", "Valores Q", "*.Q", 1, 0, false};
inline constexpr FormatoSerie kArchivoCD{1, "Valores de caudales Q", "Valores de caudales Q", "*.CD"};
inline constexpr FormatoSerie kArchivoVE{1, "Valores mensuales de X", "Valores mensuales de X", "*.VE"};
inline constexpr FormatoSerie kArchivoTM{
    1, "Temperaturas mensuales TM", "Temperaturas mensuales TM", "*.TM", 0, 0, true, "0.0#"};
inline constexpr FormatoSerie kArchivoTB{
    1, "Temperaturas mensuales TB", "Temperaturas mensuales TB", "*.TB", 0, 0, true, "0.0#"};
inline constexpr FormatoSerie kArchivoP{1, "Valores de precipitación P", "Valores de precipitación P", "*.P"};
inline constexpr FormatoSerie kArchivoTP{2, "Temperaturas y precipitación TP", "Temperaturas y precipitación TP",
                                         "*.TP"};
inline constexpr FormatoSerie kArchivoXY{2, "Pares valores X,Y", "Pares valores X,Y", "*.XY"};
inline constexpr FormatoSerie kArchivoTH{2, "Pares valores T,H", "Pares valores T,H", "*.TH"};
inline constexpr FormatoSerie kArchivoPA{2, "Pares valores P, A", "Pares valores P, A", "*.PA"};
inline constexpr FormatoSerie kArchivoIA{2, "Pares valores I, A", "Pares valores I, A", "*.IA", 1};
inline constexpr FormatoSerie kArchivoTDI{3, "Trio valores T,D,I", "Trio valores T,D,I", "*.TDI"};
inline constexpr FormatoSerie kArchivoXYZ{3, "Trio valores X,Y,Z", "Trio valores X,Y,Z", "*.XYZ"};
inline constexpr FormatoSerie kArchivoLHV{3, "Trio valores L,h,v", "Trio valores L,h,V", "*.LHV", 1, 1};
inline constexpr FormatoSerie kArchivoXSY{4, "Cuartetos valores XS,Y", "Cuartetos valores XS,Y", "*.XSY"};

}  // namespace cuencalia
