#include "modules/distribuciones/reporteajuste.h"

namespace cuencalia {

void ReportarPrueba(Reporte& reporte, FlexGrid& grddis, const DescripcionAjuste& ajuste) {
    constexpr int kAnchoCelda = 18;
    std::vector<std::string> encabezados = ajuste.encabezadosReporte;
    if (encabezados.empty()) {
        encabezados = {ajuste.encabezadosTeoricos[0] + " ", ajuste.encabezadosTeoricos[1] + " ", "Delta "};
    }
    std::string linea = "        m  \t        X  \t                 P(X)  ";
    for (const std::string& encabezado : encabezados) {
        linea += "   " + encabezado;
    }
    int filas = 0;
    while (filas + 1 < grddis.Rows() && !grddis.TextMatrix(filas + 1, 0).empty()) {
        ++filas;
    }
    reporte.EscribirTabla({.titulo = "Cálculos del ajuste Smirnov Kolmogorov:",
                           .regla = 130,
                           .encabezado = linea,
                           .celda = CeldaCentrada(kAnchoCelda, [](int fila, int) { return fila == 1 ? 1 : 0; })},
                          grddis, filas);
}

void ReportarVeredicto(Reporte& reporte, const std::string& ajuste, const std::string& veredicto) {
    constexpr int kRegla = 55;
    reporte.LineaDeGuiones(kRegla);
    reporte.ReporteLinea(ajuste);
    reporte.LineaDeGuiones(kRegla);
    reporte.ReporteLinea(veredicto);
    reporte.ReporteBlanco();
}

void ReportarParametros(Reporte& reporte, const DescripcionAjuste& ajuste, const ParametrosDeAjuste& ordinarios,
                        const ParametrosDeAjuste& lineales) {
    constexpr int kRegla = 55;
    const auto lineas = [&reporte](const ParametrosDeAjuste& campos) {
        for (const CampoParametro* campo : campos) {
            reporte.ReporteLinea(campo->enReporte + campo->caja.Text());
        }
    };
    reporte.LineaDeGuiones(kRegla);
    reporte.ReporteLinea(ajuste.tituloReporte);
    reporte.LineaDeGuiones(kRegla);
    if (!ajuste.porAmbosMomentos) {
        lineas(ordinarios);
        return;
    }
    reporte.ReporteLinea("Con momentos ordinarios:");
    lineas(ordinarios);
    reporte.ReporteBlanco();
    reporte.ReporteLinea("Con momentos lineales:");
    lineas(lineales);
}

void ReportarDiseno(Reporte& reporte, const std::string& T, const std::string& Q, const std::string& advertencia) {
    constexpr int kRegla = 30;
    reporte.LineaDeGuiones(kRegla);
    reporte.ReporteLinea("Caudal de diseño:");
    reporte.LineaDeGuiones(kRegla);
    reporte.ReporteLinea("El caudal de diseño para un periodo de retorno de " + T + " años, es " + Q);
    if (!advertencia.empty()) {
        reporte.ReporteLinea(advertencia);
    }
}

}  // namespace cuencalia
