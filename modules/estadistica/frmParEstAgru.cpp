#include "modules/estadistica/frmParEstAgru.h"

#include "frame/base/textos.h"
#include "modules/estadistica/momentos.h"
#include "modules/estadistica/reporteestadistica.h"

namespace cuencalia {

frmParEstAgru::frmParEstAgru(Aplicacion& app)
    : ModuloSerie(app, "frmParEstAgru", "Cálculo de parámetros estadísticos agrupando datos") {
    DeclararBotones({{&orden.bOrdenar, "ordenar"}});
    DeclararTablas({&grddis, &grdParam});
}

bool frmParEstAgru::Calcular() {
    CargarMatrices();
    OrdenarCopia();
    clases = FormarClases(xo, n);
    const int NC = clases.NC.valor();
    const ParametrosEstadisticos p = ParametrosAgrupados(clases.MCL, clases.FA, NC, n);
    RotularParametros(grdParam);
    grdParam.PonerColumna(1, {Format(p.media, "0.0000"), Format(p.varianza, "0.0###"), Format(p.desviacion, "0.0###"),
                              Format(p.Cv, "0.0000"), Format(p.Cs, "0.0000"), Format(p.Ck, "0.0000")});
    grddis.PonerRows(NC + 1);
    for (int i = 1; i <= NC; ++i) {
        grddis.PonerFila(i, {Format(clases.LCI(i), "0.0#"), Format(clases.MCL(i), "0.0#"),
                             Format(clases.LCS(i), "0.0#"), Format(clases.FA(i), "##0")});
    }
    return true;
}

void frmParEstAgru::GenerarReporte(Reporte& reporte) {
    constexpr int kRegla = 90;
    ReportarSerie(reporte, datos.grdt);
    ReportarClases(reporte, grddis, "Frecuencias absolutas:",
                   UnirEncabezados({"         LCI", "         MCL", "         LCS", "         Fab"}, "      \t"),
                   kRegla);
    ReportarParametros(reporte, grdParam, "     Parámetros       \t               Valores ", kRegla);
    ReportarOrdenados(reporte, orden.grdorden);
}

Disposicion frmParEstAgru::Contenido() {
    Disposicion tablas = Columna({Disposicion(grddis).Estira(1), grdParam});
    return Fila({std::move(tablas).Estira(1), orden.Zona()});
}

}  // namespace cuencalia
