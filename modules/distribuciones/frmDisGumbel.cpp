#include "modules/distribuciones/frmDisGumbel.h"

#include "modules/distribuciones/gumbel.h"

namespace cuencalia {

frmDisGumbel::frmDisGumbel(Aplicacion& app)
    : AjusteGumbel(app, "frmDisGumbel",
                   {.titulo = "Ajuste de una serie de datos a la distribución Gumbel",
                    .nombre = "Gumbel",
                    .marcoParametros = "Parámetros distribución Gumbel:",
                    .tituloReporte = "Parámetros de la distribución Gumbel:"},
                   kGumbel) {}

}  // namespace cuencalia
