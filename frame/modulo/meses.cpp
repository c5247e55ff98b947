#include "frame/modulo/meses.h"

#include <array>

namespace cuencalia {

std::string MesCorto(int mes) {
    static constexpr std::array<const char*, 12> kMeses{"Dic", "Ene", "Feb", "Mar", "Abr", "May",
                                                        "Jun", "Jul", "Ago", "Set", "Oct", "Nov"};
    return kMeses[static_cast<std::size_t>(mes % 12)];
}

}  // namespace cuencalia
