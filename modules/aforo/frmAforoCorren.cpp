#include "modules/aforo/frmAforoCorren.h"

#include "frame/base/textos.h"
#include "frame/modulo/cajas.h"

namespace cuencalia {

namespace {

constexpr FormatoSerie kArchivoLHV{.valores = 3,
                                   .rotuloCrear = "Trio valores L,h,v",
                                   .rotuloAccesar = "Trio valores L,h,V",
                                   .extension = "*.LHV",
                                   .registrosDeCola = 1,
                                   .filasDeCabeza = 1};
constexpr int kFilasMax = 49;
constexpr const char* kPatron = "0.0###";

void Marcar(TextBox& caja) { caja.Seleccionar(0, Len(caja.Text())); }

}  // namespace

frmAforoCorren::frmAforoCorren(Aplicacion& app)
    : ModuloCalculo(
          app, "frmAforoCorren",
          {.titulo = "Aforo con correntómetro o molinete",
           .datos = {.encabezados = {"Tramo", "L (m)", "h (m)", "Vm (m/s)"}, .patronEdicion = kPatronEdicionB},
           .archivo = &kArchivoLHV,
           .filasMax = kFilasMax}) {
    LeerEn({&L, &h, &v});
    DeclararBotones({{&bGraficar, "graficar"}});
    DeclararTablas({&grdavq});
    DeclararEntradas({&txtNR, &txtTiempo, &txta, &txtB});
    DeclararResultados({&txtQ, &txtV});
    AvisarFallos({"Ingresó valores inadecuados. ¡Hacer la corrección correspondiente!"});
    bGraficar.Click.Conectar([this] { bGraficar_Click(); });
    bVelocidad.Click.Conectar([this] { bVelocidad_Click(); });
    optSi.Click.Conectar([this] {
        fraVelocidad.Visible = true;
        txtNR.SetFocus();
    });
    optNo.Click.Conectar([this] { fraVelocidad.Visible = false; });
    EncadenarEnter({&txtNR, &txtTiempo, &txta, &txtB}, bVelocidad);
    AlPulsarEnter(txtho, [this] {
        txtvo.SetFocus();
        Marcar(txtvo);
    });
    AlPulsarEnter(txtvo, [this] { datos.grdt.SetFocus(); });
    lblho.Nombra(txtho);
    lblvo.Nombra(txtvo);
    lblNR.Nombra(txtNR);
    lblTiempo.Nombra(txtTiempo);
    lbla.Nombra(txta);
    lblB.Nombra(txtB);
    lblQ.Nombra(txtQ);
    txtV.NombreAccesible = "Velocidad";
    Picture1.NombreAccesible = lblEsquema.Caption();
    Graph1.RotularEjes(lblEjeX, lblEjeY);
    txtho.Text = "0";
    txtvo.Text = "0";
    fraVelocidad.Visible = false;
    optNo.Value = true;
    DeclararInicio({&txtho, &txtvo, &fraVelocidad, &optNo});
    DeclararGraficos({&Graph1});
}

void frmAforoCorren::Form_Load() {
    ModuloCalculo::Form_Load();
    Marcar(txtho);
}

void frmAforoCorren::CargarMatrices() {
    ModuloCalculo::CargarMatrices();
    L(n + 1) = 0;
    h(n + 1) = Val(txtho.Text());
    v(n + 1) = Val(txtvo.Text());
}

std::vector<Registro> frmAforoCorren::RegistrosDeCola() { return {RegistroDe(n + 1)}; }

void frmAforoCorren::LeerCola(const std::vector<Registro>& registros) {
    txtho.Text = Format(registros.front()[1], "0.##");
    txtvo.Text = Format(registros.front()[2], "0.##");
}

void frmAforoCorren::LeerCabeza(const Hoja& hoja) {
    txtho.Text = TextoDeCelda(hoja.Cells(1, 2), kPatronEdicionB);
    txtvo.Text = TextoDeCelda(hoja.Cells(1, 3), kPatronEdicionB);
}

void frmAforoCorren::CalcularPromAltyVel() {
    h(0) = Val(txtho.Text());
    v(0) = Val(txtvo.Text());
    Qtotal = 0;
    for (int i = 1; i <= n; ++i) {
        tramos(i) = AforarTramo(L(i), {h(i - 1), v(i - 1)}, {h(i), v(i)});
        Qtotal += tramos(i).caudal;
    }
}

bool frmAforoCorren::Calcular() {
    CargarMatrices();
    CalcularPromAltyVel();
    for (int i = 1; i <= n; ++i) {
        grdavq.PonerFila(i, {CStr(i), Format(tramos(i).area, kPatron), Format(tramos(i).velocidad, kPatron),
                             Format(tramos(i).caudal, kPatron)});
    }
    if (Qtotal == 0) {
        App().MsgBox("Ingresar valores adecuados antes de realizar cálculos");
        return false;
    }
    txtQ.Text = Format(Qtotal, kPatron);
    return true;
}

void frmAforoCorren::bVelocidad_Click() {
    const auto exigir = [](TextBox& caja, const char* dato) {
        return Exigir(caja, {"Ingresar un valor adecuado para " + std::string(dato), kIconoInformacion,
                             "Error de ingreso de dato"});
    };
    if (exigir(txtNR, "NR") && exigir(txtTiempo, "el tiempo") && exigir(txta, "el coeficiente a") &&
        exigir(txtB, "para el coeficiente b")) {
        const Double velocidad =
            VelocidadMolinete(Val(txtNR.Text()), Val(txtTiempo.Text()), Val(txta.Text()), Val(txtB.Text()));
        txtV.Text = Format(velocidad, kPatron);
    }
}

void frmAforoCorren::bGraficar_Click() {
    if (ExigirCalculo()) {
        const Perfil perfil = PerfilSeccion(L, h, n, Val(txtho.Text()));
        GraficoDibujar(Graph1, {.conTrama = true, .cauce = true}, {{.x = perfil.x, .y = perfil.y}});
    }
}

void frmAforoCorren::GenerarReporte(Reporte& reporte) {
    reporte.Titulo("Valores iniciales:");
    reporte.ReporteLinea("Profundidad en el margen ho = " + txtho.Text() + " m");
    reporte.ReporteLinea("Velocidad en el margen vo = " + txtvo.Text() + " m/s");
    reporte.ReporteBlanco();
    reporte.EscribirTabla({.titulo = "Longitudes, profundidades y velocidades en los tramos:",
                           .regla = 85,
                           .encabezado = " Tramo    \t L (m)    \t h (m)    \t v (m/s)  \t\t",
                           .celda = CeldaSeguidaDe("\t\t")},
                          datos.grdt, n);
    reporte.EscribirTabla({.titulo = "Resultados para los tramos de la sección transversal:",
                           .regla = 95,
                           .encabezado = " Tramo\t Área (m2)\t Velocidad (m/s)\t Caudal (m3/s) \t",
                           .celda = [](const std::string& texto, int, int) { return "  " + texto + "\t\t"; },
                           .paradas = {11, 12, 23, 24, 35, 36}},
                          grdavq, n);
    reporte.ReporteLinea("Caudal total de la sección: Q = " + txtQ.Text() + " m3/s");
    reporte.ReporteBlanco();
}

Disposicion frmAforoCorren::Cuerpo() {
    Disposicion entrada = Columna({Grupo(Frame2, {Pares(3, {lblho, txtho, uho, lblvo, txtvo, uvo})}),
                                   Grupo(Frame1, {Fila({optNo, optSi, Espacio(), lblEcuacion, lblDonde})}),
                                   Grupo(fraVelocidad, {Fila({lblNR, txtNR, lblTiempo, txtTiempo}),
                                                        Fila({lbla, txta, lblB, txtB, bVelocidad, txtV, uV})}),
                                   datos.Zona().Estira(1)});
    Disposicion caudal = Columna({Espacio(), Fila({lblQ, txtQ, uQ, Espacio()})});
    Disposicion resultados =
        Columna({Fila({Columna({lblEsquema, Picture1}), std::move(caudal).Estira(1)}), Disposicion(grdavq).Estira(1),
                 Fila({lblEjeY, Espacio()}), Disposicion(Graph1).Estira(2), Fila({Espacio(), lblEjeX})});
    return Fila({std::move(entrada), std::move(resultados).Estira(1)});
}

}  // namespace cuencalia
