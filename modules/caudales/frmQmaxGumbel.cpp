#include "modules/caudales/frmQmaxGumbel.h"

#include "modules/caudales/qmaxgumbel.h"

namespace cuencalia {

frmQmaxGumbel::frmQmaxGumbel(Aplicacion& app)
    : MarcoMaximas(app, "frmQmaxGumbel",
                   {.titulo = "Cálculo de caudal de diseño utilizando la distribución Gumbel",
                    .parametros = {{"Qm", 1050}, {"SQ", 1050}, {"YN", 850}, {"SN", 850}},
                    .reporte = {{0, "Número de años disponibles: "},
                                {0, "Promedio Q:                 "},
                                {0, "Desviación estándar Q:      "},
                                {0, "Parámetro YN:               "},
                                {0, "Parámetro SN:               "},
                                {0, "Q máximo:                   "},
                                {0, "Delta Q:                    "},
                                {0, "Intervalo variación Q:      "}},
                    .conclusion = "El caudal de diseño por Gumbel, para un período de retorno de ",
                    .TMinimo = 0,
                    .annosMinimos = 2}) {}

MarcoMaximas::Estimacion frmQmaxGumbel::Estimar(Double T) {
    const CaudalGumbel g = EstimarGumbel(x, n, T);
    return {{g.Qm, g.SQ, g.YN, g.SN}, g.Qmax, g.DeltaQ};
}

}  // namespace cuencalia
