#include "modules/precipitacion/tablaecuacion.h"

#include "frame/base/textos.h"

namespace cuencalia {

TablaEcuacion::TablaEcuacion(Formulario& forma, const char* patron, int altoEncabezado)
    : Tabla(forma, "grdecua", "Ecuación de la intensidad máxima",
            {.filas = 2,
             .columnas = {{"Ecuación", 3500}, {"R", 1050}, {"R^2", 1050}, {"Se", 1050}},
             .altoEncabezado = altoEncabezado}),
      patron_(patron) {}

void TablaEcuacion::PonerAjuste(const AjusteIntensidad& ajuste, const PuntosIDT& puntos) {
    const Double R2 = ajuste.regresion.R2();
    const Double R = Sqr(R2);
    const Double Se = ajuste.Se(puntos);
    PonerFila(1, {TextoDe(ajuste.ecuacion), Format(R, patron_), Format(R2, patron_), Format(Se, patron_)});
}

void ReportarEcuacion(Reporte& reporte, const TablaEcuacion& grdecua) {
    constexpr int kRegla = 72;
    constexpr const char* kRotulos[] = {"Ecuación : ", "R : ", "R^2 : ", "Se : "};
    reporte.Titulo("Ecuación de ajuste para I - D - T:");
    reporte.LineaDeGuiones(kRegla);
    int columna = 0;
    for (const char* rotulo : kRotulos) {
        reporte.ReporteLinea(rotulo + grdecua.TextMatrix(1, columna++));
    }
    reporte.LineaDeGuiones(kRegla);
    reporte.ReporteBlanco();
}

void ReportarIntensidad(Reporte& reporte, std::string_view titulo, const TextBox& T, const TextBox& D,
                        const TextBox& Imax) {
    constexpr int kRegla = 72;
    reporte.Titulo(titulo);
    reporte.LineaDeGuiones(kRegla);
    reporte.ReporteLinea("Para T: " + T.Text() + " años");
    reporte.ReporteLinea("Para D : " + D.Text() + " min");
    reporte.ReporteLinea("Imax : " + Imax.Text() + " mm/hr");
    reporte.LineaDeGuiones(kRegla);
    reporte.ReporteBlanco();
}

DescripcionTabla TablaDeDuraciones(const char* primera, const std::vector<int>& duraciones, int filas) {
    DescripcionTabla descripcion{.filas = filas + 1, .columnas = {{primera, 900}}, .altoEncabezado = 250};
    for (const int d : duraciones) {
        descripcion.columnas.push_back({CStr(d) + " min", 1000});
    }
    return descripcion;
}

void LlenarDuraciones(Tabla& tabla, int n, const std::function<std::string(int)>& primera,
                      const ColumnasDuracion& columnas) {
    tabla.Iniciar(n + 1);
    for (int i = 1; i <= n; ++i) {
        int columna = 0;
        tabla.PonerTextMatrix(i, columna, primera(i));
        for (const ArregloBase<Double>& valores : columnas) {
            tabla.PonerTextMatrix(i, ++columna, Format(valores(i), "0.#0"));
        }
    }
}

void ReportarDuraciones(Reporte& reporte, std::string_view titulo, const std::vector<std::string>& encabezados,
                        Tabla& tabla) {
    reporte.EscribirTabla({.titulo = std::string(titulo),
                           .regla = 140,
                           .encabezado = Space(49) + "Duración\n" + UnirEncabezados(encabezados, ""),
                           .celda = CeldaBajo(encabezados)},
                          tabla, tabla.Rows() - 1);
}

}  // namespace cuencalia
