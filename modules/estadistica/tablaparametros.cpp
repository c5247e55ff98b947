#include "modules/estadistica/tablaparametros.h"

namespace cuencalia {

DescripcionTabla TablaDeParametros(const std::vector<std::string>& encabezados) {
    DescripcionTabla d{.filas = 7, .columnas = {{"Parámetros", 2050}}, .columnasFijas = 1, .borde = 0};
    for (const std::string& encabezado : encabezados) {
        d.columnas.push_back({encabezado, 1750});
    }
    return d;
}

void RotularParametros(Tabla& tabla) {
    tabla.PonerColAlignment(0, kAlinearIzquierda);
    tabla.PonerColumna(
        0, {"Media:                      ", "Varianza:                   ", "Desviación Estándar:        ",
            "Coeficiente Variación:      ", "Coeficiente de Sesgo:       ", "Coeficiente de Curtosis:    "});
}

DescripcionTabla TablaDeClases(const std::vector<std::string>& encabezados) {
    DescripcionTabla d{.filas = 2, .columnas = {}};
    for (const std::string& encabezado : encabezados) {
        d.columnas.push_back({encabezado, 1100});
    }
    return d;
}

}  // namespace cuencalia
