#pragma once

#include <optional>
#include <span>

#include "modules/comparacion/candidatos.h"

namespace cuencalia {

/// How near a fit comes to its series. All but `correlacion` are the smaller, the better.
struct Bondad {
    /// Greatest |i/(n + 1) - F|, the delta of the windows of the distributions.
    double delta;
    /// Anderson and Darling's A², which weighs the tails; infinite for a value beyond the end of the distribution.
    /// Source: Anderson, T. W. and Darling, D. A. (1954), A test of goodness of fit, J. Am. Stat. Assoc. 49, 765-769.
    double andersonDarling;
    /// Correlation of the probability plot, between the values v and the quantiles of their positions.
    /// Source: Filliben, J. J. (1975), The probability plot correlation coefficient test for normality, Technometrics
    /// 17(1), 111-117; Vogel, R. M. (1986), Water Resources Research 22(4), 587-590.
    double correlacion;
    /// Root of the mean squared difference between the values and the quantiles of their positions, in the unit of x.
    double error;
};

/// v are the values of the variable in ascending order, p their plotting positions; x the values themselves, which are
/// v for a family without logarithms.
Bondad MedirBondad(const Distribucion& d, std::span<const double> v, std::span<const double> x,
                   std::span<const double> p);

/// Akaike's criterion 2k - 2 ln L with the likelihood of the values x, also in a family of logarithms, so that all
/// families can be compared. Meaningful for fits by maximum likelihood alone.
/// Source: Akaike, H. (1974), A new look at the statistical model identification, IEEE Trans. Automatic Control 19(6),
/// 716-723.
double CriterioAkaike(const Distribucion& d, std::span<const double> v);

}  // namespace cuencalia
