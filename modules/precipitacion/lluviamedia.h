#pragma once

#include "frame/base/numeros.h"

namespace cuencalia {

/// Mean rain of a basin, in the unit of P: ΣA·P / ΣA over i = 1 to n. P(i) is the rain of a station or of a band
/// between two isohyets and A(i) the area that it stands for, in any unit; negative values are not refused. Error 6 or
/// 11 when the areas add up to 0. Source: Thiessen, A. H. (1911), Precipitation averages for large areas, Monthly
/// Weather Review 39(7), 1082-1084.
Double PromedioPorAreas(const ArregloBase<Double>& P, const ArregloBase<Double>& A, int n);

/// Rain of the bands between isohyets, Pm(i) = (iso(i) + iso(i + 1)) / 2 for i = 1 to n, in the unit of iso. The
/// isohyets need not rise or fall. Error 9 when an array has no place for its n or n + 1 values.
/// Source: Linsley, R. K., Kohler, M. A. and Paulhus, J. L. H. (1958), Hydrology for Engineers, McGraw-Hill, New York.
void LluviaDeBandas(const ArregloBase<Double>& iso, int n, ArregloBase<Double>& Pm);

}  // namespace cuencalia
