#include "modules/distribuciones/frmDisLogNormal3.h"

#include "modules/distribuciones/normal.h"

namespace cuencalia {

frmDisLogNormal3::frmDisLogNormal3(Aplicacion& app)
    : MarcoAjuste(app, "frmDisLogNormal3",
                  {.titulo = "Ajuste de una serie de datos a la distribución log-Normal de 3 parámetros",
                   .nombre = "logNormal 3 parámetros",
                   .marcoParametros = "Parámetros distribución log-normal:",
                   .encabezadoOrdinarios = nullptr,
                   .encabezadoLineales = nullptr,
                   .encabezadosTeoricos = {"Z", "F(Z)"},
                   .leyendas = {"Exp", "Teo"},
                   .patronT = "###.0",
                   .avisoPmayor = "la probabilidad de excedencia",
                   .parametrosTrasTabla = true}) {
    DeclararParametros({{&txtxo, &x0}, {&txtux, &uy}, {&txtsx, &sy}});
}

bool frmDisLogNormal3::AdmiteSerie() {
    if (n >= 1 && xo(1) <= 0) {
        App().MsgBox("Verificar que los datos sean positivos y mayor que 0 ¡ Corregir datos!", kIconoInformacion,
                     "Mensaje de Error");
        return false;
    }
    return true;
}

void frmDisLogNormal3::Ajustar() {
    const LogNormal3 ajuste = AjustarLogNormal3(xo, n);
    for (int i = 1; i <= n; ++i) {
        Yord(i) = ajuste.Reducida(xo(i));
        Gord(i) = FuncionNormal(Yord(i));
    }
    distribucion = ajuste;
}

std::optional<Double> frmDisLogNormal3::Probabilidad(Double Q, Evaluacion evaluacion) {
    if (Q - x0 > 0) {
        return distribucion.Probabilidad(Q);
    }
    std::string mensaje = "Para este valor, no es posible calcular ";
    switch (evaluacion) {
        case Evaluacion::PeriodoRetorno:
            mensaje += "el período de retorno, además este valor es muy pequeño";
            break;
        case Evaluacion::Excedencia:
            mensaje += "la probabilidad de excedencia";
            break;
        case Evaluacion::NoExcedencia:
            mensaje += "la probabilidad de no excedencia";
            break;
    }
    App().MsgBox(mensaje, kIconoError, "Error");
    return std::nullopt;
}

void frmDisLogNormal3::ReporteDistriLogNormal3(Reporte& reporte) {
    ReportarAjuste(reporte, {"           P(X)  ", "           Z  ", "             F(Z)  ", "            Delta "},
                   "Parámetros de la distribución lognormal:",
                   {{"Parámetro de posición (xo)= ", &txtxo},
                    {"Parámetro de escala (µy)= ", &txtux},
                    {"Parámetro de forma (Sy)= ", &txtsx}});
}

}  // namespace cuencalia
