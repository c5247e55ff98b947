#include "modules/estadistica/reporteestadistica.h"

namespace cuencalia {

namespace {

constexpr int kReglaSerie = 45;
constexpr int kAnchoParametro = 25;
constexpr int kAnchoClase = 18;

}  // namespace

void ReportarSerie(Reporte& reporte, FlexGrid& grdt) {
    reporte.TablaDeSerie("Serie de datos X:", {" N°", " X"}, grdt, grdt.Rows() - 2, kReglaSerie);
}

void ReportarParametros(Reporte& reporte, const FlexGrid& grdParam) {
    for (int fila = 1; fila < grdParam.Rows(); ++fila) {
        reporte.ReporteTexto(grdParam.TextMatrix(fila, 0) + "\t");
        for (int c = 1; c < grdParam.Cols(); ++c) {
            reporte.CeldaCentrada(grdParam.TextMatrix(fila, c), kAnchoParametro, fila == 1 ? 5 : 0);
        }
        reporte.ReporteBlanco();
    }
}

void ReportarClases(Reporte& reporte, const FlexGrid& grddis) {
    for (int fila = 1; fila < grddis.Rows(); ++fila) {
        for (int c = 0; c < grddis.Cols(); ++c) {
            reporte.CeldaCentrada(grddis.TextMatrix(fila, c), kAnchoClase, c == 0 ? 1 : 0);
        }
        reporte.ReporteBlanco();
    }
}

void ReportarOrdenados(Reporte& reporte, FlexGrid& grdorden) {
    reporte.TablaDeSerie("Serie de datos ordenados:", {" N°", " X"}, grdorden, grdorden.Rows() - 1, kReglaSerie);
}

}  // namespace cuencalia
