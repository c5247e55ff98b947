#pragma once

#include "frame/reportes/reporte.h"

namespace cuencalia {

/// Blocks that the reports of the statistics modules share.

/// The data grid of one series.
void ReportarSerie(Reporte& reporte, FlexGrid& grdt);
/// The six parameter rows: the label, then each figure centred in 25 characters. The first row has five more blanks,
/// because its figures are below wider headings.
void ReportarParametros(Reporte& reporte, FlexGrid& grdParam, const std::string& encabezado, int regla);
/// The table of classes: each cell is centred in 18 characters; the first cell of a row has one more blank before it.
void ReportarClases(Reporte& reporte, FlexGrid& grddis, const std::string& titulo, const std::string& encabezado,
                    int regla);
/// The sorted list as shown at present, even when it was never filled.
void ReportarOrdenados(Reporte& reporte, FlexGrid& grdorden);

}  // namespace cuencalia
