#pragma once

#include <string>

namespace cuencalia {

/// Short name of a month, "Ene" to "Dic" ("Set" for September); 13 is January again, and so on.
std::string MesCorto(int mes);
/// Name of a month, "Enero" (1) to "Diciembre" ("Setiembre" for September); 13 is January again.
std::string NombreMes(int mes);
/// Days of a month, 1 to 12; February always has 28.
int DiasDelMes(int mes);

}  // namespace cuencalia
