#include "modules/curvas/frmCurvaDuracion.h"

#include "frame/base/textos.h"
#include "frame/modulo/cajas.h"
#include "modules/estadistica/momentos.h"

namespace cuencalia {

namespace {

constexpr FormatoSerie kArchivoCD{
    .rotuloCrear = "Valores de caudales Q", .rotuloAccesar = "Valores de caudales Q", .extension = "*.CD"};
constexpr int kFilasMax = 499;
const Aviso kPInadecuada{"Ingresar un valor adecuado para la probabilidad", kIconoInformacion,
                         "Error de ingreso de dato"};

}  // namespace

frmCurvaDuracion::frmCurvaDuracion(Aplicacion& app)
    : ModuloCalculo(app, "frmCurvaDuracion",
                    {.titulo = "Análisis de frecuencia de caudales, a través de la curva de duración",
                     .datos = {.encabezados = {"Día", "Caudal Q (m3/s)"}, .anchos = {700, 1600}},
                     .archivo = &kArchivoCD,
                     .filasMax = kFilasMax}) {
    LeerEn({&Q});
    DeclararBotones({{&bGraficar, "graficar"}}, {{&bQ, "evaluar"}});
    DeclararTablas({&grddis});
    DeclararEntradas({&txtxp});
    DeclararResultados({&txtxq});
    AvisarFallos(kDatosInadecuados);
    bGraficar.Click.Conectar([this] { bGraficar_Click(); });
    bQ.Click.Conectar([this] { bQ_Click(); });
    OptNormal.Click.Conectar([this] { Dibujar("Curva de duración", lblQ, curva.Q); });
    OptAdimensional.Click.Conectar([this] { Dibujar("Curva de duración adimencional", lblQQm, Qadi); });
    SoloNumero(txtxp);
    AlPulsarEnter(txtxp, [this] { bQ.SetFocus(); });
    Label15.Nombra(txtxp);
    Label8.Nombra(txtxq);
    fraTipoGrafico.Visible = false;
    LimpiarEtiqueta();
    DeclararInicio({&fraTipoGrafico, &lblPorcentaje, &lblQ, &lblQQm});
    DeclararGraficos({&Graph1});
}

void frmCurvaDuracion::LimpiarEtiqueta() {
    for (Label* etiqueta : {&lblPorcentaje, &lblQ, &lblQQm}) {
        etiqueta->Visible = false;
    }
}

bool frmCurvaDuracion::Calcular() {
    CargarMatrices();
    Qord = Q;
    const Double Qm = Media(Q, n);
    OrdenarDescendente(Qord, n);
    // The table is the limit of the series: the row after its last one stops the calculation.
    for (int i = 1; i <= n; ++i) {
        grddis.PonerFila(i, {CStr(i), Format(Qord(i), "#####0.0###")});
    }
    curva = FormarCurva(Qord, n);
    DividirEntre(Qm, curva, Qadi);
    for (int i = 1; i <= curva.m; ++i) {
        grddis.PonerFila(
            i, {Format(curva.Q(i), "#####0.0###"), Format(Qadi(i), "#####0.0###"), Format(curva.Prob(i), "#####0.0#")},
            2);
    }
    return true;
}

void frmCurvaDuracion::bQ_Click() {
    if (!Exigir(txtxp, kPInadecuada)) {
        return;
    }
    const Double P = Val(txtxp.Text());
    if (P <= 0 || P > 100) {
        App().MsgBox(kPInadecuada);
        txtxp.Text = "";
        txtxp.SetFocus();
        return;
    }
    txtxq.Text = curva.m > 0 ? CStr(CaudalDeDuracion(curva, P)) : "";
}

void frmCurvaDuracion::bGraficar_Click() {
    OptNormal.Value = false;
    OptAdimensional.Value = false;
    OptNormal.Value = true;
    fraTipoGrafico.Visible = true;
    lblPorcentaje.Visible = true;
    lblQ.Visible = true;
}

void frmCurvaDuracion::Dibujar(const std::string& titulo, Label& etiqueta, const ColumnaDuracion& caudales) {
    if (!ExigirCalculo({kGraficarSinCalculos.texto, kIconoInformacion, "Mensaje de Error"})) {
        return;
    }
    LimpiarEtiqueta();
    lblPorcentaje.Visible = true;
    etiqueta.Visible = true;
    if (curva.m <= 1) {
        App().MsgBox({kGraficarSinPuntos.texto, kIconoInformacion, "Mensaje de Error"});
        return;
    }
    SerieGrafico serie;
    for (int i = 1; i <= curva.m; ++i) {
        serie.x.push_back(curva.Prob(i));
        serie.y.push_back(caudales(i));
    }
    Graph1.RotularEjes(lblPorcentaje, etiqueta);
    GraficoDibujar(Graph1, {.conTrama = true, .titulo = titulo}, {serie});
}

void frmCurvaDuracion::GenerarReporte(Reporte& reporte) {
    reporte.EscribirTabla(TablaDeSerie("Serie de caudales Q:", {" Día", " Caudal (m3/s)"}, 50), datos.grdt,
                          datos.Filas());
    Reporte::Tabla ordenados = TablaDeSerie("Caudales ordenados descendentemente:", {" Nº", " Caudal (m3/s)"}, 50);
    ordenados.columnas = 2;
    reporte.EscribirTabla(ordenados, grddis, n);
    reporte.EscribirTabla({.titulo = "Resultados de los cálculos de la curva de duración:",
                           .regla = 80,
                           .encabezado = "Q considerado     Q adimensional     Probabilidad Q >=      ",
                           .celda = CeldaCentrada(18, [](int fila, int) { return fila == 1 ? 1 : 0; }),
                           .primeraColumna = 2},
                          grddis, curva.m);
    reporte.LineaDeGuiones(30);
    reporte.ReporteLinea("Caudal de diseño:");
    reporte.LineaDeGuiones(30);
    reporte.ReporteLinea("El caudal de diseño: Q = " + txtxq.Text() + " m3/s, tiene una probalidad del " +
                         txtxp.Text() + " % de ser igualado o excedido");
    reporte.ReporteBlanco();
}

Disposicion frmCurvaDuracion::Contenido() {
    Disposicion diseno =
        Grupo(Frame8, {Fila({Pares(3, {Label15, txtxp, Label14, Label8, txtxq, Label12}), bQ, Espacio()})});
    return Columna({Disposicion(grddis).Estira(1), std::move(diseno),
                    Grupo(fraTipoGrafico, {Fila({OptNormal, OptAdimensional, Espacio()})}),
                    Fila({lblQ, lblQQm, Espacio()}), Disposicion(Graph1).Estira(2), Fila({Espacio(), lblPorcentaje})});
}

}  // namespace cuencalia
