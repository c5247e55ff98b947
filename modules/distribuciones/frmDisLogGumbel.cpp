#include "modules/distribuciones/frmDisLogGumbel.h"

#include "modules/distribuciones/loggumbel.h"

namespace cuencalia {

frmDisLogGumbel::frmDisLogGumbel(Aplicacion& app)
    : AjusteGumbel(app, "frmDisLogGumbel",
                   {.titulo = "Ajuste de una serie de datos a la distribución log-Gumbel o distribución de Fréchet",
                    .nombre = "logGumbel",
                    .marcoParametros = "Parámetros distribución logGumbel:",
                    .tituloReporte = "Parámetros de la distribución logGumbel:",
                    .iconoNoPositivos = kIconoInformacion},
                   kLogGumbel) {}

}  // namespace cuencalia
