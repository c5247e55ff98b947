#include "modules/estadistica/frmParamEsta.h"

#include "frame/base/textos.h"
#include "modules/estadistica/momentos.h"
#include "modules/estadistica/reporteestadistica.h"

namespace cuencalia {

namespace {

std::vector<std::string> Textos(const ParametrosEstadisticos& p) {
    return {Format(p.media, "0.##00"), Format(p.varianza, "0.0###"), Format(p.desviacion, "0.##00"),
            Format(p.Cv, "0.##00"),    Format(p.Cs, "0.##00"),       Format(p.Ck, "0.##00")};
}

/// The L-moments as texts for the rows of the conventional parameters: the row of the standard deviation shows L2
/// itself, the row of the variance the square of L2.
std::vector<std::string> Textos(const MomentosLineales& l) {
    return {Format(l.L1, "0.0000"),        Format(l.L2 * l.L2, "0.0###"), Format(l.L2, "0.0000"),
            Format(l.L2 / l.L1, "0.0000"), Format(l.L3 / l.L2, "0.0000"), Format(l.L4 / l.L2, "0.0000")};
}

}  // namespace

frmParamEsta::frmParamEsta(Aplicacion& app)
    : ModuloSerie(app, "frmParamEsta", "Cálculo de parámetros estadísticos, comunes y con momentos lineales") {
    DeclararBotones({{&orden.bOrdenar, "ordenar"}});
    DeclararTablas({&grdParam});
    DeclararResultados({&txtL1, &txtL2, &txtL3, &txtL4});
    lblL1.Nombra(txtL1);
    lblL2.Nombra(txtL2);
    lblL3.Nombra(txtL3);
    lblL4.Nombra(txtL4);
}

bool frmParamEsta::Calcular() {
    CargarMatrices();
    if (n <= 1) {
        App().MsgBox("Para el cálculo de los parámetros se requieren por lo menos dos datos", kIconoError, "Error");
        datos.MenorQue2Celdas();
        return false;
    }
    // All results are computed before any is shown, so that an error leaves the window unchanged.
    const std::vector<std::string> pm = Textos(ParametrosMuestrales(x, n));
    const std::vector<std::string> pp = Textos(ParametrosPoblacionales(x, n));
    OrdenarCopia();
    const MomentosLineales l = CalcularMomentosLineales(xo, n);
    const std::vector<std::string> pl = Textos(l);

    txtL1.Text = Format(l.L1, "0.0000");
    txtL2.Text = Format(l.L2, "0.0000");
    txtL3.Text = Format(l.L3, "0.0000");
    txtL4.Text = Format(l.L4, "0.0000");
    RotularParametros(grdParam);
    grdParam.PonerColumna(1, pm);
    grdParam.PonerColumna(2, pp);
    grdParam.PonerColumna(3, pl);
    return true;
}

void frmParamEsta::GenerarReporte(Reporte& reporte) {
    constexpr int kRegla = 145;
    ReportarSerie(reporte, datos.grdt);
    ReportarParametros(
        reporte, grdParam,
        "     Parámetros       \t                   Muestrales \t Poblacionales  \t    Momentos Lineales  ", kRegla);
    reporte.Titulo("Coeficientes Lineales:");
    reporte.ReporteLinea("L1 = " + txtL1.Text());
    reporte.ReporteLinea("L2 = " + txtL2.Text());
    reporte.ReporteLinea("L3 = " + txtL3.Text());
    reporte.ReporteLinea("L4 = " + txtL4.Text());
    reporte.ReporteBlanco();
    ReportarOrdenados(reporte, orden.grdorden);
}

Disposicion frmParamEsta::Contenido() {
    Disposicion coeficientes = Grupo(Frame8, {Pares(2, {lblL1, txtL1, lblL2, txtL2, lblL3, txtL3, lblL4, txtL4})});
    return Columna(
        {grdParam, Fila({Columna({std::move(coeficientes), Espacio()}), orden.Zona(), Espacio()}).Estira(1)});
}

}  // namespace cuencalia
