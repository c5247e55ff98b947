#include "modules/estadistica/frmDistriFre.h"

#include "frame/base/textos.h"
#include "modules/estadistica/reporteestadistica.h"

namespace cuencalia {

frmDistriFre::frmDistriFre(Aplicacion& app)
    : ModuloSerie(app, "frmDistriFre", "Cálculo de la distribución de frecuencia de una muestra") {
    DeclararTablas({&grddis});
    DeclararGraficos({&Graph1});
    DeclararBotones({{&orden.bOrdenar, "ordenar"}, {&bGraficar, "graficar"}});
    bGraficar.Click.Conectar([this] { bGraficar_Click(); });
    optDensidad.Click.Conectar([this] { optDensidad_Click(); });
    optAcumulada.Click.Conectar([this] { optAcumulada_Click(); });
    fraTipoGrafico.Visible = false;
    Graph1.RotularEjes(lblMarcaClase, lblFuncion, &lblPorcentaje);
}

bool frmDistriFre::Calcular() {
    CargarMatrices();
    OrdenarCopia();
    clases = FormarClases(xo, n);
    const int NC = clases.NC.valor();
    Double acumulada;
    for (int i = 1; i <= NC; ++i) {
        FR(i) = 100 * clases.FA(i) / n;
        FD(i) = FR(i) / Abs(clases.ancho);
        acumulada += FR(i);
        FAc(i) = acumulada;
    }
    grddis.PonerRows(NC + 1);
    for (int i = 1; i <= NC; ++i) {
        grddis.PonerFila(
            i, {Format(clases.LCI(i), "0.0#"), Format(clases.MCL(i), "0.0#"), Format(clases.LCS(i), "0.0#"),
                Format(clases.FA(i), "##0"), Format(FR(i), "0.###0"), Format(FD(i), "0.###0"), Format(FAc(i), "0.#0")});
    }
    return true;
}

void frmDistriFre::bGraficar_Click() {
    fraTipoGrafico.Visible = true;
    optDensidad.Value = false;
    optAcumulada.Value = false;
    optAcumulada.Value = true;
    Graph1.MostrarRotulos(true);
    lblFuncion.Caption = "Fx";
}

void frmDistriFre::optDensidad_Click() { Dibujar("fx", FD); }

void frmDistriFre::optAcumulada_Click() { Dibujar("Fx", FAc); }

void frmDistriFre::Dibujar(const char* funcion, const Clases::Columna& ordenadas) {
    lblFuncion.Caption = funcion;
    const int NC = clases.NC.valor();
    if (NC <= 1) {
        App().MsgBox(kGraficarSinPuntos);
        return;
    }
    if (!ExigirCalculo({"Ejecutar cálculos antes de graficar"})) {
        return;
    }
    // The curve starts at the point (0, 0), wherever the first class begins.
    SerieGrafico serie{.x = {0}, .y = {0}};
    for (int i = 1; i <= NC; ++i) {
        serie.x.push_back(clases.MCL(i));
        serie.y.push_back(ordenadas(i));
    }
    GraficoDibujar(Graph1, {.conTrama = true}, {serie});
}

void frmDistriFre::GenerarReporte(Reporte& reporte) {
    ReportarSerie(reporte, datos.grdt);
    ReportarClases(reporte, grddis, "Distribución de Frecuencias:",
                   "        LCI  \t        MCL  \t           LCS     FreAbsoluta    FreRelativa    FunDensidad "
                   "FunAcumulada ",
                   153);
    ReportarOrdenados(reporte, orden.grdorden);
}

Disposicion frmDistriFre::Contenido() {
    Disposicion grafico = Columna({Grupo(fraTipoGrafico, {Fila({optDensidad, optAcumulada, Espacio()})}),
                                   Fila({lblFuncion, lblPorcentaje, Espacio()}), Disposicion(Graph1).Estira(1),
                                   Fila({Espacio(), lblMarcaClase, Espacio()})});
    return Columna({Disposicion(grddis).Estira(2), Fila({orden.Zona(), std::move(grafico).Estira(1)}).Estira(3)});
}

}  // namespace cuencalia
