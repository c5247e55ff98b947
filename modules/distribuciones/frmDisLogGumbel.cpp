#include "modules/distribuciones/frmDisLogGumbel.h"

#include "modules/distribuciones/loggumbel.h"

namespace cuencalia {

frmDisLogGumbel::frmDisLogGumbel(Aplicacion& app)
    : AjustePosicionEscala(
          app, "frmDisLogGumbel",
          {.titulo = "Ajuste de una serie de datos a la distribución log-Gumbel o distribución de Fréchet",
           .nombre = "logGumbel",
           .marcoParametros = "Parámetros distribución logGumbel:",
           .encabezadoOrdinarios = "Con momentos ordinarios:",
           .encabezadoLineales = "Con momentos lineales:",
           .encabezadosTeoricos = {"G(Y) Ordinario", "G(Y) Mom Lineal"},
           .leyendas = {"Exp", "Ord", "ML"},
           .iconoNoPositivos = kIconoInformacion},
          kLogGumbel) {
    DeclararParametros({{&txtmodau, &mu}, {&txtalfa, &alfa}}, {{&txtmodaul, &mul}, {&txtalfal, &alfal}});
}

void frmDisLogGumbel::ReporteDistrilogGumbel(Reporte& reporte) {
    ReportarAjuste(reporte, {"           P(X)  ", "G(Y) Ordinario ", "G(Y) Mom Lineal ", "Delta "},
                   "Parámetros de la distribución logGumbel:",
                   {{"Parámetro de posición (µ)= ", &txtmodau}, {"Parámetro de escala (alfa)= ", &txtalfa}},
                   {{"Parámetro de posición (µl)= ", &txtmodaul}, {"Parámetro de escala (alfal)= ", &txtalfal}});
}

}  // namespace cuencalia
