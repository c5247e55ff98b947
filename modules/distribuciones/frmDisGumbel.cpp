#include "modules/distribuciones/frmDisGumbel.h"

#include "modules/distribuciones/gumbel.h"

namespace cuencalia {

frmDisGumbel::frmDisGumbel(Aplicacion& app)
    : AjustePosicionEscala(app, "frmDisGumbel",
                           {.titulo = "Ajuste de una serie de datos a la distribución Gumbel",
                            .nombre = "Gumbel",
                            .marcoParametros = "Parámetros distribución Gumbel:",
                            .encabezadoOrdinarios = "Con momentos ordinarios:",
                            .encabezadoLineales = "Con momentos lineales:",
                            .encabezadosTeoricos = {"G(Y) Ordinario", "G(Y) Mom Lineal"},
                            .leyendas = {"Exp", "Ord", "ML"}},
                           kGumbel) {
    DeclararParametros({{&txtmodau, &mu}, {&txtalfa, &alfa}}, {{&txtmodaul, &mul}, {&txtalfal, &alfal}});
}

void frmDisGumbel::ReporteDistriGumbel(Reporte& reporte) {
    ReportarAjuste(reporte, {"           P(X)  ", "G(Y) Ordinario ", "G(Y) Mom Lineal ", "Delta "},
                   "Parámetros de la distribución Gumbel:",
                   {{"Parámetro de posición (µ)= ", &txtmodau}, {"Parámetro de escala (alfa)= ", &txtalfa}},
                   {{"Parámetro de posición (µl)= ", &txtmodaul}, {"Parámetro de escala (alfal)= ", &txtalfal}});
}

}  // namespace cuencalia
