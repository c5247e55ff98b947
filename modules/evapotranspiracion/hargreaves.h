#pragma once

#include <string>
#include <vector>

#include "frame/base/numeros.h"

namespace cuencalia {

/// Reference evapotranspiration in mm/day: 0.0023·Ra·√(Tmax - Tmin)·(Tmed + 17.8), Ra in mm/day, temperatures in ºC.
/// For Tmax >= Tmin, error 5 below.
/// Source: Hargreaves, G. H. and Samani, Z. A. (1985), Reference crop evapotranspiration from temperature, Applied
/// Engineering in Agriculture 1(2), 96-99.
Double EToHargreaves(Double Ra, Double Tmin, Double Tmax);

/// Stage of a crop's growth.
enum class EtapaCultivo { Inicial, Mediados, Final };

/// The crops with their coefficient in that stage, as a list shows them ("Alfalfa (0.45)"), all in one order of crops.
/// Source: Allen, R. G. et al. (1998), Crop evapotranspiration, FAO Irrigation and Drainage Paper 56, table 12,
/// abridged.
std::vector<std::string> CultivosConKc(EtapaCultivo etapa);
/// Coefficient Kc of the crop at that position of the list, from 0. Error 9 beyond the list.
Single KcDeCultivo(EtapaCultivo etapa, int posicion);

}  // namespace cuencalia
