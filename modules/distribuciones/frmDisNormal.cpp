#include "modules/distribuciones/frmDisNormal.h"

#include "modules/distribuciones/normal.h"

namespace cuencalia {

frmDisNormal::frmDisNormal(Aplicacion& app)
    : AjustePosicionEscala(app, "frmDisNormal",
                           {.titulo = "Ajuste de una serie de datos a la distribución Normal",
                            .nombre = "Normal",
                            .marcoParametros = "Parámetros distribución normal:",
                            .tituloReporte = "Parámetros de la distribución normal:",
                            .encabezadosTeoricos = {"F(Z) Ordinario", "F(Z) Mom Lineal"},
                            .patronT = "###.0",
                            .avisoPmayor = "la probabilidad de excedencia",
                            .parametrosTrasTabla = true},
                           kNormal) {
    DeclararParametros({&txtux, &txtsx}, {&txtmedial, &txtsl});
}

}  // namespace cuencalia
