#include "modules/precipitacion/frmIntensidadMax.h"

#include "modules/precipitacion/archivotdi.h"
#include "modules/regresion/textoecuacion.h"

namespace cuencalia {

frmIntensidadMax::frmIntensidadMax(Aplicacion& app)
    : ModuloCalculo(app, "frmIntensidadMax",
                    {.titulo = "Cálculo de la intensidad máxima de diseño para una duración y período de retorno dado",
                     .datos = {.encabezados = {"Trío", "T (años)", "Duración (min)", "Imáx (mm/hr)"},
                               .patronEdicion = kPatronEdicionB,
                               .titulo = "Ingreso de los tríos de datos T, D, Imáx:"},
                     .archivo = &kArchivoTDI}),
      diseno(*this, {.busqueda = BusquedaPivote::EnFila,
                     .patron = kPatronCorrelacion,
                     .altoEcuacion = 340,
                     .altoImaxTD = 340,
                     .reglaImaxTD = 90}) {
    LeerEn({&trios.T, &trios.D, &trios.I});
    DeclararBotones({{&diseno.bGraficar, "graficar"}}, {{&diseno.bImax, "evaluar"}, {&diseno.bCalPreviosIDT, "tabla"}});
    SSTab1.NombreAccesible = "Datos y resultados";
    AvisarFallos(
        {"Ingresó valores para T, D ó Imax iguales a 0 ó negativos. Estos valores no permiten la correlación "
         "potencial. ¡Hacer la corrección correspondiente!"});
}

bool frmIntensidadMax::Calcular() {
    CargarMatrices();
    trios.n = n;
    if (n <= 3) {
        App().MsgBox("Para el ajuste a la ecuación se requiere por lo menos cuatro tríos de datos", kIconoInformacion,
                     "Error: número inadecuado de datos");
        datos.MenorQue4Celdas();
        // The refused fit counts as made: the last equation, or one of intensity 0, can be applied.
        calculado = true;
    } else if (!diseno.Ajustar(trios)) {
        return false;
    }
    diseno.txtvT.SetFocus();
    return n > 3;
}

void frmIntensidadMax::GenerarReporte(Reporte& reporte) {
    reporte.EscribirTabla(
        TablaDeSerie("Trios de valores T, D e Imax:", {" Trío", " T (años)", " Duración (min)", " Imáx (mm/hr)"}, 85),
        datos.grdt, datos.Filas());
    reporte.EscribirTabla({.titulo = "Ecuación de ajuste de correlación potencial múltiple:",
                           .regla = 109,
                           .encabezado = UnirEncabezados({" Ecuación           ", " R   ", " R^2 ", " Se  "}, "\t\t"),
                           .celda = CeldaSeguidaDe("  \t")},
                          diseno.grdecua, 1);
    reporte.Titulo("Cálculo de Imáx para un valor de T y D:");
    reporte.ReporteLinea("Para T = " + diseno.txtvT.Text() + " años  y");
    reporte.ReporteLinea("Para D = " + diseno.txtvD.Text() + " min");
    reporte.ReporteLinea("El valor de Imáx es: Imáx = " + diseno.txtvI.Text() + " mm/hr");
    reporte.ReporteBlanco();
    diseno.ReportarImaxTD(reporte);
}

Disposicion frmIntensidadMax::Cuerpo() {
    return Fichas(SSTab1, {Columna({datos.Zona().Estira(1), lblAjuste, diseno.grdecua}), diseno.Zona()});
}

}  // namespace cuencalia
