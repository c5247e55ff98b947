#pragma once

#include <span>
#include <string>
#include <vector>

namespace cuencalia {

/// A test of whether a series is fit for a frequency analysis. p is the probability of a statistic at least so far out
/// when the values are independent and from one distribution; NaN where the test cannot be made.
struct PruebaSerie {
    const char* nombre;
    double estadistico;
    double p;
    std::string sentencia;  ///< In Spanish, for the user, at a level of 5 %.
};

/// Serial correlation of the values in their order, x1 coming after xn: R = sum of x(i)·x(i+1), normal for large n; of
/// both sides. n >= 4.
/// Source: Wald, A. and Wolfowitz, J. (1943), An exact test for randomness in the non-parametric case based on serial
/// correlation, Ann. Math. Stat. 14(4), 378-388.
PruebaSerie WaldWolfowitz(std::span<const double> x);

/// Correlation of each value with the next: r1 = sum of d(i)·d(i+1) over sum of d², d the differences from the mean.
/// Normal with mean -1/(n - 1) and variance (n - 2)/(n - 1)²; of both sides. n >= 4.
/// Source: Anderson, R. L. (1942), Distribution of the serial correlation coefficient, Ann. Math. Stat. 13(1), 1-13.
PruebaSerie AutocorrelacionUno(std::span<const double> x);

/// Trend: S counts the pairs that rise less those that fall; normal with correction for ties and continuity, of both
/// sides. n >= 4.
/// Sources: Mann, H. B. (1945), Econometrica 13, 245-259. Kendall, M. G. (1975), Rank Correlation Methods, Griffin.
PruebaSerie MannKendall(std::span<const double> x);

/// Change of level: K = greatest |U(t)|, U(t) = sum of sign(x(i) - x(j)) over i <= t < j; p = 2·exp(-6K²/(n³ + n²)), at
/// most 1, right to two digits below 0.5. `cambio` is the last t before the change.
/// Source: Pettitt, A. N. (1979), A non-parametric approach to the change-point problem, Applied Statistics 28(2),
/// 126-135.
PruebaSerie Pettitt(std::span<const double> x, int& cambio);

/// Outliers of the logarithms, normal at a level of 10 %: those beyond mean ± K·s, K = -0.9043 + 3.345·sqrt(log n) -
/// 0.4046·log n with log of base 10, which gives the table of Bulletin 17 to 0.002 for 10 <= n <= 149. p is that of the
/// farthest value: n times the tail of Student's t that belongs to it (Grubbs 1969), at most 1. All values must be
/// above 0. Sources: U.S. Water Resources Council (1981), Guidelines for determining flood flow frequency, Bulletin
/// 17B, appendix
/// 4. Stedinger, J. R. et al. (1993), in Handbook of Hydrology, McGraw-Hill, chapter 18. Grubbs, F. E. (1969),
/// Technometrics 11(1), 1-21.
struct Atipicos {
    double inferior, superior;  ///< Limits, unit of x.
    int bajos = 0, altos = 0;   ///< Values beyond them.
    PruebaSerie prueba;
};
Atipicos GrubbsBeck(std::span<const double> x);

/// Probability that Student's t of `grados` degrees of freedom is above t >= 0, by the finite series of Abramowitz and
/// Stegun (1964), 26.7.3 and 26.7.4.
double ColaStudent(double t, int grados);

/// All of them, in this order, for the series in the order in which it was observed. Of fewer than 4 values, or equal
/// ones, each says that it cannot be made.
std::vector<PruebaSerie> ProbarSerie(std::span<const double> x);

}  // namespace cuencalia
