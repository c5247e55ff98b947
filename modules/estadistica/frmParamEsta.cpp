#include "modules/estadistica/frmParamEsta.h"

#include "frame/base/textos.h"
#include "modules/estadistica/momentos.h"
#include "modules/estadistica/reporteestadistica.h"
#include "modules/estadistica/tablaparametros.h"

namespace cuencalia {

namespace {

ColumnaParametros Textos(const ParametrosEstadisticos& p) {
    return {Format(p.media, "0.##00"), Format(p.varianza, "0.0###"), Format(p.desviacion, "0.##00"),
            Format(p.Cv, "0.##00"),    Format(p.Cs, "0.##00"),       Format(p.Ck, "0.##00")};
}

/// The L-moment ratios in the rows of the conventional parameters: L2 is the dispersion itself, not a standard
/// deviation made from it, and the variance row holds its square.
ColumnaParametros Textos(const MomentosLineales& l) {
    return {Format(l.L1, "0.0000"),        Format(l.L2 * l.L2, "0.0###"), Format(l.L2, "0.0000"),
            Format(l.L2 / l.L1, "0.0000"), Format(l.L3 / l.L2, "0.0000"), Format(l.L4 / l.L2, "0.0000")};
}

}  // namespace

frmParamEsta::frmParamEsta(Aplicacion& app)
    : ModuloSerie(app, "frmParamEsta", "Cálculo de parámetros estadísticos, comunes y con momentos lineales") {
    AgregarBotones({{&orden.bOrdenar, "ordenar"}});
    for (TextBox* caja : {&txtL1, &txtL2, &txtL3, &txtL4}) {
        caja->Locked = true;
    }
    lblL1.Nombra(txtL1);
    lblL2.Nombra(txtL2);
    lblL3.Nombra(txtL3);
    lblL4.Nombra(txtL4);
}

void frmParamEsta::InicializarParam() {
    IniciarTablaParametros(grdParam, {"Parámetros", "Muestrales", "Poblacionales", "Momentos Lineales"});
}

void frmParamEsta::LimpiarOtros() {
    for (TextBox* caja : {&txtL1, &txtL2, &txtL3, &txtL4}) {
        caja->Text = "";
    }
    ModuloSerie::LimpiarOtros();
}

void frmParamEsta::bCalcular_Click() {
    CargarMatrices();
    if (n <= 1) {
        App().MsgBox("Para el cálculo de los parámetros se requieren por lo menos dos datos", kIconoError, "Error");
        MenorQue2Celdas();
        return;
    }
    // Everything is computed before anything is shown: a series that stops the calculation leaves the window as it was.
    const ColumnaParametros pm = Textos(ParametrosMuestrales(x, n));
    const ColumnaParametros pp = Textos(ParametrosPoblacionales(x, n));
    OrdenarCopia();
    const MomentosLineales l = CalcularMomentosLineales(xo, n);
    const ColumnaParametros pl = Textos(l);

    txtL1.Text = Format(l.L1, "0.0000");
    txtL2.Text = Format(l.L2, "0.0000");
    txtL3.Text = Format(l.L3, "0.0000");
    txtL4.Text = Format(l.L4, "0.0000");
    RotularParametros(grdParam);
    MostrarParametros(grdParam, 1, pm);
    MostrarParametros(grdParam, 2, pp);
    MostrarParametros(grdParam, 3, pl);
}

void frmParamEsta::ReporteParamEsta(Reporte& reporte) {
    constexpr int kRegla = 145;
    ReportarSerie(reporte, grdt);
    reporte.Titulo("Parámetros Estadísticos:");
    reporte.LineaDeGuiones(kRegla);
    reporte.ReporteTexto("     Parámetros       \t");
    reporte.ReporteTexto("                   Muestrales \t");
    reporte.ReporteTexto(" Poblacionales  \t");
    reporte.ReporteLinea("    Momentos Lineales  ");
    reporte.LineaDeGuiones(kRegla);
    ReportarParametros(reporte, grdParam);
    reporte.LineaDeGuiones(kRegla);
    reporte.ReporteBlanco();
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
