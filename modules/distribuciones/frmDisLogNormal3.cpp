#include "modules/distribuciones/frmDisLogNormal3.h"

#include "modules/distribuciones/normal.h"

namespace cuencalia {

frmDisLogNormal3::frmDisLogNormal3(Aplicacion& app)
    : MarcoAjuste(app, "frmDisLogNormal3",
                  {.titulo = "Ajuste de una serie de datos a la distribución log-Normal de 3 parámetros",
                   .nombre = "logNormal 3 parámetros",
                   .marcoParametros = "Parámetros distribución log-normal:",
                   .tituloReporte = "Parámetros de la distribución lognormal:",
                   .porAmbosMomentos = false,
                   .encabezadosTeoricos = {"Z", "F(Z)"},
                   .encabezadosReporte = {"           Z  ", "             F(Z)  ", "            Delta "},
                   .leyendas = {"Exp", "Teo"},
                   .patronT = "###.0",
                   .avisoPmayor = "la probabilidad de excedencia",
                   .parametrosTrasTabla = true}) {
    DeclararParametros({&txtxo, &txtux, &txtsx});
}

bool frmDisLogNormal3::AdmiteDatos() {
    for (int i = 1; i <= n; ++i) {
        if (x(i) <= 0) {
            App().MsgBox("Verificar que los datos sean positivos y mayor que 0 ¡ Corregir datos!", kIconoInformacion,
                         "Mensaje de Error");
            return false;
        }
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
    if (Q - distribucion.x0 > 0) {
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

}  // namespace cuencalia
