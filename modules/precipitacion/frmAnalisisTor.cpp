#include "modules/precipitacion/frmAnalisisTor.h"

#include "frame/base/textos.h"

namespace cuencalia {

namespace {

constexpr FormatoSerie kArchivoTH{
    .valores = 2, .rotuloCrear = "Pares valores T,H", .rotuloAccesar = "Pares valores T,H", .extension = "*.TH"};
constexpr int kParesMax = 198;  ///< Rows of grdecua below its two headings.

}  // namespace

frmAnalisisTor::frmAnalisisTor(Aplicacion& app)
    : ModuloCalculo(app, "frmAnalisisTor",
                    {.titulo = "Análisis de una tormenta y cálculo de la intensidad maxima",
                     .datos = {.encabezados = {"Par", "Tiempo parcial (min)", "Lluvia parcial (mm)"},
                               .anchos = {700, 1500, 1500},
                               .patronEdicion = kPatronEdicionB,
                               .titulo = "Ingreso de los pares de datos tiempo y lluvia parcial:"},
                     .archivo = &kArchivoTH,
                     .filasMax = kParesMax}) {
    LeerEn({&Tpar, &Ppar});
    DeclararBotones({{&bGraficar, "graficar"}});
    DeclararTablas({&grdecua});
    DeclararResultados({&txtvI, &txtvD});
    DeclararGraficos({&Graph1});
    Label6.Nombra(txtvI);
    Label7.Nombra(txtvD);
    bGraficar.Click.Conectar([this] { bGraficar_Click(); });
    optHistograma.Click.Conectar([this] { optHistograma_Click(); });
    optCurvamasa.Click.Conectar([this] { optCurvamasa_Click(); });
    const std::vector<Control*> delGrafico{&lblTiempo, &lblPrecipitacion, &lblIntensidad, &fraTipoGra};
    for (Control* control : delGrafico) {
        control->Visible = false;
    }
    DeclararInicio(delGrafico);
}

void frmAnalisisTor::CargarMatrices() {
    ModuloCalculo::CargarMatrices();
    tormenta = AnalizarTormenta(Tpar, Ppar, n);
}

bool frmAnalisisTor::Calcular() {
    CargarMatrices();
    if (n <= 1) {
        App().MsgBox("Para el cálculo ingrese por lo menos dos pares de datos", kIconoInformacion, "Error");
        datos.MenorQue2Celdas();
        // A chart then tells that there are too few points, and no longer that there was no calculation.
        calculado = true;
        return false;
    }
    for (int i = 1; i <= n; ++i) {
        grdecua.PonerFila(i + 1, {CStr(i), CStr(Tpar(i)), CStr(tormenta.Tacum(i)), CStr(Ppar(i)),
                                  CStr(tormenta.Pacum(i)), Format(tormenta.I(i), "0.0#")});
    }
    txtvI.Text = Format(tormenta.Imax, "0.0#");
    txtvD.Text = CStr(tormenta.Dmax);
    return true;
}

void frmAnalisisTor::bGraficar_Click() {
    optHistograma.Value = false;
    optCurvamasa.Value = false;
    optHistograma.Value = true;
    fraTipoGra.Visible = true;
    lblTiempo.Visible = true;
}

bool frmAnalisisTor::PrepararGrafico(Label& ordenada, Label& otra) {
    if (!ExigirCalculo()) {
        return false;
    }
    ordenada.Visible = true;
    otra.Visible = false;
    CargarMatrices();
    if (n <= 1) {
        App().MsgBox(kGraficarSinPuntos);
        datos.MenorQue2Celdas();
        return false;
    }
    return true;
}

void frmAnalisisTor::optHistograma_Click() {
    if (!PrepararGrafico(lblIntensidad, lblPrecipitacion)) {
        return;
    }
    SerieGrafico rectangulos;
    Double desde;
    for (int i = 1; i <= n; ++i) {
        const Double hasta = tormenta.Tacum(i);
        rectangulos.x.insert(rectangulos.x.end(), {desde, desde, hasta, hasta});
        rectangulos.y.insert(rectangulos.y.end(), {0, tormenta.I(i), tormenta.I(i), 0});
        desde = hasta;
    }
    Graph1.RotularEjes(lblTiempo, lblIntensidad);
    // Room for one interval more and for a second set, which stay unwritten.
    GraficoDibujar(Graph1, {.tipo = kGraficoAreas, .autoInc = 0, .puntos = 4 * (n + 1), .conjuntos = 2}, {rectangulos});
}

void frmAnalisisTor::optCurvamasa_Click() {
    if (!PrepararGrafico(lblPrecipitacion, lblIntensidad)) {
        return;
    }
    SerieGrafico curva{.x = {0}, .y = {0}};
    for (int i = 1; i <= n; ++i) {
        curva.x.push_back(tormenta.Tacum(i));
        curva.y.push_back(tormenta.Pacum(i));
    }
    Graph1.RotularEjes(lblTiempo, lblPrecipitacion);
    GraficoDibujar(Graph1, {.autoInc = 0}, {curva});
}

void frmAnalisisTor::GenerarReporte(Reporte& reporte) {
    Reporte::Tabla pares =
        TablaDeSerie("Pares de datos duración, precipitación:", {" Par", " Tiempo", " Precipitación "}, 65);
    pares.encabezado += "\n" + UnirEncabezados({" ", " (min)", " (mm)"}, "\t\t");
    reporte.EscribirTabla(pares, datos.grdt, datos.Filas());
    reporte.EscribirTabla({.titulo = "Resultados parciales e intensidades:",
                           .regla = 130,
                           .encabezado = " N°\t\t T parcial\t T acum \t P parcial\t P acum\t I  \t\t\n"
                                         "     \t\t (min)\t\t (min) \t\t (mm)\t\t (mm) \t\t (mm/hr)\t",
                           .celda = CeldaSeguidaDe("\t\t"),
                           .primeraFila = 2},
                          grdecua, datos.Filas() + 1);
    reporte.Titulo("I máximo:");
    reporte.ReporteLinea("El Imáx para una duración de " + txtvD.Text() + " min, es " + txtvI.Text() + " mm/hr");
}

Disposicion frmAnalisisTor::Contenido() {
    Disposicion maxima = Grupo(Frame4, {Fila({Label6, txtvI, Label3, Label7, txtvD, Label4, Espacio()})});
    Disposicion tipo = Grupo(fraTipoGra, {Fila({optHistograma, optCurvamasa, Espacio()})});
    Disposicion resultados = Columna({Disposicion(grdecua).Estira(1), std::move(maxima), std::move(tipo),
                                      Fila({lblIntensidad, lblPrecipitacion, Espacio()}), Disposicion(Graph1).Estira(2),
                                      Fila({Espacio(), lblTiempo})});
    return resultados;
}

}  // namespace cuencalia
