#pragma once

#include <functional>
#include <string>

#include "frame/base/numeros.h"

namespace cuencalia {

/// A value that a fit was asked for, as the window shows it.
struct ValorEvaluado {
    Double valor;
    std::string mostrado;  ///< Its text, by `patron`.
    const char* patron;
    Double T;                 ///< The return period in question; 0 where there is none.
    bool sinAsentar = false;  ///< The search for the value ended without having settled.
    std::string causa{};      ///< A reason of the distribution for a difference, if it has one.
    std::function<Double()> exacto;
};

/// How far a value is from the exact one, in Spanish, for the user.
struct Comprobacion {
    std::string texto;
    /// The difference is above 1 %, or the search did not settle: the text warns and says why.
    bool advierte = false;
    bool existe = true;  ///< False: there is no exact value, and the text says so.
};
Comprobacion Comprobar(const ValorEvaluado& v);

}  // namespace cuencalia
