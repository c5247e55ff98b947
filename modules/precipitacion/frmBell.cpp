#include "modules/precipitacion/frmBell.h"

#include "frame/base/textos.h"
#include "frame/modulo/cajas.h"
#include "modules/precipitacion/bell.h"

namespace cuencalia {

namespace {

const std::vector<int> kDuraciones{5, 10, 20, 30, 60, 120};  // minutes
const std::vector<int> kPeriodos{100, 50, 25, 10, 5, 3, 2};  // years

}  // namespace

frmBell::frmBell(Aplicacion& app)
    : MarcoModulo(app, "frmBell",
                  "Calcular la ecuación de Imáx a partir de datos de P máx diarios utilizando el criterio de Frederich "
                  "Bell"),
      grdDuracion(*this, "grdDuracion", "Precipitaciones por duración y período de retorno",
                  TablaDeDuraciones("T", kDuraciones, static_cast<int>(kPeriodos.size()))),
      grdImax(*this, "grdImax", "Intensidades por duración y período de retorno",
              TablaDeDuraciones("T", kDuraciones, static_cast<int>(kPeriodos.size()))),
      diseno(*this, {.rotuloImaxTD = "Valores de Imax, para diferentes D = 10, 20, .., 120 en min, y para T = 5, 10, "
                                     "20 y 50 años"}) {
    DeclararBotones({{&diseno.bGraficar, "graficar"}},
                    {{&bContinuar, "evaluar"}, {&diseno.bImax, "evaluar"}, {&diseno.bCalPreviosIDT, "tabla"}});
    DeclararTablas({&grdDuracion, &grdImax});
    DeclararEntradas({&txtP2410, &txtPD60T10});
    DeclararLimpieza([this] { txtP2410.SetFocus(); });
    SSTab1.NombreAccesible = "Datos y resultados";
    AvisarFallos(kDatosInadecuados);
    lblP2410.Nombra(txtP2410);
    lblPD60T10.Nombra(txtPD60T10);
    SoloNumero(txtP2410);
    EncadenarEnter({&txtP2410}, bContinuar);
    bContinuar.Click.Conectar([this] { bContinuar_Click(); });
}

void frmBell::Form_Load() {
    MarcoModulo::Form_Load();
    txtP2410.SetFocus();
}

void frmBell::bContinuar_Click() {
    if (!Exigir(txtP2410, {"Ingresar un valor para Pmax24 con periodo de retorno T=10 años"})) {
        return;
    }
    P6010 = CSng(LluviaDeUnaHora(Val(txtP2410.Text())));
    txtPD60T10.Text = Format(P6010, "0.###0");
    SSTab1.Tab = SSTab1.Tab() + 1;
}

bool frmBell::Calcular() {
    P6010 = CSng(Val(txtPD60T10.Text()));
    if (P6010 == 0) {
        App().MsgBox("Ingresar un valor de la precipitación para D = 60 min y T = 10 años");
        txtPD60T10.SetFocus();
        return false;
    }
    const int n = static_cast<int>(kPeriodos.size());
    const IntensidadesBell bell = CalcularBell(P6010, kDuraciones, kPeriodos);
    const auto rotulo = [](int i) { return CStr(kPeriodos[static_cast<std::size_t>(i - 1)]); };
    LlenarDuraciones(grdDuracion, n, rotulo, bell.P);
    LlenarDuraciones(grdImax, n, rotulo, bell.I);
    return diseno.Ajustar(bell.puntos);
}

void frmBell::GenerarReporte(Reporte& reporte) {
    const std::vector<std::string> encabezados{"        T",   "     5 min",  "     10 min ", "    20 min ",
                                               "    30 min ", "    60 min ", "    120 min "};
    reporte.Titulo("Ingreso de datos:");
    reporte.ReporteLinea("Pmax para 24 hr con T=10 años :   " + txtP2410.Text() + "  min");
    reporte.ReporteBlanco();
    reporte.Titulo("Resultados:");
    reporte.ReporteLinea("P con D=60 min y T=10 años :  " + txtPD60T10.Text());
    reporte.ReporteBlanco();
    reporte.Titulo(
        "Precipitaciones para diferentes duraciones y periodos de retornos, obtenidos con la fórmula de "
        "Bell");
    ReportarDuraciones(reporte, "Valores de P, para diferentes T en años y para D = 5, 10, 20,30, 60 y 120 min",
                       encabezados, grdDuracion);
    ReportarDuraciones(reporte, "Valores de Imax  para diferentes duraciones (D) y periodos de retorno (T)",
                       encabezados, grdImax);
    diseno.ReportarResultados(reporte);
}

Disposicion frmBell::Cuerpo() {
    Disposicion datos =
        Columna({Fila({Grupo(fraDatos, {Fila({lblP2410, txtP2410, lblUnidadP2410, bContinuar, Espacio()}), Label13}),
                       Espacio()}),
                 Espacio()});
    Disposicion parcial = Grupo(fraP6010, {Fila({lblPD60T10, txtPD60T10, lblUnidadPD60T10, Espacio()})});
    Disposicion ecuacion = Columna({std::move(parcial), lblDuracion, Disposicion(grdDuracion).Estira(1), lblImax,
                                    Disposicion(grdImax).Estira(1), lblAjuste, diseno.grdecua});
    return Fichas(SSTab1, {std::move(datos), std::move(ecuacion), diseno.Zona()});
}

}  // namespace cuencalia
