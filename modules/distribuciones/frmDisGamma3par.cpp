#include "modules/distribuciones/frmDisGamma3par.h"

namespace cuencalia {

frmDisGamma3par::frmDisGamma3par(Aplicacion& app)
    : AjustePearson3(app, "frmDisGamma3par",
                     {.titulo = "Ajuste de una serie de datos a la distribución Gamma de 3 parámetros",
                      .nombre = "Gamma de 3 parámetros",
                      .marcoParametros = "Parámetros distribución Gamma 3 par:",
                      .encabezadoOrdinarios = "Momentos ordinarios:",
                      .encabezadoLineales = "Momentos lineales:",
                      .encabezadosTeoricos = {"G(Y) Ordinario", "G(Y) Mom Lineal"},
                      .leyendas = {"Exp", "Ord", "ML"},
                      .patronDeltaTeorico = "#####0.0####",
                      .patronDeltaTabular = "###0.0###",
                      .patronP = "###.0#"},
                     false, "gamma de 3 parámetros") {}

void frmDisGamma3par::ReporteDistriGamma3(Reporte& reporte) {
    ReportarPearson3(reporte, "Los 3 parámetros de la distribución Gamma:");
}

}  // namespace cuencalia
