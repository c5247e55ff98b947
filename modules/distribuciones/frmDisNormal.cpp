#include "modules/distribuciones/frmDisNormal.h"

#include "modules/distribuciones/normal.h"

namespace cuencalia {

frmDisNormal::frmDisNormal(Aplicacion& app)
    : AjustePosicionEscala(app, "frmDisNormal",
                           {.titulo = "Ajuste de una serie de datos a la distribución Normal",
                            .nombre = "Normal",
                            .marcoParametros = "Parámetros distribución normal:",
                            .encabezadoOrdinarios = "Con momentos ordinarios:",
                            .encabezadoLineales = "Con momentos lineales:",
                            .encabezadosTeoricos = {"F(Z) Ordinario", "F(Z) Mom Lineal"},
                            .leyendas = {"Exp", "Ord", "ML"},
                            .patronT = "###.0",
                            .avisoPmayor = "la probabilidad de excedencia",
                            .parametrosTrasTabla = true},
                           kNormal) {
    DeclararParametros({{&txtux, &xm}, {&txtsx, &sx}}, {{&txtmedial, &xml}, {&txtsl, &sxl}});
}

void frmDisNormal::ReporteDistriNormal(Reporte& reporte) {
    ReportarAjuste(reporte, {"           P(X)  ", "F(Z) Ordinario ", "F(Z) Mom Lineal ", "Delta "},
                   "Parámetros de la distribución normal:",
                   {{"Parámetro de localización (Xm)= ", &txtux}, {"Parámetro de escala (S)= ", &txtsx}},
                   {{"Media lineal (Xl)= ", &txtmedial}, {"Desviación estándar lineal (Sl)= ", &txtsl}});
}

}  // namespace cuencalia
