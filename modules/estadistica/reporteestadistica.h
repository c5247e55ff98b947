#pragma once

#include "frame/reportes/reporte.h"

namespace cuencalia {

/// Blocks that the reports of the statistics modules share.

/// The data grid of one series.
void ReportarSerie(Reporte& reporte, FlexGrid& grdt);
/// The six parameter rows: the label, then each figure centred in 25 characters. The first line is shifted by five
/// blanks, as its figures stand below wider headings.
void ReportarParametros(Reporte& reporte, FlexGrid& grdParam, const std::string& encabezado, int regla);
/// The table of classes: each cell centred in 18 characters, the first of a row one blank further.
void ReportarClases(Reporte& reporte, FlexGrid& grddis, const std::string& titulo, const std::string& encabezado,
                    int regla);
/// The sorted list as it stands, also when it was never filled.
void ReportarOrdenados(Reporte& reporte, FlexGrid& grdorden);

}  // namespace cuencalia
