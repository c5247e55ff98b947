#include "modules/regresion/frmEjRegSimple.h"

#include "modules/estadistica/momentos.h"
#include "modules/regresion/regresionlineal.h"
#include "modules/regresion/textoecuacion.h"

namespace cuencalia {

frmEjRegSimple::frmEjRegSimple(Aplicacion& app)
    : MarcoRegreSimple(app, "frmEjRegSimple", "Cálculos con ecuaciones de Regresión Simple", 3,
                       {"Lineal", "Exponencial", "Potencial"}),
      aplicar(*this, {.rotulo = "Ecuación:",
                      .cajas = {{"txtvxx", "Label6", "Valor de X:"}},
                      .opciones = {{"optLineal", "con ecuación Lineal", "Ecuación Lineal",
                                    [this](const auto& v) { return a + v[0] * b; }},
                                   {"optExponencial", "con ecuación Exponencial", "Ecuación Exponencial",
                                    [this](const auto& v) { return Elevar(bExp, v[0]) * aExp; }},
                                   {"optPotencial", "con ecuación Potencial", "Ecuación Potencial",
                                    [this](const auto& v) { return Elevar(v[0], bPot) * aPot; }}},
                      .faltaX = "Ingresar un valor adecuado para X"}) {
    DeclararBotones({{&bGraficar, "graficar"}}, {{&aplicar.bLimpiarDatos, "limpiar"}});
    AvisarFallos(
        {"Ingresó valores para X ó Y iguales a 0 ó negativos. Estos valores no permiten la correlación exponencial ni "
         "potencial. ¡Hacer la corrección correspondiente!"});
}

void frmEjRegSimple::Ajustar() {
    constexpr const char* kPatron = "#0.0######";
    const auto linea = AjustarLinea(kPatron);

    const ArregloBase<Double> lny = Logaritmos(y, n);
    const RectaRegresion exponencial = AjustarRecta(x, lny, n);
    const Double Rexp = CoeficienteCorrelacion(exponencial);
    aExp = Exp(exponencial.a);
    bExp = Exp(exponencial.b);

    const RectaRegresion potencial = AjustarRecta(Logaritmos(x, n), lny, n);
    const Double Rpot = CoeficienteCorrelacion(potencial);
    aPot = Exp(potencial.a);
    bPot = potencial.b;

    // The table is written only now: a value without a logarithm leaves it as it was, the line's row too.
    grdecua.PonerFila(1, linea);
    grdecua.PonerFila(2, FilaDeCurva("Exponencial", TextoExponencial(aExp, bExp, kPatron), Rexp));
    grdecua.PonerFila(3, FilaDeCurva("Potencial", TextoPotencial(aPot, bPot, kPatron), Rpot));
}

void frmEjRegSimple::GenerarReporte(Reporte& reporte) {
    MarcoRegreSimple::GenerarReporte(reporte);
    reporte.ReporteLinea(aplicar.lblCalculoY.Caption() + ":");
    reporte.ReporteLinea("Para X = " + aplicar.cajas[0].Text());
    reporte.ReporteLinea("El valor de Y es: Y = " + aplicar.txtvyy.Text());
}

Disposicion frmEjRegSimple::Contenido() {
    return Columna({grdecua, aplicar.Zona(), Disposicion(Graph1).Estira(1), Espacio(0)});
}

}  // namespace cuencalia
