#include "modules/regresion/frmRegreLineal.h"

#include "frame/base/textos.h"
#include "frame/modulo/cajas.h"
#include "modules/regresion/regresionlineal.h"

namespace cuencalia {

frmRegreLineal::frmRegreLineal(Aplicacion& app)
    : ModuloCalculo(app, "frmRegreLineal",
                    {.titulo = "Cálculos con ecuaciones de regresión lineal simple, admite valores negativos o 0",
                     .datos = {.encabezados = {"Par", "X", "Y"},
                               .patronEdicion = kPatronEdicionB,
                               .titulo = "Ingreso de los pares de datos:"},
                     .archivo = &kArchivoXY}) {
    LeerEn({&x, &y});
    DeclararBotones({{&bGraficar, "graficar"}}, {{&bCalY, "evaluar"}, {&bCalX, "evaluar"}});
    DeclararTablas({&grdecua});
    DeclararEntradas({&txtvxx, &txtvyy});
    bGraficar.Click.Conectar([this] { bGraficar_Click(); });
    bCalY.Click.Conectar([this] { bCalY_Click(); });
    bCalX.Click.Conectar([this] { bCalX_Click(); });
    Label6.Nombra(txtvxx);
    Label7.Nombra(txtvyy);
}

void frmRegreLineal::LimpiarOtros() {
    calculado = false;
    Graph1.Visible = false;
}

void frmRegreLineal::Calcular() {
    CargarMatrices();
    if (n <= 1) {
        App().MsgBox("Para el ajuste a la ecuación se requiere por lo menos dos puntos", kIconoError, "Error");
        datos.MenorQue2Celdas();
        // The refused fit still sets `calculado`: the user can go on evaluating the line of the last fit, or a line
        // with a = b = 0 if there was none.
        calculado = true;
        return;
    }
    const RectaRegresion recta = AjustarRecta(x, y, n);
    // The line is stored before the correlation is calculated, which may fail: equal ordinates give b = 0, and bCalX
    // then reports that.
    a = recta.a;
    b = recta.b;
    const Double R = CoeficienteCorrelacion(recta);
    const std::string textoA = Format(a, "#0.0####");
    const std::string textoB = Format(b, "#0.0####");
    const char* separador = Val(textoB) < 0 ? "  " : " + ";
    grdecua.PonerFila(
        1, {"Lineal", "Y = " + textoA + separador + textoB + " * X", Format(R, "#0.0####"), Format(R * R, "#0.0####")});
    calculado = true;
}

void frmRegreLineal::bGraficar_Click() {
    CargarMatrices();
    if (n <= 1) {
        App().MsgBox(kGraficarSinPuntos);
        datos.MenorQue2Celdas();
        return;
    }
    SerieGrafico pares;
    for (int i = 1; i <= n; ++i) {
        pares.x.push_back(x(i));
        pares.y.push_back(y(i));
    }
    GraficoDibujar(Graph1, {.estilo = kSimbolosSueltos, .autoInc = 0}, {pares});
}

bool frmRegreLineal::PrepararEvaluacion(TextBox& conocido, TextBox& resultado, const std::string& nombreConocido,
                                        const std::string& nombreResultado) {
    if (!ExigirCalculo(
            {"Antes de hallar el valor de " + nombreResultado + ", efectuar los calculos de la correlación"})) {
        return false;
    }
    resultado.Text = "";
    return Exigir(conocido, {"Ingresar un valor adecuado para " + nombreConocido});
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

void frmRegreLineal::GenerarReporte(Reporte& reporte) {
    reporte.EscribirTabla(TablaDeSerie("Pares de datos X,Y:", {" Par", " X", " Y"}, 75), datos.grdt, datos.Filas());
    reporte.EscribirTabla({.titulo = "Ecuaciones de ajuste de pares de datos:",
                           .regla = 109,
                           .encabezado = UnirEncabezados({" Tipo    ", " Ecuación", " R       ", " R^2     "}, "\t\t"),
                           .celda = CeldaSeguidaDe("  \t")},
                          grdecua, 1);
    reporte.Titulo("Cálculo de Y para un valor de X:");
    reporte.ReporteTexto("Para X = " + txtvxx.Text() + ", ");
    reporte.ReporteLinea("el valor de Y es: Y = " + txtvyy.Text());
}

Disposicion frmRegreLineal::Contenido() {
    Disposicion aplicar = Grupo(Frame4, {lblCalculoY, Fila({Label6, txtvxx, bCalY, Label7, txtvyy, bCalX, Espacio()})});
    return Columna({grdecua, std::move(aplicar), Disposicion(Graph1).Estira(1), Espacio(0)});
}

}  // namespace cuencalia
