#pragma once

#include "frame/reportes/reporte.h"
#include "modules/distribuciones/descripcionajuste.h"

namespace cuencalia {

/// The tables and paragraphs of which the report of a fit is made.

/// The table of the test, with the rows that the last fit filled.
void ReportarPrueba(Reporte& reporte, FlexGrid& grddis, const DescripcionAjuste& ajuste);
/// A paragraph between dashes.
void ReportarVeredicto(Reporte& reporte, const std::string& ajuste, const std::string& veredicto);
/// The parameters as their boxes show them.
void ReportarParametros(Reporte& reporte, const DescripcionAjuste& ajuste, const ParametrosDeAjuste& ordinarios,
                        const ParametrosDeAjuste& lineales);
/// The discharge Q of the return period T, with the warning that belongs to them, if there is one.
void ReportarDiseno(Reporte& reporte, const std::string& T, const std::string& Q, const std::string& advertencia);

}  // namespace cuencalia
