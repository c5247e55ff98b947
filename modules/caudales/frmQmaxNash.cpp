#include "modules/caudales/frmQmaxNash.h"

#include "frame/base/textos.h"
#include "modules/caudales/qmaxnash.h"

namespace cuencalia {

namespace {

constexpr const char* kPatronSuma = "##0.0#";
constexpr const char* kPatronCaudal = "#####0.0#";
constexpr const char* kPatronVariable = "#####0.0###";

}  // namespace

frmQmaxNash::frmQmaxNash(Aplicacion& app)
    : MarcoMaximas(app, "frmQmaxNash",
                   {.titulo = "Cálculo del caudal de diseño utilizando el método estadístico propuesto por Nash",
                    .parametros = {{"Qm", 1050}, {"Xm", 900}, {"a", 1050}, {"b", 1150}},
                    .reporte = {{5, "Número de años disponibles: "},
                                {25, "Qm:                 "},
                                {36, "Xm:      "},
                                {28, "a:               "},
                                {28, "b:               "},
                                {13, "Q máximo:                   "},
                                {15, "Delta Q:                    "},
                                {10, "Intervalo variación Q:      "}},
                    .conclusion = "El caudal de diseño con el método estadístico propuesto por Nash,\n"
                                  "para un período de retorno de ",
                    .TMinimo = 1,
                    .annosMinimos = 3}) {
    DeclararTablas({&grdTablaQX});
    DeclararResultados({&txtSQ, &txtSX, &txtSQX, &txtSQ2, &txtSX2});
    lblSQ.Nombra(txtSQ);
    lblSX.Nombra(txtSX);
    lblSQX.Nombra(txtSQX);
    lblSQ2.Nombra(txtSQ2);
    lblSX2.Nombra(txtSX2);
}

MarcoMaximas::Estimacion frmQmaxNash::Estimar(Double T) {
    const Double XT = VariableDeNash(T);
    const RangosNash r = OrdenarPorRango(x, n);
    // Two years have sums and ranks, but no interval: the sums are shown all the same.
    txtSQ.Text = Format(r.SQ, kPatronSuma);
    txtSX.Text = Format(r.SX, "##0.0###");
    txtSQX.Text = Format(r.SQX, kPatronSuma);
    txtSQ2.Text = Format(r.SQ2, kPatronSuma);
    txtSX2.Text = Format(r.SX2, kPatronSuma);
    const CaudalNash c = EstimarNash(r, n, XT);
    grdTablaQX.Iniciar(n + 1);
    for (int m = 1; m <= n; ++m) {
        const Double Q = r.Q(m), X = r.X(m);
        grdTablaQX.PonerFila(
            m, {CStr(m), Format(Q, kPatronCaudal), Format(r.T(m), kPatronVariable), Format(X, kPatronVariable),
                Format(Q * X, kPatronCaudal), Format(Q * Q, kPatronCaudal), Format(X * X, kPatronVariable)});
    }
    return {{r.Qm, r.Xm, c.a, c.b}, c.Qmax, c.DeltaQ};
}

std::vector<Disposicion> frmQmaxNash::Detalles() {
    return {Grupo(fraSumatorias, {Fila({lblSQ, txtSQ, lblSX, txtSX, lblSQX, txtSQX, lblSQ2, txtSQ2, lblSX2, txtSX2})}),
            Disposicion(grdTablaQX).Estira(1)};
}

}  // namespace cuencalia
