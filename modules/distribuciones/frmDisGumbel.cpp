#include "modules/distribuciones/frmDisGumbel.h"

#include "modules/distribuciones/gumbel.h"

namespace cuencalia {

frmDisGumbel::frmDisGumbel(Aplicacion& app)
    : AjustePosicionEscala(app, "frmDisGumbel",
                           {.titulo = "Ajuste de una serie de datos a la distribución Gumbel",
                            .nombre = "Gumbel",
                            .marcoParametros = "Parámetros distribución Gumbel:",
                            .tituloReporte = "Parámetros de la distribución Gumbel:"},
                           kGumbel) {
    DeclararParametros({&txtmodau, &txtalfa}, {&txtmodaul, &txtalfal});
}

}  // namespace cuencalia
