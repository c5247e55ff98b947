#include "modules/precipitacion/frmDyckPeschkeImax.h"

#include "frame/base/textos.h"

namespace cuencalia {

namespace {

const std::vector<int> kDuraciones{20, 30, 60, 120, 180, 240};  // minutes

}  // namespace

frmDyckPeschkeImax::frmDyckPeschkeImax(Aplicacion& app)
    : ModuloCalculo(app, "frmDyckPeschkeImax",
                    {.titulo = "Calcular la ecuación de Imáx a partir de datos máx diarios utilizando el criterio de "
                               "Grobe, conocido como de Dyck y Peschke",
                     .datos = {.encabezados = {"N°", "X"}},
                     .archivo = &kArchivoX}),
      grdDuracion(*this, "grdDuracion", "Lluvias por duración", TablaDeDuraciones("P24h", kDuraciones)),
      grdImax(*this, "grdImax", "Intensidades por duración", TablaDeDuraciones("Año", kDuraciones)),
      grdImaxOrdT(*this, "grdImaxOrdT", "Intensidades por duración y período de retorno",
                  TablaDeDuraciones("T año", kDuraciones)),
      diseno(*this, {}) {
    LeerEn({&P24});
    DeclararBotones({{&diseno.bGraficar, "graficar"}}, {{&diseno.bImax, "evaluar"}, {&diseno.bCalPreviosIDT, "tabla"}});
    DeclararTablas({&grdDuracion, &grdImax, &grdImaxOrdT});
    SSTab1.NombreAccesible = "Datos y resultados";
    AvisarFallos(kDatosInadecuados);
}

bool frmDyckPeschkeImax::Calcular() {
    CargarMatrices();
    const IntensidadesGrobe grobe = CalcularGrobe(P24, n, kDuraciones);
    LlenarDuraciones(
        grdDuracion, n, [this](int i) { return CStr(P24(i)); }, grobe.P);
    LlenarDuraciones(
        grdImax, n, [](int i) { return CStr(i); }, grobe.I);
    LlenarDuraciones(
        grdImaxOrdT, n, [this](int r) { return Format(PeriodoDeRango(n, r), "0.#0"); }, grobe.Iord);
    if (n == 0) {
        throw ErrorEjecucion(kDesbordamiento);  // the mean of no logarithms, 0/0
    }
    return diseno.Ajustar(grobe.puntos);
}

void frmDyckPeschkeImax::GenerarReporte(Reporte& reporte) {
    reporte.EscribirTabla(TablaDeSerie("Serie de datos X:", {" N°", " X"}, 40), datos.grdt, datos.Filas());
    std::vector<std::string> encabezados{"      P24h  ",   "      20 min  ", "    30 min ", "    60 min ",
                                         "      120 min ", "    180 min ",   "    240 min "};
    ReportarDuraciones(reporte, "Lluvia máxima para diferentes duraciones:", encabezados, grdDuracion);
    encabezados[0] = "       Año  ";
    ReportarDuraciones(reporte, "Intensidades máximas para diferentes duraciones:", encabezados, grdImax);
    encabezados[0] = "    T (años)  ";
    ReportarDuraciones(reporte, "Intensidades máximas para diferentes duraciones y periodos de retorno:", encabezados,
                       grdImaxOrdT);
    diseno.ReportarResultados(reporte);
}

Disposicion frmDyckPeschkeImax::Cuerpo() {
    const auto tabla = [](Label& rotulo, Tabla& grid) { return Columna({rotulo, Disposicion(grid).Estira(1)}); };
    return Fichas(
        SSTab1,
        {Fila({datos.Zona(),
               Columna({lblAjuste, diseno.grdecua, lblImaxOrdT, Disposicion(grdImaxOrdT).Estira(1)}).Estira(1)}),
         Fila({tabla(lblDuracion, grdDuracion).Estira(1), tabla(lblImax, grdImax).Estira(1)}), diseno.Zona()});
}

}  // namespace cuencalia
