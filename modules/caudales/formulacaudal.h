#pragma once

#include <optional>
#include <string>
#include <vector>

#include "frame/base/numeros.h"
#include "frame/controles/plataforma.h"

namespace cuencalia {

/// A list from which the user picks a property of a group of land use.
struct ListaSuelo {
    const char* nombre;
    const char* rotulo;
    std::vector<std::string> entradas;
    std::string inicio;  ///< Text at the start.
    bool vuelve;         ///< Whether it returns to that text when a group was added.
};

/// A group as the table shows it.
struct GrupoClasificado {
    std::string cobertura, textura, pendiente;
    Double C;
};

/// How a formula gets the runoff coefficient of a group.
struct TablasDeC {
    std::vector<ListaSuelo> listas;
    std::vector<const char*> encabezados;  ///< Of the table of groups: number, area, cover, texture, slope, C.
    const char* tituloReporte;             ///< Of that table in the report.
    int gruposMaximos;
    Aviso faltaArea;
    std::optional<Aviso> faltaPendiente;  ///< None where an empty slope is 0.
    /// By the texts of the lists and a slope in percent; the coefficient is 0 for a text that is in no table.
    GrupoClasificado (*clasificar)(const std::vector<std::string>& textos, Double pendiente);
};

/// A formula of the peak discharge of a basin, as its window needs it.
struct FormulaCaudal {
    const char* texto;
    const char *rotuloC, *rotuloA;
    bool conPendiente;  ///< Whether it takes the slope of the channel, S.
    /// m3/s, for I in mm/hr, A in hectares, S in parts per thousand.
    Double (*caudal)(Double C, Double I, Double A, Double S);
    TablasDeC tablas;
};

FormulaCaudal FormulaRacional();
FormulaCaudal FormulaMacMath();

}  // namespace cuencalia
