#include "modules/regresion/marcoregresion.h"

#include <utility>

#include "frame/base/textos.h"
#include "modules/regresion/textoecuacion.h"

namespace cuencalia {

namespace {

DescripcionTabla TablaDeEcuaciones(const DescripcionRegresion& regresion) {
    DescripcionTabla tabla{.filas = static_cast<int>(regresion.filas.size()) + 1, .columnas = {}};
    for (const char* encabezado : {"Correlación", "Ecuación", "R", "R^2", "Se"}) {
        tabla.columnas.push_back({encabezado, regresion.anchos.at(tabla.columnas.size())});
    }
    return tabla;
}

}  // namespace

MarcoRegresion::MarcoRegresion(Aplicacion& app, std::string nombre, DescripcionModulo modulo,
                               DescripcionRegresion regresion)
    : ModuloCalculo(app, std::move(nombre), std::move(modulo)),
      grdecua(*this, "grdecua", regresion.filas.size() == 1 ? "Ecuación de ajuste" : "Ecuaciones de ajuste",
              TablaDeEcuaciones(regresion)),
      regresion_(std::move(regresion)) {
    DeclararTablas({&grdecua});
}

bool MarcoRegresion::Calcular() {
    CargarMatrices();
    if (n < regresion_.k + 2) {
        App().MsgBox(regresion_.rechazo, kIconoError);
        if (regresion_.k == 2) {
            datos.MenorQue4Celdas();
        } else {
            datos.MenorQue5Celdas();
        }
    } else if (!Ajustar()) {
        App().MsgBox(kInfinitasSoluciones);
        return false;
    }
    // As with the line, the refused fit sets `calculado` too: the coefficients of the last fit, or 0, can be applied.
    calculado = true;
    return n >= regresion_.k + 2;
}

std::vector<std::string> MarcoRegresion::FilaDeEcuacion(const std::string& nombre, const std::string& ecuacion,
                                                        Double R, Double R2, Double Se) {
    return {nombre, ecuacion, Format(R, kPatronCorrelacion), Format(R2, kPatronCorrelacion),
            Format(Se, kPatronCorrelacion)};
}

void MarcoRegresion::ReportarTablas(Reporte& reporte, const RotulosTabla& rotulosDatos, int reglaDatos,
                                    const RotulosTabla& rotulosEcuaciones) {
    reporte.EscribirTabla(TablaDeSerie(rotulosDatos.titulo, rotulosDatos.encabezados, reglaDatos), datos.grdt,
                          datos.Filas());
    reporte.EscribirTabla({.titulo = rotulosEcuaciones.titulo,
                           .regla = regresion_.reglaEcuaciones,
                           .encabezado = UnirEncabezados(rotulosEcuaciones.encabezados, "\t\t"),
                           .celda = CeldaDeEcuacion},
                          grdecua, grdecua.Rows() - 1);
}

}  // namespace cuencalia
