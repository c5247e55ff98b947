#include "modules/distribuciones/ajustepearson3.h"

#include "modules/distribuciones/gamma.h"
#include "modules/estadistica/momentos.h"

namespace cuencalia {

namespace {

/// The gamma function is worked out at 10 more, and by L-moments at half more still.
constexpr Double kFormaMaxima = 161.12;

}  // namespace

AjustePearson3::AjustePearson3(Aplicacion& app, std::string nombre, DescripcionAjuste descripcion,
                               const DistribucionPearson3& distribucion, const char* enVeredicto)
    : MarcoAjuste(app, std::move(nombre), std::move(descripcion)),
      distribucion_(distribucion),
      enVeredicto_(enVeredicto) {
    DeclararParametros({&txtxo, &txtgamma, &txtbeta}, {&txtxol, &txtgammal, &txtbetal});
}

bool AjustePearson3::Reducir(const Pearson3& d, Serie& Y) const {
    bool negativa = false;
    for (int i = 1; i <= n; ++i) {
        Y(i) = distribucion_.Reducida(d, xo(i));
        negativa = negativa || Y(i) < 0;
    }
    return negativa;
}

void AjustePearson3::Ajustar() {
    Serie v;
    for (int i = 1; i <= n; ++i) {
        v(i) = distribucion_.Variable(xo(i));
    }
    const ParametrosEstadisticos m = ParametrosMuestrales(v, n);
    const MomentosLineales l = CalcularMomentosLineales(v, n);
    const Pearson3 ord = Pearson3PorMomentos(m.media, m.desviacion, m.Cs);
    // When no distribution has these L-moments, all parameters are 0, and the division by the scale 0 in Reducir raises
    // an error that ends the fit.
    const Pearson3 lin = Pearson3PorMomentosLineales(l.L1, l.L2, l.L3 / l.L2).value_or(Pearson3{});
    const bool negativaOrd = Reducir(ord, Yord);
    const bool malOrd = m.Cs < 0 || negativaOrd;
    const bool malLin = Reducir(lin, Ylin);
    const auto llenar = [this](bool mal, Double gamma, const Serie& Y, Probabilidades& G) {
        if (!mal) {
            ProbabilidadesGamma(gamma, Y, G, n);
            return;
        }
        for (int i = 1; i <= n; ++i) {
            G(i) = 0;
        }
    };
    llenar(malOrd, ord.gamma, Yord, Gord);
    llenar(malLin, lin.gamma, Ylin, Glin);
    ordinarios = ord;
    lineales = lin;
    linealesConSigno_ = lin;
    if (l.L3 < 0) {
        linealesConSigno_.beta = -lin.beta;
        linealesConSigno_.x0 = l.L1 + lin.beta * lin.gamma;
    }
    paramMalOrd = malOrd;
    paramMalLin = malLin;
}

void AjustePearson3::EscribirVeredicto(Double deltaTeorico, Double deltaTabular, const char* nivel) {
    if (!Incorrectos()) {
        MarcoAjuste::EscribirVeredicto(deltaTeorico, deltaTabular, nivel);
        return;
    }
    lblmensaje.Caption = "Los parámetros: Xo, gamma y ß calculada por " + Momentos() +
                         ", son incorrectos, por lo que los datos no se ajustan a la distribución " + enVeredicto_;
}

bool AjustePearson3::PuedeEvaluar() {
    if (Incorrectos()) {
        App().MsgBox("Los datos no se ajustan a la distribución Gamma de 3 parámetros, con " + Momentos(), kIconoError,
                     "Mensaje de Error");
        return false;
    }
    return true;
}

DistribucionExacta AjustePearson3::Exacta() const {
    return distribucion_.Exacta(Ordinario() ? ordinarios : linealesConSigno_);
}

std::string AjustePearson3::CausaDeDiferencia() const {
    return !Ordinario() && linealesConSigno_.beta < 0
               ? "asimetría negativa: los momentos lineales ajustan la distribución invertida"
               : "";
}

std::string AjustePearson3::Consejo(const ErrorEjecucion& error) const {
    if (error.Numero() == kDesbordamiento && n >= 4) {
        try {
            Serie v;
            for (int i = 1; i <= n; ++i) {
                v(i) = distribucion_.Variable(xo(i));
            }
            const MomentosLineales l = CalcularMomentosLineales(v, n);
            const Double Cs = ParametrosMuestrales(v, n).Cs;
            if (4 / (Cs * Cs) > kFormaMaxima || FormaPearson3(Abs(l.L3 / l.L2)) > kFormaMaxima) {
                return "La serie es casi simétrica: su forma pasa de 161, lo más que admite la función gamma";
            }
        } catch (const ErrorEjecucion&) {  // Values of which not even that can be said.
        }
    }
    return MarcoAjuste::Consejo(error);
}

Double AjustePearson3::Cuantil(Double p) { return distribucion_.Cuantil(Elegidos(), p, n); }

std::optional<Double> AjustePearson3::Probabilidad(Double Q, Evaluacion evaluacion) {
    const Double y = distribucion_.Reducida(Elegidos(), Q);
    if (evaluacion != Evaluacion::PeriodoRetorno && y < 0) {
        App().MsgBox("Para los parámetros: Xo y ß la variable reducida y, por " + Momentos() +
                         ", es negativa, por lo que por lo que no se puede calcular su probabilidad",
                     kIconoInformacion, "Mensaje de Error");
        return std::nullopt;
    }
    return ProbabilidadGamma(Elegidos().gamma, y);
}

}  // namespace cuencalia
