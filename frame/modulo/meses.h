#pragma once

#include <string>

namespace cuencalia {

/// Short name of a month, "Ene" to "Dic" ("Set" for September); 13 is January again, and so on.
std::string MesCorto(int mes);

}  // namespace cuencalia
