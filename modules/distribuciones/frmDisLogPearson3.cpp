#include "modules/distribuciones/frmDisLogPearson3.h"

#include "modules/distribuciones/logpearson3.h"

namespace cuencalia {

frmDisLogPearson3::frmDisLogPearson3(Aplicacion& app)
    : AjustePearson3(app, "frmDisLogPearson3",
                     {.titulo = "Ajuste de una serie de datos a la distribución log-Pearson tipo III",
                      .nombre = "Log-Pearson tipo 3",
                      .marcoParametros = "Parámetros distribución LogPearson3:",
                      .tituloReporte = "Los 3 parámetros de la distribución Log-Pearson tipo 3:",
                      .encabezadoOrdinarios = "Momentos ordinarios:",
                      .encabezadoLineales = "Momentos lineales:",
                      .leyendas = {"Teo", "Ord", "ML"},
                      .patronDeltaTeorico = "#####0.0####",
                      .patronDeltaTabular = "###0.0###",
                      .patronP = "###.0#"},
                     kLogPearson3, "Log-Pearson tipo 3") {
    AvisarFallos(
        {"Sus datos no se ajustan a la distribución log-Pearson tipo 3. Guarde sus datos y pruebe ajustar con otra "
         "distribución ",
         kIconoInformacion, "Mensaje de error"});
}

void frmDisLogPearson3::AlFallar() {
    AjustePearson3::AlFallar();
    calculado = false;
}

}  // namespace cuencalia
