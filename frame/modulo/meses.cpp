#include "frame/modulo/meses.h"

#include <array>

namespace cuencalia {

std::string MesCorto(int mes) {
    static constexpr std::array<const char*, 12> kMeses{"Dic", "Ene", "Feb", "Mar", "Abr", "May",
                                                        "Jun", "Jul", "Ago", "Set", "Oct", "Nov"};
    return kMeses[static_cast<std::size_t>(mes % 12)];
}

std::string NombreMes(int mes) {
    static constexpr std::array<const char*, 12> kMeses{"Diciembre", "Enero",     "Febrero", "Marzo",
                                                        "Abril",     "Mayo",      "Junio",   "Julio",
                                                        "Agosto",    "Setiembre", "Octubre", "Noviembre"};
    return kMeses[static_cast<std::size_t>(mes % 12)];
}

int DiasDelMes(int mes) {
    static constexpr std::array kDias{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return kDias.at(static_cast<std::size_t>(mes - 1));
}

}  // namespace cuencalia
