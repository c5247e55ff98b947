#include "modules/regresion/frmRegreLineal.h"

#include "frame/base/textos.h"
#include "modules/regresion/regresionlineal.h"

namespace cuencalia {

frmRegreLineal::frmRegreLineal(Aplicacion& app)
    : ModuloCalculo(app, "frmRegreLineal",
                    {.titulo = "Cálculos con ecuaciones de regresión lineal simple, admite valores negativos o 0",
                     .encabezados = {"Par", "X", "Y"},
                     .patronEdicion = kPatronEdicionB,
                     .tituloDatos = "Ingreso de los pares de datos:",
                     .archivo = &kArchivoXY}) {
    LeerEn({&x, &y});
    AgregarBotones({{&bGraficar, "graficar"}});
    AgregarBoton(bCalY, "evaluar");
    AgregarBoton(bCalX, "evaluar");
    bGraficar.Click.Conectar([this] { bGraficar_Click(); });
    bCalY.Click.Conectar([this] { bCalY_Click(); });
    bCalX.Click.Conectar([this] { bCalX_Click(); });
    Label6.Nombra(txtvxx);
    Label7.Nombra(txtvyy);
}

void frmRegreLineal::InicializarEcua() {
    grdecua.Clear();
    grdecua.PonerRows(2);
    grdecua.PonerCols(4);
    grdecua.PonerFixedRows(1);
    grdecua.PonerFixedCols(0);
    for (int c = 0; c < grdecua.Cols(); ++c) {
        grdecua.PonerColWidth(c, c == 1 ? 3000 : 1050);
        grdecua.PonerColAlignment(c, kAlinearCentro);
    }
    grdecua.PonerRowHeight(0, 340);
    grdecua.PonerEncabezados({"Correlación", "Ecuación", "R", "R2"});
}

void frmRegreLineal::LimpiarOtros() {
    txtvxx.Text = "";
    txtvyy.Text = "";
    calculado = false;
    Graph1.Visible = false;
}

void frmRegreLineal::bCalcular_Click() {
    CargarMatrices();
    if (n <= 1) {
        App().MsgBox("Para el ajuste a la ecuación se requiere por lo menos dos puntos", kIconoError, "Error");
        MenorQue2Celdas();
        // A refused fit counts as made: the line of the last fit is applied, or 0 if there was none.
        calculado = true;
        return;
    }
    const RectaRegresion recta = AjustarRecta(x, y, n);
    // The line stands even where it has no correlation: equal ordinates give b = 0, which bCalX reports.
    a = recta.a;
    b = recta.b;
    const Double R = CoeficienteCorrelacion(recta);
    const std::string textoA = Format(a, "#0.0####");
    const std::string textoB = Format(b, "#0.0####");
    const char* separador = Val(textoB) < 0 ? "  " : " + ";
    grdecua.PonerTextMatrix(1, 0, "Lineal");
    grdecua.PonerTextMatrix(1, 1, "Y = " + textoA + separador + textoB + " * X");
    grdecua.PonerTextMatrix(1, 2, Format(R, "#0.0####"));
    grdecua.PonerTextMatrix(1, 3, Format(R * R, "#0.0####"));
    calculado = true;
}

void frmRegreLineal::bGraficar_Click() {
    CargarMatrices();
    if (n <= 1) {
        App().MsgBox("Para graficar se requiere por lo menos dos puntos", kIconoError, "Error");
        MenorQue2Celdas();
        return;
    }
    SerieGrafico pares;
    for (int i = 1; i <= n; ++i) {
        pares.x.push_back(x(i));
        pares.y.push_back(y(i));
    }
    GraficoDibujar(Graph1, {.estilo = kSimbolosSueltos, .autoInc = 0}, {pares});
}

bool frmRegreLineal::PrepararEvaluacion(TextBox& conocido, TextBox& resultado, const char* nombreConocido,
                                        const char* nombreResultado) {
    if (!calculado) {
        App().MsgBox("Antes de hallar el valor de " + std::string(nombreResultado) +
                     ", efectuar los calculos de la correlación");
        return false;
    }
    resultado.Text = "";
    if (conocido.Text().empty()) {
        App().MsgBox("Ingresar un valor adecuado para " + std::string(nombreConocido));
        conocido.SetFocus();
        return false;
    }
    return true;
}

void frmRegreLineal::bCalY_Click() {
    if (PrepararEvaluacion(txtvxx, txtvyy, "X", "Y")) {
        txtvyy.Text = Format(a + Val(txtvxx.Text()) * b, "#0.0000");
    }
}

void frmRegreLineal::bCalX_Click() {
    if (!PrepararEvaluacion(txtvyy, txtvxx, "Y", "X")) {
        return;
    }
    try {
        txtvxx.Text = Format((Val(txtvyy.Text()) - a) / b, "#0.0000");
    } catch (const ErrorEjecucion&) {
        App().MsgBox("El coeficiente b tiene un valor de 0");
    }
}

void frmRegreLineal::cargarRegreSimple(Reporte& reporte) {
    constexpr int kReglaPares = 75;
    constexpr int kReglaEcuacion = 109;
    reporte.TablaDeSerie("Pares de datos X,Y:", {" Par", " X", " Y"}, grdt, grdt.Rows() - 2, kReglaPares);
    reporte.Titulo("Ecuaciones de ajuste de pares de datos:");
    reporte.LineaDeGuiones(kReglaEcuacion);
    for (const char* encabezado : {" Tipo    ", " Ecuación", " R       ", " R^2     "}) {
        reporte.ReporteTexto(std::string(encabezado) + "\t\t");
    }
    reporte.ReporteBlanco();
    reporte.LineaDeGuiones(kReglaEcuacion);
    for (int c = 0; c < grdecua.Cols(); ++c) {
        reporte.ReporteTexto(grdecua.TextMatrix(1, c) + "  \t");
    }
    reporte.ReporteBlanco();
    reporte.LineaDeGuiones(kReglaEcuacion);
    reporte.ReporteBlanco();
    reporte.Titulo("Cálculo de Y para un valor de X:");
    reporte.ReporteTexto("Para X = " + txtvxx.Text() + ", ");
    reporte.ReporteLinea("el valor de Y es: Y = " + txtvyy.Text());
}

std::vector<Disposicion> frmRegreLineal::BotonesAccion() { return {bCalcular, bGraficar, bLimpiar, bImprimir, bMenu}; }

Disposicion frmRegreLineal::Contenido() {
    Disposicion aplicar = Grupo(Frame4, {lblCalculoY, Fila({Label6, txtvxx, bCalY, Label7, txtvyy, bCalX, Espacio()})});
    return Columna({grdecua, std::move(aplicar), Disposicion(Graph1).Estira(1), Espacio(0)});
}

}  // namespace cuencalia
