#include "modules/distribuciones/frmDisGamma2par.h"

#include "modules/distribuciones/gamma.h"
#include "modules/estadistica/momentos.h"

namespace cuencalia {

frmDisGamma2par::frmDisGamma2par(Aplicacion& app)
    : MarcoAjuste(app, "frmDisGamma2par",
                  {.titulo = "Ajuste de una serie de datos a la distribución Gamma de 2 parámetros",
                   .nombre = "Gamma de 2 parámetros",
                   .marcoParametros = "Parámetros distribución Gamma 2 par:",
                   .tituloReporte = "Los 2 parámetros de la distribución Gamma:"}) {
    DeclararParametros({&txtgamma, &txtbeta}, {&txtgammal, &txtbetal});
}

void frmDisGamma2par::Ajustar() {
    const ParametrosEstadisticos m = ParametrosMuestrales(xo, n);
    const MomentosLineales l = CalcularMomentosLineales(xo, n);
    const Gamma2 ord = Gamma2PorVerosimilitud(m.media, Media(Logaritmos(x, n), n));
    const Gamma2 lin = Gamma2PorMomentosLineales(l.L1, l.L2);
    for (int i = 1; i <= n; ++i) {
        Yord(i) = ord.Reducida(xo(i));
        Ylin(i) = lin.Reducida(xo(i));
    }
    ProbabilidadesGamma(ord.gamma, Yord, Gord, n);
    ProbabilidadesGamma(lin.gamma, Ylin, Glin, n);
    ordinarios = ord;
    lineales = lin;
    linealesExactos_ = Gamma2PorMomentosLineales(l.L1, l.L2, kFactorDeHosking);
}

bool frmDisGamma2par::AdmiteParametros() {
    if (!(ordinarios.gamma > 0 && ordinarios.beta > 0)) {
        lblmensaje.Caption =
            "Los datos de la serie no son recomendables utilizarlos con distribución gamma de 3 parámetros, "
            "puesto que esta distribución, no puede tener parametros gamma o beta negativos";
        return false;
    }
    if (lineales.gamma == 0 || lineales.beta == 0) {
        lblmensaje.Caption =
            "Los parámetros de la distribución gamma, calculados por el método de los momentos lineales, son "
            "incorrectos";
        return false;
    }
    return true;
}

std::string frmDisGamma2par::CausaDeDiferencia() const {
    return !Ordinario() && lineales.gamma != linealesExactos_.gamma
               ? "L2/L1 menor que 0.5: la forma por momentos lineales es cerca de la mitad de la debida"
               : "";
}

}  // namespace cuencalia
