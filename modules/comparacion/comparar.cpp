#include "modules/comparacion/comparar.h"

namespace cuencalia {

std::vector<Comparado> Comparar(std::span<const double> ordenada, const PosicionGrafica& posicion) {
    const std::vector<double> p = posicion.Todas(static_cast<int>(ordenada.size()));
    std::vector<Comparado> comparados;
    for (Ajuste& ajuste : AjustarCandidatos(ordenada)) {
        Comparado c{std::move(ajuste), {}, {}};
        if (c.ajuste.distribucion) {
            const Distribucion& d = *c.ajuste.distribucion;
            std::vector<double> v;
            for (const double x : ordenada) {
                v.push_back(d.Variable(x));
            }
            c.bondad = MedirBondad(d, v, ordenada, p);
            if (c.ajuste.candidato.metodo == Metodo::Verosimilitud) {
                c.akaike = CriterioAkaike(d, v);
            }
        }
        comparados.push_back(std::move(c));
    }
    return comparados;
}

}  // namespace cuencalia
