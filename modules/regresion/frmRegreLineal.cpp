#include "modules/regresion/frmRegreLineal.h"

#include "frame/base/textos.h"
#include "frame/modulo/cajas.h"

namespace cuencalia {

frmRegreLineal::frmRegreLineal(Aplicacion& app)
    : MarcoRegreSimple(app, "frmRegreLineal",
                       "Cálculos con ecuaciones de regresión lineal simple, admite valores negativos o 0", 1) {
    DeclararBotones({{&bGraficar, "graficar"}}, {{&bCalY, "evaluar"}, {&bCalX, "evaluar"}});
    DeclararEntradas({&txtvxx, &txtvyy});
    bCalY.Click.Conectar([this] { bCalY_Click(); });
    bCalX.Click.Conectar([this] { bCalX_Click(); });
    Label6.Nombra(txtvxx);
    Label7.Nombra(txtvyy);
}

void frmRegreLineal::Ajustar() { grdecua.PonerFila(1, AjustarLinea("#0.0####")); }

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
    MarcoRegreSimple::GenerarReporte(reporte);
    reporte.ReporteTexto("Para X = " + txtvxx.Text() + ", ");
    reporte.ReporteLinea("el valor de Y es: Y = " + txtvyy.Text());
}

Disposicion frmRegreLineal::Contenido() {
    Disposicion aplicar = Grupo(Frame4, {lblCalculoY, Fila({Label6, txtvxx, bCalY, Label7, txtvyy, bCalX, Espacio()})});
    return Columna({grdecua, std::move(aplicar), Disposicion(Graph1).Estira(1), Espacio(0)});
}

}  // namespace cuencalia
