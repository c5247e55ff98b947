#include "modules/regresion/marcoregpolinomial.h"

#include <utility>

#include "frame/base/textos.h"
#include "frame/modulo/cajas.h"
#include "modules/regresion/marcoregresimple.h"
#include "modules/regresion/textoecuacion.h"

namespace cuencalia {

MarcoRegPolinomial::MarcoRegPolinomial(Aplicacion& app, std::string nombre, DescripcionRegPolinomial descripcion)
    : MarcoRegresion(app, std::move(nombre), ModuloDePares(descripcion.titulo), descripcion.regresion),
      x(static_cast<std::size_t>(descripcion.regresion.k)),
      a(x.size() + 1),
      ecuacion_(std::move(descripcion.ecuacion)) {
    LeerEn({&x[0], &y});
    DeclararBotones({{&bGraficar, "graficar"}}, {{&bCalY, "evaluar"}});
    DeclararEntradas({&txtvxx1});
    DeclararResultados({&txtvyy});
    DeclararGraficos({&Graph1});
    DeclararLimpieza([this] { lblCalculoY.Caption = "Ecuación:"; });
    txtvxx1.Change.Conectar([this] { txtvyy.Text = ""; });
    bCalY.Click.Conectar([this] { bCalY_Click(); });
    bGraficar.Click.Conectar([this] { bGraficar_Click(); });
    Graph1.NombrarEjes("X", "Y");
    Label6.Nombra(txtvxx1);
    Label7.Nombra(txtvyy);
}

std::vector<Double> MarcoRegPolinomial::Potencias(Double valor) const {
    std::vector<Double> potencias;
    for (int j = 1; j <= Regresion().k; ++j) {
        potencias.push_back(Elevar(valor, j));
    }
    return potencias;
}

void MarcoRegPolinomial::CargarMatrices() {
    MarcoRegresion::CargarMatrices();
    for (int i = 1; i <= n; ++i) {
        const std::vector<Double> potencias = Potencias(x[0](i));
        for (std::size_t j = 1; j < x.size(); ++j) {
            x[j](i) = potencias[j];
        }
    }
}

bool MarcoRegPolinomial::Ajustar() {
    Independientes u;
    for (const Serie& xj : x) {
        u.push_back(&xj);
    }
    const auto regresion = AjustarRegresion(u, y, n, BusquedaPivote::EnFila);
    if (!regresion) {
        return false;
    }
    a = regresion->coef;
    const Double R2 = regresion->R2(), R = Sqr(R2);
    const Double Se = Sqr(regresion->SumaResiduos() / (n - Regresion().k - 1));
    grdecua.PonerFila(1, FilaDeEcuacion(Regresion().filas[0], TextoEcuacion(ecuacion_, a), R, R2, Se));
    for (int i = 1; i <= n; ++i) {
        yc(i) = EvaluarLineal(a, Potencias(x[0](i)));
    }
    return true;
}

void MarcoRegPolinomial::bCalY_Click() {
    if (!ExigirCalculo({"Antes de hallar el valor de Y, efectuar los calculos de la correlación"})) {
        return;
    }
    txtvyy.Text = "";
    if (Exigir(txtvxx1, {"Ingresar un valor adecuado para X"})) {
        txtvyy.Text = Format(EvaluarLineal(a, Potencias(Val(txtvxx1.Text()))), "#0.0000");
    }
}

void MarcoRegPolinomial::bGraficar_Click() {
    if (!ExigirCalculo({"Ejecutar cálculos antes de graficar"})) {
        return;
    }
    if (n == 0) {  // a refused fit of an empty grid: a chart has at least one point
        Graph1.Visible = false;
        return;
    }
    SerieGrafico pares{.leyenda = "Dat"}, ajuste{.leyenda = "Teo"};
    for (int i = 1; i <= n; ++i) {
        pares.x.push_back(x[0](i));
        pares.y.push_back(y(i));
        ajuste.y.push_back(yc(i));
    }
    GraficoDibujar(Graph1, {.estilo = kSimbolosSueltos}, {pares, ajuste});
}

void MarcoRegPolinomial::GenerarReporte(Reporte& reporte) {
    ReportarTablas(reporte, {"Pares de valores X e Y:", {" Par", " X", " Y"}}, 60,
                   {"Ecuación de ajuste de correlación polinomial:",
                    {" Correlación             ", " Ecuación                         ", " R   ", " R^2 ", " Se  "}});
    reporte.Titulo("Cálculo de Y para un valor de X:");
    reporte.ReporteLinea("Para X = " + txtvxx1.Text());
    reporte.ReporteLinea("El valor de Y es: Y = " + txtvyy.Text());
}

Disposicion MarcoRegPolinomial::Contenido() {
    Disposicion aplicar = Grupo(Frame4, {lblCalculoY, Fila({Label6, txtvxx1, bCalY, Label7, txtvyy, Espacio()})});
    return Columna({std::move(aplicar), Disposicion(Graph1).Estira(1), Espacio(0)});
}

}  // namespace cuencalia
