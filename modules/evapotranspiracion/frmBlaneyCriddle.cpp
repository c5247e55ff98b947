#include "modules/evapotranspiracion/frmBlaneyCriddle.h"

#include <algorithm>

#include "frame/base/textos.h"
#include "frame/modulo/cajas.h"

namespace cuencalia {

namespace {

constexpr FormatoSerie kArchivoTB{.rotuloCrear = "Temperaturas mensuales TB",
                                  .rotuloAccesar = "Temperaturas mensuales TB",
                                  .extension = "*.TB",
                                  .patronArchivo = "0.0#"};
struct Cultivo {
    const char *nombre, *Kc;
};
constexpr Cultivo kCultivos[] = {{"Alfalfa", "0.85"},        {"Algodón", "0.70"},
                                 {"Arroz", "1.10"},          {"Banano", "0.90"},
                                 {"Cacao", "0.75"},          {"Café", "0.75"},
                                 {"Caña de azúcar", "0.85"}, {"Cereales menores", "0.80"},
                                 {"Frijoles", "0.85"},       {"Frutales, cítricos", "0.60"},
                                 {"Maiz", "0.75"},           {"Papa", "0.70"},
                                 {"Pastos", "0.75"},         {"Remolacha azucarera", "0.70"},
                                 {"Sorgo", "0.70"},          {"Tabaco", "0.70"},
                                 {"Tomate", "0.70"},         {"Vegetales pequeños", "0.60"},
                                 {"Viñas", "0.55"}};

std::vector<std::string> ListaDeCultivos() {
    std::vector<std::string> lista;
    for (const Cultivo& cultivo : kCultivos) {
        lista.push_back(std::string(cultivo.nombre) + " (" + cultivo.Kc + ")");
    }
    return lista;
}

Aviso Falta(const char* que) { return {std::string("Ingresar ") + que, kIconoInformacion, "Error"}; }
Aviso FaltaValor(const char* que) {
    return {std::string("Ingresar valor adecuado ") + que, kIconoInformacion, "Mensaje de error"};
}

}  // namespace

frmBlaneyCriddle::frmBlaneyCriddle(Aplicacion& app)
    : ModuloMensual(app, "frmBlaneyCriddle",
                    {.modulo = {.titulo = "Cálculo de la evapotranspiración potencial por el método de Blaney_Criddle "
                                          "modificado por la FAO",
                                .datos = {.encabezados = {"Mes", "Temperatura (ºC)"}, .etiqueta = MesCorto},
                                .archivo = &kArchivoTB},
                     .resultados = {.filas = 13,
                                    .columnas = {{"Mes", 700},
                                                 {"T", 650},
                                                 {"P(%)", 650},
                                                 {"ETo diaria (mm)", 1400},
                                                 {"ETr diaria", 1050},
                                                 {"ETr mensual", 1150}},
                                    .columnasFijas = 1},
                     .latitudes = kTablaP,
                     .faltanMeses = "Ingresar las temperaturas promedios mensuales, para los 12 meses",
                     .ejeY = "ETr diaria (mm)"}),
      cobKc(*this, "cobKc", ListaDeCultivos(), "Cultivo y su Kc") {
    LeerEn({&T});
    DeclararCorrecciones({&pMes, &Nmax});
    DeclararBotones({{&bGraficar, "graficar"}});
    Alternar(OptEstimado, fraClimaEstimado, fraClimaMedido, cobInsolacion);
    Alternar(OptMedido, fraClimaMedido, fraClimaEstimado, txtcn);
    Alternar(optKcEstimado, fraKcEstimado, fraKcTabla, cobKc);
    Alternar(optKcTabla, fraKcTabla, fraKcEstimado, txtKcTabla);
    DeclararEntradas({&txtcn, &txtchrmin, &txtcv, &txtKcTabla}, Momento::AlLimpiar);
    for (ComboBox* lista : {&cobLatitud, &cobLatitudNS, &cobInsolacion, &cobHumedad, &cobViento, &cobKc}) {
        DeclararLimpieza([lista] { lista->Text = ""; }, Momento::AlLimpiar);
    }
    fraClimaMedido.Visible = false;
    fraKcTabla.Visible = false;
    EncadenarEnter({&txtcn, &txtchrmin, &txtcv}, bCalcular);
    EncadenarEnter({&txtKcTabla}, bCalcular);
    lblInsolacion.Nombra(cobInsolacion);
    lblHumedad.Nombra(cobHumedad);
    lblViento.Nombra(cobViento);
    lblcn.Nombra(txtcn);
    lblchrmin.Nombra(txtchrmin);
    lblcv.Nombra(txtcv);
    lblKcTabla.Nombra(txtKcTabla);
}

void frmBlaneyCriddle::Alternar(OptionButton& opcion, Frame& marco, Frame& otro, Control& primero) {
    opcion.Click.Conectar([&] {
        otro.Visible = false;  // first: with both in sight the window would grow
        marco.Visible = true;
        primero.SetFocus();
    });
}

bool frmBlaneyCriddle::LeerClima() {
    if (Estimado()) {
        if (!Exigir(cobInsolacion, Falta("dato de insolación")) ||
            !Exigir(cobHumedad, Falta("dato de humedad relativa")) ||
            !Exigir(cobViento, Falta("dato de velocidad de viento"))) {
            return false;
        }
        // The two lowest of the four entries are one class.
        insolacion_ = static_cast<Clase>(std::max(0, 2 - cobInsolacion.ListIndex()));
        humedad_ = static_cast<Clase>(cobHumedad.ListIndex());
        viento_ = static_cast<Clase>(cobViento.ListIndex());
        return true;
    }
    if (!Exigir(txtcn, FaltaValor("del número de horas de insolación real (n)")) ||
        !Exigir(txtchrmin, FaltaValor("de la humedad relativa mínima")) ||
        !Exigir(txtcv, FaltaValor("de la velocidad del viento"))) {
        return false;
    }
    horas_ = Val(txtcn.Text());
    humedad_ = ClaseDeHumedad(Val(txtchrmin.Text()));
    viento_ = ClaseDeViento(Val(txtcv.Text()));
    return true;
}

bool frmBlaneyCriddle::LeerKc() {
    if (optKcEstimado.Value) {
        if (!Exigir(cobKc, Falta("dato de Kc del cultivo"))) {
            return false;
        }
        Kc = Val(kCultivos[cobKc.ListIndex()].Kc);
        return true;
    }
    if (!Exigir(txtKcTabla, {"Ingresar dato de Kc del cultivo adecuado", kIconoInformacion, "Mensaje de error"})) {
        return false;
    }
    Kc = Val(txtKcTabla.Text());
    return true;
}

RectaFao frmBlaneyCriddle::RectaDelMes(int mes) const {
    return RectaDelClima(Estimado() ? insolacion_ : ClaseDeInsolacion(horas_ / Nmax(mes)), humedad_, viento_);
}

bool frmBlaneyCriddle::Calcular() {
    ElegirLatitud();
    CargarMatrices();
    if (!LeerClima() || !LeerKc()) {
        return false;
    }
    for (int m = 1; m <= 12; ++m) {
        ETo(m) = EToBlaneyCriddle(T(m), pMes(m), RectaDelMes(m));
        ETr(m) = CSng(Kc * ETo(m));
        ETrMes(m) = ETr(m) * DiasDelMes(m);
    }
    for (int m = 1; m <= 12; ++m) {
        grddis.PonerFila(m, {nombreMes(m), Format(T(m), "0.0#"), Format(pMes(m), "0.0#"), Format(ETo(m), "0.0##"),
                             Format(ETr(m), "0.0##"), Format(ETrMes(m), "0.0#")});
    }
    calculado = true;  // also when these months were refused, with those read before
    return DatosLegibles();
}

void frmBlaneyCriddle::GenerarReporte(Reporte& reporte) {
    reporte.EscribirTabla(TablaDeTemperaturas(), datos.grdt, datos.Filas());
    reporte.ReporteLinea(" Datos climatológicos:");
    reporte.ReporteLinea(" Latitud: " + cobLatitud.Text() + "º " + cobLatitudNS.Text());
    const bool estimado = Estimado();
    reporte.ReporteLinea(estimado ? " Insolación relativa (n/N): " + cobInsolacion.Text()
                                  : " Número de horas de insolación real (n): " + txtcn.Text() + " horas");
    reporte.ReporteLinea(" Humedad relativa mínima: " + (estimado ? cobHumedad.Text() : txtchrmin.Text()) + " %");
    reporte.ReporteLinea(" Velocidad del viento: " + (estimado ? cobViento.Text() : txtcv.Text()) + " Km/hr");
    reporte.ReporteLinea(" Kc: " + CStr(Kc));
    reporte.ReporteBlanco();
    const std::vector<std::string> encabezados{"Mes  ",
                                               "  Temperatura   ",
                                               "           P(%)   ",
                                               "       ETo diaria (mm)   ",
                                               "   ETr diaria (mm)   ",
                                               "   ETr mensual (mm)   "};
    reporte.EscribirTabla(
        {.titulo = "Resultado del cálculo de la evapotranspiración potencial, método de Blaney-Criddle:",
         .regla = kReglaResultados,
         .encabezado = UnirEncabezados(encabezados, ""),
         .celda = CeldaSeguidaDe("\t"),
         .paradas = ParadasBajo(encabezados)},
        grddis, 12);
}

Disposicion frmBlaneyCriddle::Contenido() {
    Disposicion estimado = Grupo(
        fraClimaEstimado, {Pares(2, {lblInsolacion, cobInsolacion, lblHumedad, cobHumedad, lblViento, cobViento})});
    Disposicion medido = Grupo(fraClimaMedido, {Pares(2, {lblcn, txtcn, lblchrmin, txtchrmin, lblcv, txtcv})});
    Disposicion clima =
        Grupo(fraClima, {Fila({OptEstimado, OptMedido, Espacio()}), std::move(estimado), std::move(medido)});
    Disposicion kc = Grupo(fraKc, {Fila({optKcEstimado, optKcTabla, Espacio()}), Grupo(fraKcEstimado, {cobKc}),
                                   Grupo(fraKcTabla, {Fila({lblKcTabla, txtKcTabla, Espacio()})})});
    return Columna(
        {Fila({Columna({Latitud(), std::move(kc), Espacio()}), Columna({std::move(clima), Espacio()}), Espacio()}),
         Fila({Columna({Disposicion(grddis).Estira(1)}), Grafico().Estira(1)}).Estira(1)});
}

}  // namespace cuencalia
