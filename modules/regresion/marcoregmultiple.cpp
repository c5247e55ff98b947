#include "modules/regresion/marcoregmultiple.h"

#include <utility>

namespace cuencalia {

namespace {

std::vector<AplicarEcuacion::Caja> CajasDe(int k) {
    std::vector<AplicarEcuacion::Caja> cajas;
    for (int j = 1; j <= k; ++j) {
        const std::string numero = std::to_string(j);
        cajas.push_back({"txtvxx" + numero, "lblvxx" + numero, "Valor de X" + numero + ":"});
    }
    return cajas;
}

}  // namespace

MarcoRegMultiple::MarcoRegMultiple(Aplicacion& app, std::string nombre, DescripcionRegMultiple descripcion)
    : MarcoRegresion(app, std::move(nombre), descripcion.modulo, descripcion.regresion),
      aplicar(*this,
              {.rotulo = "Cálculo para:",
               .cajas = CajasDe(descripcion.regresion.k),
               .opciones = {{"optLineal", "con correlación lineal múltiple", "Correlación lineal múltiple",
                             [this](const auto& v) { return EvaluarLineal(aL, v); }},
                            {"optPotencial", "con correlación potencial múltiple", "Correlación potencial múltiple",
                             [this](const auto& v) { return EvaluarPotencial(aP, v); }}},
               .faltaX = descripcion.faltaX}),
      x(static_cast<std::size_t>(descripcion.regresion.k)),
      aL(x.size() + 1),
      aP(x.size() + 1),
      descripcion_(std::move(descripcion)) {
    std::vector<Matriz> columnas;
    for (Serie& xj : x) {
        columnas.emplace_back(&xj);
    }
    columnas.emplace_back(&y);
    LeerEn(std::move(columnas));
    bLimpiar.Caption = "Limpiar Pan&talla";
    DeclararBotones({}, {{&aplicar.bLimpiarDatos, "limpiar"}});
    AvisarFallos({descripcion_.fallo});
}

bool MarcoRegMultiple::Ajustar() {
    Independientes u;
    for (const Serie& xj : x) {
        u.push_back(&xj);
    }
    const auto lineal = AjustarRegresion(u, y, n, BusquedaPivote::EnFila);
    if (!lineal) {
        return false;
    }
    aL = lineal->coef;
    const Double R2lineal = lineal->R2();
    const auto filaLineal = FilaDeEcuacion(Regresion().filas[0], TextoEcuacion(descripcion_.ecuacionLineal, aL),
                                           Sqr(R2lineal), R2lineal, ErrorEstandar(EvaluarLineal, aL, u, y, n));

    const auto potencial = AjustarPotencial(u, y, n, BusquedaPivote::EnFila);
    if (!potencial) {
        return false;
    }
    aP = potencial->coef;
    aP[0] = Exp(aP[0]);
    const Double R2potencial = potencial->R2();
    const auto filaPotencial = FilaDeEcuacion(
        Regresion().filas[1], TextoEcuacion(descripcion_.ecuacionPotencial, aP, descripcion_.signoPotencial),
        Sqr(R2potencial), R2potencial, ErrorEstandar(EvaluarPotencial, aP, u, y, n));

    // The table is written only now: a value without a logarithm leaves it as it was, the linear row too.
    grdecua.PonerFila(1, filaLineal);
    grdecua.PonerFila(2, filaPotencial);
    return true;
}

void MarcoRegMultiple::GenerarReporte(Reporte& reporte) {
    ReportarTablas(reporte, descripcion_.reporteDatos, descripcion_.reglaDatos,
                   {"Ecuaciones de ajuste de correlación múltiple:",
                    {" Correlación        ", " Ecuación           ", " R   ", " R^2 ", " Se  "}});
    reporte.Titulo(descripcion_.tituloY);
    reporte.ReporteLinea(aplicar.lblCalculoY.Caption() + ":");
    for (std::size_t j = 1; j <= x.size(); ++j) {
        reporte.ReporteLinea("Para X" + std::to_string(j) + " = " + aplicar.cajas[j - 1].Text() +
                             (j + 1 == x.size() ? " y" : ""));
    }
    reporte.ReporteLinea("El valor de Y es: Y = " + aplicar.txtvyy.Text());
}

Disposicion MarcoRegMultiple::Contenido() { return Columna({aplicar.Zona(), Espacio()}); }

}  // namespace cuencalia
