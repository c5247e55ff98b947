#include "modules/estadistica/frmParEstAgru.h"

#include "frame/base/textos.h"
#include "modules/estadistica/momentos.h"
#include "modules/estadistica/reporteestadistica.h"
#include "modules/estadistica/tablaparametros.h"

namespace cuencalia {

frmParEstAgru::frmParEstAgru(Aplicacion& app)
    : ModuloSerie(app, "frmParEstAgru", "Cálculo de parámetros estadísticos agrupando datos") {
    AgregarBotones({{&orden.bOrdenar, "ordenar"}});
}

void frmParEstAgru::InicializarResultados() {
    InicializarDistri();
    InicializarParam();
}

void frmParEstAgru::InicializarDistri() {
    IniciarTabla(grddis, 2, {"LCI", "MCL", "LCS", "Fab"}, 1100);
    grddis.PonerFixedRows(1);
    grddis.PonerFixedCols(0);
}

void frmParEstAgru::InicializarParam() { IniciarTablaParametros(grdParam, {"Parámetros", "Resultados"}); }

void frmParEstAgru::bCalcular_Click() {
    CargarMatrices();
    OrdenarCopia();
    clases = FormarClases(xo, n);
    const int NC = clases.NC.valor();
    const ParametrosEstadisticos p = ParametrosAgrupados(clases.MCL, clases.FA, NC, n);
    RotularParametros(grdParam);
    MostrarParametros(grdParam, 1,
                      {Format(p.media, "0.0000"), Format(p.varianza, "0.0###"), Format(p.desviacion, "0.0###"),
                       Format(p.Cv, "0.0000"), Format(p.Cs, "0.0000"), Format(p.Ck, "0.0000")});
    grddis.PonerRows(NC + 1);
    for (int i = 1; i <= NC; ++i) {
        grddis.PonerTextMatrix(i, 0, Format(clases.LCI(i), "0.0#"));
        grddis.PonerTextMatrix(i, 1, Format(clases.MCL(i), "0.0#"));
        grddis.PonerTextMatrix(i, 2, Format(clases.LCS(i), "0.0#"));
        grddis.PonerTextMatrix(i, 3, Format(clases.FA(i), "##0"));
    }
}

void frmParEstAgru::ReporteParamEsta(Reporte& reporte) {
    constexpr int kRegla = 90;
    ReportarSerie(reporte, grdt);
    reporte.Titulo("Frecuencias absolutas:");
    reporte.LineaDeGuiones(kRegla);
    for (const char* encabezado : {"LCI", "MCL", "LCS", "Fab"}) {
        reporte.ReporteTexto("         " + std::string(encabezado) + "      \t");
    }
    reporte.ReporteBlanco();
    reporte.LineaDeGuiones(kRegla);
    ReportarClases(reporte, grddis);
    reporte.LineaDeGuiones(kRegla);
    reporte.ReporteBlanco();
    reporte.Titulo("Parámetros Estadísticos:");
    reporte.LineaDeGuiones(kRegla);
    reporte.ReporteTexto("     Parámetros       \t");
    reporte.ReporteLinea("               Valores ");
    reporte.LineaDeGuiones(kRegla);
    ReportarParametros(reporte, grdParam);
    reporte.LineaDeGuiones(kRegla);
    reporte.ReporteBlanco();
    ReportarOrdenados(reporte, orden.grdorden);
}

Disposicion frmParEstAgru::Contenido() {
    Disposicion tablas = Columna({Disposicion(grddis).Estira(1), grdParam});
    return Fila({std::move(tablas).Estira(1), orden.Zona()});
}

}  // namespace cuencalia
