#include "modules/distribuciones/frmDisLogNormal2.h"

#include "modules/distribuciones/lognormal2.h"

namespace cuencalia {

frmDisLogNormal2::frmDisLogNormal2(Aplicacion& app)
    : AjustePosicionEscala(app, "frmDisLogNormal2",
                           {.titulo = "Ajuste de una serie de datos a la distribución log-Normal de 2 parámetros",
                            .nombre = "logNormal 2 parámetros",
                            .marcoParametros = "Parámetros distribución log-normal:",
                            .tituloReporte = "Parámetros de la distribución logNormal:",
                            .encabezadosTeoricos = {"F(Z) Ordinario", "F(Z) Mom Lineal"},
                            .patronT = "###.0",
                            .avisoPmayor = "la probabilidad de excedencia",
                            .parametrosTrasTabla = true},
                           kLogNormal2) {
    DeclararParametros({&txtux, &txtsx}, {&txtmedial, &txtsl});
}

}  // namespace cuencalia
