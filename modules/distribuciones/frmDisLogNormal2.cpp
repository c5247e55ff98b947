#include "modules/distribuciones/frmDisLogNormal2.h"

#include "modules/distribuciones/lognormal2.h"

namespace cuencalia {

frmDisLogNormal2::frmDisLogNormal2(Aplicacion& app)
    : AjustePosicionEscala(app, "frmDisLogNormal2",
                           {.titulo = "Ajuste de una serie de datos a la distribución log-Normal de 2 parámetros",
                            .nombre = "logNormal 2 parámetros",
                            .marcoParametros = "Parámetros distribución log-normal:",
                            .encabezadoOrdinarios = "Con momentos ordinarios:",
                            .encabezadoLineales = "Con momentos lineales:",
                            .encabezadosTeoricos = {"F(Z) Ordinario", "F(Z) Mom Lineal"},
                            .leyendas = {"Exp", "Ord", "ML"},
                            .patronT = "###.0",
                            .avisoPmayor = "la probabilidad de excedencia",
                            .parametrosTrasTabla = true},
                           kLogNormal2) {
    DeclararParametros({{&txtux, &uy}, {&txtsx, &sy}}, {{&txtmedial, &uyl}, {&txtsl, &syl}});
}

void frmDisLogNormal2::ReporteDistriLogNormal2(Reporte& reporte) {
    ReportarAjuste(reporte, {"           P(X)  ", "F(Z) Ordinario ", "F(Z) Mom Lineal ", "Delta "},
                   "Parámetros de la distribución logNormal:",
                   {{"Parámetro de escala (µy)= ", &txtux}, {"Parámetro de forma (Sy)= ", &txtsx}},
                   {{"Parámetro de escala (µyl)= ", &txtmedial}, {"Parámetro de forma (Syl)= ", &txtsl}});
}

}  // namespace cuencalia
