#include "modules/estadistica/reporteestadistica.h"

namespace cuencalia {

namespace {

constexpr int kReglaSerie = 45;
constexpr int kAnchoParametro = 25;
constexpr int kAnchoClase = 18;

}  // namespace

void ReportarSerie(Reporte& reporte, FlexGrid& grdt) {
    reporte.EscribirTabla(TablaDeSerie("Serie de datos X:", {" N°", " X"}, kReglaSerie), grdt, grdt.Rows() - 2);
}

void ReportarParametros(Reporte& reporte, FlexGrid& grdParam, const std::string& encabezado, int regla) {
    const auto cifra = CeldaCentrada(kAnchoParametro, [](int fila, int) { return fila == 1 ? 5 : 0; });
    const auto celda = [cifra](const std::string& texto, int fila, int columna) {
        return columna == 0 ? texto + "\t" : cifra(texto, fila, columna);
    };
    reporte.EscribirTabla(
        {.titulo = "Parámetros Estadísticos:", .regla = regla, .encabezado = encabezado, .celda = celda}, grdParam,
        grdParam.Rows() - 1);
}

void ReportarClases(Reporte& reporte, FlexGrid& grddis, const std::string& titulo, const std::string& encabezado,
                    int regla) {
    const auto celda = CeldaCentrada(kAnchoClase, [](int, int columna) { return columna == 0 ? 1 : 0; });
    reporte.EscribirTabla({.titulo = titulo, .regla = regla, .encabezado = encabezado, .celda = celda}, grddis,
                          grddis.Rows() - 1);
}

void ReportarOrdenados(Reporte& reporte, FlexGrid& grdorden) {
    reporte.EscribirTabla(TablaDeSerie("Serie de datos ordenados:", {" N°", " X"}, kReglaSerie), grdorden,
                          grdorden.Rows() - 1);
}

}  // namespace cuencalia
