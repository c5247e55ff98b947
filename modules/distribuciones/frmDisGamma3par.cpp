#include "modules/distribuciones/frmDisGamma3par.h"

#include "modules/distribuciones/gamma3.h"

namespace cuencalia {

frmDisGamma3par::frmDisGamma3par(Aplicacion& app)
    : AjustePearson3(app, "frmDisGamma3par",
                     {.titulo = "Ajuste de una serie de datos a la distribución Gamma de 3 parámetros",
                      .nombre = "Gamma de 3 parámetros",
                      .marcoParametros = "Parámetros distribución Gamma 3 par:",
                      .tituloReporte = "Los 3 parámetros de la distribución Gamma:",
                      .encabezadoOrdinarios = "Momentos ordinarios:",
                      .encabezadoLineales = "Momentos lineales:",
                      .patronDeltaTeorico = "#####0.0####",
                      .patronDeltaTabular = "###0.0###",
                      .patronP = "###.0#"},
                     kGamma3, "gamma de 3 parámetros") {}

}  // namespace cuencalia
