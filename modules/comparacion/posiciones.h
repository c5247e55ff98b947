#pragma once

#include <vector>

namespace cuencalia {

/// A plotting position: the non-exceedance probability (i - a)/(n + 1 - 2a) of the i-th of n values in ascending order.
struct PosicionGrafica {
    const char* nombre;
    double a;

    double operator()(int i, int n) const { return (i - a) / (n + 1 - 2 * a); }
    /// Those of i = 1 to n.
    std::vector<double> Todas(int n) const {
        std::vector<double> p;
        for (int i = 1; i <= n; ++i) {
            p.push_back((*this)(i, n));
        }
        return p;
    }
};

/// Weibull's are the mean probabilities of the order statistics whatever the distribution; Hazen's the middles of the
/// steps; Blom's and Gringorten's near those of the mean values of a normal and a Gumbel distribution; Cunnane's a
/// compromise for all.
/// Source: Cunnane, C. (1978), Unbiased plotting positions, a review, Journal of Hydrology 37, 205-222.
inline constexpr PosicionGrafica kPosiciones[] = {
    {"Weibull", 0}, {"Hazen", 0.5}, {"Blom", 0.375}, {"Cunnane", 0.4}, {"Gringorten", 0.44}};
inline constexpr const PosicionGrafica& kPosicionWeibull = kPosiciones[0];
inline constexpr const PosicionGrafica& kPosicionCunnane = kPosiciones[3];

}  // namespace cuencalia
