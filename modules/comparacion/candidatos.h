#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "modules/comparacion/familias.h"

namespace cuencalia {

/// How the parameters of a candidate are estimated. Of a family of logarithms the moments are those of the logarithms.
enum class Metodo { Momentos, MomentosLineales, Verosimilitud };
/// "Momentos ordinarios".
const char* NombreMetodo(Metodo metodo);

struct Candidato {
    Familia familia;
    Metodo metodo;
};

/// All that are compared: the distributions of the eight windows by the three methods, and five more by linear moments.
const std::vector<Candidato>& Candidatos();

struct Ajuste {
    Candidato candidato;
    std::optional<Distribucion> distribucion;
    std::string motivo;  ///< Why there is none; in Spanish, for the user.
};

/// k of the extreme value distribution that has this |tau3| < 1: (3 + tau3)/2 = (1 - 3^-k)/(1 - 2^-k), solved to
/// rounding. Source: Hosking, J. R. M., Wallis, J. R. and Wood, E. F. (1985), Technometrics 27(3), 251-261.
double FormaValorExtremo(double tau3);

/// Fits a candidate to n >= 4 values of its variable v (x, or ln x) in ascending order. A skew keeps its sign.
/// Ordinary moments: Kite (1977). Linear moments: Hosking, J. R. M. and Wallis, J. R. (1997), Regional Frequency
/// Analysis, Cambridge University Press, appendix; Hosking (1990). Their shape is exact to rounding, but for the
/// log-normal of three parameters (2.5e-6 in k), the gamma of two (7e-5 of the shape) and Pearson III (3e-5).
Ajuste AjustarVariable(Candidato candidato, std::span<const double> v);

/// Fits all candidates to a series in ascending order.
std::vector<Ajuste> AjustarCandidatos(std::span<const double> ordenada);

}  // namespace cuencalia
