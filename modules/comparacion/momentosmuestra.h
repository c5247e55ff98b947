#pragma once

#include <span>

namespace cuencalia {

/// Mean, deviation of divisor n - 1, and skew as Kite (1977) and Bulletin 17 have it: n²·m3/((n-1)(n-2)·s³), with m3 of
/// divisor n. NaN where it does not exist (all values equal, fewer than three).
struct MomentosMuestra {
    double media, desviacion, asimetria;
};
MomentosMuestra CalcularMomentosMuestra(std::span<const double> v);

/// L1, L2, tau3 = L3/L2 and tau4 = L4/L2 of values in ascending order, as CalcularMomentosLineales has them but without
/// its checks: NaN where one does not exist.
struct MomentosL {
    double L1, L2, tau3, tau4;
};
MomentosL CalcularMomentosL(std::span<const double> ordenada);

}  // namespace cuencalia
