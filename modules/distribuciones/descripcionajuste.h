#pragma once

#include <string>
#include <vector>

#include "frame/base/numeros.h"
#include "frame/controles/controles.h"
#include "frame/controles/plataforma.h"

namespace cuencalia {

/// The properties in which the windows of the distributions differ.
struct DescripcionAjuste {
    std::string titulo;           ///< Title of the window.
    const char* nombre;           ///< Name of the distribution in the verdict.
    const char* marcoParametros;  ///< Title of the frame around the parameters.
    const char* tituloReporte;    ///< Title of the parameters in the report.
    bool porAmbosMomentos = true;
    const char* encabezadoOrdinarios = "Con momentos ordinarios:";  ///< Above the parameters on the window.
    const char* encabezadoLineales = "Con momentos lineales:";
    std::vector<std::string> encabezadosTeoricos{"G(Y) Ordinario",
                                                 "G(Y) Mom Lineal"};  ///< Columns 3 and 4 of the table.
    /// Headings of columns 3 to 5 in the report; empty: the headings of the table, each followed by a blank.
    std::vector<std::string> encabezadosReporte{};
    std::vector<std::string> leyendas{"Exp", "Ord", "ML"};  ///< Legends of the chart's curves.
    const char* patronDeltaTeorico = "#####0.###0";
    const char* patronDeltaTabular = "###0.###0";
    const char* patronT = "###0.0";
    const char* patronP = "###.#0";
    /// What cannot be evaluated, in the message that bPmayor gives when there is no fit yet.
    const char* avisoPmayor = "la probabilidad de no excedencia";
    bool parametrosTrasTabla = false;      ///< True: the parameters are shown after the table is filled; false: before.
    Icono iconoNoPositivos = kIconoError;  ///< Icon of the message that refuses values without a logarithm.
};

/// A parameter shown on the window and in the report.
struct CampoParametro {
    CampoParametro(Formulario& forma, const char* nombre, const char* rotulo, const char* enReporte,
                   const Double& valor);

    Label etiqueta;
    TextBox caja;
    const char* enReporte;
    const Double& valor;  ///< Value from the last fit.
};

/// Parameters in the order of the window and of the report.
using ParametrosDeAjuste = std::vector<CampoParametro*>;

}  // namespace cuencalia
