#include "modules/precipitacion/intensidaddiseno.h"

#include "frame/base/textos.h"
#include "frame/modulo/cajas.h"

namespace cuencalia {

namespace {

constexpr int kPeriodos[] = {5, 10, 20, 50};         // years
constexpr int kDuraciones = 12, kPasoDuracion = 10;  // the durations are 10 to 120 min
constexpr const char* kPatronIntensidad = "0.#0";

}  // namespace

IntensidadDiseno::IntensidadDiseno(MarcoModulo& modulo, const DescripcionIntensidad& descripcion)
    : grdecua(modulo, descripcion.patron, descripcion.altoEcuacion),
      Frame4(modulo, "Frame4", "Calcular Imáx de diseño:"),
      Label6(modulo, "Label6", "Período de retorno (T):"),
      Label4(modulo, "Label4", "años"),
      Label3(modulo, "Label3", "Duración (D):"),
      Label5(modulo, "Label5", "min"),
      Label8(modulo, "Label8", "mm/hr"),
      txtvT(modulo, "txtvT"),
      txtvD(modulo, "txtvD"),
      txtvI(modulo, "txtvI", "Imáx"),
      bImax(modulo, "bImax", "Imáx", "Calcular Imáx para T y D"),
      lblEcuacion(modulo, "lblEcuacion", {}, Papel::Resultado),
      bCalPreviosIDT(modulo, "bCalPreviosIDT", "Cálculo valores I,D,T", "Calcular la tabla de valores de Imáx"),
      bGraficar(modulo, "bGraficar", "&Graficar", "Mostrar gráfico"),
      Label7(modulo, "Label7", descripcion.rotuloImaxTD, Papel::Nota),
      grdImaxTD(modulo, "grdImaxTD", "Valores de Imáx",
                {.filas = kDuraciones + 1,
                 .columnas = {{"Duración D", 1100}, {"T = 5", 900}, {"T = 10", 900}, {"T = 20", 900}, {"T = 50", 900}},
                 .altoEncabezado = descripcion.altoImaxTD}),
      lblEjeY(modulo, "lblEjeY", "Imáx (mm/hr)"),
      lblEjeX(modulo, "lblEjeX", "Duración D (min)"),
      Graph1(modulo, "Graph1", "Curvas de intensidad, duración y período de retorno"),
      modulo_(modulo),
      descripcion_(descripcion) {
    Label6.Nombra(txtvT);
    Label3.Nombra(txtvD);
    Graph1.RotularEjes(lblEjeX, lblEjeY);
    modulo.DeclararTablas({&grdecua, &grdImaxTD});
    modulo.DeclararEntradas({&txtvT, &txtvD});
    modulo.DeclararResultados({&txtvI});
    modulo.DeclararGraficos({&Graph1});
    modulo.DeclararInicio({&lblEcuacion});
    modulo.DeclararInicio(previos);
    SoloNumero(txtvT);
    SoloNumero(txtvD);
    EncadenarEnter({&txtvT, &txtvD}, bImax);
    bImax.Click.Conectar([this] { bImax_Click(); });
    bCalPreviosIDT.Click.Conectar([this] { bCalPreviosIDT_Click(); });
    bGraficar.Click.Conectar([this] { bGraficar_Click(); });
}

bool IntensidadDiseno::Ajustar(const PuntosIDT& puntos) {
    const auto ajuste = AjustarIntensidad(puntos, descripcion_.busqueda);
    if (!ajuste) {
        modulo_.App().MsgBox(kInfinitasSoluciones);
        return false;
    }
    // The equation is kept before its correlation is calculated, which may fail: it has none when all intensities are
    // equal.
    ecuacion = ajuste->ecuacion;
    grdecua.PonerAjuste(*ajuste, puntos);
    lblEcuacion.Caption = grdecua.TextoDe(ecuacion);
    return true;
}

bool IntensidadDiseno::Exigir(bool hecho, const Aviso& aviso) {
    if (!hecho) {
        modulo_.App().MsgBox(aviso);
    }
    return hecho;
}

void IntensidadDiseno::bImax_Click() {
    if (!Exigir(modulo_.calculado,
                {"Para calcular I, se deben realizar los cálculos previos", kIconoPregunta, "Error"})) {
        return;
    }
    const Double T = Val(txtvT.Text());
    const Double D = Val(txtvD.Text());
    if (T > 0 && D > 0) {
        txtvI.Text = Format(ecuacion.Evaluar(T, D), kPatronIntensidad);
        return;
    }
    modulo_.App().MsgBox("Ingresar valores en forma adecuada");
    txtvT.Text = "";
    txtvD.Text = "";
    txtvT.SetFocus();
}

void IntensidadDiseno::bCalPreviosIDT_Click() {
    if (!Exigir(modulo_.calculado,
                {"Efectuar cálculos antes de realizar cálculos previos", kIconoError, "Mensaje de Error"})) {
        return;
    }
    for (int j = 1; j <= kDuraciones; ++j) {
        const int D = kPasoDuracion * j;
        std::vector<std::string> fila{CStr(D)};
        for (const int T : kPeriodos) {
            fila.push_back(Format(ecuacion.Evaluar(T, D), kPatronIntensidad));
        }
        grdImaxTD.PonerFila(j, fila);
    }
    previos = true;
}

void IntensidadDiseno::bGraficar_Click() {
    if (!Exigir(previos, kGraficarSinCalculos)) {
        return;
    }
    std::vector<SerieGrafico> curvas;
    for (const int T : kPeriodos) {
        SerieGrafico& curva = curvas.emplace_back(SerieGrafico{.leyenda = "T = " + std::to_string(T) + " años"});
        const int columna = static_cast<int>(curvas.size());
        for (int j = 1; j <= kDuraciones; ++j) {  // as the table shows them
            curva.x.push_back(Val(grdImaxTD.TextMatrix(j, 0)));
            curva.y.push_back(Val(grdImaxTD.TextMatrix(j, columna)));
        }
    }
    Graph1.TraerAlFrente();
    GraficoDibujar(Graph1, {.conTrama = true}, curvas);
}

void IntensidadDiseno::ReportarImaxTD(Reporte& reporte) {
    const std::vector<std::string> encabezados{"    Duración D", "    T = 5 años", "    T = 10 años ",
                                               "    T = 20 años ", "    T = 50 años "};
    reporte.EscribirTabla({.titulo = "Valores de Imax, para diferentes D en min y para T = 5, 10, 20 y 50 años",
                           .regla = descripcion_.reglaImaxTD,
                           .encabezado = UnirEncabezados(encabezados, ""),
                           .celda = CeldaBajo(encabezados)},
                          grdImaxTD, kDuraciones);
}

void IntensidadDiseno::ReportarResultados(Reporte& reporte) {
    ReportarEcuacion(reporte, grdecua);
    ReportarIntensidad(reporte, "Imax de diseño para los valores de T y D dados:", txtvT, txtvD, txtvI);
    ReportarImaxTD(reporte);
}

Disposicion IntensidadDiseno::Zona() {
    Disposicion diseno = Grupo(
        Frame4, {Fila({Pares(3, {Label6, txtvT, Label4, Label3, txtvD, Label5, bImax, txtvI, Label8}), Espacio()}),
                 lblEcuacion});
    Disposicion grafico =
        Columna({Fila({lblEjeY, Espacio()}), Disposicion(Graph1).Estira(1), Fila({Espacio(), lblEjeX}), Espacio(0)});
    return Fila({Columna({std::move(diseno), Fila({bCalPreviosIDT, Disposicion(Label7).Estira(1)}),
                          Disposicion(grdImaxTD).Estira(1)}),
                 std::move(grafico).Estira(1)});
}

}  // namespace cuencalia
